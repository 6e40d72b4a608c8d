// The functions under the names of the field: their values, most of them those that the Python package documents.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { test } from "node:test";

import { Table, VecMatError } from "vecmat";

import { vm } from "./support.js";

const [head, ...lines] = readFileSync(process.env.VECMAT_PENGUINS, "utf8").trim().split(/\r?\n/).map((line) => line.split(","));
const birds = Object.fromEntries(head.map((name, j) => [name, lines.map((line) => {
  const text = line[j];
  return text === "" || text === "NA" ? null : Number.isNaN(Number(text)) ? text : Number(text);
})]));
const bills = { length: birds.bill_length_mm, depth: birds.bill_depth_mm };
const rounded = (numbers, digits) => Array.from(numbers, (number) => Number(number.toFixed(digits)));

test("means, variances, shape", () => {
  assert.equal(vm.mean(birds.bill_length_mm), 43.92192982456142);
  assert.equal(vm.mean([4, null, 5], { weights: [1, 7, 3] }), 4.75);
  assert.equal(vm.mean([4, NaN, 5, 100], { exclude: [false, false, false, true] }), 4.5);
  assert.ok(Number.isNaN(vm.mean([null, undefined])));
  assert.deepEqual([...vm.mean([[1, 2], [3, null]])], [2, 2]);
  assert.equal(vm.var([1, 2, null, 4]), 2.3333333333333335);
  assert.equal(vm.var([1, 2, 4], { weights: [1, 2, 3], divisor: "reliability" }), 2.2083333333333335);
  assert.equal(vm.var([1, 2, 4], { ddof: 0 }), vm.var([1, 2, 4], { divisor: "population" }));
  assert.equal(vm.std(birds.bill_depth_mm), 1.9747931568167807);
  assert.equal(vm.total([1, null, 3], { weights: [2, 1, 1] }), 5);
  assert.deepEqual([vm.minimum(birds.body_mass_g), vm.maximum(birds.body_mass_g)], [2700, 6300]);
  assert.deepEqual(rounded(vm.zscores([1, 2, null, 3]), 3).map((z) => (Number.isNaN(z) ? null : z)), [-1, 0, null, 1]);
  const { mean, var: variance, skewness } = vm.moments([1, 2, 3, 4, 10]);
  assert.deepEqual([mean, variance], [4, 10]);
  assert.equal(skewness.toFixed(6), "1.697056");
});

test("a weight of 0 counts in the divisor or not", () => {
  const x = [1, 2, 4];
  const weights = [1, 1, 0];
  assert.notEqual(vm.var(x, { weights, divisor: "reliability" }), vm.var(x, { weights, divisor: "reliability", zeroWeights: "skipped" }));
});

test("quantiles", () => {
  assert.equal(vm.quantile(birds.body_mass_g, 0.25), 3550);
  assert.equal(vm.quantile([1, 2, 3], 0.5, { weights: [1, 1, 5] }), 3);
  assert.equal(vm.median([3, null, 1, 2]), 2);
  assert.equal(vm.quantile([3, null, 1, 2], 1, { missing: "count" }), 3);
  assert.ok(Number.isNaN(vm.quantile([3, null, 1, 2], 0, { missing: "count" })));
});

test("covariances and correlations", () => {
  const found = vm.cov(bills);
  assert.deepEqual(rounded(found.cells, 3), [29.807, -2.534, -2.534, 3.9]);
  assert.deepEqual(found.names, ["length", "depth"]);
  assert.deepEqual(rounded(vm.corr(bills).cells, 3), [1, -0.235, -0.235, 1]);
  const x = [[1, 2], [2, 4], [3, null], [4, 9]];
  assert.notDeepEqual(vm.corr(x, { missing: "columns" }).cells, vm.corr(x).cells);
  assert.deepEqual(vm.corr(x).cells, vm.corr(x, { missing: "complete" }).cells);
});

