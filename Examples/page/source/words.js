// The command line of the survey for what the page asks, and what its messages say in words of the page.

/** The words that tell how a file is read. */
export function readingWords(options) {
  const words = ["--missing", options.missing];
  for (const name of ["delimiter", "decimal", "encoding"])
    if (options[name]) words.push(`--${name}`, options[name]);
  return words;
}

/** All words of a survey of the file with this name. */
export function surveyWords(options, name) {
  const words = [...readingWords(options), "--correction", options.correction, "--seed", options.seed];
  if (options.weights) words.push("--weights", options.weights);
  words.push("--", name);
  if (options.grouping) words.push(options.grouping);
  return words;
}

/** A name under which a file can be opened: the program takes "-" for its standard input. */
export function openName(name) {
  const plain = name.replace(/[/\0]/g, "_");
  if (plain === "-") return "./-";
  return /^\.{0,2}$/.test(plain) ? `table${plain}` : plain;
}

const fields = {
  missing: "Missing cells are written as",
  delimiter: "Fields are separated by",
  decimal: "Decimals stand behind a",
  encoding: "Encoding",
};

/** A message of the survey as parts: texts, and the options of the page that it names, as { option, label }. */
export function messageParts(message) {
  const text = message
    .replace(/, or pass it on as in zcat FILE \| survey -$/, "")
    .replace(/ \(iconv -l lists them\)$/, "");
  return text.split(/(--(?:missing|delimiter|decimal|encoding)\b)/).map((part, place) => {
    const option = part.slice(2);
    return place % 2 === 0 ? part : { option, label: fields[option] };
  });
}

/** The column by which rows are best grouped: the first of a few texts that each stand in several rows. */
export function suggestedGrouping({ rows, columns }) {
  const fits = (column) => column.kind === "text" && column.groups > 1 && column.groups <= Math.min(50, rows / 3);
  const numeric = columns.filter((column) => column.kind === "numeric");
  return numeric.length > 0 ? (columns.find(fits)?.name ?? "") : "";
}

/** How far the whole is, of 1: reading takes the first part, filling the longest of the rest. */
export function overallShare(what, share) {
  const reading = 0.15;
  if (what.startsWith("reading ")) return reading * share;
  const done = what === "filling missing cells" ? 0.49 + 0.4 * share : share;
  return reading + (1 - reading) * done;
}
