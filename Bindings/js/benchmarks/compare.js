// compare.js [NATIVE]: times of the package beside those of simple-statistics and ml-matrix, where they do the same, and of
// the native library, from a file that the program of native.cpp has written. Prints a table.
import { readFileSync } from "node:fs";

import { EigenvalueDecomposition, Matrix, inverse } from "ml-matrix";
import * as simple from "simple-statistics";
import { load } from "vecmat";

const vm = await load();
const { flat } = vm;
const native = new Map(process.argv[2] ? readFileSync(process.argv[2], "utf8").trim().split("\n").map((line) => line.split("\t")) : []);

function numbers(count, withMissing) {
  let state = 12345;
  return Float64Array.from({ length: count }, () => {
    state = (Math.imul(state, 1103515245) + 12345) >>> 0;
    return withMissing && state % 50 === 0 ? flat.MISSING : state / 2 ** 32;
  });
}

function best(work) {
  let least = Infinity;
  for (let run = 0; run < 7; ++run) {
    const start = performance.now();
    work();
    least = Math.min(least, performance.now() - start);
  }
  return least;
}

/** The cells in the module's memory, so that no copy is timed. */
function placed(cells) {
  const own = vm.allocate(Float64Array, cells.length);
  own.array.set(cells);
  return own;
}

const n = 1e6;
const vector = numbers(n, true);
const present = Array.from(vector.filter((cell) => cell !== flat.MISSING));
const x = placed(vector);
const ones = placed(new Float64Array(n).fill(1));
const [rows, cols] = [20000, 20];
const cells = numbers(rows * cols, false);
const table = placed(cells);
const square = numbers(512 * 512, false);
const a = placed(square);
const out = vm.allocate(Float64Array, 512 * 512);
const order = 200;
const symmetric = Float64Array.from({ length: order * order }, (_, k) => square[k] + square[Math.trunc(k / order) + order * (k % order)]);
const s = placed(symmetric);
const peerMatrix = (size, of) => Matrix.from1DArray(size, size, of.subarray(0, size * size));
const [peer512, peer200, peerSymmetric] = [peerMatrix(512, square), peerMatrix(order, square), peerMatrix(order, symmetric)];
const columns = Array.from({ length: cols }, (_, j) => Array.from(cells.subarray(j * rows, (j + 1) * rows)));

const workloads = [
  ["mean of 1e6, 2 % missing", () => flat.VB_V_Mean2(x, n), "simple-statistics", () => simple.mean(present)],
  ["variance of 1e6, 2 % missing", () => flat.VB_V_Var(x, n, null, ones, -1, -1), "simple-statistics", () => simple.sampleVariance(present)],
  ["median of 1e6, 2 % missing", () => flat.VB_V_QuantileM(x, n, null, 0.5), "simple-statistics", () => simple.median(present)],
  ["sort of 1e6", () => { const copy = placed(vector); flat.VB_SortQVectorDbl(copy, n, 1, n, 0); copy.free(); }, "Float64Array", () => vector.slice().sort()],
  ["correlations, 20000 by 20", () => flat.VB_M_CovCorr(table, rows, cols, out.array.subarray(0, cols * cols), -1, null, ones.array.subarray(0, rows), -1, -1),
    "simple-statistics", () => columns.map((one) => columns.map((other) => simple.sampleCorrelation(one, other)))],
  ["product, order 512", () => flat.VB_M_ProductAB(a, 512, 512, a, 512, out), "ml-matrix", () => peer512.mmul(peer512)],
  ["inverse, order 200", () => flat.VB_M_Inverse1(a.array.subarray(0, order * order), order, out.array.subarray(0, order * order), 0), "ml-matrix", () => inverse(peer200)],
  ["eigenvalues and vectors, order 200", () => flat.VB_M_Eigen(s, new Float64Array(order), out.array.subarray(0, order * order), order, -1),
    "ml-matrix", () => new EigenvalueDecomposition(peerSymmetric, { assumeSymmetric: true })],
  ["mean of 10, with the call", () => flat.VB_V_Mean2(vector.subarray(0, 10), 10), "simple-statistics", () => simple.mean(present.slice(0, 10))],
];

const told = (time) => (time < 0.1 ? `${(1000 * time).toPrecision(3)} µs` : `${time.toPrecision(3)} ms`);
console.log("| workload | vecmat | native/vecmat | peer (vecmat/peer) |\n| --- | --- | --- | --- |");
for (const [name, work, peerName, peer] of workloads) {
  const [own, other] = [best(work), best(peer)];
  const beside = native.has(name) ? (native.get(name) / own).toPrecision(2) : "";
  console.log(`| ${name} | ${told(own)} | ${beside} | ${told(other)} ${peerName} (${(own / other).toPrecision(2)}) |`);
}
