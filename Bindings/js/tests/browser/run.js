// run.js BUILD: the digests of all functions in Chromium, and the package on a page and in a worker. BUILD is the folder
// of the build. Exits with 1 if a digest differs, or a result differs from Node's.
import { spawn } from "node:child_process";
import { mkdtemp, readFile, rm } from "node:fs/promises";
import { createServer } from "node:http";
import { tmpdir } from "node:os";
import { extname, join, normalize } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";

import { workload } from "./workload.js";

const build = process.argv[2];
const folders = { package: join(build, "package"), bin: join(build, "bin"), tests: fileURLToPath(new URL(".", import.meta.url)) };
const types = { ".html": "text/html", ".js": "text/javascript", ".wasm": "application/wasm" };
const MOST_MINUTES = 5;

async function served(request, response) {
  const [, folder, ...rest] = normalize(new URL(request.url, "http://localhost").pathname).split("/");
  try {
    const content = await readFile(join(folders[folder], ...rest));
    response.writeHead(200, { "Content-Type": types[extname(request.url)] ?? "text/plain" }).end(content);
  } catch {
    response.writeHead(404).end();
  }
}

async function bodyOf(request) {
  let text = "";
  for await (const part of request) text += part;
  return JSON.parse(text);
}

/** Opens a page in Chromium, and gives what it posts to /results. */
async function resultsOf(page) {
  let arrived;
  const results = new Promise((done) => (arrived = done));
  const server = createServer(async (request, response) => {
    if (request.url !== "/results") return served(request, response);
    arrived(await bodyOf(request));
    response.end();
  });
  await new Promise((listening) => server.listen(0, "127.0.0.1", listening));
  const profile = await mkdtemp(join(tmpdir(), "chromium-"));
  const browser = spawn("chromium", ["--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
    `--user-data-dir=${profile}`, `http://127.0.0.1:${server.address().port}/tests/${page}`], { stdio: "ignore" });
  const ended = new Promise((done) => browser.on("exit", done));
  const failed = new Promise((_, fail) => browser.on("error", fail));
  const late = new Promise((_, fail) => setTimeout(() => fail(new Error(`${page}: no results after ${MOST_MINUTES} minutes`)), MOST_MINUTES * 60000).unref());
  try {
    return await Promise.race([results, failed, late, ended.then(() => { throw new Error(`${page}: Chromium ended without results`); })]);
  } finally {
    browser.kill();
    await ended;
    server.closeAllConnections?.();
    server.close();
    await rm(profile, { recursive: true, force: true, maxRetries: 5 });
  }
}

async function digests() {
  const { lines, status } = await resultsOf("digest.html");
  console.log(`Chromium: ${lines.join("\n")}`);
  return status === 0 && lines.some((line) => line.startsWith("OK: "));
}

async function packageOnPage() {
  const { load } = await import(pathToFileURL(join(folders.package, "src/index.js")));
  const expected = workload(await load());
  const found = await resultsOf("package.html");
  if (found.error) {
    console.log(`Chromium: ${found.error}`);
    return false;
  }
  const wrong = ["page", "worker"].flatMap((place) => expected.filter((digits, k) => found[place][k] !== digits).map((digits) => `${place}: ${digits}`));
  console.log(wrong.length > 0 ? wrong.join("\n") : `Chromium: ${expected.length} results of the package, on a page and in a worker, as in Node`);
  return wrong.length === 0 && expected.length === found.page.length;
}

const passed = [await digests(), await packageOnPage()];
process.exitCode = passed.every(Boolean) ? 0 : 1;
