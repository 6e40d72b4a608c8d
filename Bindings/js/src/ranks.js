// Order and ranks.
import { MISSING, choice, optionsOf, values, vector, weightsOf } from "./inputs.js";

export function ranks(flat) {
  return {
    sort(x, options) {
      const { descending } = optionsOf(options, { descending: false });
      const v = vector(x);
      const present = v.filter((cell) => cell !== MISSING);
      const out = new Float64Array(v.length).fill(NaN);
      if (present.length > 0) flat.VB_SortQVectorDbl(present, present.length, 1, present.length, descending ? -1 : 0);
      out.set(present);
      return out;
    },

    rank(x, options) {
      const { ties, weights } = optionsOf(options, { ties: "average", weights: undefined });
      choice(ties, "ties", ["average", "dense"]);
      const v = vector(x);
      const n = v.length;
      const out = new Float64Array(n).fill(MISSING);
      if (ties === "average") {
        const w = weightsOf(weights, n);
        if (n > 0) flat.VB_V_GetRanksTiesDbl(v, n, w, out, new Int32Array(1), new Float64Array(n));
        return values(out);
      }
      if (weights !== undefined) throw new TypeError("weights: only with ties: \"average\"");
      const present = v.filter((cell) => cell !== MISSING);
      const found = new Float64Array(present.length);
      flat.VB_V_GetRanksDbl(present, present.length, found);
      let next = 0;
      return values(out.map((_, i) => (v[i] === MISSING ? MISSING : found[next++])));
    },
  };
}
