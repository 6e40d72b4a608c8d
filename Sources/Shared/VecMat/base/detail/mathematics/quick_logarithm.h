// The quick phase of the logarithm.
//
// x = 2^E m, m from 11/16 to 11/8; c near 1/m from a table, with 11 bits; r = m c - 1 (Tang, P. T. P. 1990, Table-driven
// implementation of the logarithm function in IEEE floating-point arithmetic, ACM Trans. Math. Softw. 16, 378-400):
//     log x = E ln 2 - log c + r - r^2/2 + r^3/3 - ...
// m is cut so that its parts times c are exact, and so is the square of the high part of r. High parts are multiples of
// 2^-42 and add up without a rounding. Near 1 the table is left out, so that the result keeps its relative precision.
//
// The names have no linkage: the sources of kernels, which are compiled once for each instruction set, include this.
#pragma once

#include "bits.h"
#include "double_double.h"
#include "tables.h"

#include <cstdint>

namespace vecmat::mathematics {
namespace {

/// high + low, off by at most `error`, which has room for one rounding more of low; |low| is at most 2^-16 |high|.
struct BoundedSum
{
    double high;
    double low;
    double error;
};

/// (log(1 + r) - r + r^2/2) / r^3, to the term in r^8 of the logarithm. Its terms fall by 2^-8.6 at least and start with
/// 1/3: the roundings of the three sums, and what the rest leaves of its own, are below 3.1 2^-53 of the result.
inline double logarithmSeries(double r, double r2)
{
    return ((1.0 / 3.0 - r * 0.25) + r2 * (0.2 - r * (1.0 / 6.0))) + (r2 * r2) * (1.0 / 7.0 - r * 0.125);
}

/// log(1 + r), for |r| up to 2^-9 and 1 + r a double.
///
/// In units of u = 2^-53: rHigh has 25 bits, so that `square` is exact, and so is what exactSum leaves. r^3 is off by 2 u, the series by 3.1 u, their
/// product by u: 6.1 u |r|^3/3 (1 + 2^-9). The term with rLow, below 2^-35 |r|, is off by 3 u 2^-35 |r|. Two sums, below
/// |r|^3/3 (1 + 2^-9) + 2^-34.9 |r|, and one more for the rounding test, are rounded. Together less than
/// 3.1 u |r|^3 + 2^-85 |r|. The terms of the series left out, from r^9/9 on, are below 2^-75 |r|.
inline BoundedSum quickLogarithmNear1(double r)
{
    constexpr double toMultipleOf2ToMinus34 = 0x1.8p+18;
    const double rHigh = (r + toMultipleOf2ToMinus34) - toMultipleOf2ToMinus34;
    const double rLow = r - rHigh;
    const double square = 0.5 * rHigh * rHigh;
    const double r2 = r * r;
    const double r3 = r2 * r;
    const DoubleDouble sum = exactSum(r, -square);
    const double low = sum.low + (r3 * logarithmSeries(r, r2) - rLow * (rHigh + 0.5 * rLow));
    return {sum.high, low, 0x1.cp-52 * magnitudeOf(r3) + 0x1p-74 * magnitudeOf(r)};
}

/// log of 2^exponent times the normal number of these bits, unless that is between 1 - 2^-9 and 1 + 2^-9.
///
/// In units of u = 2^-53, with |r| < 2^-8.67: the parts of m, of up to 25 and 28 bits, times the reciprocal are exact,
/// the first a multiple of 2^-35 where m is below 1 and of 2^-34 elsewhere, and so is its difference from 1, `rHigh`: that
/// has 26 bits, and its square is exact. `head` is exact: its terms are multiples of 2^-42 and the sums are below 2^10.
/// rLow is below 2^-24, and the term with its product is off by less than 2^-83. r is off by u, r^3 by 5 u, the series by
/// 3.1 u, their product by u: 9.1 u |r|^3/3 (1 + 2^-8) < 2^-77.3. The sums of `tail` are below 2^-24 (two) and 2^-23.8
/// (one), and so is the last one but for the rest of exactSum, up to 2^-44; one more is for the rounding test:
/// 5.5 u 2^-24 < 2^-74.5. The tables' low parts are off by 2^-97, and by 2^-87 with E times ln 2. The terms of the series
/// left out, from r^9/9 on, are below 2^-81. Together below 2^-74.2.
inline BoundedSum quickLogarithmByTable(std::uint64_t bits, int exponent)
{
    constexpr std::uint64_t start = 0x3fe6000000000000; // 11/16
    const std::uint64_t fromStart = bits - start;
    const Stretch& stretch = stretches[(fromStart >> 44) & 255];
    // The exponent, 1023 added, in the lowest bits of a number of 2^52 and more: so are integers that stand side by side
    // turned into doubles without an instruction of their own.
    constexpr double toWhole = 0x1p52;
    const std::uint64_t biased = (fromStart + (std::uint64_t{1023} << 52)) >> 52;
    const double E = doubleOf(biased | bitsOf(toWhole)) - (toWhole + 1023.0 - exponent);
    const std::uint64_t m = bits - (fromStart & 0xfff0000000000000);
    const double mHigh = doubleOf(m & 0xfffffffff0000000);
    const double mLow = doubleOf(m) - mHigh;

    const double rHigh = mHigh * stretch.reciprocal - 1.0;
    const double rLow = mLow * stretch.reciprocal;
    const double r = rHigh + rLow;
    const double square = 0.5 * rHigh * rHigh;
    const double r2 = r * r;
    const double head = (E * ln2High + stretch.logHigh) + rHigh;
    const DoubleDouble sum = exactSum(head, -square);
    const double tail =
        ((E * ln2Low + stretch.logLow) + (rLow - rLow * (rHigh + 0.5 * rLow))) + (r2 * r) * logarithmSeries(r, r2);
    return {sum.high, sum.low + tail, 0x1p-74};
}

/// Is the number of these bits one for `quickLogarithmNear1`?
inline bool isNear1(std::uint64_t bits)
{
    constexpr std::uint64_t lower = bitsOf(1.0 - 0x1p-9);
    constexpr std::uint64_t upper = bitsOf(1.0 + 0x1p-9);
    return bits - lower < upper - lower;
}

/// log of a positive finite number.
inline BoundedSum quickLogarithm(double x)
{
    const std::uint64_t bits = bitsOf(x);
    if (isNear1(bits))
        return quickLogarithmNear1(x - 1.0);
    if (bits < leastNormalBits) [[unlikely]]
        return quickLogarithmByTable(bitsOf(x * 0x1p54), -54);
    return quickLogarithmByTable(bits, 0);
}

} // namespace
} // namespace vecmat::mathematics
