// The licences of what the page is made of, as one text.
import { readFileSync, readdirSync } from "node:fs";
import { join } from "node:path";

/** Of the npm packages among these files, and of what is compiled into the module. */
export function licences(root, files) {
  const names = new Set(files.map((file) => /node_modules\/((?:@[^/]+\/)?[^/]+)\//.exec(file)?.[1]).filter(Boolean));
  const parts = [...names].sort().map((name) => {
    const directory = join(root, "node_modules", name);
    const { version, license } = JSON.parse(readFileSync(join(directory, "package.json"), "utf8"));
    const file = readdirSync(directory).find((each) => /^licen[cs]e/i.test(each));
    if (!file) throw new Error(`${name} has no file with its licence`);
    return titled(`${name} ${version} (${license})`, readFileSync(join(directory, file), "utf8"));
  });
  return [
    "What the page of the VecMat survey is made of, beside VecMat itself, and under which licences.\n",
    readFileSync(join(root, "module/licences.txt"), "utf8"),
    ...parts,
  ].join("\n\n");
}

function titled(title, text) {
  return `${title}\n${"-".repeat(title.length)}\n\n${text.trim()}\n`;
}
