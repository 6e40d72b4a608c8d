// Every flat function gives through JavaScript the bits that it gives in C++.
import assert from "node:assert/strict";
import { createReadStream } from "node:fs";
import { createInterface } from "node:readline";
import { test } from "node:test";

import { ARRAYS, sameBits, table, vm } from "./support.js";

const dumped = process.env.VECMAT_DUMPED_CALLS;

function doubles(digits) {
  const view = new DataView(new ArrayBuffer(digits.length / 2));
  for (let k = 0; k < digits.length; k += 8) view.setUint32(k / 2, parseInt(digits.slice(k, k + 8), 16));
  return Float64Array.from({ length: digits.length / 16 }, (_, i) => view.getFloat64(8 * i));
}

function arrayOf(parameter, held) {
  switch (parameter.kind) {
    case "doubles":
      return held === null ? null : doubles(held);
    case "columns":
      return held === null ? null : held.map(doubles);
    case "ints":
    case "flags":
      return held === null ? null : ARRAYS[parameter.kind].from(held);
    default:
      return structuredClone(held);
  }
}

function same(parameter, found, expected) {
  if (expected === null || typeof expected !== "object") {
    if (parameter.kind !== "doubles" || expected === null) return (found ?? "") === (expected ?? "");
    const cells = doubles(expected);
    return found.length === cells.length && cells.every((cell, i) => sameBits(cell, found[i]));
  }
  if (parameter.kind === "columns") return found.length === expected.length && expected.every((column, k) => same({ kind: "doubles" }, found[k], column));
  if (parameter.kind === "stringColumns") return found.length === expected.length && expected.every((column, k) => same({ kind: "strings" }, found[k], column));
  return found.length === expected.length && expected.every((cell, i) => (found[i] ?? "") === (cell ?? ""));
}

/** Where C is silent and JavaScript tells: a position in nothing, and an option that is none. */
function isRefused(parameter, value, values) {
  if (parameter.options) return !parameter.options.includes(value);
  return parameter.range !== undefined && parameter.range[1](values) < parameter.range[0](values);
}

test("every call has the same bits", { skip: !dumped && "VECMAT_DUMPED_CALLS names no file" }, async () => {
  const functions = new Map(table.map((description) => [description.name, description]));
  const counts = new Map();
  let [calls, refused] = [0, 0];
  const wrong = [];
  for await (const line of createInterface({ input: createReadStream(dumped, "latin1") })) {
    const told = JSON.parse(line);
    const { name, parameters, result } = functions.get(told.call);
    const values = parameters.map((parameter, i) => {
      const entry = told.arguments[i];
      if ("before" in entry) return arrayOf(parameter, entry.before);
      return parameter.kind === "number" ? doubles(entry.value)[0] : entry.value;
    });
    let found;
    try {
      found = vm.flat[name](...values);
    } catch (error) {
      const place = parameters.findIndex((parameter) => error.message.includes(`'${parameter.name}'`));
      if (place >= 0 && isRefused(parameters[place], values[place], values)) ++refused;
      else wrong.push(`${name}: ${error.stack}`);
      continue;
    }
    ++calls;
    counts.set(name, (counts.get(name) ?? 0) + 1);
    if (result === "number" && !sameBits(found, doubles(told.returns)[0])) wrong.push(`${name}: returns ${found}`);
    if (["integer", "flag", "bstr"].includes(result) && (found ?? "") !== (told.returns ?? ""))
      wrong.push(`${name}: returns ${found}, not ${told.returns}`);
    parameters.forEach((parameter, i) => {
      if ("after" in told.arguments[i] && !same(parameter, values[i], told.arguments[i].after)) wrong.push(`${name}: ${parameter.name} differs`);
    });
  }
  assert.deepEqual(wrong.slice(0, 20), [], `${wrong.length} in all`);
  assert.deepEqual(table.filter(({ name }) => !counts.has(name)).map(({ name }) => name), []);
  console.log(`${calls} calls of ${table.length} functions with the same bits, ${refused} refused`);
});
