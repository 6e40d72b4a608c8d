// fuzz_flat.js SEED [--seconds S | --calls N] [--first K] [--note FILE]: calls of flat functions in which several arguments
// at once do not fit, drawn from the seed. Case k is the same whatever came before it, so `--first k --calls 1` repeats one.
//
// The module has to go on running, and to leave alone what lies beside the arrays of a call: what else happens is printed,
// and the exit status is 1. FILE holds the number of the case that runs.
import { writeFileSync } from "node:fs";
import { parseArgs } from "node:util";

import { beyond, intact, isExpected, LONG, oddValues, wrongSizes, wrongTypes } from "./odd_arguments.js";
import { ARRAYS, plainArguments, table, vm } from "./support.js";

const SIZES = [-3, -1, 0, 1, 2, 3, 4, 5, 7, 8, 9, 17, 33];
const MOST_CELLS = 20000;
const BETWEEN_CHECKS = 200; // calls
const callable = table.filter(({ name }) => !LONG.has(name));

/** Draws from a seed: Marsaglia's xorshift over 32 bits. */
class Draw {
  constructor(seed, k) {
    this.state = (Math.imul(seed ^ 0x9e3779b9, 0x85ebca6b) ^ Math.imul(k + 1, 0xc2b2ae35)) | 1;
    for (let warmUp = 0; warmUp < 8; ++warmUp) this.next();
  }

  next() {
    this.state ^= this.state << 13;
    this.state ^= this.state >>> 17;
    this.state ^= this.state << 5;
    return this.state >>> 0;
  }

  below(n) {
    return this.next() % n;
  }

  chance(p) {
    return this.next() / 2 ** 32 < p;
  }

  of(list) {
    return list[this.below(list.length)];
  }
}

const shared = Object.fromEntries(Object.entries(ARRAYS).map(([kind, type]) => [kind, vm.allocate(type, MOST_CELLS)]));

/** A list that is shorter whenever it is looked at. */
const shrinking = (value) => new Proxy(Array.from(value), {
  get: (target, key) => {
    if (key === "length") target.pop();
    return target[key];
  } });

/** A list that empties another argument while it is read itself. */
const emptying = (value, victim) => new Proxy(Array.from(value), {
  get: (target, key) => {
    if (Array.isArray(victim)) victim.length = 0;
    else if (ArrayBuffer.isView(victim)) detach(victim);
    return target[key];
  } });

function detach(array) {
  try {
    structuredClone(array.buffer, { transfer: [array.buffer] });
  } catch {
    // the module's memory can't be taken away
  }
  return array;
}

/** The cells of an array, laid out in some other way. */
function arrayLike(draw, kind, value, victims) {
  const type = ARRAYS[kind];
  const wide = new type(2 * value.length + 2);
  return draw.of([
    () => wide.subarray(1, value.length + 1),
    () => shared[kind].array.subarray(draw.below(9), Math.min(value.length + 9, MOST_CELLS)),
    () => shared[kind].array.subarray(0, value.length),
    () => detach(value.slice()),
    () => new type(new SharedArrayBuffer(value.byteLength)),
    () => new type(new ArrayBuffer(value.byteLength, { maxByteLength: 2 * value.byteLength + 8 }), 0),
    () => new (class extends type { static get [Symbol.species]() { return Array; } })(value),
    () => new Float32Array(value),
    () => Array.from(value),
    () => shrinking(value),
    () => emptying(value, draw.of(victims)),
    () => Object.setPrototypeOf(value.slice(), null),
    () => ({ length: value.length, 0: 1 }),
  ])();
}

function listLike(draw, value, victims) {
  return draw.of([
    () => shrinking(value),
    () => emptying(value, draw.of(victims)),
    () => Object.freeze(value.slice()),
    () => new Array(value.length),
    () => new Set(value),
    () => value.map(() => draw.of([null, undefined, "", "\ud800", "\udc00x", "\u{10ffff}", "x".repeat(300), "a\0", 1, Symbol("a"), {}])),
    () => value.map((cell) => draw.of([cell, shrinking(cell ?? []), new Float64Array(1), []])),
  ])();
}

function odd(draw, parameter, values, value) {
  if (parameter.kind in ARRAYS && draw.chance(0.4)) return arrayLike(draw, parameter.kind, value, values);
  if (Array.isArray(value) && value.length > 0 && draw.chance(0.4)) return listLike(draw, value, values);
  const ranges = parameter.range && (value?.length ?? 1) > 0 ? beyond(parameter, values, value) : [];
  return draw.of(draw.of([wrongTypes(parameter, value), wrongSizes(parameter, value), oddValues(parameter, value), ranges].filter(({ length }) => length > 0)));
}

function randomCells(draw, value) {
  const bits = new Uint32Array(value.byteLength / 4 + 1).map(() => draw.next());
  const random = new value.constructor(bits.buffer, 0, value.length);
  return value.map((cell, i) => (draw.chance(0.7) ? cell : random[i]));
}

function argumentsOf(draw, description) {
  const { parameters } = description;
  const values = plainArguments(description, draw.of(SIZES));
  const fitting = values.slice();
  parameters.forEach(({ kind }, place) => {
    if (kind in ARRAYS && draw.chance(0.3)) values[place] = randomCells(draw, values[place]);
  });
  const changes = draw.of([0, 1, 1, 2, 3]);
  for (let change = 0; change < changes && parameters.length > 0; ++change) {
    const place = draw.below(parameters.length);
    values[place] = odd(draw, parameters[place], values, fitting[place]);
  }
  if (parameters.length > 1 && draw.chance(0.1)) values[draw.below(values.length)] = values[draw.below(values.length)];
  if (draw.chance(0.02)) values.length = draw.below(values.length + 1);
  return values;
}

/** The complaint about case k; nothing where there is none. */
function attempt(seed, k) {
  const draw = new Draw(seed, k);
  const description = draw.of(callable);
  let values;
  try {
    values = argumentsOf(draw, description);
  } catch {
    return ""; // there is no such argument
  }
  try {
    vm.flat[description.name](...values);
  } catch (error) {
    if (!isExpected(error)) return `case ${k}: ${description.name}: ${error?.stack ?? error}`;
  }
  return "";
}

function main() {
  const { values: options, positionals } = parseArgs({
    allowPositionals: true, options: { seconds: { type: "string" }, calls: { type: "string" }, first: { type: "string" }, note: { type: "string" } } });
  const seed = Number(positionals[0]);
  const first = Number(options.first ?? 0);
  const calls = Number(options.calls ?? Infinity);
  const end = performance.now() + 1000 * Number(options.seconds ?? Infinity);
  const complaints = [];
  let k = first;
  for (; k < first + calls && performance.now() < end && complaints.length < 20; ++k) {
    if (options.note) writeFileSync(options.note, `seed ${seed}, case ${k}\n`); // what a call that does not come back was
    const complaint = attempt(seed, k);
    if (complaint) complaints.push(complaint);
    if ((k - first) % BETWEEN_CHECKS === 0 && !intact()) {
      complaints.push(`case ${k}, or one of the ${BETWEEN_CHECKS} before it, wrote beside its arrays`);
      break;
    }
  }
  if (!intact()) complaints.push("memory beside the arrays of a call was written to");
  for (const complaint of complaints) console.log(complaint);
  console.log(`javascript_arguments: ${k - first} calls, seed ${seed}, ${complaints.length > 0 ? `${complaints.length} findings` : "no finding"}`);
  process.exitCode = complaints.length > 0 || !(k > first) ? 1 : 0;
}

main();
