// What the page says for the program's messages, and what it asks the program for.
import assert from "node:assert/strict";
import { test } from "node:test";
import { messageParts, openName, overallShare, suggestedGrouping, surveyWords } from "../source/words.js";

const wording = (message) => messageParts(message).map((part) => part.label ?? part);

test("options that a message names are those of the page", () => {
  assert.deepEqual(wording("t.csv, line 3, column 1 (a): 'nan' is no finite number (a missing cell is left empty, or --missing tells its text)"), [
    "t.csv, line 3, column 1 (a): 'nan' is no finite number (a missing cell is left empty, or ",
    "Missing cells are written as",
    " tells its text)",
  ]);
  assert.deepEqual(wording("decimals are taken to stand behind '.': --decimal tells another character"), [
    "decimals are taken to stand behind '.': ",
    "Decimals stand behind a",
    " tells another character",
  ]);
});

test("what can't be done on the page isn't proposed", () => {
  assert.deepEqual(wording("t.csv: this is a compressed file: unpack it, or pass it on as in zcat FILE | survey -"), ["t.csv: this is a compressed file: unpack it"]);
  assert.deepEqual(wording("t.csv: the encoding 'x' is not known (iconv -l lists them)"), ["t.csv: the encoding 'x' is not known"]);
});

test("the words of a command line", () => {
  const options = { missing: "NA,-", delimiter: "tab", decimal: "", encoding: "", correction: "fdr", seed: "3", weights: "w", grouping: "--help" };
  assert.deepEqual(surveyWords(options, "t.csv"), ["--missing", "NA,-", "--delimiter", "tab", "--correction", "fdr", "--seed", "3", "--weights", "w", "--", "t.csv", "--help"]);
});

test("no name of a file is taken for another place", () => {
  assert.deepEqual(["-", "", ".", "..", "a/b", "../x", "--help"].map(openName), ["./-", "table", "table.", "table..", "a_b", ".._x", "--help"]);
});

test("grouped by the first text with a few groups", () => {
  const columns = [
    { name: "id", kind: "text", groups: 100 },
    { name: "one", kind: "text", groups: 1 },
    { name: "x", kind: "numeric", groups: 0 },
    { name: "kind", kind: "text", groups: 4 },
  ];
  assert.equal(suggestedGrouping({ rows: 100, columns }), "kind");
  assert.equal(suggestedGrouping({ rows: 6, columns }), "");
});

test("the bar never goes back", () => {
  const steps = [["reading t.csv", 0], ["reading t.csv", 1], ["moments", 0.02], ["sample", 0.47], ["filling missing cells", 0], ["filling missing cells", 1], ["components", 0.89], ["regression", 0.94]];
  const shares = steps.map(([what, share]) => overallShare(what, share));
  assert.deepEqual(shares, [...shares].sort((a, b) => a - b));
  assert.ok(shares[0] === 0 && shares.at(-1) < 1);
});
