// Categories, groups, distinct values.
import { choice, isVector, optionsOf, strings, table, values, vector, weightsOf, whole } from "./inputs.js";
import { keys } from "./keys.js";
import { Table } from "./table.js";

const CODINGS = { indicator: [0, 2], baseline: [1, 0], effect: [2, 0], weightedEffect: [3, 0] };
const AGGREGATES = { sum: "total", mean: "mean", median: "median", std: "std", var: "var", min: "minimum", max: "maximum" };

export function qualitative(flat, aggregates) {
  const { categoriesOf, uniqueNumbers, placesOf } = keys(flat);

  function dummiesOf(cells, coding) {
    const { names, weights } = categoriesOf(cells);
    const [number, baseline] = CODINGS[choice(coding, "coding", Object.keys(CODINGS))];
    const [n, width] = [cells.length, names.length];
    const out = new Float64Array(n * width);
    if (width > 0)
      flat.VB_BuildDisjunctiveTable(cells, n, 1, width, Int32Array.of(width), names, weights, width, out, number, baseline);
    const dropped = number === 0 || width === 0 ? 0 : 1;
    return new Table(n, width - dropped, values(out.slice(dropped * n)), names.slice(dropped));
  }

  return {
    categories(x, options) {
      const { weights, sort } = optionsOf(options, { weights: undefined, sort: true });
      return categoriesOf(strings(x), weights, sort);
    },

    mode(x, options) {
      const { weights } = optionsOf(options, { weights: undefined });
      const cells = strings(x);
      return flat.VB_V_Mode(cells, cells.length, 0, weightsOf(weights, cells.length)) || null;
    },

    codes(x, options) {
      const { first } = optionsOf(options, { first: 0 });
      whole(first, "first");
      const cells = strings(x);
      const { names } = categoriesOf(cells);
      const places = new Map(names.map((name, k) => [name, first + k]));
      return { codes: Float64Array.from(cells, (cell) => places.get(cell) ?? NaN), names };
    },

    dummies(x, options) {
      const { coding } = optionsOf(options, { coding: "indicator" });
      return dummiesOf(strings(x), coding);
    },

    crossTable(x, y) {
      const a = strings(x);
      const b = strings(y, "y", a.length);
      const both = a.map((cell, i) => Boolean(cell && b[i]));
      const [ofX, ofY] = [placesOf(a, a.length, "x"), placesOf(b, a.length, "y")];
      const counts = new Float64Array(ofX.names.length * ofY.names.length);
      both.forEach((isBoth, i) => {
        if (isBoth) counts[ofX.places[i] + ofY.places[i] * ofX.names.length] += 1;
      });
      return { table: new Table(ofX.names.length, ofY.names.length, counts, ofY.names), rows: ofX.names, columns: ofY.names };
    },

    unique: (x) => uniqueNumbers(vector(x)),

    groupBy(x, by, aggregate = "mean", options = undefined) {
      const { weights } = optionsOf(options, { weights: undefined });
      const name = AGGREGATES[choice(aggregate, "aggregate", Object.keys(AGGREGATES))];
      if (weights !== undefined && (aggregate === "min" || aggregate === "max"))
        throw new TypeError("weights: have no meaning for min and max");
      const cells = isVector(x) ? vector(x) : null;
      const of = cells ? new Table(cells.length, 1, cells) : table(x);
      const { names, places } = placesOf(by, of.rows);
      const w = weights === undefined ? null : weightsOf(weights, of.rows);
      const members = names.map(() => []);
      places.forEach((place, i) => {
        if (place >= 0) members[place].push(i);
      });
      const out = new Float64Array(names.length * of.cols);
      members.forEach((rows, k) => {
        const chosen = w ? { weights: Float64Array.from(rows, (i) => w[i]) } : {};
        for (let j = 0; j < of.cols; ++j) {
          const column = of.column(j);
          out[k + j * names.length] = aggregates[name](Float64Array.from(rows, (i) => column[i]), chosen);
        }
      });
      return { keys: names, sizes: Int32Array.from(members, (rows) => rows.length), table: new Table(names.length, of.cols, out, of.names) };
    },
  };
}
