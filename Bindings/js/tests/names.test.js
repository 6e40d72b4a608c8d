// The types name what the package has: no more, no less. types.ts has the types' list, which its compiler checks.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";

import { table, vm } from "./support.js";

test("the types name every function", () => {
  const told = readFileSync(new URL("types.ts", import.meta.url), "utf8").match(/names: Record.*?\n\};/s)[0];
  assert.deepEqual([...told.matchAll(/(\w+): true/g)].map(([, name]) => name).sort(), Object.keys(vm).sort());
});

test("the types name every flat function", () => {
  const told = readFileSync(new URL("../node_modules/vecmat/src/flat.d.ts", import.meta.url), "utf8");
  assert.deepEqual([...told.matchAll(/^  (\w+)\(/gm)].map(([, name]) => name), table.map(({ name }) => name));
  assert.deepEqual(Object.keys(vm.flat).sort(), ["MISSING", ...table.map(({ name }) => name)].sort());
});
