// What is missing: counted, left out, filled.
import { MISSING, isVector, maskOf, number, optionsOf, strings, table, values, vector, weightsOf } from "./inputs.js";
import { Table } from "./table.js";

/** For each row whether all of its cells are there. */
function completeRowsOf(x) {
  const complete = new Array(x.rows).fill(true);
  for (let j = 0; j < x.cols; ++j)
    x.column(j).forEach((cell, i) => {
      if (cell === MISSING) complete[i] = false;
    });
  return complete;
}

/** Missing again where the source's column has no value. */
function withoutEmptyColumns(filled, x, source) {
  for (let j = 0; j < x.cols; ++j) {
    if (!source.column(j).every((cell) => cell === MISSING)) continue;
    x.column(j).forEach((cell, i) => {
      if (cell === MISSING) filled[i + j * x.rows] = MISSING;
    });
  }
  return filled;
}

export function missing(flat) {
  return {
    isMissing(x) {
      if (Array.isArray(x) && x.some((cell) => typeof cell === "string")) return strings(x).map((text) => !text);
      return Array.from(vector(x), (cell) => cell === MISSING);
    },

    countMissing: (x) => {
      if (isVector(x)) {
        const v = vector(x);
        return flat.VB_V_NbMissing(v, v.length);
      }
      const of = table(x);
      const counts = new Int32Array(of.cols);
      flat.VB_M_NbMissing(of.cells, of.rows, of.cols, counts);
      return counts;
    },

    completeRows: (x) => completeRowsOf(table(x)),

    dropMissing(x) {
      const of = table(x);
      const complete = completeRowsOf(of);
      const rows = complete.filter(Boolean).length;
      const cells = new Float64Array(rows * of.cols);
      let next = 0;
      of.cells.forEach((cell, k) => {
        if (complete[k % of.rows]) cells[next++] = cell;
      });
      return new Table(rows, of.cols, cells, of.names);
    },

    fillMissing: (x, value) => {
      number(value, "value");
      const of = isVector(x) ? null : table(x);
      const cells = (of ? of.cells : vector(x)).slice();
      flat.VB_M_ReplaceMissingByVal(cells, of ? of.rows : cells.length, of ? of.cols : 1, value);
      return of ? new Table(of.rows, of.cols, values(cells), of.names) : values(cells);
    },

    imputeMean(x, options) {
      const { weights, reference } = optionsOf(options, { weights: undefined, reference: undefined });
      const of = table(x);
      const source = reference === undefined ? of : table(reference, "reference", { cols: of.cols });
      const w = weightsOf(weights, source.rows);
      const filled = of.cells.slice();
      const mask = new Int16Array(of.rows).fill(-1);
      if (of.rows > 0 && of.cols > 0) {
        if (reference === undefined) flat.VB_EstimateRowsWithMissingMean(filled, of.rows, of.cols, mask, w);
        else flat.VB_EstimateRowsWithMissingMeanPred(source.cells, source.rows, filled, of.rows, of.cols, mask, w);
      }
      return new Table(of.rows, of.cols, values(withoutEmptyColumns(filled, of, source)), of.names);
    },

    imputeMode(x, options) {
      const { weights } = optionsOf(options, { weights: undefined });
      const cells = strings(x);
      const w = weightsOf(weights, cells.length);
      if (!cells.some(Boolean)) return cells.map(() => null);
      flat.VB_EstimateRowsWithMissingMode(cells, cells.length, 1, null, w);
      return cells;
    },

    imputeNearest(x, options) {
      const { weights } = optionsOf(options, { weights: undefined });
      const of = table(x);
      const filled = of.cells.slice();
      const incomplete = maskOf(completeRowsOf(of).map((isComplete) => !isComplete), of.rows);
      const w = weightsOf(weights, of.rows);
      if (of.rows > 0) flat.VB_EstimateRowsWithMissingNN(filled, of.rows, of.cols, incomplete, null, 0, null, 0, w);
      return new Table(of.rows, of.cols, values(withoutEmptyColumns(filled, of, of)), of.names);
    },
  };
}
