// Calls every flat function with arguments that do not fit, each in turn: each is an error that names the argument, or a
// result, and what lies beside the arrays in the module's memory stays as it was.
import assert from "node:assert/strict";
import { test } from "node:test";

import { VecMatError } from "vecmat";

import { beyond, intact, isExpected, LONG, oddValues, wrongSizes, wrongTypes } from "./odd_arguments.js";
import { ARRAYS, plainArguments, sameBits, table, vm } from "./support.js";

function attempt(description, values, note, named, wrong) {
  try {
    vm.flat[description.name](...values);
  } catch (error) {
    if (!isExpected(error)) wrong.push(`${note}: ${error.stack}`);
    if (named && !(error instanceof VecMatError) && !error.message.includes(named)) wrong.push(`${note}: does not name it: ${error.message}`);
    return;
  }
  if (named) wrong.push(`${note}: no error`);
}

function besiege(description, wrong) {
  const { name, parameters } = description;
  const plain = (size) => plainArguments(description, size);
  parameters.forEach((parameter, place) => {
    const given = plain()[place];
    const named = `'${parameter.name}'`;
    // Another size can be right where more cells may stand behind, and the array that tells sizes fails others.
    const mayDiffer = parameter.atLeast || parameter.addresses;
    const ranges = parameter.range && (given?.length ?? 1) > 0 ? beyond(parameter, plain(), given) : [];
    const attacks = [["beyond", ranges, named], ["type", wrongTypes(parameter, given), named], ["size", wrongSizes(parameter, given), mayDiffer ? "" : named], ["value", oddValues(parameter, given), ""]];
    for (const [what, odds, expected] of attacks)
      odds.forEach((odd, k) => {
        const values = plain();
        values[place] = odd;
        const isNull = (odd === null || odd === undefined) && parameter.nullable;
        attempt(description, values, `${name} ${parameter.name} ${what} ${k}`, isNull ? "" : expected, wrong);
      });
  });
  attempt(description, plain().slice(1), `${name} too few`, parameters.length > 0 ? "arguments" : "", wrong);
  attempt(description, [...plain(), 1], `${name} too many`, "arguments", wrong);
  for (const size of [0, 1, -3]) attempt(description, plain(size), `${name} size ${size}`, "", wrong);
}

/** All arrays of a kind in one run of the module's memory. */
function overlapping(description, memory) {
  const values = plainArguments(description);
  description.parameters.forEach(({ kind }, place) => {
    if (kind in ARRAYS) values[place] = memory[kind].array.fill(1).subarray(0, values[place].length);
  });
  return values;
}

test("no argument gets past the checks", () => {
  const wrong = [];
  const before = vm.flat.VB_V_Var(Float64Array.of(1, 2, 4), 3, null, Float64Array.of(1, 1, 1), -1, -1);
  const memory = Object.fromEntries(Object.entries(ARRAYS).map(([kind, type]) => [kind, vm.allocate(type, 100000)]));
  for (const description of table) {
    if (LONG.has(description.name)) continue;
    besiege(description, wrong);
    attempt(description, overlapping(description, memory), `${description.name} overlapping`, "", wrong);
    if (!intact()) {
      wrong.push(`${description.name}: wrote beside its arrays`);
      break;
    }
  }
  assert.deepEqual(wrong.slice(0, 20), [], `${wrong.length} in all`);
  assert.ok(sameBits(vm.flat.VB_V_Var(Float64Array.of(1, 2, 4), 3, null, Float64Array.of(1, 1, 1), -1, -1), before));
});
