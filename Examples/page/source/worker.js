// Surveys one file, away from the page. Messages to it: `look`, `survey`, `archive`; from it: `columns`, `part`,
// `progress`, `done`, `archive`, `file`, `failed`. Who wants to stop it ends the worker.
import createModule from "survey-module";
import { zipSync } from "fflate";
import { openName } from "./words.js";

const directory = "/table"; // of the file
const report = "/report"; // of text and data

let module;
let opened; // the file's name
let isOpen = false;

function post(kind, content = {}, transferred = []) {
  self.postMessage({ kind, ...content }, transferred);
}

const tasks = {
  async open({ compiled, file, name }) {
    module = await createModule({
      instantiateWasm(imports, take) {
        WebAssembly.instantiate(compiled, imports).then((instance) => take(instance));
        return {};
      },
    });
    const { FS, WORKERFS } = module;
    opened = openName(name);
    FS.mkdir(directory);
    FS.mount(WORKERFS, { blobs: [{ name: opened.replace(/^\.\//, ""), data: file }] }, directory);
    FS.chdir(directory); // messages name the file without it
    isOpen = true;
  },

  look({ words }) {
    const answer = module.look([...words, "--", opened], progress);
    if (answer.error !== undefined) fail(answer.error);
    else post("columns", answer);
  },

  survey({ words }) {
    const start = performance.now();
    const answer = module.survey(["--report", report, ...words], (part) => post("part", { part }), progress);
    if (answer.error !== undefined) fail(answer.error);
    else post("done", { seconds: (performance.now() - start) / 1000 });
  },

  /** The text and all data as an archive. */
  archive() {
    const { FS } = module;
    const files = { "survey.txt": FS.readFile(`${report}/survey.txt`) };
    for (const name of FS.readdir(`${report}/data`))
      if (!/^\.+$/.test(name)) files[`data/${name}`] = FS.readFile(`${report}/data/${name}`);
    const bytes = zipSync(files);
    post("archive", { bytes }, [bytes.buffer]);
  },

  /** One file of the report. */
  file({ path }) {
    const bytes = module.FS.readFile(`${report}/${path}`);
    post("file", { path, bytes }, [bytes.buffer]);
  },
};

function progress(what, share) {
  post("progress", { what, share });
}

function fail(message) {
  post("failed", { message });
}

let last = Promise.resolve(); // tasks wait for each other

self.addEventListener("message", ({ data }) => {
  last = last
    .then(() => (isOpen || data.task === "open" ? tasks[data.task](data) : undefined)) // else what failed has been told
    .catch((error) => post("failed", { message: `the survey ended unexpectedly (${error.message ?? error})` }));
});
