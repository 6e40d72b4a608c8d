// Decompositions, components, least squares, letters for groups.
import { VecMatError } from "./errors.js";
import { MISSING, asTable, isVector, number, optionsOf, table, values, vector, weightsOf, whole } from "./inputs.js";
import { Table } from "./table.js";

function complete(given, name, square) {
  const found = table(given, name, { square });
  if (found.cells.includes(MISSING)) throw new RangeError(`${name}: a cell is missing; a decomposition needs all of them`);
  if (!found.cells.every(Number.isFinite)) throw new RangeError(`${name}: a cell is infinite; a decomposition needs finite ones`);
  return found;
}

// The power of two just above the largest cell.
function scaleOf(cells) {
  let largest = 0;
  for (const cell of cells) largest = Math.max(largest, Math.abs(cell));
  if (largest === 0) return 0;
  let exponent = Math.floor(Math.log2(largest));
  while (largest / 2 ** exponent >= 1 && exponent < 1023) ++exponent;
  while (largest / 2 ** (exponent - 1) < 1 && exponent > -1073) --exponent;
  return exponent;
}

// Each cell times a power of two, in steps that neither overflow nor vanish before the last.
const scaled = (cells, exponent) => cells.map((cell) => {
  const half = Math.trunc(exponent / 2);
  return cell * 2 ** half * 2 ** (exponent - half);
});

const takeRows = (x, rows) => {
  const cells = new Float64Array(rows.length * x.cols);
  for (let j = 0; j < x.cols; ++j) {
    const column = x.column(j);
    rows.forEach((i, k) => (cells[k + j * rows.length] = column[i]));
  }
  return cells;
};

const isWhole = (x, i) => {
  for (let j = 0; j < x.cols; ++j) if (x.cells[i + j * x.rows] === MISSING) return false;
  return true;
};

export function decompositions(flat) {
  const singular = () => new VecMatError("failed", "a: the table is singular, or nearly so");

  return {
    eigh(a) {
      const of = complete(a, "a", true);
      const [n, exponent] = [of.rows, scaleOf(of.cells)];
      const [found, vectors] = [new Float64Array(n), new Float64Array(n * n)];
      if (n > 0 && flat.VB_M_Eigen(scaled(of.cells, -exponent), found, vectors, n, -1) !== 0)
        throw new VecMatError("failed", "a: the eigenvalues do not settle");
      return { values: scaled(found, exponent), vectors: new Table(n, n, vectors) };
    },

    inv(a) {
      const of = complete(a, "a", true);
      const [n, exponent] = [of.rows, scaleOf(of.cells)];
      const out = new Float64Array(n * n);
      if (n > 0 && flat.VB_M_Inverse1(scaled(of.cells, -exponent), n, out, 0) !== 0) throw singular();
      return new Table(n, n, scaled(out, -exponent), of.names);
    },

    solve(a, b) {
      const of = complete(a, "a", true);
      const [n, exponent] = [of.rows, scaleOf(of.cells)];
      const out = vector(b, "b", n).slice();
      if (out.includes(MISSING)) throw new RangeError("b: a cell is missing");
      if (n > 0 && flat.VB_M_Gauss(scaled(of.cells, -exponent), n, 1, out) !== 0) throw singular();
      return scaled(out, -exponent);
    },

    standardize(x, options) {
      const { weights } = optionsOf(options, { weights: undefined });
      const of = table(x);
      const cells = of.cells.slice();
      const [mean, std] = [new Float64Array(of.cols), new Float64Array(of.cols)];
      flat.VB_M_StandardizeW3(cells, of.rows, of.cols, weightsOf(weights, of.rows), mean, std, -1, -1);
      return { scores: new Table(of.rows, of.cols, values(cells), of.names), mean: values(mean), std: values(std) };
    },
  };
}

