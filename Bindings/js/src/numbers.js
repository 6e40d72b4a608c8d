// Numbers and arrays of numbers: what is taken, and what becomes of it.
import { described } from "./errors.js";
import { ARRAYS, ModuleArray, extentOf, typeOf } from "./memory.js";

const WHOLE = { integer: [-(2 ** 31), 2 ** 31 - 1], flag: [-(2 ** 15), 2 ** 15 - 1] };
const CELLS = { ints: WHOLE.integer, flags: WHOLE.flag };

// An argument that is a number.
export function numberOf(fail, parameter, given) {
  if (typeof given === "boolean" && parameter.kind !== "number") {
    // true is -1 where that is among the options, as it is for the library's other callers
    const isMinus = parameter.options ? parameter.options[0] === -1 : parameter.kind === "flag";
    return given ? (isMinus ? -1 : 1) : 0;
  }
  if (typeof given !== "number") fail(TypeError, `expected a number, got ${described(given)}`);
  if (parameter.kind === "number") return given;
  if (!Number.isInteger(given)) fail(RangeError, `expected a whole number, got ${given}`);
  const [low, high] = WHOLE[parameter.kind];
  if (given < low || given > high) fail(RangeError, `expected a whole number from ${low} to ${high}, got ${given}`);
  return given + 0; // no negative zero
}

// Whether the number is one that the function expects.
export function checkNumber(fail, parameter, number, v) {
  if (parameter.options && !parameter.options.includes(number))
    fail(RangeError, `expected ${parameter.options.join(" or ")}, got ${number}`);
  if (!parameter.range) return;
  const [low, high, word] = parameter.range;
  if (number < low(v) || number > high(v)) fail(RangeError, `expected ${word} (${low(v)} to ${high(v)}), got ${number}`);
}

// Whether each cell lies where it addresses no memory outside of an array.
export function checkCells(fail, parameter, cells, count, v) {
  if (!parameter.range) return;
  const [low, high, word] = [parameter.range[0](v), parameter.range[1](v), parameter.range[2]];
  for (let i = 0; i < count; ++i)
    if (!(cells[i] >= low && cells[i] <= high))
      fail(RangeError, `cell ${i} is ${cells[i]}, expected ${word} (${low} to ${high})`);
}

function convertedCell(fail, kind, cell, i) {
  if (typeof cell === "boolean" && kind === "flags") return cell ? -1 : 0;
  if (typeof cell !== "number") fail(TypeError, `cell ${i}: expected a number, got ${described(cell)}`);
  if (kind === "doubles") return cell;
  const [low, high] = CELLS[kind];
  if (!Number.isInteger(cell) || cell < low || cell > high)
    fail(RangeError, `cell ${i}: expected a whole number from ${low} to ${high}, got ${cell}`);
  return cell;
}

// A copy of what is only read, in the cells that the library has. This may run the caller's own code.
function converted(fail, kind, given) {
  const { length } = given;
  let made = null;
  try {
    made = new ARRAYS[kind](length);
  } catch {
    fail(RangeError, `expected an array, got one of the length ${length}`);
  }
  for (let i = 0; i < length; ++i) made[i] = convertedCell(fail, kind, given[i], i);
  return made;
}

// The cells of an argument: `cells` is a typed array of the kind; `offset` its place in the module's memory, or 0 where a
// copy goes there.
export function cellsOf(fail, memory, parameter, given, kind) {
  const isWritten = parameter.role !== "in";
  const wanted = ARRAYS[kind].name;
  let cells = given;
  if (given instanceof ModuleArray) cells = given.array;
  const isTyped = ArrayBuffer.isView(cells) && typeOf(cells) !== undefined;
  if (isTyped && typeOf(cells) === wanted) return placed(fail, memory, parameter, cells, ARRAYS[kind].BYTES_PER_ELEMENT);
  if (isWritten) fail(TypeError, `expected a ${wanted}, which the call writes to, got ${described(cells)}`);
  if (!isTyped && !Array.isArray(cells)) fail(TypeError, `expected a ${wanted} or an array of numbers, got ${described(cells)}`);
  const copy = converted(fail, kind, cells);
  return { cells: copy, length: copy.length, offset: 0 };
}

function placed(fail, memory, parameter, cells, cellBytes) {
  const { buffer, offset, length } = extentOf(cells);
  if (buffer !== memory.buffer) return { cells, length, offset: 0 };
  if (length > 0 && !memory.holds(offset, length * cellBytes))
    fail(TypeError, "the array lies in the module's memory, but not in cells that allocate() gave and nobody freed");
  // Cells that address memory are checked once: the call must not change them by another argument.
  const mayStay = length > 0 && !(parameter.addresses && parameter.role === "in");
  return { cells, length, offset: mayStay ? offset : 0 };
}