test("what is missing", () => {
  assert.deepEqual(vm.isMissing([1, null, Infinity]), [false, true, false]);
  assert.deepEqual(vm.isMissing(["a", "", null]), [false, true, true]);
  assert.equal(vm.countMissing(birds.bill_length_mm), 2);
  assert.deepEqual([...vm.countMissing(bills)], [2, 2]);
  assert.deepEqual(vm.completeRows([[1, 2], [null, 3]]), [true, false]);
  assert.deepEqual(vm.dropMissing([[1, 2], [null, 3], [4, 5]]).toRows(), [[1, 2], [4, 5]]);
  assert.deepEqual([...vm.fillMissing([1, null], 0)], [1, 0]);
  assert.deepEqual(vm.imputeMean([[1, 2], [null, 4], [5, null]]).toRows(), [[1, 2], [3, 4], [5, 3]]);
  assert.deepEqual(vm.imputeMean([[null]], { reference: [[2], [4]] }).toRows(), [[3]]);
  assert.deepEqual(vm.imputeMode(["a", "b", null, "b"]), ["a", "b", "b", "b"]);
  assert.deepEqual(vm.imputeNearest([[1, 10], [2, 20], [1.1, null]]).toRows(), [[1, 10], [2, 20], [1.1, 10]]);
});

test("categories and groups", () => {
  const found = vm.categories(birds.species);
  assert.deepEqual([found.names, [...found.weights], found.mode], [["Adelie", "Chinstrap", "Gentoo"], [152, 68, 124], "Adelie"]);
  assert.equal(vm.mode(["b", "a", null, "a"]), "a");
  assert.equal(vm.mode([null, ""]), null);
  assert.deepEqual(vm.codes(["b", "a", null, "b"]), { codes: Float64Array.of(1, 0, NaN, 1), names: ["a", "b"] });
  assert.deepEqual(vm.dummies(["a", "b", null]).toRows(), [[1, 0], [0, 1], [NaN, NaN]]);
  assert.deepEqual(vm.dummies(["a", "b", "c"], { coding: "effect" }).toRows(), [[-1, -1], [1, 0], [0, 1]]);
  assert.deepEqual(vm.crossTable(["a", "b", "a", null], ["x", "x", "y", "x"]).table.toRows(), [[1, 1], [1, 0]]);
  assert.deepEqual([...vm.unique([3, 1, null, 3])], [1, 3]);
  const groups = vm.groupBy(birds.body_mass_g, birds.species, "median");
  assert.deepEqual([groups.keys, [...groups.sizes], [...groups.table.cells]], [["Adelie", "Chinstrap", "Gentoo"], [152, 68, 124], [3700, 3700, 5000]]);
  assert.deepEqual(rounded(vm.groupBy(birds.flipper_length_mm, birds.species).table.cells, 1), [190, 195.8, 217.2]);
});

test("order and ranks", () => {
  assert.deepEqual([...vm.sort([3, null, 1])], [1, 3, NaN]);
  assert.deepEqual([...vm.rank([10, 20, 10, null])], [1.5, 3, 1.5, NaN]);
  assert.deepEqual([...vm.rank([10, 20, 10], { ties: "dense" })], [1, 2, 1]);
});

test("samples are those of the same seeds everywhere", () => {
  assert.deepEqual([...vm.bootstrapRows(6, 6, { seed: 1 }).values], [0, 0, 0, 1, 2, 4]);
  assert.deepEqual([...vm.randomSubset(5, 2, { seed: 3 }).values], [2, 3]);
  assert.deepEqual([...vm.sampleStratified(["a", "a", "a", "a", "a", "a", "b", "b", "b"], 3, { seed: 1 }).values], [2, 5, 8]);
  const { values, nextSeed } = vm.permutation(10, { seed: 7 });
  assert.deepEqual([...values].sort(), [0, 1, 2, 3, 4, 5, 6, 7, 8, 9]);
  assert.notDeepEqual(vm.permutation(10, { seed: nextSeed }).values, values);
});

test("decompositions at any scale", () => {
  for (const scale of [1, 1e-200, 1e200]) {
    const { values, vectors } = vm.eigh([[2 * scale, scale], [scale, 2 * scale]]);
    assert.deepEqual(Array.from(values, (value) => (value / scale).toFixed(9)), ["3.000000000", "1.000000000"]);
    assert.equal(Math.abs(vectors.at(0, 0)).toFixed(9), "0.707106781");
  }
  assert.deepEqual(vm.inv([[2, 0], [0, 4]]).toRows(), [[0.5, 0], [0, 0.25]]);
  assert.throws(() => vm.inv([[1, 1], [1, 1]]), VecMatError);
  assert.deepEqual([...vm.solve([[2, 0], [0, 4]], [2, 2])], [1, 0.5]);
  assert.throws(() => vm.eigh([[1, null], [null, 1]]), /a: a cell is missing/);
});

