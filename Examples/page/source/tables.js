// A table of the survey as an element.
import { element, grouped } from "./elements.js";

const mostRows = 250; // shown at first

/**
 * `table` has name, keyColumns, columns of { heading, align }, rows of texts. Where two columns name the rows, those that
 * have the first in common stand below one name.
 */
export function tableElement(table, caption) {
  const head = element(
    "tr",
    {},
    ...table.columns.map(({ heading, align }) => element("th", { scope: "col", class: align }, heading)),
  );
  const result = element(
    "table",
    { "data-table": table.name },
    element("caption", { class: "hidden" }, caption),
    element("thead", {}, head),
    ...bodies(table, table.rows.slice(0, mostRows)),
  );
  const box = element("div", { class: "wide", role: "group", tabindex: "0", "aria-label": caption }, result);
  if (table.rows.length <= mostRows) return [box];
  const all = element("button", { type: "button", class: "plain" }, `Show all ${grouped(table.rows.length)} rows`);
  const more = element("p", { class: "whole" }, `The first ${mostRows} rows are shown. `, all);
  all.addEventListener("click", () => {
    for (const body of result.querySelectorAll("tbody")) body.remove();
    result.append(...bodies(table, table.rows));
    more.remove();
    box.focus();
  });
  return [box, more];
}

function bodies(table, rows) {
  const behind = table.columns.map((column, j) => placesBehindUnits(column, table.rows, j));
  const placed = table.columns.map((_, j) => table.rows.some((row) => row[j].startsWith(" ")));
  const cell = (i, j) => {
    const tag = j < table.keyColumns ? "th" : "td";
    const names = placed[j] ? `${table.columns[j].align} placed` : table.columns[j].align;
    const result = element(tag, { class: names, scope: tag === "th" ? "row" : null, dir: tag === "th" ? "auto" : null }, rows[i][j]);
    const short = behind[j] ? behind[j].most - behind[j].of(rows[i][j]) : 0;
    if (short > 0) result.style.setProperty("--short", short);
    return result;
  };
  const columns = table.columns.map((_, j) => j);
  if (table.keyColumns !== 2) return [element("tbody", {}, ...rows.map((_, i) => element("tr", {}, ...columns.map((j) => cell(i, j)))))];
  const result = [];
  for (let first = 0; first < rows.length; ) {
    let end = first + 1;
    while (end < rows.length && rows[end][0] === rows[first][0]) ++end;
    const body = element("tbody");
    for (let i = first; i < end; ++i) {
      const row = element("tr");
      if (i === first) {
        const attributes = { scope: "rowgroup", rowspan: end - first, class: table.columns[0].align, dir: "auto" };
        row.append(element("th", attributes, rows[i][0]));
      }
      row.append(...columns.slice(1).map((j) => cell(i, j)));
      body.append(row);
    }
    result.push(body);
    first = end;
  }
  return result;
}

/** How many places a cell takes behind its units, and the most of all; null where points aren't below each other. */
function placesBehindUnits({ align }, rows, j) {
  if (align !== "point") return null;
  const of = (text) => (/[.e].*$/.exec(text)?.[0] ?? "").length;
  return { of, most: rows.reduce((most, row) => Math.max(most, of(row[j])), 0) };
}
