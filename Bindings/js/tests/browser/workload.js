// What runs in Node, on a page and in its worker: results of all parts of the package, as the digits of their bits.
function digits(result) {
  if (typeof result === "number") {
    const view = new DataView(new ArrayBuffer(8));
    view.setFloat64(0, Number.isNaN(result) ? NaN : result);
    return view.getBigUint64(0).toString(16);
  }
  if (ArrayBuffer.isView(result) || Array.isArray(result)) return Array.from(result, digits).join(" ");
  if (result !== null && typeof result === "object") return Object.values(result).map(digits).join(" | ");
  return String(result);
}

/** Numbers that look like chance, the same everywhere, a few of them missing. */
function numbers(count) {
  let state = 12345;
  return Float64Array.from({ length: count }, () => {
    state = (Math.imul(state, 1103515245) + 12345) >>> 0;
    return state % 50 === 0 ? NaN : state / 2 ** 32;
  });
}

export function workload(vm) {
  const x = numbers(1000);
  const columns = { a: x, b: numbers(3000).subarray(1000, 2000), c: numbers(3000).subarray(2000) };
  const groups = Array.from(x, (_, i) => "abc"[i % 3]);
  const weights = Float64Array.from(x, (_, i) => 1 + (i % 4));
  const own = vm.allocate(Float64Array, 3);
  own.array.set([3, 1, 2]);
  vm.flat.VB_SortQVectorDbl(own, 3, 1, 3, 0);
  const results = [
    own.array, vm.mean(x), vm.var(x, { weights }), vm.moments(x), vm.quantile(x, 0.3, { weights }), vm.median(columns),
    vm.corr(columns).cells, vm.cov(columns, { weights }).cells, vm.imputeNearest(columns).cells, vm.categories(groups),
    vm.groupBy(columns, groups).table.cells, vm.rank(x), vm.bootstrapRows(100, 50, { seed: 5 }), vm.ols(columns, x),
    vm.principalComponents(vm.imputeMean(columns)).scores.cells, vm.compactLetters([1, 2, 5], (i, j) => Math.abs(i - j) > 1),
  ].map(digits);
  own.free();
  try {
    vm.flat.VB_V_Mean2([1], 2);
  } catch (error) {
    results.push(`${error.name}: ${error.message}`);
  }
  return results;
}
