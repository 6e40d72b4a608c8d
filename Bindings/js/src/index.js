// What the package gives. Its types, with what each function does, are in index.d.ts.
import { covariance } from "./covariance.js";
import { VecMatError } from "./errors.js";
import { components, decompositions, regression } from "./fitting.js";
import { ModuleArray } from "./memory.js";
import { missing } from "./missing.js";
import { flatFunctions, instantiate } from "./module.js";
import { qualitative } from "./qualitative.js";
import { ranks } from "./ranks.js";
import { sampling } from "./sampling.js";
import { Table } from "./table.js";
import { univariate } from "./univariate.js";

export { ModuleArray, Table, VecMatError };

function libraryOf(module) {
  const flat = flatFunctions(module);
  const columns = univariate(flat);
  const matrices = { ...covariance(flat), ...decompositions(flat) };
  return Object.freeze({
    flat,

    allocate(type, length) {
      module.requireRunning();
      return module.memory.allocate(type, length);
    },

    memoryBytes: () => module.memory.buffer.byteLength,

    ...columns,
    ...matrices,
    ...missing(flat),
    ...qualitative(flat, columns),
    ...ranks(flat),
    ...sampling(flat),
    ...components(flat, matrices),
    ...regression(flat),
  });
}

let shared = null;

export async function load(options = {}) {
  if (options === null || typeof options !== "object") throw new TypeError("load(): expected an object of options");
  const { wasm } = options;
  if (wasm !== undefined) return libraryOf(await instantiate(wasm));
  shared ??= instantiate(new URL("../vecmat.wasm", import.meta.url)).then(libraryOf);
  try {
    return await shared;
  } catch (error) {
    shared = null; // the next call tries again
    throw error;
  }
}
