// Strings in the module's memory. A BSTR is a run of 16-bit characters behind its length in bytes; the text of a value or
// a prefix has 32-bit characters up to a 0.
import { described } from "./errors.js";

const HEAD = 8; // 4 bytes of it the length; the text begins at a multiple of 8

const roundedUp = (bytes) => (bytes + 7) & ~7;

function checkedText(fail, text, which) {
  if (typeof text !== "string") fail(TypeError, `${which}expected a string, got ${described(text)}`);
  if (text.includes("\0")) fail(RangeError, `${which}a string holds a null character`);
  return text;
}

export const bstrBytes = (text) => HEAD + roundedUp(2 * text.length + 2);

// Writes the text behind its length, and says where the text begins.
export function writeBstr(views, offset, text) {
  const begin = offset + HEAD;
  views.pointers[begin / 4 - 1] = 2 * text.length;
  for (let i = 0; i < text.length; ++i) views.units[begin / 2 + i] = text.charCodeAt(i);
  views.units[begin / 2 + text.length] = 0;
  return begin;
}

export function readBstr(views, pointer) {
  if (pointer === 0) return "";
  const length = views.pointers[pointer / 4 - 1] / 2;
  let text = "";
  for (let first = 0; first < length; first += 4096)
    text += String.fromCharCode(...views.units.subarray(pointer / 2 + first, pointer / 2 + Math.min(first + 4096, length)));
  return text;
}

// One string: a BSTR, or wide characters.
export class SingleString {
  #text;
  #wide;

  constructor(fail, parameter, given) {
    this.#text = checkedText(fail, given, "");
    this.#wide = parameter.kind === "text" ? Int32Array.from([...this.#text, "\0"], (part) => part.codePointAt(0)) : null;
  }

  get bytes() {
    return this.#wide ? roundedUp(this.#wide.byteLength) : bstrBytes(this.#text);
  }

  place(views, offset) {
    if (!this.#wide) return writeBstr(views, offset, this.#text);
    views.ints.set(this.#wide, offset / 4);
    return offset;
  }
}

// An array of strings: pointers to BSTRs, null for what is missing.
export class StringArray {
  #texts = [];
  #given;
  #offset = 0;
  bytes = 0;

  constructor(fail, given, which) {
    if (!Array.isArray(given)) fail(TypeError, `${which}expected an array of strings, got ${described(given)}`);
    this.#given = given;
    const count = given.length;
    for (let i = 0; i < count; ++i) {
      const text = given[i];
      this.#texts.push(text === null || text === undefined ? null : checkedText(fail, text, `${which}element ${i}: `));
    }
    this.bytes = this.#pointerBytes();
    for (const text of this.#texts) if (text !== null) this.bytes += bstrBytes(text);
  }

  get length() {
    return this.#texts.length;
  }

  #pointerBytes() {
    return roundedUp(4 * this.#texts.length);
  }

  place(views, offset) {
    this.#offset = offset;
    let next = offset + this.#pointerBytes();
    this.#texts.forEach((text, i) => {
      views.pointers[offset / 4 + i] = text === null ? 0 : writeBstr(views, next, text);
      if (text !== null) next += bstrBytes(text);
    });
    return offset;
  }

  // What stands in memory after a call, which is freed there where the call made it.
  taken(views, free) {
    return this.#texts.map((_, i) => {
      const pointer = views.pointers[this.#offset / 4 + i];
      const text = readBstr(views, pointer);
      const isOwn = pointer >= this.#offset && pointer < this.#offset + this.bytes;
      if (pointer !== 0 && !isOwn) free(pointer);
      return text;
    });
  }

  handBack(texts) {
    for (let i = 0; i < texts.length; ++i) this.#given[i] = texts[i];
  }
}
