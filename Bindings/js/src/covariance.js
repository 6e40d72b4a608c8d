// Covariances and correlations, weighted and pair by pair.
import { MISSING, choice, divisorFlags, maskOf, optionsOf, table, values, weightsOf } from "./inputs.js";
import { Table } from "./table.js";

function incompleteRows(x, mask) {
  const rows = new Int16Array(x.rows);
  for (let j = 0; j < x.cols; ++j) x.column(j).forEach((cell, i) => (rows[i] = cell === MISSING ? -1 : rows[i]));
  mask?.forEach((flag, i) => (rows[i] = flag !== 0 ? -1 : rows[i]));
  return rows;
}

export function covariance(flat) {
  function matrix(x, correlation, { weights, exclude, missing }, flags) {
    const given = maskOf(exclude, x.rows);
    const mask = missing === "complete" ? incompleteRows(x, given) : given;
    const out = new Float64Array(x.cols * x.cols);
    flat.VB_M_CovCorr(x.cells, x.rows, x.cols, out, correlation, mask, weightsOf(weights, x.rows), ...flags);
    return new Table(x.cols, x.cols, values(out), x.names);
  }

  function byPairs(x, { weights, exclude }) {
    const [w, mask] = [weightsOf(weights, x.rows), maskOf(exclude, x.rows)];
    const out = new Float64Array(x.cols * x.cols);
    for (let j = 0; j < x.cols; ++j)
      for (let i = j; i < x.cols; ++i) {
        const found = flat.VB_CorrelPearson(x.column(i), x.column(j), x.rows, mask, w, 0, -1);
        out[i + j * x.cols] = out[j + i * x.cols] = found;
      }
    return new Table(x.cols, x.cols, values(out), x.names);
  }

  return {
    cov(x, options) {
      const found = optionsOf(options, { weights: undefined, exclude: undefined, ddof: undefined, divisor: undefined, missing: "pairwise" });
      choice(found.missing, "missing", ["pairwise", "complete"]);
      return matrix(table(x), 0, found, divisorFlags(found.ddof, found.divisor));
    },

    corr(x, options) {
      const found = optionsOf(options, { weights: undefined, exclude: undefined, missing: "pairwise" });
      choice(found.missing, "missing", ["pairwise", "columns", "complete"]);
      const given = table(x);
      if (found.missing === "pairwise" && given.cells.includes(MISSING)) return byPairs(given, found);
      return matrix(given, -1, found, [-1, -1]);
    },
  };
}
