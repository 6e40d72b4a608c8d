// The arrays of one call: taken as the caller gave them, placed in the module's memory, brought back.
import { described } from "./errors.js";
import { ARRAYS } from "./memory.js";
import { cellsOf, checkCells } from "./numbers.js";
import { StringArray } from "./strings.js";

const DESCRIPTOR = 24; // bytes of the descriptor of an array, with the address of its cells at byte 12
const ELEMENT = 8; // of the outer array: the descriptors of the numbers and of the strings of a column

export const padded = (bytes) => (bytes + 15) & ~15;

function requireLength(fail, parameter, found, rows, cols, which, unit = "cells") {
  const expected = rows * cols;
  if (parameter.atLeast ? found >= expected : found === expected) return;
  const told = cols === 1 ? `${rows} ${unit}` : `${rows} by ${cols} ${unit}`;
  fail(RangeError, `${which}expected ${parameter.atLeast ? "at least " : ""}${told} (${parameter.shape}), got ${found}`);
}

// An array of numbers.
export class Numbers {
  constructor(fail, memory, parameter, given, kind = parameter.kind, which = "") {
    this.fail = fail;
    this.parameter = parameter;
    this.kind = kind;
    this.which = which;
    Object.assign(this, cellsOf(fail, memory, parameter, given, kind));
  }

  get bytes() {
    return this.offset ? 0 : padded(this.length * ARRAYS[this.kind].BYTES_PER_ELEMENT);
  }

  // The address for the call. An array without cells has one, too: to the library a null pointer is no array.
  place(views, offset, rows, cols, v) {
    requireLength(this.fail, this.parameter, this.length, rows, cols, this.which);
    this.address = this.offset || offset;
    if (!this.offset && !this.parameter.fresh) views[this.kind].set(this.cells, this.address / ARRAYS[this.kind].BYTES_PER_ELEMENT);
    if (this.parameter.range || this.parameter.addresses) {
      this.placed = views.cells(this.kind, this.address, this.length);
      checkCells(this.fail, this.parameter, this.placed, rows * cols, v);
    }
    return this.address;
  }

  // The memory that the call may write to, with addresses of cells among it.
  extents() {
    return [[this.address, this.address + this.length * ARRAYS[this.kind].BYTES_PER_ELEMENT]];
  }

  bringBack(views) {
    if (this.offset || !this.parameter.isWritten || this.parameter.role === "scratch") return;
    ARRAYS[this.kind].prototype.set.call(this.cells, views.cells(this.kind, this.address, this.length));
  }

  release() {}
}

// An array of strings, or the strings of a column.
export class Strings extends StringArray {
  constructor(fail, parameter, given, which = "") {
    super(fail, given, which);
    this.fail = fail;
    this.parameter = parameter;
    this.which = which;
    this.texts = null;
  }

  place(views, offset, rows, cols) {
    requireLength(this.fail, this.parameter, this.length, rows, cols, this.which, "strings");
    return super.place(views, offset);
  }

  extents() {
    return [];
  }

  release(views, free) {
    if (this.parameter.isWritten) this.texts = this.taken(views, free);
  }

  bringBack() {
    if (this.texts) this.handBack(this.texts);
  }
}

// An array of columns, behind descriptors as OLE Automation has them.
export class Columns {
  constructor(fail, memory, parameter, given) {
    if (!Array.isArray(given)) fail(TypeError, `expected an array of columns, got ${described(given)}`);
    this.fail = fail;
    this.parameter = parameter;
    this.columns = Array.from(given, (column, k) =>
      parameter.kind === "stringColumns"
        ? new Strings(fail, parameter, column, `column ${k}: `)
        : new Numbers(fail, memory, parameter, column, "doubles", `column ${k}: `));
  }

  get #heads() {
    return padded(16 + DESCRIPTOR + this.columns.length * (ELEMENT + DESCRIPTOR));
  }

  get bytes() {
    return this.columns.reduce((bytes, column) => bytes + padded(column.bytes), this.#heads);
  }

  // The pointer to the outer descriptor comes first; behind it the elements, their descriptors, the cells.
  place(views, offset, rows, cols, v) {
    const count = this.columns.length;
    requireLength(this.fail, this.parameter, count, cols, 1, "", "columns");
    const outer = offset + 16;
    const elements = outer + DESCRIPTOR;
    const descriptors = elements + count * ELEMENT;
    const place = this.parameter.kind === "stringColumns" ? 1 : 0;
    views.bytes.fill(0, offset, offset + this.#heads);
    views.pointers[offset / 4] = outer;
    writeDescriptor(views, outer, ELEMENT, elements, count);
    let next = offset + this.#heads;
    this.columns.forEach((column, k) => {
      const length = Math.max(rows - (this.parameter.falling ? k : 0), 0);
      const cells = column.place(views, next, length, 1, v);
      next += padded(column.bytes);
      const descriptor = descriptors + k * DESCRIPTOR;
      writeDescriptor(views, descriptor, place ? 4 : 8, cells, length);
      views.pointers[(elements + k * ELEMENT) / 4 + place] = descriptor;
    });
    return offset;
  }

  extents() {
    return this.columns.flatMap((column) => column.extents());
  }

  release(views, free) {
    for (const column of this.columns) column.release(views, free);
  }

  bringBack(views) {
    for (const column of this.columns) column.bringBack(views);
  }
}

function writeDescriptor(views, offset, cellBytes, cells, count) {
  views.flags[offset / 2] = 1; // dimensions
  views.pointers[offset / 4 + 1] = cellBytes;
  views.pointers[offset / 4 + 3] = cells;
  views.pointers[offset / 4 + 4] = count;
}
