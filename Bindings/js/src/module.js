// The WebAssembly module: fetched, compiled, and the few things that it asks of its surroundings.
import { callerOf } from "./call.js";
import { VecMatError, described } from "./errors.js";
import { MISSING } from "./expressions.js";
import { table } from "./flat_table.js";
import { ModuleMemory } from "./memory.js";
import { MemoryViews } from "./memory_views.js";

const isNode = typeof process === "object" && process.versions?.node !== undefined;

// Web Crypto, which Node 18 has only in a module of its own.
async function webCrypto() {
  return globalThis.crypto ?? (await import(/* webpackIgnore: true */ /* @vite-ignore */ "node:crypto")).webcrypto;
}

async function bytesOfFile(url) {
  const { readFile } = await import(/* webpackIgnore: true */ /* @vite-ignore */ "node:fs/promises");
  return readFile(url);
}

async function fetched(url) {
  const response = await fetch(url);
  if (!response.ok) throw new VecMatError("failed", `${url}: ${response.status} ${response.statusText}`);
  return response;
}

async function compiledResponse(response) {
  const isTyped = response.headers.get("Content-Type")?.startsWith("application/wasm");
  return isTyped && WebAssembly.compileStreaming
    ? WebAssembly.compileStreaming(response)
    : WebAssembly.compile(await response.arrayBuffer());
}

// A compiled module from what `load` takes.
async function compiled(source) {
  if (source instanceof WebAssembly.Module) return source;
  if (source instanceof ArrayBuffer || ArrayBuffer.isView(source)) return WebAssembly.compile(source);
  if (typeof Response === "function" && source instanceof Response) return compiledResponse(source);
  if (typeof source !== "string" && !(source instanceof URL))
    throw new TypeError(
      `load(), option 'wasm': expected a URL, a Response, bytes or a WebAssembly.Module, got ${described(source)}`);
  const url = new URL(source, import.meta.url);
  return url.protocol === "file:" && isNode ? WebAssembly.compile(await bytesOfFile(url)) : compiledResponse(await fetched(url));
}

// What the module imports: nothing but chance, and what it calls when it meets with an error of its own.
function importsOf(module, crypto, memory) {
  const known = {
    random_get: (offset, bytes) => {
      for (let first = 0; first < bytes; first += 65536)
        crypto.getRandomValues(new Uint8Array(memory().buffer, offset + first, Math.min(bytes - first, 65536)));
      return 0;
    },
    getentropy: (offset, bytes) => known.random_get(offset, bytes),
    proc_exit: () => {
      throw new Error("the module has ended itself");
    },
  };
  const found = {};
  for (const { module: space, name } of WebAssembly.Module.imports(module))
    (found[space] ??= {})[name] = known[name] ?? (() => 52); // no such function, in WASI's numbers
  return found;
}

// One instance of the module, with its memory.
export class RunningModule {
  #isStopped = false;

  constructor(instance) {
    this.exports = instance.exports;
    this.exports._initialize?.();
    this.memory = new ModuleMemory(this.exports);
    this.views = new MemoryViews(this.exports.memory);
  }

  requireRunning() {
    if (this.#isStopped) throw new VecMatError("stopped", "the module has stopped after an error of its own: load it anew");
  }

  // Runs code of the module. No exception of the library gets out of it: what does is the end of this instance.
  run(code) {
    try {
      return code();
    } catch (error) {
      this.#isStopped = true;
      throw new VecMatError("stopped", `the module has stopped: ${error.message}`);
    }
  }
}

export async function instantiate(source) {
  const module = await compiled(source);
  const crypto = await webCrypto();
  const instance = await WebAssembly.instantiate(module, importsOf(module, crypto, () => instance.exports.memory));
  return new RunningModule(instance);
}

// The flat functions by name. Each is made when it is first asked for.
export function flatFunctions(module) {
  const functions = { MISSING };
  for (const description of table)
    Object.defineProperty(functions, description.name, {
      configurable: true,
      enumerable: true,
      get() {
        const value = callerOf(module, description);
        Object.defineProperty(functions, description.name, { value, enumerable: true });
        return value;
      },
    });
  return functions;
}
