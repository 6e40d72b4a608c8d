// The page: takes a file, has it surveyed, and shows each part as it comes.
import { bytesLoaded } from "./loaded.js";
import { save, reportPage } from "./downloads.js";
import { allDrawn, drawNoMore } from "./drawing.js";
import { element, grouped } from "./elements.js";
import { fetched, Run } from "./run.js";
import { overviewElement, sectionElement } from "./sections.js";
import { messageParts, openName, overallShare, readingWords, suggestedGrouping, surveyWords } from "./words.js";

const part = (id) => document.getElementById(id);
const field = (option) => part(`option-${option}`);
const optionNames = ["grouping", "weights", "missing", "delimiter", "decimal", "encoding", "correction", "seed"];

let file; // what is surveyed, or a promise of it, and its name
let name;
let columnsAre; // the reading words with which the choices of columns were made, for this file
let run;
let contents; // the list of links, and what sections have in common
let surroundings;

// ---- what is asked for ----

function options() {
  return Object.fromEntries(optionNames.map((name) => [name, field(name).value]));
}

function readingKey() {
  return readingWords(options()).join("\0");
}

function offerColumns(answer) {
  const before = [field("grouping").value, field("weights").value];
  const isNew = columnsAre === undefined;
  const offer = (select, columns, chosen) => {
    select.replaceChildren(element("option", { value: "" }, "no column"), ...columns.map(({ name: each }) => element("option", { value: each }, each)));
    select.value = chosen;
    if (select.selectedIndex < 0) select.value = "";
  };
  offer(field("grouping"), answer.columns.filter((column) => column.kind !== "empty"), isNew ? suggestedGrouping(answer) : before[0]);
  offer(field("weights"), answer.columns.filter((column) => column.kind === "numeric"), isNew ? "" : before[1]);
}

// ---- running ----

function surveyFile(chosen, chosenName) {
  file = chosen;
  name = chosenName;
  columnsAre = undefined;
  offerColumns({ rows: 0, columns: [] }); // until it is read
  begin();
}

function begin() {
  if (!part("controls").reportValidity()) return;
  run?.stop();
  drawNoMore();
  part("problem").hidden = true;
  part("result").replaceChildren();
  document.title = `${name} – VecMat survey`;
  setRunning(true);
  tellStatus(`Surveying ${name} …`);
  part("bar").removeAttribute("value");
  run = new Run(file, name, (message) => receive[message.kind]?.(message));
  if (columnsAre === readingKey()) survey();
  else run.look(readingWords(options()));
}

function survey() {
  run.survey(surveyWords(options(), openName(name)));
}

const receive = {
  columns(answer) {
    offerColumns(answer);
    columnsAre = readingKey();
    survey();
  },
  progress({ what, share }) {
    const overall = overallShare(what, share);
    part("bar").value = Math.max(overall, part("bar").value);
    tellStatus(`${what} …`);
  },
  part({ part: told }) {
    showPart(told);
  },
  async done({ seconds }) {
    const current = run;
    await allDrawn();
    if (run !== current) return; // stopped meanwhile
    setRunning(false);
    endWith(`Surveyed in ${seconds < 10 ? seconds.toFixed(1) : Math.round(seconds)} s.`);
    showDownloads();
  },
  failed({ message }) {
    setRunning(false);
    endWith("");
    showProblem(message);
  },
};

function stop() {
  run?.stop();
  run = undefined;
  drawNoMore();
  setRunning(false);
  endWith("Stopped.");
  part("start").focus();
}

function setRunning(isRunning) {
  part("running").hidden = !isRunning;
  part("stop").hidden = !isRunning;
  part("result").setAttribute("aria-busy", String(isRunning));
  document.body.classList.toggle("busy", isRunning);
}

const status = { text: "", timer: undefined };

/** Changes at most twice a second, so that it can be read and read out. */
function tellStatus(text) {
  const isUrgent = status.timer === undefined;
  status.text = text;
  if (!isUrgent) return;
  part("status").textContent = text;
  status.timer = setTimeout(() => {
    status.timer = undefined;
    if (part("status").textContent !== status.text) tellStatus(status.text);
  }, 500);
}

/** Tells the last word on a survey, at once. */
function endWith(text) {
  clearTimeout(status.timer);
  status.timer = undefined;
  part("status").textContent = text;
}

// ---- showing ----

function showPart(told) {
  const result = part("result");
  if (told.title) {
    contents = element("ol");
    surroundings = {};
    const list = element("nav", { "aria-label": "Contents" }, contents);
    result.replaceChildren(overviewElement(told), element("div", { id: "downloads", hidden: true }), list);
  }
  for (const section of told.sections) {
    contents.append(element("li", {}, element("a", { href: `#${section.name}` }, section.title)));
    result.append(sectionElement(section, surroundings, downloadTable));
  }
}

function showProblem(message) {
  const shown = messageParts(message).map((each) =>
    typeof each === "string" ? each : element("button", { type: "button", class: "link", onclick: () => goTo(each.option) }, `“${each.label}”`),
  );
  part("problem").replaceChildren(element("h2", {}, "This file can’t be surveyed"), element("p", {}, ...shown));
  part("problem").hidden = false;
}

function goTo(option) {
  part("options").open = true;
  field(option).focus();
}

// ---- taking away ----

function showDownloads() {
  const button = (label, onclick) => element("button", { type: "button", class: "plain", onclick }, label);
  const stem = name.replace(/\.[^.]*$/, "");
  const current = run;
  part("downloads").replaceChildren(
    "Download ",
    button("Page as HTML", async () => save(`${stem}-survey.html`, "text/html", await reportPage(name))),
    button("Text", async () => save(`${stem}-survey.txt`, "text/plain;charset=utf-8", await current.file("survey.txt"))),
    button("All tables (ZIP)", async () => save(`${stem}-survey.zip`, "application/zip", await current.archive())),
  );
  part("downloads").hidden = false;
}

async function downloadTable(table) {
  save(`${table}.csv`, "text/csv;charset=utf-8", await run.file(`data/${table}.csv`));
}

// ---- wiring ----

function surveyPenguins() {
  surveyFile(fetched("penguins.csv").then((response) => response.blob()), "penguins.csv");
}

part("controls").addEventListener("submit", (event) => {
  event.preventDefault();
  if (file) begin();
});
part("stop").addEventListener("click", stop);
part("penguins").addEventListener("click", surveyPenguins);
part("file").addEventListener("change", ({ target }) => {
  const [chosen] = target.files;
  if (chosen) surveyFile(chosen, chosen.name);
  target.value = ""; // so that the same file can be chosen again
});

const carriesFiles = (event) => event.dataTransfer?.types.includes("Files");
const showDropping = (isOver) => (part("dropping").hidden = !isOver);
addEventListener("dragover", (event) => {
  if (!carriesFiles(event)) return;
  event.preventDefault();
  event.dataTransfer.dropEffect = "copy";
  showDropping(true);
});
addEventListener("dragleave", (event) => {
  if (event.relatedTarget === null) showDropping(false);
});
addEventListener("drop", (event) => {
  if (!carriesFiles(event)) return;
  event.preventDefault();
  showDropping(false);
  const [chosen] = event.dataTransfer.files;
  if (chosen) surveyFile(chosen, chosen.name);
});

part("size").textContent = `The page is ${grouped(Math.round(bytesLoaded / 1000))} kB in all, compressed; it loads nothing else.`;
surveyPenguins();
