// Cells in the module's memory, and the end of memory.
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { join } from "node:path";
import { test } from "node:test";

import { VecMatError, load } from "vecmat";

import { packageFolder, vm } from "./support.js";

test("a call works on allocated cells where they are", () => {
  const x = vm.allocate(Float64Array, 4);
  assert.deepEqual([...x.array], [0, 0, 0, 0]);
  x.array.set([4, 1, 3, 2]);
  vm.flat.VB_SortQVectorDbl(x, 4, 1, 4, 0);
  assert.deepEqual([...x.array], [1, 2, 3, 4]);
  vm.flat.VB_SortQVectorDbl(x.array.subarray(1, 3), 2, 1, 2, -1);
  assert.deepEqual([...x.array], [1, 3, 2, 4]);
  assert.equal(vm.mean(x), 2.5);
  x.free();
});

test("what was freed, and what nobody allocated, is refused", () => {
  const x = vm.allocate(Float64Array, 4);
  const view = x.array;
  x.free();
  x.free();
  assert.throws(() => vm.flat.VB_V_Mean2(view, 4), /VB_V_Mean2\(\), argument 'v': the array lies in the module's memory/);
  assert.throws(() => x.array, /freed/);
  assert.throws(() => vm.flat.VB_V_Mean2(new Float64Array(view.buffer, 0, 4), 4), TypeError);
  const y = vm.allocate(Float64Array, 4);
  const beyond = new Float64Array(y.array.buffer, y.array.byteOffset, 5);
  assert.throws(() => vm.flat.VB_V_Mean2(beyond, 5), TypeError);
  Object.defineProperty(beyond, "BYTES_PER_ELEMENT", { value: 0 });
  assert.throws(() => vm.flat.VB_V_Mean2(beyond, 5), TypeError);
  y.free();
});

test("a view stays valid when the memory grows, and an old one is refused", () => {
  const x = vm.allocate(Float64Array, 3);
  x.array.set([1, 2, 3]);
  const old = x.array;
  const large = vm.allocate(Float64Array, vm.memoryBytes() / 8);
  assert.equal(old.length, 0); // detached
  assert.deepEqual([...x.array], [1, 2, 3]);
  assert.throws(() => vm.flat.VB_V_Mean2(old, 3), RangeError);
  assert.equal(vm.flat.VB_V_Mean2(x, 3), 2);
  large.free();
  x.free();
});

test("the end of memory is an error, and the module goes on", async () => {
  const own = await load({ wasm: await readFile(join(packageFolder, "vecmat.wasm")) });
  assert.throws(() => own.allocate(Float64Array, 2 ** 30), (error) => error instanceof VecMatError && error.code === "memory");
  const blocks = [];
  assert.throws(() => {
    for (;;) blocks.push(own.allocate(Float64Array, 2 ** 24));
  }, (error) => error instanceof VecMatError && error.code === "memory");
  for (let size = 2 ** 20; size >= 2 ** 10; size /= 4)
    try {
      for (;;) blocks.push(own.allocate(Float64Array, size));
    } catch (error) {
      assert.equal(error.code, "memory");
    }
  const n = 2000;
  const square = blocks[0].array.subarray(0, n * n); // no copy, but the computation needs memory of its own
  assert.throws(() => own.flat.VB_M_Inverse1(square, n, blocks[1].array.subarray(0, n * n), 0),
    (error) => error instanceof VecMatError && error.code === "memory" && error.message.includes("VB_M_Inverse1"));
  for (const block of blocks) block.free();
  assert.equal(own.mean(new Float64Array(100000).fill(2)), 2);
  assert.deepEqual(own.inv([[2, 0], [0, 4]]).toRows(), [[0.5, 0], [0, 0.25]]);
});

test("allocate() names what is wrong", () => {
  assert.throws(() => vm.allocate(Array, 1), /argument 'type'/);
  assert.throws(() => vm.allocate(Float64Array, -1), /argument 'length'/);
  assert.throws(() => vm.allocate(Float64Array, "2"), /argument 'length'/);
});
