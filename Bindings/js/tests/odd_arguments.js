// Arguments that do not fit, and blocks of the module's memory that nothing may write.
import { VecMatError } from "vecmat";

import { ARRAYS, vm } from "./support.js";

// These go on for as long as they are told to, or take as much memory.
export const LONG = new Set(["TestAllocMatrix", "GetStatusMemory", "Cpp_GetStatusMemory"]);
const WRONG_TYPES = [{}, () => 1, Symbol("a"), 3n, new Map(), new Date(), new BigInt64Array(2), new ArrayBuffer(8), new DataView(new ArrayBuffer(8))];
const NUMBERS = [...WRONG_TYPES, "1", null, undefined, [1], new Float64Array(2)];

const lying = Object.defineProperties(new Float64Array(1), {
  length: { value: 1e9 }, byteLength: { value: 8e9 }, buffer: { value: null }, BYTES_PER_ELEMENT: { value: 0 } });
const moving = (value) => new Proxy(Array.from(value), {
  get: (target, key) => {
    if (key === "0") vm.flat.VB_V_Mean2([1, 2, 3], 3); // a call within a call
    return target[key];
  } });

/** Values of other types. */
export function wrongTypes({ kind, role }, value) {
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

/** The value with a cell less or more. */
export function wrongSizes({ kind }, value) {
  if (kind in ARRAYS) {
    const grown = new ARRAYS[kind](value.length + 1);
    grown.set(value);
    return value.length > 0 ? [value.slice(1), new ARRAYS[kind](0), grown] : [grown];
  }
  return Array.isArray(value) && value.length > 0 ? [value.slice(1), []] : [];
}

/** Values of the type that are seldom meant. */
export function oddValues({ kind }, value) {
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

/** A position, a code or a count just beyond its range: it would address memory outside of an array. */
export function beyond({ kind, range }, values, value) {
  const [low, high] = [range[0](values), range[1](values)];
  const most = kind === "flag" || kind === "flags" ? 2 ** 15 - 1 : 2 ** 31 - 1;
  return [low - 1, high + 1].filter((odd) => Math.abs(odd) <= most).map((odd) => (kind in ARRAYS ? value.slice().fill(odd) : odd));
}

// Blocks before and behind what a call uses: nothing may be written there.
const sentinels = Array.from({ length: 64 }, (_, k) => vm.allocate(Int32Array, 16 << (k % 8)));
for (const block of sentinels) block.array.fill(0x5a5a5a5a);
sentinels.filter((_, k) => k % 2 === 1).forEach((block) => block.free()); // holes for what calls allocate
export const intact = () => sentinels.every((block, k) => k % 2 === 1 || block.array.every((cell) => cell === 0x5a5a5a5a));

/** What a caller may see: no trap of the module. */
export function isExpected(error) {
  return error instanceof TypeError || error instanceof RangeError || (error instanceof VecMatError && error.code !== "stopped");
}
