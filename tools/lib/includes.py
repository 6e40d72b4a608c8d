#!/usr/bin/env python3
"""includes.py [FOLDER]: does each file of the library include what it uses?

A name that a header of the library declares, and a name of the standard library that the table below has, is used only
where a header that declares it is included: by the file itself, or by its own header, as `sums.h` is that of `sums.cpp`
and of `sums_exports.cpp`. What a header happens to bring along does not count. A source includes its own header first.
Exit status 1 where that is not so.
"""

import re
import sys
from collections import defaultdict
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from floors import ORDER, ROOT, floor_of, read_files, read_includes

LANES = "kernels/lanes.h"

# Names of the standard library, by header. A name that several headers have is in all of them.
STANDARD = {
    "algorithm": "all_of any_of clamp copy copy_n copy_backward count count_if equal fill fill_n find find_if is_sorted "
                 "lower_bound max max_element min min_element none_of nth_element remove_if reverse rotate sort "
                 "stable_sort swap_ranges transform unique upper_bound adjacent_find",
    "array": "array",
    "bit": "bit_cast bit_width countr_zero",
    "cmath": "acos atan2 cbrt ceil copysign cos erf exp fabs floor fma fmod hypot isfinite isinf isnan ldexp lgamma log "
             "log10 log2 modf pow round sin sqrt tan trunc",
    "cstddef": "ptrdiff_t size_t",
    "cstdint": "int32_t int64_t uint32_t uint64_t uint8_t uintptr_t",
    "functional": "function identity less",
    "limits": "numeric_limits",
    "memory": "make_unique unique_ptr",
    "new": "bad_alloc nothrow",
    "numeric": "accumulate iota",
    "optional": "nullopt optional",
    "string": "wstring",
    "string_view": "string_view wstring_view",
    "tuple": "apply make_tuple tuple",
    "type_traits": "conditional_t decay_t is_arithmetic_v is_same_v remove_pointer_t remove_reference_t",
    "unordered_map": "unordered_map",
    "utility": "exchange forward move pair swap",
    "vector": "vector",
}
# Bring these along by definition, or are so small a part that the name stands for more than one header.
ALSO = {"size_t": {"cstdint", "cstring", "cstdlib"}, "move": {"algorithm"}, "swap": {"algorithm"}}

DECLARED = (
    re.compile(r"^(?:VECMAT_API )?(?:class|struct|union|enum class|enum|concept)(?: VECMAT_API)? (\w+)\b(?!\s*;)", re.M),
    re.compile(r"^using (\w+) =", re.M),
    re.compile(r"^(?:inline )?(?:static )?constexpr [\w:<>]+ (\w+)\b(?! ?\()", re.M),
    re.compile(r"^(?!return |using |namespace |typedef |extern )[A-Za-z_][\w:<>,&* \[\]]*?[\s*&](\w+)\(", re.M),
)
STRINGS = re.compile(r'"(?:[^"\\\n]|\\.)*"')


def code_of(text):
    """The text without comments and the contents of strings."""
    return STRINGS.sub('""', re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.S))


def declared_names(text):
    """What a header declares on its outer level, where a declaration starts a line."""
    code = re.sub(r"^#.*$", "", code_of(text), flags=re.M)
    return {name for pattern in DECLARED for name in pattern.findall(code)} - {"operator", "if", "for", "decltype"}


def declarers(files):
    """The headers that declare a name, for each name."""
    found = defaultdict(set)
    for path, text in files.items():
        if path.endswith(".h"):
            for name in declared_names(text):
                found[name].add(path)
    return found


def own_header(path, files):
    """The header whose declarations the source has, if there is one."""
    stem = re.sub(r"(_exports|\.kernel)?\.cpp$", ".h", path)
    if stem in files and stem != path:
        return stem
    return "matrix.h" if re.fullmatch(r"matrix_\w+\.cpp", path) else None


def check(files):
    """A line for each name whose header is not included where it is used."""
    included = defaultdict(set)
    for include in read_includes(files):
        included[include.source].add(include.target)
    known = declarers(files)
    standard = {name: {header} | ALSO.get(name, set()) for header, names in STANDARD.items() for name in names.split()}
    system = {path: set(re.findall(r"^\s*#\s*include\s+<([^>]+)>", text, flags=re.M)) for path, text in files.items()}
    wrong = []
    for path, text in files.items():
        own = own_header(path, files)
        direct = included[path] | (included[own] if own else set()) | {path}
        headers = system[path] | (system[own] if own else set())
        first = next((include.target for include in read_includes({path: text})), None)
        if own and own != "matrix.h" and first != own:
            wrong.append(f"{path}: {own} first, which then stands alone")
        code = re.sub(r"^\s*#\s*include.*$", "", code_of(text), flags=re.M)
        local = declared_names(text) | set(re.findall(r"^class (\w+);", code, flags=re.M))
        for name in sorted(set(re.findall(r"(?<![\w.>:])(?:vecmat::|::)?([A-Za-z_]\w*)\b", code))):
            # What stands above the file cannot be meant, nor the names of lanes outside of the kernels.
            meant = {header for header in known.get(name, ()) if ORDER[floor_of(header)] <= ORDER[floor_of(path)]
                     and (header != LANES or floor_of(path) == "kernels")}
            if meant and name not in local and not meant & direct and is_used(name, code):
                wrong.append(f"{path}: {name} of {' or '.join(sorted(meant))}")
        for name in sorted(set(re.findall(r"\bstd::(\w+)", code))):
            if name in standard and not standard[name] & headers:
                wrong.append(f"{path}: std::{name} of <{sorted(standard[name])[0]}>")
    return wrong


def is_used(name, code):
    """Does the code use the name for what a header declares? Not where it is a member, a parameter or a variable of its
    own, the parameter of a template, or a class that is only announced."""
    if re.search(rf"(?<![\w.>])(?:vecmat::|::){name}\b", code):
        return True
    if re.search(rf"(?:class|typename|auto|\.\.\.)\s*[&*]*\s*\[?(?:\w+, )*{name}\b", code):
        return False
    if re.search(rf"\b(?!return|else|new|delete|case|throw|co_return)\w[\w>]*[&*]*\s+[&*]*{name}\s*[,)=;({{\[]", code):
        return False
    if name[0].isupper():
        return re.search(rf"(?<![\w.>:]){name}\b(?! =|;)", code) is not None
    return re.search(rf"(?<![\w.>:&*]){name}\(", code) is not None


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT
    files = read_files(folder)
    wrong = check(files)
    print("\n".join(f"not included: {line}" for line in wrong))
    print(f"{len(files)} files, {len(wrong)} names without their header")
    return 1 if wrong or not files else 0


if __name__ == "__main__":
    sys.exit(main())
