// How the module is loaded.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { createServer } from "node:http";
import { join } from "node:path";
import { test } from "node:test";
import { Worker } from "node:worker_threads";

import { VecMatError, load } from "vecmat";

import { packageFolder, vm } from "./support.js";

const file = join(packageFolder, "vecmat.wasm");

test("it is loaded once", async () => {
  assert.equal(await load(), vm);
  assert.equal(await load({}), vm);
});

test("bytes, a compiled module, a response and a URL give an instance of its own", async () => {
  const bytes = await readFile(file);
  const server = createServer((request, response) => {
    if (request.url === "/none") response.writeHead(404).end();
    else response.writeHead(200, request.url === "/typed" ? { "Content-Type": "application/wasm" } : {}).end(bytes);
  });
  await new Promise((listening) => server.listen(0, "127.0.0.1", listening));
  const place = `http://127.0.0.1:${server.address().port}`;
  try {
    for (const wasm of [bytes, bytes.buffer.slice(bytes.byteOffset, bytes.byteOffset + bytes.length), await WebAssembly.compile(bytes),
      await fetch(`${place}/typed`), `${place}/typed`, `${place}/plain`, new URL(`file://${file}`)]) {
      const own = await load({ wasm });
      assert.notEqual(own, vm);
      assert.equal(own.mean([1, 2, 6]), 3);
    }
    await assert.rejects(load({ wasm: `${place}/none` }), VecMatError);
  } finally {
    server.close();
  }
});

test("anything else is refused", async () => {
  for (const wasm of [1, null, {}, []]) await assert.rejects(load({ wasm }), TypeError);
  await assert.rejects(load(null), TypeError);
  await assert.rejects(load({ wasm: new Uint8Array(8) }), WebAssembly.CompileError);
});

test("it runs in a worker", async () => {
  const worker = new Worker(`
    import("vecmat").then(async ({ load }) => {
      const { parentPort } = await import("node:worker_threads");
      parentPort.postMessage((await load()).mean([1, 2, 6]));
    })`, { eval: true });
  assert.equal(await new Promise((done, failed) => worker.on("message", done).on("error", failed)), 3);
});

test("a series without a seed differs from the next", () => {
  const [a, b] = [vm.permutation(50), vm.permutation(50)];
  assert.notEqual(a.seed, b.seed);
  assert.notDeepEqual(a.values, b.values);
  assert.deepEqual(vm.permutation(50, { seed: a.seed }).values, a.values);
});
