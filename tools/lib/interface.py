"""Compares the interface list (exports.tsv), the headers and the symbols of the built library, in every direction."""

import re
import subprocess
from collections import Counter
from dataclasses import dataclass
from pathlib import Path

from declarations import HeaderError, one_spelling, parameters, read_header, split_parameters

COLUMNS = ["name", "linkage", "returns", "parameters", "family", "unit"]
WSTRING = "std::__cxx11::basic_string<wchar_t,std::char_traits<wchar_t>,std::allocator<wchar_t>>"


@dataclass(frozen=True)
class Row:
    name: str
    linkage: str
    returns: str
    types: tuple
    names: tuple
    family: str
    unit: str

    def signature(self):
        return f"{self.name}({', '.join(self.types)})"

    def key(self):
        """What must be unique: a name with C linkage, a signature with C++ linkage."""
        return self.name if self.linkage == "C" else self.signature()


def read_rows(text):
    """The rows of the interface list, and what is wrong with the list itself."""
    rows, wrong, seen = [], [], set()
    lines = text.rstrip("\n").split("\n")
    if lines[0].split("\t") != COLUMNS:
        wrong.append(f"exports.tsv:1: the columns are not {', '.join(COLUMNS)}")
    for number, line in enumerate(lines[1:], start=2):
        cells = line.split("\t")
        if len(cells) != len(COLUMNS) or cells[1] not in ("C", "C++"):
            wrong.append(f"exports.tsv:{number}: not a row: {line}")
            continue
        name, linkage, returns, parameter_list, family, unit = cells
        row = Row(name, linkage, one_spelling(returns), *parameters(parameter_list), family, unit)
        if row.key() in seen:
            wrong.append(f"exports.tsv:{number}: a second row for {row.key()}")
        seen.add(row.key())
        rows.append(row)
    return rows, wrong


def read_headers(folder):
    """The exported declarations of all headers below a folder, and what could not be read."""
    declarations, wrong = [], []
    for path in sorted(Path(folder).rglob("*.h")):
        header = path.relative_to(folder).as_posix()
        try:
            declarations += read_header(path.read_text(encoding="utf-8"), header)
        except HeaderError as error:
            wrong.append(str(error))
    return declarations, wrong


def one_symbol_spelling(symbol):
    """`matrix::copyMatTo(double*, int*)` from what the demangler writes."""
    if "(" not in symbol:
        return symbol
    name, types = symbol.split("(", 1)
    types = re.sub(r"\s*([*&<>,])\s*", r"\1", types.rsplit(")", 1)[0])
    types = types.replace(WSTRING, "std::wstring")
    types = re.sub(r"std::vector<([^<>,]+),std::allocator<[^<>]+>>", r"std::vector<\1>", types)
    return f"{name}({', '.join(one_spelling(part) for part in split_parameters(types))})"


def moved_names(row, declaration):
    """Parameters whose name in the header is that of another position in the list.

    A header is free to name its parameters, but `int rows, int cols` for the list's `int cols, int rows` has the same
    types and another meaning.
    """
    return [name for position, name in enumerate(declaration.names)
            if name in row.names and row.names[position] != name]


def read_symbols(library, nm="nm", demangler="c++filt"):
    """The names that a shared library exports: with C linkage unchanged, otherwise demangled."""
    out = subprocess.run([nm, "-D", "--defined-only", "--without-symbol-versions", "--format=posix", library],
                         check=True, capture_output=True, text=True).stdout
    # a version node is in the table, too, as an absolute symbol
    symbols = sorted({line.split(" ")[0] for line in out.splitlines() if line and line.split(" ")[1] != "A"})
    demangled = subprocess.run([demangler], input="\n".join(symbols), check=True, capture_output=True,
                               text=True).stdout.splitlines()
    return {one_symbol_spelling(symbol) for symbol in demangled}


def unversioned_symbols(library, node, nm="nm"):
    """The exported names, mangled, that don't carry the given version node."""
    out = subprocess.run([nm, "-D", "--defined-only", "--format=posix", library],
                         check=True, capture_output=True, text=True).stdout
    entries = [line.split(" ")[:2] for line in out.splitlines() if line]
    return sorted(name for name, kind in entries if kind != "A" and not name.endswith(f"@@{node}"))


def read_windows_symbols(library, objdump="x86_64-w64-mingw32-objdump", demangler="c++filt"):
    """The same for a DLL, whose export table objdump prints."""
    out = subprocess.run([objdump, "-p", library], check=True, capture_output=True, text=True).stdout
    table = out.partition("[Ordinal/Name Pointer] Table")[2].partition("\n\n")[0]
    symbols = sorted(re.findall(r"^\s*\[ *\d+\] (?:\+base\[ *\d+\] +\w+ )?(\S+)$", table, flags=re.M))
    demangled = subprocess.run([demangler], input="\n".join(symbols), check=True, capture_output=True,
                               text=True).stdout.splitlines()
    return {one_symbol_spelling(symbol) for symbol in demangled}


