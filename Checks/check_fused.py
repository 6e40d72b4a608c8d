#!/usr/bin/env python3
"""check_fused.py OBJDUMP NM MATHEMATICS LIBRARY...: fused products stand only where they are meant.

A product that is fused with the sum that follows it is rounded once and not twice. Few functions ask for that, where it
gives the same bits or the rest of a product; anywhere else a compiler has fused what it was told to leave.
"""

import re
import subprocess
import sys
from collections import Counter

FUSED = re.compile(r"f(n?m(add|sub)|ml[as])|vf(n?m(add|sub)|m(addsub|subadd))\w*")  # of 64-bit Arm and of x86
# What asks for it by name: quotients by known divisors (kernels/quotients.h), a call with one of which has taken it in,
# the exact cubes and fourth powers, and sums of exact products (kernels/tile_kernels.h), by themselves or taken in. The
# elementary functions are told by the archive that they come from.
MEANT = ("FusedDivision", "::deviations(", "::cubesAndFourths(", "PlusExact", "::addExact(")


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def fused_by_function(disassembly):
    """How many fused products each function has."""
    counts, function = Counter(), ""
    for line in disassembly.splitlines():
        if head := re.match(r"[0-9a-f]+ <(.+)>:$", line):
            function = head[1]
        elif (code := re.match(r"\s+[0-9a-f]+:\s+(\S+)", line)) and FUSED.fullmatch(code[1]):
            counts[function] += 1
    return counts


def main():
    objdump, nm, mathematics, *libraries = sys.argv[1:]
    elementary = {re.sub(r" [tTwW]( [0-9a-f]+)*\s*$", "", line)
                  for line in output(nm, "-C", "--format=posix", mathematics).splitlines()}
    wrong, meant = [], 0
    for library in libraries:
        disassembly = output(objdump, "-d", "-C", "--no-show-raw-insn", library)
        for function, count in fused_by_function(disassembly).items():
            if any(part in function for part in MEANT) or function in elementary:
                meant += count
            else:
                wrong.append(f"{count} fused products in {function}")
    print("\n".join(f"WRONG: {line}" for line in wrong))
    print(f"{meant} fused products that are meant, {len(wrong)} functions wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
