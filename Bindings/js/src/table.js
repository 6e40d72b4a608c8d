import { described } from "./errors.js";

// Numbers in rows and columns; NaN is missing.
export class Table {
  constructor(rows, cols, cells, names = null) {
    if (cells.length !== rows * cols)
      throw new RangeError(`Table(), argument 'cells': expected ${rows * cols} cells, got ${cells.length}`);
    if (names && names.length !== cols)
      throw new RangeError(`Table(), argument 'names': expected ${cols} names, got ${names.length}`);
    this.rows = rows;
    this.cols = cols;
    this.cells = cells;
    this.names = names;
  }

  column(column) {
    const j = typeof column === "string" ? (this.names ?? []).indexOf(column) : column;
    if (!Number.isInteger(j) || j < 0 || j >= this.cols)
      throw new RangeError(`column(): no column ${described(column)} among ${this.cols}`);
    return this.cells.subarray(j * this.rows, (j + 1) * this.rows);
  }

  at(i, j) {
    return this.column(j)[i];
  }

  // An array of rows.
  toRows() {
    return Array.from({ length: this.rows }, (_, i) => Array.from({ length: this.cols }, (_, j) => this.cells[i + j * this.rows]));
  }

  // The columns by name.
  toColumns() {
    return Object.fromEntries(
      Array.from({ length: this.cols }, (_, j) => [this.names?.[j] ?? `x${j + 1}`, this.column(j)]));
  }
}
