#!/usr/bin/env python3
"""mathematics_tables.py [--check]: the tables of the exponential and the logarithm.

    (no option)   writes Sources/Shared/VecMat/base/detail/mathematics/tables.h
    --check       writes nothing; exit status 1 if the file is not what would be written

Everything is computed with 400 decimal digits and then cut: no figure depends on the machine's arithmetic.
"""

import argparse
import sys
from decimal import Decimal, getcontext
from fractions import Fraction
from pathlib import Path

FILE = Path(__file__).resolve().parents[2] / "Sources/Shared/VecMat/base/detail/mathematics/tables.h"
WIDE_LIMBS = 36  # of 32 bits, of which the highest holds the whole part

getcontext().prec = 400
LN2 = Decimal(2).ln()
LN10 = Decimal(10).ln()


def multiple(value, places):
    """The multiple of 2^-places that is nearest to the value, which lies in no middle."""
    scaled = Fraction(value) * 2**places
    return Fraction((2 * scaled.numerator + scaled.denominator) // (2 * scaled.denominator), 2**places)


def nearest(value):
    """The double nearest to a value that lies in no middle, as a fraction."""
    value = Fraction(value)
    if value == 0:
        return value
    magnitude = abs(value)
    exponent = magnitude.numerator.bit_length() - magnitude.denominator.bit_length()
    if Fraction(2) ** exponent > magnitude:
        exponent -= 1
    return multiple(value, 52 - exponent)


def hexadecimal(fraction):
    """A fraction that is a double, as a literal."""
    number = float(fraction)
    assert Fraction(number) == fraction
    mantissa, exponent = number.hex().split("p")
    whole, _, places = mantissa.partition(".")
    return f"{whole}.{places.rstrip('0') or '0'}p{exponent}"


def high_and_low(value, places):
    """The multiple of 2^-places nearest to the value, and the double nearest to the rest."""
    high = multiple(value, places)
    return high, nearest(Fraction(value) - high)


def constant(name, fraction):
    return f"inline constexpr double {name} = {hexadecimal(fraction)};"


def wide(name, value):
    """The limbs of a value, the lowest first, cut off behind the last."""
    number = int(Fraction(value) * 2 ** (32 * (WIDE_LIMBS - 1)))
    limbs = [number >> (32 * i) & 0xFFFFFFFF for i in range(WIDE_LIMBS)]
    lines = [", ".join(f"0x{limb:08x}" for limb in limbs[i : i + 9]) for i in range(0, WIDE_LIMBS, 9)]
    return [f"inline constexpr std::uint32_t {name}[wideLimbs] = {{"] + [f"    {line}," for line in lines] + ["};"]


def exponential_rows():
    for i in range(256):
        high, low = high_and_low((LN2 * i / 256).exp() if i else 1, 25)
        yield f"    {{{hexadecimal(high)}, {hexadecimal(low)}}},"


def logarithm_rows():
    for i in range(256):
        width = Fraction(1, 512 if i < 160 else 256)
        start = Fraction(11, 16) + i * width if i < 160 else 1 + (i - 160) * width
        reciprocal = multiple(1 / (start + width / 2), 10)
        logarithm = -(Decimal(reciprocal.numerator) / Decimal(reciprocal.denominator)).ln()
        high, low = high_and_low(logarithm, 42)
        yield f"    {{{hexadecimal(reciprocal)}, {hexadecimal(high)}, {hexadecimal(low)}}},"


def text():
    step_high, step_low = high_and_low(LN2 / 256, 42)
    ln2_high, ln2_low = high_and_low(LN2, 42)
    inverse_ln10 = nearest(1 / LN10)
    lines = [
        "// Written by tools/lib/mathematics_tables.py, which a test runs again: nothing here is changed by hand.",
        "#pragma once",
        "",
        "#include <cstdint>",
        "",
        "// clang-format off",
        "namespace vecmat::mathematics {",
        "",
        "/// 256/ln 2, rounded.",
        constant("stepsPerUnit", nearest(256 / LN2)),
        "/// ln 2 / 256: a multiple of 2^-42, and the rest.",
        constant("stepHigh", step_high),
        constant("stepLow", step_low),
        "/// ln 2: a multiple of 2^-42, and the rest.",
        constant("ln2High", ln2_high),
        constant("ln2Low", ln2_low),
        "/// 1/ln 10: the nearest double, and the rest.",
        constant("inverseLn10High", inverse_ln10),
        constant("inverseLn10Low", nearest(Fraction(1 / LN10) - inverse_ln10)),
        "",
        "/// 2^(i/256): a multiple of 2^-25, and the rest.",
        "struct PowerOfTwo",
        "{",
        "    double high;",
        "    double low;",
        "};",
        "inline constexpr PowerOfTwo powersOfTwo[256] = {",
        *exponential_rows(),
        "};",
        "",
        "/// Near the reciprocal of the middle of the stretch i, a multiple of 2^-10, and the logarithm of the number whose",
        "/// reciprocal it is: a multiple of 2^-42, and the rest. Up to 1 the stretches start at 11/16 + i/512, from 1 on",
        "/// (i = 160) at 1 + (i - 160)/256.",
        "struct Stretch",
        "{",
        "    double reciprocal;",
        "    double logHigh;",
        "    double logLow;",
        "};",
        "inline constexpr Stretch stretches[256] = {",
        *logarithm_rows(),
        "};",
        "",
        "/// With one limb for the whole part, and the lowest limb first.",
        f"inline constexpr int wideLimbs = {WIDE_LIMBS};",
        *wide("wideLn2", LN2),
        *wide("wideInverseLn10", 1 / LN10),
        "",
        "} // namespace vecmat::mathematics",
        "// clang-format on",
    ]
    return "\n".join(lines) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--check", action="store_true")
    if parser.parse_args().check:
        if FILE.read_text(encoding="utf-8") != text():
            print(f"{FILE} is not what tools/lib/mathematics_tables.py writes", file=sys.stderr)
            return 1
    else:
        FILE.write_text(text(), encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
