// What comes in: arrays and tables in the habits of the language become the library's cells; what goes out becomes theirs.
import { described } from "./errors.js";
import { MISSING } from "./expressions.js";
import { ModuleArray, typeOf } from "./memory.js";
import { Table } from "./table.js";

export { MISSING };

const isTyped = (given) => ArrayBuffer.isView(given) && typeOf(given) !== undefined;
const isNumbers = (given) => isTyped(given) && !typeOf(given).startsWith("Big");

// Whether this is a vector, and not a table.
export function isVector(given) {
  if (given instanceof ModuleArray || isTyped(given)) return true;
  return Array.isArray(given) && !given.some((row) => Array.isArray(row) || ArrayBuffer.isView(row));
}

function cellOf(cell, name, i) {
  if (cell === null || cell === undefined) return MISSING;
  if (typeof cell !== "number") throw new TypeError(`${name}: cell ${i}: expected a number, got ${described(cell)}`);
  return cell !== cell ? MISSING : cell;
}

function copyCells(given, name, to, first) {
  for (let i = 0; i < given.length; ++i) to[first + i] = cellOf(given[i], name, i);
}

function hasNaN(cells) {
  for (let i = 0; i < cells.length; ++i) if (cells[i] !== cells[i]) return true;
  return false;
}

function requireNumbers(given, name) {
  if (!isNumbers(given) && !Array.isArray(given)) throw new TypeError(`${name}: expected an array of numbers, got ${described(given)}`);
}

// The cells of a vector, with the missing value for NaN: the caller's own array where it fits, not to be written.
export function vector(given, name = "x", length = undefined) {
  const array = given instanceof ModuleArray ? given.array : given;
  requireNumbers(array, name);
  if (length !== undefined && array.length !== length)
    throw new RangeError(`${name}: expected ${length} values, got ${array.length}`);
  if (isTyped(array) && typeOf(array) === "Float64Array" && !hasNaN(array)) return array;
  const cells = new Float64Array(array.length);
  copyCells(array, name, cells, 0);
  return cells;
}

function ofRows(rows, name) {
  const cols = rows.length > 0 ? rows[0]?.length : 0;
  const cells = new Float64Array(rows.length * (cols ?? 0));
  rows.forEach((row, i) => {
    requireNumbers(row, `${name}, row ${i}`);
    if (row.length !== cols) throw new RangeError(`${name}: row ${i} has ${row.length} cells, the first has ${cols}`);
    for (let j = 0; j < cols; ++j) cells[i + j * rows.length] = cellOf(row[j], `${name}, row ${i}`, j);
  });
  return new Table(rows.length, cols ?? 0, cells);
}

function ofColumns(columns, name) {
  const names = Object.keys(columns);
  const arrays = names.map((key) => vector(columns[key], `${name}, column ${JSON.stringify(key)}`));
  const rows = arrays[0]?.length ?? 0;
  const cells = new Float64Array(rows * names.length);
  arrays.forEach((array, j) => {
    if (array.length !== rows)
      throw new RangeError(`${name}: column ${JSON.stringify(names[j])} has ${array.length} cells, the first has ${rows}`);
    cells.set(array, j * rows);
  });
  return new Table(rows, names.length, cells, names);
}

// A table whose cells have the missing value for NaN; not to be written.
export function table(given, name = "x", { rows = undefined, cols = undefined, square = false } = {}) {
  let found = null;
  if (given instanceof Table) found = hasNaN(given.cells) ? new Table(given.rows, given.cols, vector(given.cells), given.names) : given;
  else if (Array.isArray(given)) found = ofRows(given, name);
  else if (given !== null && typeof given === "object" && !ArrayBuffer.isView(given) && !(given instanceof ModuleArray))
    found = ofColumns(given, name);
  else throw new TypeError(`${name}: expected a table, an array of rows or an object of columns, got ${described(given)}`);
  if (rows !== undefined && found.rows !== rows) throw new RangeError(`${name}: expected ${rows} rows, got ${found.rows}`);
  if (cols !== undefined && found.cols !== cols) throw new RangeError(`${name}: expected ${cols} columns, got ${found.cols}`);
  if (square && found.rows !== found.cols)
    throw new RangeError(`${name}: expected a square table, got ${found.rows} by ${found.cols}`);
  return found;
}

// A vector as a table of one column, a table as it is.
export function asTable(given, name = "x") {
  if (!isVector(given) || (Array.isArray(given) && given.length === 0)) return table(given, name);
  const cells = vector(given, name);
  return new Table(cells.length, 1, cells);
}

