// node build.mjs MODULE_DIRECTORY OUTPUT_DIRECTORY: makes the page from its sources and the compiled survey
// (survey_module.mjs and .wasm of the first directory), and tells what it loads. Fails above the limit.
import { build } from "esbuild";
import { copyFileSync, mkdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { dirname, join, resolve } from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";
import { licences } from "./licences.mjs";

const mostBytes = 1_500_000; // compressed

const here = dirname(fileURLToPath(import.meta.url));
const [moduleDirectory, output] = process.argv.slice(2).map((path) => resolve(path));
if (output === undefined) {
  console.error("usage: node build.mjs MODULE_DIRECTORY OUTPUT_DIRECTORY");
  process.exit(2);
}

const loaded = ["index.html", "page.css", "page.js", "worker.js", "survey.wasm", "penguins.csv"];
const compressedSize = (name) => gzipSync(readFileSync(join(output, name)), { level: 9 }).length;
const totalSize = () => loaded.reduce((sum, name) => sum + compressedSize(name), 0);

/** Both scripts; returns the files that went into them. */
async function bundle(bytesLoaded) {
  const { metafile } = await build({
    absWorkingDir: here,
    entryPoints: { page: "source/main.js", worker: "source/worker.js" },
    alias: { "survey-module": join(moduleDirectory, "survey_module.mjs") },
    outdir: output,
    bundle: true,
    format: "esm",
    target: ["chrome100", "firefox100", "safari16.4"],
    minify: true,
    legalComments: "none", // the licences are in a file of their own
    define: { BYTES_LOADED: String(bytesLoaded) },
    metafile: true,
    logLevel: "warning",
  });
  return Object.keys(metafile.inputs);
}

rmSync(output, { recursive: true, force: true });
mkdirSync(output, { recursive: true });
for (const name of ["index.html", "page.css"]) copyFileSync(join(here, "source", name), join(output, name));
copyFileSync(join(here, "../survey/penguins.csv"), join(output, "penguins.csv"));
copyFileSync(join(moduleDirectory, "survey_module.wasm"), join(output, "survey.wasm"));
writeFileSync(join(output, "licences.txt"), licences(here, await bundle(0)));
await bundle(totalSize());

for (const name of loaded) console.log(`${String(compressedSize(name)).padStart(9)}  ${name}`);
const total = totalSize();
console.log(`${String(total).padStart(9)}  in all, compressed (at most ${mostBytes})`);
if (total > mostBytes) {
  console.error("The page is larger than it may be.");
  process.exit(1);
}
