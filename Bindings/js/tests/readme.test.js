// What the package's page shows is what comes out.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { test } from "node:test";

import { packageFolder, vm } from "./support.js";

const page = readFileSync(join(packageFolder, "README.md"), "utf8");
const lines = [...page.matchAll(/^(vm\.(?!flat).+?);\s+\/\/ (.+)$/gm)];

test("each line of the first example", () => {
  assert.ok(lines.length >= 5);
  for (const [, code, told] of lines) assert.deepEqual(new Function("vm", `return ${code}`)(vm), JSON.parse(told), code);
});
