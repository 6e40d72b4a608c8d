// One call of a flat function: its arguments are checked, placed in the module's memory, passed, and brought back.
//
// The caller's own code may run (a getter, a proxy) only while arrays are taken, before anything is placed, and again
// when strings are handed back, after everything is done. Between, nothing can change what was checked.
import { Columns, Numbers, Strings, padded } from "./arrays.js";
import { VecMatError } from "./errors.js";
import { checkNumber, numberOf } from "./numbers.js";
import { SingleString, readBstr } from "./strings.js";

const VALUES = new Set(["number", "integer", "flag"]);
const RESULT_BYTES = 16;

function taken(memory, fail, parameter, given) {
  switch (parameter.kind) {
    case "strings":
      return new Strings(fail, parameter, given);
    case "columns":
    case "stringColumns":
      return new Columns(fail, memory, parameter, given);
    case "text":
    case "bstr":
      return new SingleString(fail, parameter, given);
    default:
      return new Numbers(fail, memory, parameter, given);
  }
}

const overlap = (a, b) => a[0] < b[1] && b[0] < a[1];

// What calls one function of the table.
export function callerOf(module, description) {
  const { name, parameters, order, result } = description;
  const { memory, views, exports } = module;
  const count = parameters.length;
  const arrays = order.filter((place) => !VALUES.has(parameters[place].kind));
  for (const parameter of parameters) parameter.isWritten = !["value", "in"].includes(parameter.role);
  const failures = parameters.map((parameter) => (type, text) => {
    throw new type(`${name}(), argument '${parameter.name}': ${text}`);
  });
  const held = [...parameters.keys()].filter((place) => parameters[place].addresses && parameters[place].isWritten);

  function readNumbers(given, v) {
    for (let i = 0; i < count; ++i) if (VALUES.has(parameters[i].kind)) v[i] = numberOf(failures[i], parameters[i], given[i]);
    for (let i = 0; i < count; ++i) if (VALUES.has(parameters[i].kind)) checkNumber(failures[i], parameters[i], v[i], v);
  }

  function takeArrays(given, v) {
    const items = new Array(count).fill(null);
    for (const i of arrays) {
      if (given[i] !== null && given[i] !== undefined) items[i] = taken(memory, failures[i], parameters[i], given[i]);
      else if (!parameters[i].nullable) failures[i](TypeError, `${given[i]} may not stand here`);
    }
    for (const i of arrays)
      if (!items[i] && parameters[i].nullable(v) === 0) failures[i](TypeError, `${given[i]} may not stand here`);
    return items;
  }

  function place(items, v, passed) {
    let next = memory.workspace(items.reduce((bytes, item) => bytes + (item ? padded(item.bytes) : 0), 2 * RESULT_BYTES));
    views.refresh();
    const returned = next;
    next += RESULT_BYTES;
    for (const i of arrays) {
      if (!items[i]) continue;
      const { rows, cols } = parameters[i];
      passed[i] = items[i].place(views, next, rows ? Math.max(rows(v), 0) : 0, cols ? Math.max(cols(v), 0) : 0, v);
      v[i] = items[i].placed;
      next += padded(items[i].bytes);
    }
    return returned;
  }

  // Cells that address memory were checked; what the call writes must not lie over them.
  function checkOverlaps(items) {
    for (const i of held)
      for (const j of arrays) {
        if (j === i || !items[i] || !items[j] || !parameters[j].isWritten) continue;
        const own = items[i].extents()[0];
        if (items[j].extents().some((extent) => overlap(own, extent)))
          failures[i](RangeError, `shares its memory with the argument '${parameters[j].name}', to which the call writes`);
      }
  }

  function answer(returned) {
    switch (result) {
      case "number":
        return views.doubles[returned / 8];
      case "integer":
        return views.ints[returned / 4];
      case "flag":
        return views.flags[returned / 2];
      case "bstr": {
        const pointer = views.pointers[returned / 4];
        const text = readBstr(views, pointer);
        if (pointer !== 0) exports.SysFreeString2(pointer);
        return text;
      }
      default:
        return undefined;
    }
  }

  const invoke = exports[`vecmat_guarded_${name}`];

  function call(...given) {
    module.requireRunning();
    if (given.length !== count) throw new TypeError(`${name}() takes ${count} arguments, got ${given.length}`);
    const v = new Array(count).fill(null);
    readNumbers(given, v);
    const items = takeArrays(given, v);
    module.requireRunning(); // the caller's own code may have called
    const passed = v.map((number) => number ?? 0);
    const returned = place(items, v, passed);
    if (held.length > 0) checkOverlaps(items);
    if (result === "bstr") views.pointers[returned / 4] = 0;
    if (result !== "nothing") passed.push(returned);
    const status = module.run(() => invoke(...passed));
    views.refresh();
    for (const item of items) item?.release?.(views, exports.SysFreeString2);
    if (status !== 0) throw new VecMatError(status === 1 ? "memory" : "failed", views.message(exports.vecmat_guarded_error() >>> 0));
    const answered = answer(returned);
    for (const item of items) if (item instanceof Numbers || item instanceof Columns) item.bringBack(views);
    memory.trimWorkspace();
    for (const item of items) if (item instanceof Strings) item.bringBack(views);
    return answered;
  }

  Object.defineProperty(call, "name", { value: name });
  return call;
}
