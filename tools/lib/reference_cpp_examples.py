"""The examples in C++ of the reference: all of them become one program, which is run. See reference_examples.py."""

import subprocess
import tempfile
from pathlib import Path

HEADERS = ("Sources/Shared/VecMat", "Sources/Shared/Companions")
BETWEEN = "\x1e"
PRELUDE = """\
#include "CompanionRuntime/CompanionRuntime.h"
#include "VecMat.h"

#include <cstdio>
#include <vector>

namespace {

// The first rows and columns of a table.
void print(matrix& table, int rows, int cols)
{
    for (int i = 1; i <= rows; ++i)
        for (int j = 1; j <= cols; ++j)
            std::printf("%g%s", table.vbget(i, j), j < cols ? " " : "\\n");
}

"""


def parts_of(body):
    """The statements of an example, and what it is said to print."""
    lines = body.split("\n")
    end = len(lines)
    while end > 0 and lines[end - 1].startswith("// "):
        end -= 1
    return "\n".join(lines[:end]).rstrip("\n"), [line[3:] for line in lines[end:]]


def program(bodies):
    text = PRELUDE
    for number, body in enumerate(bodies):
        code = "\n".join(f"    {line}" if line else "" for line in parts_of(body)[0].split("\n"))
        text += f"void example{number}()\n{{\n{code}\n}}\n\n"
    text += "} // namespace\n\nint main()\n{\n"
    for number in range(len(bodies)):
        text += f"    example{number}();\n    std::putchar(0x1e);\n"
    return text + "}\n"


def run_all(root, bodies, libraries):
    """The examples with what they print now, by a library in a folder with its companions."""
    with tempfile.TemporaryDirectory() as folder:
        source, binary = Path(folder) / "examples.cpp", Path(folder) / "examples"
        source.write_text(program(bodies), encoding="utf-8")
        found = sorted(str(path) for path in Path(libraries).glob("lib*.so*"))
        subprocess.run(["c++", "-std=c++20", "-O0", "-w", *(f"-I{root / header}" for header in HEADERS), str(source),
                        "-o", str(binary), *found, f"-Wl,-rpath,{libraries}"], check=True)
        printed = subprocess.run([str(binary)], check=True, capture_output=True, text=True).stdout.split(BETWEEN)
    out = []
    for body, text in zip(bodies, printed):
        lines = [f"// {line}" for line in text.rstrip("\n").split("\n")] if text else []
        out.append("\n".join([parts_of(body)[0], *lines]))
    return out
