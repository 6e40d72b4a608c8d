// The survey as a program on this machine, with which the page is compared.
import { spawnSync } from "node:child_process";
import { mkdirSync, mkdtempSync, readFileSync, readdirSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";

const program = process.env.SURVEY;
if (!program) throw new Error("SURVEY must name the program of Examples/survey");

/**
 * What the program tells of a file of this content: { message } where it can't be surveyed, else { text, contents, files },
 * the records of contents.tsv and the bytes of all files below the report's directory.
 */
export function surveyed(content, name, words = [], grouping = "") {
  const directory = mkdtempSync(join(tmpdir(), "survey-"));
  try {
    const table = join(directory, "table");
    mkdirSync(table);
    writeFileSync(join(table, name), content);
    const report = join(directory, "report");
    const named = name === "-" ? "./-" : name;
    const result = spawnSync(program, ["--report", report, ...words, "--", named, ...(grouping ? [grouping] : [])], {
      cwd: table,
      encoding: "utf8",
      maxBuffer: 1 << 28,
    });
    if (result.error) throw result.error;
    if (result.status === 1) return { message: result.stderr.replace(/^(?:survey: [^\n]*, \d+ %\n)*survey: /, "").replace(/\n$/, "") };
    if (result.status !== 0) throw new Error(`survey: ${result.stderr}`);
    const files = { "survey.txt": readFileSync(join(report, "survey.txt")) };
    for (const each of readdirSync(join(report, "data"))) files[`data/${each}`] = readFileSync(join(report, "data", each));
    return { text: result.stdout, contents: records(files["data/contents.tsv"]), files };
  } finally {
    rmSync(directory, { recursive: true, force: true });
  }
}

/** The records of a file with fields between tabs. */
export function records(bytes) {
  return bytes.toString("utf8").replace(/\n$/, "").split("\n").map((line) => line.split("\t"));
}
