// Permutations and samples. The same seed gives the same series on every machine.
import { optionsOf, whole } from "./inputs.js";
import { keys } from "./keys.js";

const rowNames = (n) => Array.from({ length: n }, (_, i) => String(i));
const fromOne = (ids) => Int32Array.from(ids, (id) => id - 1);

export function sampling(flat) {
  const { placesOf } = keys(flat);

  /** Runs a call that draws, and tells how the series began and goes on. */
  function drawn(options, call) {
    const { seed } = optionsOf(options, { seed: undefined });
    const start = Int32Array.of(seed === undefined ? 0 : whole(seed, "seed"));
    const following = new Int32Array(1);
    const found = call(start, seed === undefined ? 0 : -1, following);
    return { values: found, seed: start[0], nextSeed: following[0] };
  }

  return {
    permutation(n, options) {
      const out = new Int32Array(whole(n, "n", 0));
      return drawn(options, (...series) => {
        flat.Cpp_Random1toNLng(out.length, out, ...series);
        return fromOne(out);
      });
    },

    randomSubset(n, k, options) {
      const out = new Float64Array(whole(n, "n", 0));
      whole(k, "k", 0, n);
      return drawn(options, (...series) => {
        flat.VB_GenerateRandomIndicator(out, n, k, ...series);
        return Int32Array.from([...out.keys()].filter((i) => out[i] !== 0));
      });
    },

    bootstrapRows(n, size = n, options = undefined) {
      whole(n, "n", 1);
      const ids = new Float64Array(whole(size, "size", 0));
      return drawn(options, (...series) => {
        flat.VB_M_SamplingWithReplacement(rowNames(n), n, 1, size, new Array(size).fill(null), ids, ...series);
        return fromOne(ids);
      });
    },

    sampleStratified(strata, size, options) {
      const n = strata?.length ?? 0;
      const { names, places } = placesOf(strata, n, "strata");
      if (places.includes(-1)) throw new RangeError("strata: a row has none");
      whole(size, "size", 1, n);
      const codes = Float64Array.from(places, (place) => place + 1);
      const sizes = new Float64Array(names.length);
      for (const code of codes) sizes[code - 1] += 1;
      const quota = sizes.map((members) => (members * size) / n);
      const [ids, out] = [codes.map((_, i) => i + 1), new Float64Array(size)];
      return drawn(options, (...series) => {
        flat.Cpp_M_SamplingRandomStratifiedByStr(
          rowNames(n), n, 1, size, new Array(size).fill(null), ids, out, codes, quota, sizes, names.length, ...series);
        return fromOne(out);
      });
    },
  };
}
