// What the library or its module fails by. A wrong argument is a TypeError or a RangeError instead.
//
// `code` is "memory" where the module has no more memory; "failed" where a computation ended without a result; "stopped"
// where the module met with an error of its own and takes no further calls.
export class VecMatError extends Error {
  constructor(code, message) {
    super(message);
    this.name = "VecMatError";
    this.code = code;
  }
}

// How a value that does not fit is called in a message.
export function described(given) {
  if (given === null || given === undefined) return String(given);
  if (typeof given === "string") return given.length > 40 ? `a string of ${given.length} characters` : JSON.stringify(given);
  if (typeof given === "bigint") return `the bigint ${given}`;
  if (typeof given !== "object") return typeof given === "function" ? "a function" : String(given);
  const tag = Object.prototype.toString.call(given).slice(8, -1);
  if (Array.isArray(given)) return `an array of ${given.length}`;
  if (ArrayBuffer.isView(given) && tag !== "DataView") return `a ${tag} of ${given.length}`;
  return /^[AEIOU]/.test(tag) ? `an ${tag}` : `a ${tag}`;
}
