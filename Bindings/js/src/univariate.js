// Means, variances, shape, quantiles: what a column of numbers is like.
import { MISSING, byColumn, choice, divisorFlags, lengthOf, maskOf, number, optionsOf, valueOf, values, vector, weightsOf } from "./inputs.js";

const ROWS = { weights: undefined, exclude: undefined };
const SPREAD = { ...ROWS, ddof: undefined, divisor: undefined, zeroWeights: "counted" };

function withZeros(weights, exclude, zeroWeights) {
  const mask = maskOf(exclude, weights.length);
  if (choice(zeroWeights, "zeroWeights", ["counted", "skipped"]) === "counted") return mask;
  return Int16Array.from(weights, (w, i) => (w === 0 || (mask && mask[i]) ? -1 : 0));
}

/** Which cells enter: those present and not excluded, with their weights. */
function kept(v, w, mask) {
  const rows = [];
  for (let i = 0; i < v.length; ++i) if (v[i] !== MISSING && !(mask && mask[i])) rows.push(i);
  return [Float64Array.from(rows, (i) => v[i]), Float64Array.from(rows, (i) => w[i])];
}

export function univariate(flat) {
  const spreadBy = (name) => (x, options) => {
    const { weights, exclude, ddof, divisor, zeroWeights } = optionsOf(options, SPREAD);
    const n = lengthOf(x);
    const w = weightsOf(weights, n);
    const mask = withZeros(w, exclude, zeroWeights);
    const flags = divisorFlags(ddof, divisor);
    return byColumn(x, (v) => flat[name](v, n, mask, w, ...flags));
  };
  const variance = spreadBy("VB_V_Var");
  const deviation = spreadBy("VB_V_Stdev");

  function range(v, exclude) {
    const [low, high] = [new Float64Array(1), new Float64Array(1)];
    flat.VB_V_MinMax(v, v.length, low, high, maskOf(exclude, v.length) ?? new Int16Array(v.length));
    return [low[0], high[0]];
  }

  return {
    mean: (x, options) => {
      const { weights, exclude } = optionsOf(options, ROWS);
      if (weights === undefined && exclude === undefined) return byColumn(x, (v) => flat.VB_V_Mean2(v, v.length));
      const n = lengthOf(x);
      const [w, mask] = [weightsOf(weights, n), maskOf(exclude, n)];
      return byColumn(x, (v) => flat.VB_V_Mean(v, n, mask, w));
    },

    var: (x, options) => variance(x, options),

    std: (x, options) => deviation(x, options),

    total: (x, options) => {
      const { weights, exclude } = optionsOf(options, ROWS);
      const n = lengthOf(x);
      const [w, mask] = [weightsOf(weights, n), maskOf(exclude, n)];
      return byColumn(x, (v) => {
        const [cells, of] = kept(v, w, mask);
        return flat.VB_V_ProductTrV1V2(cells, cells.length, of);
      });
    },

    minimum: (x, options) => {
      const { exclude } = optionsOf(options, { exclude: undefined });
      return byColumn(x, (v) => range(v, exclude)[0]);
    },

    maximum: (x, options) => {
      const { exclude } = optionsOf(options, { exclude: undefined });
      return byColumn(x, (v) => range(v, exclude)[1]);
    },

    moments(x, options) {
      const { weights, exclude, ddof, divisor } = optionsOf(options, { ...ROWS, ddof: undefined, divisor: undefined });
      const v = vector(x);
      const out = Array.from({ length: 8 }, () => new Float64Array(1).fill(MISSING));
      const mask = maskOf(exclude, v.length);
      const flags = divisorFlags(divisor === undefined ? (ddof ?? 0) : ddof, divisor);
      const [a, b, c, d, e, f, g, h] = out;
      flat.VB_V_MeanVarSkewPKurtP(v, v.length, a, b, c, d, e, f, g, h, mask, weightsOf(weights, v.length), ...flags);
      if (!v.some((cell, i) => cell !== MISSING && !(mask && mask[i]))) a[0] = MISSING;
      const [mean, variance, populationSkewness, populationKurtosis, skewness, kurtosis, skewnessError, kurtosisError] =
        out.map((cell) => valueOf(cell[0]));
      return { mean, var: variance, populationSkewness, populationKurtosis, skewness, kurtosis, skewnessError, kurtosisError };
    },

    zscores(x, options) {
      const { robust } = optionsOf(options, { robust: false });
      const v = vector(x);
      const present = v.filter((cell) => cell !== MISSING);
      const found = new Float64Array(present.length);
      flat.Cpp_V_ZScores(present, present.length, robust ? 1 : 0, new Float64Array(1).fill(MISSING), new Float64Array(1).fill(MISSING), found);
      let next = 0;
      return values(v.map((cell) => (cell === MISSING ? MISSING : found[next++])));
    },

    ...quantiles(flat),
  };
}

function quantiles(flat) {
  function one(v, q, w, mask, missing) {
    const count = mask ? mask.reduce((sum, flag) => sum + (flag === 0 ? 1 : 0), 0) : v.length;
    if (missing === "omit") return w ? flat.VB_V_QuantileMW(v, v.length, mask, w, q) : flat.VB_V_QuantileM(v, v.length, mask, q);
    if (count === 0) return MISSING;
    const rows = v.map((_, i) => i).filter((i) => !(mask && mask[i]));
    const cells = Float64Array.from(rows, (i) => v[i]);
    const found = w
      ? flat.VB_V_QuantileW(cells, count, Float64Array.from(rows, (i) => w[i]), q)
      : flat.VB_V_Quantile(cells, count, q);
    // A neighbour that is the missing value draws the interpolated result down to its size: no number is there.
    return found < -1e300 && cells.includes(MISSING) ? MISSING : found;
  }

  const quantile = (x, q, options) => {
    const { weights, exclude, missing } = optionsOf(options, { ...ROWS, missing: "omit" });
    number(q, "q", 0, 1);
    choice(missing, "missing", ["omit", "count"]);
    const n = lengthOf(x);
    const [w, mask] = [weights === undefined ? null : weightsOf(weights, n), maskOf(exclude, n)];
    return byColumn(x, (v) => one(v, q, w, mask, missing));
  };

  return {
    quantile,

    median: (x, options) => quantile(x, 0.5, optionsOf(options, ROWS)),
  };
}