export function components(flat, routines) {
  return {
    principalComponents(x, options) {
      const { weights, scale } = optionsOf(options, { weights: undefined, scale: true });
      const of = table(x);
      const [n, p] = [of.rows, of.cols];
      const matrix = scale ? routines.corr(of, { weights }) : routines.cov(of, { weights });
      if (matrix.cells.some(Number.isNaN)) throw new RangeError("x: a column has no spread, or two have no row in common");
      const found = routines.eigh(matrix);
      const { mean, std } = routines.standardize(of, { weights });
      const rows = Array.from({ length: n }, (_, i) => i).filter((i) => isWhole(of, i));
      const cells = takeRows(of, rows);
      flat.Cpp_M_StandardizeApply2(cells, rows.length, p, mean, scale ? std : new Float64Array(p).fill(1));
      const product = new Float64Array(rows.length * p);
      flat.VB_M_ProductAB(cells, rows.length, p, found.vectors.cells, p, product);
      const scores = new Float64Array(n * p).fill(NaN);
      rows.forEach((i, k) => {
        for (let j = 0; j < p; ++j) scores[i + j * n] = product[k + j * rows.length];
      });
      const sum = found.values.reduce((total, value) => total + value, 0);
      return {
        eigenvalues: found.values,
        percent: found.values.map((value) => (100 * value) / sum),
        loadings: found.vectors,
        scores: new Table(n, p, scores),
      };
    },

    axesToKeep(eigenvalues, options) {
      const { floor, percent, most, above } = optionsOf(options, { floor: 1e-12, percent: 0, most: undefined, above: 0 });
      const v = vector(eigenvalues, "eigenvalues").slice();
      const n = v.length;
      if (n === 0) return 0;
      const limit = Math.min(most === undefined ? n : whole(most, "most", 0), n);
      const [kept, selected] = [new Int32Array(1), new Int32Array(1)];
      flat.VB_FilterEigen(v, n, -1, number(floor, "floor"), number(percent, "percent"), limit, number(above, "above"), kept, selected, new Float64Array(n));
      return selected[0];
    },

    biplot(scores, loadings, eigenvalues, options) {
      const { alpha, factor } = optionsOf(options, { alpha: 1, factor: 1 });
      const of = table(scores, "scores");
      const variables = table(loadings, "loadings", { cols: of.cols });
      const e = vector(eigenvalues, "eigenvalues", of.cols);
      if (!e.every((value) => value > 0)) throw new RangeError("eigenvalues: one is not above 0");
      const [obs, vars] = [new Float64Array(of.cells.length), new Float64Array(variables.cells.length)];
      if (obs.length > 0 && vars.length > 0)
        flat.VB_BiplotTransData(of.cells, null, variables.cells, of.rows, 0, variables.rows, of.cols, e,
          number(factor, "factor"), number(alpha, "alpha", 0, 1), obs, vars);
      return {
        observations: new Table(of.rows, of.cols, values(obs)),
        variables: new Table(variables.rows, variables.cols, values(vars)),
      };
    },

    compactLetters(means, differ) {
      if (typeof differ !== "function") throw new TypeError("differ: expected a function of two places");
      const v = vector(means, "means").slice();
      const n = v.length;
      if (n > 255) throw new RangeError(`means: at most 255 groups, got ${n}`);
      if (n === 0) return [];
      const different = new Int32Array(n * n);
      for (let i = 0; i < n; ++i)
        for (let j = 0; j < i; ++j) different[i + j * n] = different[j + i * n] = differ(i, j) ? 1 : 0;
      const labels = new Array(256 * n).fill("");
      flat.Cpp_GetCompMatrices(v, n, 0, different, -1, new Int32Array(n), labels, new Int32Array(1));
      return Array.from({ length: n }, (_, i) => Array.from({ length: n }, (_, k) => labels[i + n * k].trim()).join(""));
    },
  };
}

function termsOf(names, degree, interactions) {
  const terms = [];
  for (let power = 1; power <= degree; ++power) terms.push(...names.map((name) => (power === 1 ? name : `${name}^${power}`)));
  if (interactions) names.forEach((a, i) => terms.push(...names.slice(i + 1).map((b) => `${a}:${b}`)));
  return [...terms, "intercept"];
}

function rSquaredOf(y, fitted, w, intercept) {
  const sum = (term) => y.reduce((total, _, i) => total + term(i), 0);
  const weight = sum((i) => w[i]);
  const around = intercept && weight > 0 ? sum((i) => w[i] * y[i]) / weight : 0;
  const all = sum((i) => w[i] * (y[i] - around) ** 2);
  return all > 0 ? 1 - sum((i) => w[i] * (y[i] - fitted[i]) ** 2) / all : NaN;
}

export function regression(flat) {
  return {
    ols(x, y, options) {
      const { weights, degree, interactions, intercept, tolerance } = optionsOf(options, {
        weights: undefined, degree: 1, interactions: false, intercept: true, tolerance: 1e-8 });
      whole(degree, "degree", 1, 3);
      number(tolerance, "tolerance");
      if (interactions && degree === 1) throw new RangeError("interactions: only with a degree above 1");
      const of = asTable(x);
      const response = vector(y, "y", of.rows);
      const w = weightsOf(weights, of.rows);
      const rows = Array.from(response.keys()).filter((i) => response[i] !== MISSING && isWhole(of, i));
      const [z, v] = [Float64Array.from(rows, (i) => response[i]), Float64Array.from(rows, (i) => w[i])];
      const names = of.names ?? (isVector(x) ? ["x"] : Array.from({ length: of.cols }, (_, j) => `x${j + 1}`));
      const terms = termsOf(names, degree, interactions);
      const size = 1 + degree * of.cols + (interactions && of.cols > 0 ? (of.cols * (of.cols - 1)) / 2 : 0);
      const [beta, errors, found] = [new Float64Array(size), new Float64Array(size), new Float64Array(rows.length)];
      flat.RunOLSBasic2(rows.length, of.cols, takeRows(of, rows), z, v, degree, interactions ? -1 : 0, intercept ? 0 : -1,
        tolerance, beta, errors, found);
      const fitted = new Float64Array(of.rows).fill(NaN);
      rows.forEach((i, k) => (fitted[i] = found[k]));
      return {
        terms,
        coefficients: beta.slice(0, terms.length),
        standardErrors: errors.slice(0, terms.length),
        fitted,
        rSquared: rSquaredOf(z, found, v, intercept),
        rows: rows.length,
      };
    },
  };
}