// NaN for each missing value, in place.
export function values(cells) {
  for (let i = 0; i < cells.length; ++i) if (cells[i] === MISSING) cells[i] = NaN;
  return cells;
}

export const valueOf = (cell) => (cell === MISSING ? NaN : cell);

export function weightsOf(weights, n) {
  if (weights === undefined || weights === null) return new Float64Array(n).fill(1);
  const cells = vector(weights, "weights", n);
  for (let i = 0; i < n; ++i)
    if (!(cells[i] >= 0 && cells[i] < Infinity)) throw new RangeError(`weights: weight ${i} is negative, missing or infinite`);
  return cells;
}

// Flags as the library has them: -1 and 0; null where there are none.
export function maskOf(exclude, n, name = "exclude") {
  if (exclude === undefined || exclude === null) return null;
  if (!Array.isArray(exclude)) throw new TypeError(`${name}: expected an array of booleans, got ${described(exclude)}`);
  if (exclude.length !== n) throw new RangeError(`${name}: expected ${n} booleans, got ${exclude.length}`);
  return Int16Array.from(exclude, (flag, i) => {
    if (typeof flag !== "boolean") throw new TypeError(`${name}: cell ${i}: expected a boolean, got ${described(flag)}`);
    return flag ? -1 : 0;
  });
}

// Texts, null where one is missing. Numbers become their text.
export function strings(given, name = "x", length = undefined) {
  const isArray = Array.isArray(given) || isNumbers(given);
  if (!isArray) throw new TypeError(`${name}: expected an array of texts, got ${described(given)}`);
  if (length !== undefined && given.length !== length)
    throw new RangeError(`${name}: expected ${length} texts, got ${given.length}`);
  return Array.from(given, (text, i) => {
    if (text === null || text === undefined || text !== text) return null;
    if (typeof text !== "string" && typeof text !== "number" && typeof text !== "boolean")
      throw new TypeError(`${name}: cell ${i}: expected a text, got ${described(text)}`);
    return String(text);
  });
}

export function whole(given, name, low = -(2 ** 31), high = 2 ** 31 - 1) {
  if (typeof given !== "number") throw new TypeError(`${name}: expected a whole number, got ${described(given)}`);
  if (!Number.isInteger(given) || given < low || given > high)
    throw new RangeError(`${name}: expected a whole number from ${low} to ${high}, got ${given}`);
  return given;
}

export function number(given, name, low = -Infinity, high = Infinity) {
  if (typeof given !== "number") throw new TypeError(`${name}: expected a number, got ${described(given)}`);
  if (!(given >= low && given <= high)) throw new RangeError(`${name}: expected a number from ${low} to ${high}, got ${given}`);
  return given;
}

export function choice(given, name, among) {
  if (!among.includes(given))
    throw new RangeError(`${name}: expected ${among.map((word) => JSON.stringify(word)).join(", ")}, got ${described(given)}`);
  return given;
}

// The options that were given, among those that a function knows.
export function optionsOf(given, known) {
  if (given === undefined) return known;
  if (given === null || typeof given !== "object" || Array.isArray(given) || ArrayBuffer.isView(given))
    throw new TypeError(`options: expected an object, got ${described(given)}`);
  for (const key of Object.keys(given))
    if (!(key in known)) throw new TypeError(`options: no option ${JSON.stringify(key)}, only ${Object.keys(known).join(", ")}`);
  const found = { ...known };
  for (const key of Object.keys(given)) if (given[key] !== undefined) found[key] = given[key];
  return found;
}

const DIVISORS = { frequency: [-1, -1], reliability: [-1, 0], population: [0, 0] };

// The library's two flags for a divisor by its name.
export function divisorFlags(ddof, divisor) {
  if (ddof === undefined) return DIVISORS[choice(divisor ?? "frequency", "divisor", Object.keys(DIVISORS))];
  if (divisor !== undefined) throw new TypeError("ddof: say either ddof or divisor");
  return DIVISORS[choice(ddof, "ddof", [0, 1]) === 1 ? "frequency" : "population"];
}

// `one` of a vector, or of each column of a table; NaN where it is missing.
export function byColumn(x, one) {
  if (isVector(x)) return valueOf(one(vector(x)));
  const of = table(x);
  return values(Float64Array.from({ length: of.cols }, (_, j) => one(of.column(j))));
}

export const lengthOf = (x) => (isVector(x) ? x.length : table(x).rows);
