"""Writes the guarded calls: for each flat function one that lets no exception escape and returns a status."""

import textwrap

WIDTH = 120

HEAD = """\
/* Guarded calls of the functions of VecMat that take plain arrays, for C and languages that call C.
   Written by tools/bindings from exports.tsv: change those, not this file.

   An exception must not pass through the frames of another language: R, Python, macro hosts and C itself cannot catch
   it, and the process ends. The functions here catch it. Each wraps the function of VecMatFlat.h after which it is
   named, takes the same arguments and returns one of the statuses below. The function's own result is stored in
   *returned, unless that is null. After a failure *returned is unchanged, and so are the caller's arrays where
   Docs/border.md says so.

   They form a separate library, VecMatGuarded. */
#ifndef VECMAT_GUARDED_H
#define VECMAT_GUARDED_H

#include "VecMatFlat.h"

#if !defined(_WIN32)
#define VECMAT_GUARDED_API __attribute__((visibility("default")))
#elif defined(VecMatGuarded_EXPORTS)
#define VECMAT_GUARDED_API __declspec(dllexport)
#else
#define VECMAT_GUARDED_API __declspec(dllimport)
#endif

enum {
    VECMAT_CALL_DONE = 0,
    VECMAT_CALL_OUT_OF_MEMORY = 1, /* an allocation failed, or a size exceeds any memory */
    VECMAT_CALL_FAILED = 2         /* any other failure */
};

#ifdef __cplusplus
extern "C" {
#endif

/* Why the last guarded call of this thread failed: the function's name and the reason. Empty if it succeeded, or if
   there was none. Valid until the thread's next guarded call. */
VECMAT_GUARDED_API const char* vecmat_guarded_error(void);
"""

TAIL = """
#ifdef __cplusplus
}
#endif

#endif
"""

SOURCE_HEAD = """\
// Written by tools/bindings from exports.tsv: change those, not this file.
// clang-format off
#include "VecMatGuarded.h"

#include "guard.h"

using vecmat::guarded;
"""

PREFIX = "vecmat_guarded_"


def parameters(function):
    parts = [f"{kind} {name}" for kind, name in function.parameters]
    if any(name == "returned" for _, name in function.parameters):
        raise ValueError(f"{function.name} has a parameter of the name that a guarded call needs")
    if function.returns != "void":
        parts.append(f"{function.returns}* returned")
    return parts or ["void"]


def wrapped(start, parts, end):
    """The text in lines, each parameter on one, as a hanging block below the first."""
    text = (start + ", ".join(part.replace(" ", "\0") for part in parts) + end).replace("( ", "(")
    head, rest = text[:len(start)], text[len(start):]
    return textwrap.fill(head.replace(" ", "\0") + rest, WIDTH, subsequent_indent=" " * len(start),
                         break_long_words=False).replace("\0", " ")


def header(units):
    lines = [HEAD]
    for unit, functions in units:
        lines.append(f"/* ---- {unit} ---- */")
        lines += [wrapped(f"VECMAT_GUARDED_API int {PREFIX}{function.name}(", parameters(function), ");")
                  for function in functions]
        lines.append("")
    return "\n".join(lines).rstrip("\n") + "\n" + TAIL


def body(function):
    call = f"{function.name}({', '.join(name for _, name in function.parameters)})"
    if function.returns == "void":
        return f'    return guarded("{function.name}", [&] {{ {call}; }});'
    return f'    return guarded("{function.name}", returned, [&] {{ return {call}; }});'


def source(units):
    lines = [SOURCE_HEAD]
    for unit, functions in units:
        lines.append(f"// ---- {unit}\n")
        for function in functions:
            lines += [wrapped(f"int {PREFIX}{function.name}(", parameters(function), ")"), "{", body(function), "}\n"]
    return "\n".join(lines).rstrip("\n") + "\n"
