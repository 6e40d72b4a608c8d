// The distinct values of a column: of numbers and of texts.
import { MISSING, strings, vector, weightsOf } from "./inputs.js";

export function keys(flat) {
  function categoriesOf(cells, weights, sort = true) {
    const n = cells.length;
    const w = weightsOf(weights, n);
    if (!cells.some(Boolean)) return { names: [], weights: new Float64Array(0), mode: "" };
    const [modes, names] = [[null], new Array(n).fill(null)];
    const [sizes, count] = [new Float64Array(n), new Int32Array(1)];
    flat.VB_M_InfoQuali(cells, n, 1, modes, new Float64Array(1), new Int32Array(1), count, names, sizes, 0, w, sort ? -1 : 0);
    return { names: names.slice(0, count[0]), weights: sizes.slice(0, count[0]), mode: modes[0] };
  }

  function uniqueNumbers(v) {
    const present = v.filter((cell) => cell !== MISSING);
    if (present.length === 0) return present;
    const [out, count] = [new Float64Array(present.length), new Int32Array(1)];
    flat.VB_V_ExtractDistinct(present, present.length, out, count);
    return out.slice(0, count[0]).sort();
  }

  /** The place of each row's key among the distinct ones, -1 for none, and these in ascending order. */
  function placesOf(given, n, name = "by") {
    const isText = Array.isArray(given) && given.some((key) => typeof key === "string");
    const cells = isText ? strings(given, name, n) : vector(given, name, n);
    const names = isText ? categoriesOf([...new Set(cells)]).names : Array.from(uniqueNumbers(cells));
    const places = new Map(names.map((key, k) => [key, k]));
    return { names, places: Int32Array.from(cells, (key) => places.get(key) ?? -1) };
  }

  return { categoriesOf, uniqueNumbers, placesOf };
}
