// What the tests share. They run on the installed package.
import { createRequire } from "node:module";
import { dirname, join } from "node:path";
import { pathToFileURL } from "node:url";

import { load } from "vecmat";

export const packageFolder = dirname(createRequire(import.meta.url).resolve("vecmat/package.json"));
export const vm = await load();
export const { table } = await import(pathToFileURL(join(packageFolder, "src/flat_table.js")));
export const MISSING = vm.flat.MISSING;

export const ARRAYS = { doubles: Float64Array, ints: Int32Array, flags: Int16Array };

/** Whether two numbers have the same bits; one NaN is like another. */
export function sameBits(a, b) {
  return Object.is(a, b) || (Number.isNaN(a) && Number.isNaN(b));
}

/** Arguments for a call that is as plain as can be: arrays of the sizes that the table tells, numbers of `size`. */
export function plainArguments({ parameters, order }, size = 4) {
  const v = parameters.map(({ kind, options, range, name }) => {
    if (kind === "number") return 0.5;
    if (kind !== "integer" && kind !== "flag") return null;
    if (options) return options[0];
    return name === "seedFlag" ? -1 : range ? 1 : size;
  });
  for (const place of order) if (v[place] === null) v[place] = plainArray(parameters[place], v);
  return v;
}

function plainArray(parameter, v) {
  const { kind, rows, cols, falling, addresses, range } = parameter;
  if (kind === "text" || kind === "bstr") return "a";
  const [n, p] = [Math.max(rows(v), 0), Math.max(cols(v), 0)];
  if (kind === "strings") return new Array(n * p).fill("a");
  if (kind === "stringColumns") return Array.from({ length: p }, (_, k) => new Array(Math.max(n - (falling ? k : 0), 0)).fill("a"));
  if (kind === "columns")
    return Array.from({ length: p }, (_, k) => Float64Array.from({ length: Math.max(n - (falling ? k : 0), 0) }, (_, i) => i + 1));
  return ARRAYS[kind].from({ length: n * p }, (_, i) => (addresses || range ? 1 : i + 1));
}
