// The quick phase of the exponential.
//
// exp(x) = 2^(k/256) exp(r), k whole, |r| at most ln 2 / 512 and a little (Tang, P. T. P. 1989, Table-driven
// implementation of the exponential function in IEEE floating-point arithmetic, ACM Trans. Math. Softw. 15, 144-157).
// The table's high part has 26 bits, and so has the high part of r: their product is exact, and what remains is so
// small that plain doubles hold it well enough. No fused product is needed.
#pragma once

#include "bits.h"
#include "double_double.h"
#include "tables.h"

#include <cstdint>

namespace vecmat::mathematics {

/// What `quickExponential` may be wrong by, relative to `scale`, with room for one rounding more of low.
///
/// In units of u = 2^-53, with |r| < 2^-9.52 and the table's 2^(i/256) below 2:
///   - `t` is exact: k has 19 bits and stepHigh 34, so that their product is; and t, a multiple of 2^-62 below 2^-9.5,
///     is. So are rHigh, of 26 bits, and t - rHigh. steps stepLow, below 2^-24.9, and the differences of `tLow` and rLow
///     are rounded; stepLow itself is off by 2^-97: rLow is off by less than 2^-76.
///   - q = r^2/2 + ... + r^6/720 is below 2^-20.03. r is off by u, r^2 thus by 3 u; the factor behind it, whose terms
///     fall by 2^-11, by 2.1 u; their product by u: 6.1 u 2^-20.03. The next term of the series, r^7/5040, is below
///     2^-78. With the table's factor of up to 2, all this is below 2^-69.3.
///   - power q, below 2^-19.03, is off by 2 u more, as power is rounded. The sums before it, below 2^-23.5, are rounded
///     four times; the one behind it, and one more for the rounding test, are below 2^-18.9. Together below
///     2.2 u 2^-18 < 2^-69.8.
///   - The table's low part, below 2^-26, is off by 2^-79.
/// All in all below 2^-68.4.
inline constexpr double quickExponentialError = 0x1p-68;

/// (high + low) scale, with high between 0.99 and 2, and a power of two.
struct ScaledSum
{
    double high;
    double low;
    double scale;
};

/// Between these numbers `quickExponential` gives normal numbers with a scale that is one.
inline constexpr double leastQuickExponent = -708.3;
inline constexpr double greatestQuickExponent = 709.4;

/// exp(high + low), for |low| at most 2^-40.
inline ScaledSum quickExponential(double high, double low)
{
    // Adding 1.5 2^52 rounds to a whole number, which then stands in the lowest bits.
    constexpr double toWhole = 0x1.8p+52;
    constexpr double toMultipleOf2ToMinus35 = 0x1.8p+17;

    const double shifted = high * stepsPerUnit + toWhole;
    const auto k = static_cast<std::int32_t>(static_cast<std::uint32_t>(bitsOf(shifted)));
    const double steps = shifted - toWhole;
    const double t = high - steps * stepHigh;
    const double tLow = low - steps * stepLow;
    const double r = t + tLow;
    const double rHigh = (t + toMultipleOf2ToMinus35) - toMultipleOf2ToMinus35;
    const double rLow = (t - rHigh) + tLow;
    const double r2 = r * r;
    const double q = r2 * ((0.5 + r * (1.0 / 6.0)) + r2 * ((1.0 / 24.0 + r * (1.0 / 120.0)) + r2 * (1.0 / 720.0)));
    const PowerOfTwo& parts = powersOfTwo[k & 255];
    const double power = parts.high + parts.low;
    const DoubleDouble sum = exactSum(parts.high, parts.high * rHigh);
    const double rest = (sum.low + (parts.low + (parts.low * r + parts.high * rLow))) + power * q;
    return {sum.high, rest, doubleOf(static_cast<std::uint64_t>((k >> 8) + 1023) << 52)};
}

} // namespace vecmat::mathematics