def windows_imports(library, objdump="x86_64-w64-mingw32-objdump"):
    """What a DLL imports from other DLLs: a set of names for each."""
    out = subprocess.run([objdump, "-p", library], check=True, capture_output=True, text=True).stdout
    found = {}
    for part in out.split("DLL Name: ")[1:]:
        name, _, rest = part.partition("\n")
        found[name.strip()] = set(re.findall(r"^\t[0-9a-f]+\t +\d+  (\S+)$", rest.partition("\n\n")[0], flags=re.M))
    return found


def open_calls(library, readelf="readelf", demangler="c++filt"):
    """Names that the library defines and still looks up when it is loaded.

    Another library in the process with the same name (`ddot`, `dscal`) would be called instead.
    """
    out = subprocess.run([readelf, "--relocs", "--wide", library], check=True, capture_output=True, text=True).stdout
    wanted = set(re.findall(r"^[0-9a-f]+ +[0-9a-f]+ +R_\w+ +[0-9a-f]+ +([A-Za-z_]\w*)", out, flags=re.M))
    names = subprocess.run([demangler], input="\n".join(sorted(wanted)), check=True, capture_output=True,
                           text=True).stdout.splitlines()
    return sorted({one_symbol_spelling(name) for name in names} & read_symbols(library))


def compare(rows, declarations, symbols):
    """What is wrong, and which rows are not yet in the library, declared or not."""
    wrong = []
    by_signature = {row.signature(): row for row in rows}
    names = {row.name: row for row in rows}

    declared = {}
    for declaration in declarations:
        where = f"{declaration.header}:{declaration.line}: "
        row = by_signature.get(declaration.signature())
        if row is None:
            known = [other.signature() for other in rows if other.name == declaration.name]
            wrong.append(where + (f"{declaration.signature()} disagrees with the list: {'; '.join(known)}"
                                  if known else f"{declaration.signature()} has no row in the list"))
            continue
        if row.signature() in declared:
            wrong.append(where + f"{row.signature()} is declared again")
        declared[row.signature()] = declaration
        if declaration.returns != row.returns:
            wrong.append(where + f"{row.name} returns '{declaration.returns}', the list has '{row.returns}'")
        if declaration.linkage != row.linkage:
            wrong.append(where + f"{row.name} has {declaration.linkage} linkage, the list has {row.linkage}")
        for name in moved_names(row, declaration):
            wrong.append(where + f"{row.name} has its parameter '{name}' in another place than the list")
        if "::" not in row.name and declaration.header != row.unit + ".h":
            wrong.append(where + f"{row.name} is declared here, the list has it in {row.unit}.h")

    expected = {row.key() for row in rows}
    for symbol in sorted(symbols - expected):
        row = names.get(symbol.split("(")[0])
        if row is None:
            wrong.append(f"the library exports {symbol}, which has no row in the list")
        elif ("(" in symbol) != (row.linkage == "C++"):
            wrong.append(f"the library exports {symbol} with the wrong linkage, the list has {row.linkage}")
        else:
            wrong.append(f"the library exports {symbol}, which disagrees with the list: {row.signature()}")

    missing = []
    for row in rows:
        in_header, in_library = row.signature() in declared, row.key() in symbols
        if in_library and not in_header:
            wrong.append(f"{row.signature()} is exported but no header declares it for export")
        elif not in_library:
            missing.append(row)
    return wrong, missing


def check_umbrella(folder, declarations):
    """The umbrella header includes every header that declares an export."""
    umbrella = Path(folder) / "VecMat.h"
    if not umbrella.exists():
        return ["VecMat.h, which includes the headers of all units, does not exist"]
    included = set(re.findall(r'^#include "([^"]+)"', umbrella.read_text(encoding="utf-8"), flags=re.M))
    wanted = {declaration.header for declaration in declarations}
    wrong = [f"VecMat.h does not include {header}" for header in sorted(wanted - included)]
    wrong += [f"VecMat.h includes {header}, which does not exist" for header in sorted(included)
              if not (Path(folder) / header).exists()]
    return wrong


def summary(rows, missing):
    lines = [f"{len(rows) - len(missing)} of {len(rows)} rows of the interface list are in the library"]
    for title, column in (("family", "family"), ("unit", "unit")):
        counts = Counter(getattr(row, column) for row in missing)
        totals = Counter(getattr(row, column) for row in rows)
        if counts:
            lines.append(f"missing by {title}:")
            lines += [f"  {name}: {count} of {totals[name]}" for name, count in sorted(counts.items())]
    return lines
