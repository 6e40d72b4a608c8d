import { VecMatError, described } from "./errors.js";

// The kinds of cells that the library takes.
export const ARRAYS = { doubles: Float64Array, ints: Int32Array, flags: Int16Array };

const typedArray = Object.getPrototypeOf(Int8Array.prototype);
const tagOf = Object.getOwnPropertyDescriptor(typedArray, Symbol.toStringTag).get;
const bufferOf = Object.getOwnPropertyDescriptor(typedArray, "buffer").get;
const offsetOf = Object.getOwnPropertyDescriptor(typedArray, "byteOffset").get;
const lengthOf = Object.getOwnPropertyDescriptor(typedArray, "length").get;

// What a typed array is, whatever a subclass or a property of its own claims: "Float64Array" and the like, or undefined.
export const typeOf = (given) => tagOf.call(given);
export const extentOf = (array) => ({ buffer: bufferOf.call(array), offset: offsetOf.call(array), length: lengthOf.call(array) });

// Cells in the module's memory: calls work on them where they are.
export class ModuleArray {
  #memory;
  #type;
  #offset;
  #length;
  #view = null;

  // Made by `allocate` alone.
  constructor(memory, type, offset, length) {
    this.#memory = memory;
    this.#type = type;
    this.#offset = offset;
    this.#length = length;
  }

  get length() {
    return this.#length;
  }

  // The cells. Read it anew after a call: it is another array when the module's memory has grown.
  get array() {
    if (this.#offset === 0) throw new VecMatError("failed", "the cells have been freed");
    if (this.#view === null || this.#view.length !== this.#length || this.#view.buffer !== this.#memory.buffer)
      this.#view = new this.#type(this.#memory.buffer, this.#offset, this.#length);
    return this.#view;
  }

  // Gives the memory back. Freeing twice does nothing.
  free() {
    this.#memory.release(this.#offset);
    this.#offset = 0;
    this.#view = null;
  }
}

if (Symbol.dispose) ModuleArray.prototype[Symbol.dispose] = ModuleArray.prototype.free;

// The memory of one module: what its users allocated there, and a workspace for each call.
export class ModuleMemory {
  #exports;
  #blocks = new Map(); // of users: where it begins, and its bytes
  #workspace = 0;
  #workspaceBytes = 0;

  constructor(exports) {
    this.#exports = exports;
  }

  get buffer() {
    return this.#exports.memory.buffer;
  }

  // Memory for one call. What the call before it had is no longer used.
  workspace(bytes) {
    if (bytes > this.#workspaceBytes) {
      this.dropWorkspace();
      this.#workspace = this.#take(bytes);
      this.#workspaceBytes = bytes;
    }
    return this.#workspace;
  }

  // A large workspace is not kept.
  trimWorkspace() {
    if (this.#workspaceBytes > 1 << 20) this.dropWorkspace();
  }

  dropWorkspace() {
    if (this.#workspace !== 0) this.#exports.free(this.#workspace);
    this.#workspace = 0;
    this.#workspaceBytes = 0;
  }

  allocate(type, length) {
    if (!Object.values(ARRAYS).includes(type))
      throw new TypeError(`allocate(), argument 'type': expected Float64Array, Int32Array or Int16Array, got ${described(type)}`);
    if (typeof length !== "number" || !Number.isInteger(length) || length < 0)
      throw new RangeError(`allocate(), argument 'length': expected a whole number from 0, got ${described(length)}`);
    const bytes = length * type.BYTES_PER_ELEMENT;
    const offset = this.#take(Math.max(bytes, 16));
    this.#blocks.set(offset, bytes);
    const made = new ModuleArray(this, type, offset, length);
    made.array.fill(0);
    return made;
  }

  release(offset) {
    if (this.#blocks.delete(offset)) this.#exports.free(offset);
  }

  // Whether these bytes lie in one block that a user has allocated and not freed.
  holds(offset, bytes) {
    for (const [begin, size] of this.#blocks) if (offset >= begin && offset + bytes <= begin + size) return true;
    return false;
  }

  #take(bytes) {
    const offset = bytes < 2 ** 32 - 64 ? this.#exports.malloc(bytes) >>> 0 : 0;
    if (offset === 0) throw new VecMatError("memory", `out of memory: the module has no ${bytes} bytes left`);
    return offset;
  }
}