test("components, biplot, letters", () => {
  const found = vm.principalComponents(bills);
  assert.deepEqual(rounded(found.percent, 2), [61.75, 38.25]);
  assert.equal(found.scores.rows, birds.species.length);
  assert.equal(vm.countMissing(found.scores)[0], 2);
  assert.equal(vm.axesToKeep([2, 1.5, 0.4, 0.1], { percent: 80 }), 2);
  assert.deepEqual(vm.biplot([[2, 1]], [[1, 0]], [4, 1], { alpha: 0 }).observations.toRows(), [[1, 1]]);
  const means = [1, 2, 5];
  assert.deepEqual(vm.compactLetters(means, (i, j) => means[i] === 5 || means[j] === 5), ["A", "A", "B"]);
});

test("least squares", () => {
  const fit = vm.ols(birds.flipper_length_mm, birds.body_mass_g);
  assert.deepEqual(rounded(fit.coefficients, 3), [49.686, -5780.831]);
  const r = vm.corr({ flipper: birds.flipper_length_mm, mass: birds.body_mass_g }).at(0, 1);
  assert.deepEqual([fit.terms, fit.rows, fit.rSquared.toFixed(10)], [["x", "intercept"], 342, (r * r).toFixed(10)]);
  assert.deepEqual(vm.ols(bills, birds.body_mass_g, { degree: 2, interactions: true }).terms, ["length", "depth", "length^2", "depth^2", "length:depth", "intercept"]);
  assert.ok(Number.isNaN(fit.fitted[birds.flipper_length_mm.indexOf(null)]));
});

test("tables", () => {
  const table = new Table(2, 2, Float64Array.of(1, 2, 3, 4), ["a", "b"]);
  assert.deepEqual([...table.column("b")], [3, 4]);
  assert.equal(table.at(1, 0), 2);
  assert.deepEqual(table.toRows(), [[1, 3], [2, 4]]);
  assert.deepEqual([...vm.mean(table)], [1.5, 3.5]);
  assert.throws(() => table.column("c"), RangeError);
  assert.throws(() => new Table(2, 2, new Float64Array(3)), /expected 4 cells, got 3/);
});

test("what does not fit is an error that names it", () => {
  for (const [call, type, words] of [
    [() => vm.mean("abc"), TypeError, /^x: expected a table, an array of rows or an object of columns, got "abc"/],
    [() => vm.mean([1, "2"]), TypeError, /^x: cell 1: expected a number, got "2"/],
    [() => vm.mean([[1, 2], [3]]), RangeError, /^x: row 1 has 1 cells, the first has 2/],
    [() => vm.mean({ a: [1, 2], b: [1] }), RangeError, /^x: column "b" has 1 cells, the first has 2/],
    [() => vm.mean([1, 2], { weights: [1] }), RangeError, /^weights: expected 2 values, got 1/],
    [() => vm.mean([1, 2], { weights: [1, -1] }), RangeError, /^weights: weight 1 is negative/],
    [() => vm.mean([1, 2], { exclude: [1, 0] }), TypeError, /^exclude: cell 0: expected a boolean, got 1/],
    [() => vm.mean([1, 2], { weight: [1, 1] }), TypeError, /^options: no option "weight", only weights, exclude/],
    [() => vm.var([1, 2], { divisor: "n" }), RangeError, /^divisor: expected "frequency", "reliability", "population", got "n"/],
    [() => vm.quantile([1, 2], 2), RangeError, /^q: expected a number from 0 to 1, got 2/],
    [() => vm.permutation(-1), RangeError, /^n: expected a whole number from 0/],
    [() => vm.cov([1, 2]), TypeError, /^x, row 0: expected an array of numbers, got 1/],
    [() => vm.flat.VB_V_Mean2([1, 2], 3), RangeError, /^VB_V_Mean2\(\), argument '.': expected 3 cells \(n\), got 2/],
  ])
    assert.throws(call, (error) => error instanceof type && words.test(error.message) || assert.fail(`${call}: ${error}`));
});
