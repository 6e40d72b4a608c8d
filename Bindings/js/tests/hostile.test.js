// Calls every flat function with arguments that do not fit, each in turn: each is an error that names the argument, or a
// result, and what lies beside the arrays in the module's memory stays as it was.
import assert from "node:assert/strict";
import { test } from "node:test";

import { VecMatError } from "vecmat";

import { ARRAYS, plainArguments, sameBits, table, vm } from "./support.js";

// These go on for as long as they are told to, or take as much memory.
const LONG = new Set(["TestAllocMatrix", "GetStatusMemory", "Cpp_GetStatusMemory"]);
const WRONG_TYPES = [{}, () => 1, Symbol("a"), 3n, new Map(), new Date(), new BigInt64Array(2), new ArrayBuffer(8), new DataView(new ArrayBuffer(8))];
const NUMBERS = [...WRONG_TYPES, "1", null, undefined, [1], new Float64Array(2)];

const lying = Object.defineProperties(new Float64Array(1), {
  length: { value: 1e9 }, byteLength: { value: 8e9 }, buffer: { value: null }, BYTES_PER_ELEMENT: { value: 0 } });
const moving = (value) => new Proxy(Array.from(value), {
  get: (target, key) => {
    if (key === "0") vm.flat.VB_V_Mean2([1, 2, 3], 3); // a call within a call
    return target[key];
  } });

function wrongTypes({ kind, role }, value) {
  switch (kind) {
    case "integer":
    case "flag":
      return [...NUMBERS, 1.5, NaN, Infinity, 2 ** 40];
    case "number":
      return NUMBERS;
    case "doubles":
    case "ints":
    case "flags":
      return [...WRONG_TYPES, "abc", ["a"], [{}], 5, ...(role === "in" ? [] : [Array.from(value), new Uint8Array(value.length)])];
    case "text":
    case "bstr":
      return [...WRONG_TYPES, 1, ["a"], "a\0b"];
    default:
      return [...WRONG_TYPES, 1, "abc", [{}], [1, 2]];
  }
}

function wrongSizes({ kind }, value) {
  if (kind in ARRAYS) {
    const grown = new ARRAYS[kind](value.length + 1);
    grown.set(value);
    return value.length > 0 ? [value.slice(1), new ARRAYS[kind](0), grown] : [grown];
  }
  return Array.isArray(value) && value.length > 0 ? [value.slice(1), []] : [];
}

function oddValues({ kind }, value) {
  switch (kind) {
    case "integer":
      return [0, -0, -1, 2, 2 ** 31 - 1, -(2 ** 31), true, false];
    case "flag":
      return [0, -1, 1, 2 ** 15 - 1, -(2 ** 15), true, false];
    case "number":
      return [0, -1, 1e308, NaN, Infinity, -Infinity, vm.flat.MISSING];
    case "doubles":
      return [...[NaN, Infinity, -Infinity, 1e308, -1, 0, 1e9, vm.flat.MISSING].map((odd) => value.slice().fill(odd)), lying, moving(value)];
    case "ints":
    case "flags":
      return [0, -1, 2 ** 15 - 1, -(2 ** 15), ...(kind === "ints" ? [2 ** 31 - 1, -(2 ** 31)] : [])].map((odd) => value.slice().fill(odd));
    case "strings":
      return [null, "", "x".repeat(5000), "\ud800", "\u{10ffff}"].map((odd) => new Array(value.length).fill(odd));
    case "text":
    case "bstr":
      return ["", "x".repeat(5000), "\ud800"];
    default:
      return [];
  }
}

// Blocks before and behind what a call uses: nothing may be written there.
const sentinels = Array.from({ length: 64 }, (_, k) => vm.allocate(Int32Array, 16 << (k % 8)));
for (const block of sentinels) block.array.fill(0x5a5a5a5a);
sentinels.filter((_, k) => k % 2 === 1).forEach((block) => block.free()); // holes for what calls allocate
const intact = () => sentinels.every((block, k) => k % 2 === 1 || block.array.every((cell) => cell === 0x5a5a5a5a));

function attempt(description, values, note, named, wrong) {
  try {
    vm.flat[description.name](...values);
  } catch (error) {
    const isExpected = error instanceof TypeError || error instanceof RangeError || (error instanceof VecMatError && error.code !== "stopped");
    if (!isExpected) wrong.push(`${note}: ${error.stack}`);
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

/** A position, a code or a count just beyond its range: it would address memory outside of an array. */
function beyond({ kind, range }, values, value) {
  const [low, high] = [range[0](values), range[1](values)];
  const most = kind === "flag" || kind === "flags" ? 2 ** 15 - 1 : 2 ** 31 - 1;
  return [low - 1, high + 1].filter((odd) => Math.abs(odd) <= most).map((odd) => (kind in ARRAYS ? value.slice().fill(odd) : odd));
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
