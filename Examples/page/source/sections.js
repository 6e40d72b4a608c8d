// The parts of a survey as elements.
import { element, grouped } from "./elements.js";
import { figureOf } from "./pictures.js";
import { tableElement } from "./tables.js";

/** What the first part tells: the file, its columns and groups. */
export function overviewElement(part) {
  const facts = element("dl");
  for (const { label, items } of part.lists)
    facts.append(element("dt", {}, label), element("dd", {}, ...withCommas(items)));
  return element(
    "header",
    { class: "overview" },
    element("h2", { class: "title" }, "Survey of ", element("span", { class: "file", dir: "auto" }, part.title)),
    element("p", { class: "summary" }, part.summary),
    facts,
    ...part.remarks.map((remark) => element("p", { class: "remark" }, remark)),
  );
}

function withCommas(items) {
  return items.flatMap((item, place) => [place > 0 ? ", " : "", element("bdi", {}, item)]);
}

/** `download` is called with the name of a table of which the whole is asked for. */
export function sectionElement(section, surroundings, download) {
  const content = [element("h2", {}, section.title), element("p", { class: "lead" }, section.lead)];
  const figures = section.pictures.map((picture) => figureOf(picture, surroundings)).filter((figure) => figure !== null);
  if (figures.length > 1) content.push(element("div", { class: "pictures" }, ...figures));
  else content.push(...figures);
  section.tables.forEach((table, place) => {
    const caption = section.tables.length > 1 ? `${section.title}, table ${place + 1}` : section.title;
    content.push(...tableElement(table, caption));
    if (table.whole > 0) content.push(wholeElement(table, download));
  });
  if (section.note) content.push(element("p", { class: "note" }, section.note));
  return element("section", { id: section.name }, ...content);
}

function wholeElement(table, download) {
  const button = element(
    "button",
    { type: "button", class: "plain", onclick: () => download(table.name) },
    `All ${grouped(table.whole)} rows as CSV`,
  );
  return element("p", { class: "whole" }, "The table is cut. ", button);
}
