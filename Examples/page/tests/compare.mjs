// Compares what the page shows of a file with what the program tells of it.
import assert from "node:assert/strict";
import { messageParts } from "../source/words.js";
import { archive, problem, shown, survey } from "./driver.mjs";
import { records, surveyed } from "./native.mjs";

/** A message of the program as the page words it. */
export function onPage(message) {
  return messageParts(message).map((part) => (typeof part === "string" ? part : `“${part.label}”`)).join("");
}

/**
 * Surveys the content on the page and by the program, grouped by what the page proposes, and asserts that both tell the
 * same: the message, or each text, each cell of each table, and each byte of the files. Returns whether there was a survey.
 */
export async function assertSame(page, content, name, words = []) {
  const isSurveyed = await survey(page, content, name);
  const grouping = isSurveyed ? await page.locator("#option-grouping").inputValue() : "";
  const native = surveyed(content, name, words, grouping);
  if (!isSurveyed) {
    assert.equal(await problem(page), onPage(native.message ?? "no message, a survey"));
    return false;
  }
  assert.equal(native.message, undefined);
  await assertShows(page, native);
  assert.deepEqual(page.problems, []);
  return true;
}

/** Asserts that the page shows what the program told. */
export async function assertShows(page, { contents, files }) {
  for (const button of await page.getByRole("button", { name: /^Show all/ }).all()) await button.click();
  const onIt = await shown(page);
  const of = (kind) => contents.filter((record) => record[0] === kind).map((record) => record.slice(1));
  assert.deepEqual([onIt.title, onIt.summary], of("title")[0]);
  assert.deepEqual(onIt.lists, of("list").map(([label, ...items]) => [label, items.join(", ")]));
  assert.deepEqual(onIt.remarks, of("remark").map(([remark]) => remark));
  assert.deepEqual(
    onIt.sections.map(({ name, title, lead, note }) => [name, title, lead, note]),
    of("section"),
  );
  assert.deepEqual(onIt.sections.flatMap(({ pictures }) => pictures), of("picture").map(([picture]) => picture));
  const tables = of("table").map(([table]) => table);
  assert.deepEqual(Object.keys(onIt.tables), tables);
  for (const table of tables) assert.deepEqual(onIt.tables[table], records(files[`data/${table}.tsv`]), table);
  await assertSameFiles(await archive(page), files);
}

async function assertSameFiles(taken, files) {
  assert.deepEqual(Object.keys(taken).sort(), Object.keys(files).sort());
  for (const [path, bytes] of Object.entries(files))
    if (!bytes.equals(taken[path])) assert.equal(Buffer.from(taken[path]).toString("latin1"), bytes.toString("latin1"), path);
}
