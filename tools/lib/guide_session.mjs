// guide_session.mjs FOLDER FILE...: runs the statements of the files as one module, in FOLDER, where npm has put what they
// import, and writes each file with `//> ` before what its statements print, as FILE with the ending .out. Called by
// guide.py.
//
// A statement begins at the margin. Lines that are indented, or begin with a closing bracket, go on with it.
import { readFileSync, rmSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { pathToFileURL } from "node:url";
import { inspect } from "node:util";

const GOES_ON = /^[\s)\]}]/;
const IS_EXPRESSION = /^(?!(?:import|const|let|function|class|for|while|if)\b)/;

/** Statements, comments and blank lines of a file, in order. */
function pieces(text) {
  const found = [];
  for (const line of text.split("\n")) {
    if (line.startsWith("//> ") || line === "//>") continue;
    if (GOES_ON.test(line) && found.length > 0) found.at(-1).code += `\n${line}`;
    else found.push({ code: line, printed: [] });
  }
  return found;
}

const isStatement = ({ code }) => code !== "" && !code.startsWith("//");
const shown = (value) => inspect(value, { breakLength: 78, compact: 3, maxArrayLength: 6, sorted: false });

let current = null;
const print = (text) => current.printed.push(...text.split("\n").map((line) => `//> ${line}`.trimEnd()));
console.log = (...values) => print(values.map((value) => (typeof value === "string" ? value : shown(value))).join(" "));

/** What the module calls: `at` before each statement, `value` with what an expression computes. */
globalThis.page = {
  at: (place) => (current = statements[place]),
  async value(compute) {
    try {
      const value = await compute();
      if (value !== undefined) print(shown(value));
    } catch (error) {
      print(`${error.name}: ${error.message}`);
    }
  },
};

const [folder, ...files] = process.argv.slice(2);
const pages = files.map((file) => pieces(readFileSync(file, "utf8").replace(/\n$/, "")));
const statements = pages.flat().filter(isStatement);
const module = join(folder, "page.mjs");
writeFileSync(module, statements.map(({ code }, place) => `page.at(${place});\n` + (IS_EXPRESSION.test(code)
  ? `await page.value(async () => (\n${code.replace(/;$/, "")}\n));` : code)).join("\n"));
try {
  await import(pathToFileURL(module));
} finally {
  rmSync(module);
}
files.forEach((file, place) => writeFileSync(file.replace(/\.js$/, ".out"),
  pages[place].flatMap(({ code, printed }) => [code, ...printed]).join("\n") + "\n"));
