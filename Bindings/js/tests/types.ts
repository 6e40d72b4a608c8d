// Compiled, not run: the types of the package as its users see them. What must not compile is marked so.
import { ModuleArray, Table, VecMatError, load } from "vecmat";
import type { FlatFunctions, VecMat } from "vecmat";

const vm: VecMat = await load({ wasm: new URL("file:///vecmat.wasm") });

const one: number = vm.mean([1, null, 3], { weights: [1, 2, 3], exclude: [false, false, true] });
const each: Float64Array = vm.mean({ a: [1, 2], b: Float64Array.of(3, 4) });
const ofRows: Float64Array = vm.var([[1, 2], [3, null]], { divisor: "reliability", zeroWeights: "skipped" });
const table: Table = vm.corr(new Table(2, 1, Float64Array.of(1, 2), ["a"]), { missing: "complete" });
const groups: { keys: string[] } = vm.groupBy([1, 2], ["a", null], "median");
const own: ModuleArray<Float64Array> = vm.allocate(Float64Array, 3);
const half: number = vm.quantile(own, 0.5);
const flat: FlatFunctions = vm.flat;
flat.VB_V_Var(own, 3, null, Float64Array.of(1, 1, 1), true, -1);
flat.Cpp_M_Mean3([1, 2, 3, 4], 2, 2, new Float64Array(2));
const text: string = flat.VB_V_Mode(["a", null], 2, 0, [1, 1]);
const failure: "memory" | "failed" | "stopped" = new VecMatError("failed", "text").code;

// @ts-expect-error a result must be a typed array
flat.Cpp_M_Mean3([1, 2, 3, 4], 2, 2, [0, 0]);
// @ts-expect-error weights may not be null
flat.VB_V_Var([1], 1, null, null, 0, 0);
// @ts-expect-error no such option
vm.mean([1], { weight: [1] });
// @ts-expect-error no such divisor
vm.var([1], { divisor: "n" });
// @ts-expect-error texts have no mean
vm.mean(["a"]);
// @ts-expect-error only three kinds of cells
vm.allocate(Uint8Array, 3);

// All there is, told once more, so that nothing can be forgotten in the types: the test of names compares it.
export const names: Record<keyof VecMat, true> = {
  flat: true, allocate: true, memoryBytes: true,
  mean: true, var: true, std: true, total: true, minimum: true, maximum: true, moments: true, zscores: true, quantile: true,
  median: true, sort: true, rank: true,
  cov: true, corr: true, standardize: true, eigh: true, inv: true, solve: true, principalComponents: true, axesToKeep: true,
  biplot: true, ols: true,
  isMissing: true, countMissing: true, completeRows: true, dropMissing: true, fillMissing: true, imputeMean: true,
  imputeMode: true, imputeNearest: true,
  categories: true, mode: true, codes: true, dummies: true, crossTable: true, unique: true, groupBy: true,
  compactLetters: true,
  permutation: true, randomSubset: true, bootstrapRows: true, sampleStratified: true,
};
export const used = [one, each, ofRows, table, groups, half, text, failure];
