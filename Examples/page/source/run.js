// The survey of one file in a worker of its own, which goes with it: WebAssembly gives no memory back otherwise.

let compiled; // the module, once for all workers

/** What lies beside the page. */
export async function fetched(path) {
  const response = await fetch(path);
  if (!response.ok) throw new Error(`${path} can't be loaded (${response.status})`);
  return response;
}

function compiledModule() {
  compiled ??= (async () => {
    const response = await fetched("survey.wasm");
    return WebAssembly.compile(await response.arrayBuffer()); // whatever type the server gives it
  })();
  compiled.catch(() => (compiled = undefined));
  return compiled;
}

export class Run {
  #worker = new Worker("worker.js", { type: "module" });
  #stopped = false;
  #waiting = new Map(); // of what is asked for once, by the kind of the answer

  /** `file` may be on its way still; `take` gets what the worker tells: `columns`, `part`, `progress`, `done`, `failed`. */
  constructor(file, name, take) {
    this.name = name;
    this.#worker.addEventListener("message", ({ data }) => this.#receive(data, take));
    this.#worker.addEventListener("error", (event) => {
      event.preventDefault();
      this.#receive({ kind: "failed", message: `the survey ended unexpectedly (${event.message ?? "no reason given"})` }, take);
    });
    this.opened = Promise.all([compiledModule(), file]).then(
      ([module, content]) => this.#post({ task: "open", compiled: module, file: content, name }),
      (error) => {
        this.#receive({ kind: "failed", message: error.message }, take);
        this.stop(); // what is asked for later would fail, too
      },
    );
  }

  look(words) {
    this.opened.then(() => this.#post({ task: "look", words }));
  }

  survey(words) {
    this.opened.then(() => this.#post({ task: "survey", words }));
  }

  /** The bytes of an archive of text and data. */
  async archive() {
    return (await this.#ask("archive", { task: "archive" })).bytes;
  }

  /** The bytes of one file of the report. */
  async file(path) {
    return (await this.#ask("file", { task: "file", path })).bytes;
  }

  stop() {
    this.#stopped = true;
    this.#worker.terminate();
    for (const { reject } of this.#waiting.values()) reject(new Error("stopped"));
  }

  #post(message) {
    if (!this.#stopped) this.#worker.postMessage(message);
  }

  async #ask(kind, message) {
    while (this.#waiting.has(kind)) await this.#waiting.get(kind).promise.catch(() => {});
    const answer = {};
    answer.promise = new Promise((resolve, reject) => Object.assign(answer, { resolve, reject }));
    this.#waiting.set(kind, answer);
    this.#post(message);
    return answer.promise.finally(() => this.#waiting.delete(kind));
  }

  #receive(message, take) {
    if (this.#stopped) return;
    const waiting = this.#waiting.get(message.kind);
    if (waiting) waiting.resolve(message);
    else take(message);
    if (message.kind === "failed")
      for (const { reject } of this.#waiting.values()) reject(new Error(message.message));
  }
}
