// The missing value, the two tests for it, and the tolerances that recur. They stand here and nowhere else.
#pragma once

namespace vecmat {

/// A cell without a value holds exactly this double, bits ffefffffffffffe2. It is twenty-nine steps above the lowest
/// double.
inline constexpr double missingValue = -0x1.fffffffffffe2p+1023;

/// The same magnitude with a positive sign, bits 7fefffffffffffe2: where a search for a minimum starts.
inline constexpr double positiveTwin = 0x1.fffffffffffe2p+1023;

/// What a checked read outside a table yields. It takes part in the computation as if the table held it.
inline constexpr double outOfRangeValue = -1.0;

/// The equality test: only the exact pattern is missing. A NaN is not.
constexpr bool isMissing(double x)
{
    return x == missingValue;
}

/// The order test: the pattern, every double below it, and minus infinity are missing. A NaN is not.
constexpr bool isMissingOrBelow(double x)
{
    return missingValue >= x;
}

/// A pivot, variance or marginal sum up to this is taken as zero.
inline constexpr double zeroTolerance = 1e-12;

/// An off-diagonal cell or a scale up to this is negligible in absolute terms: twice the unit roundoff.
inline constexpr double negligible = 2.220446049250313e-16;

/// A norm up to this counts as zero in the singular value reduction.
inline constexpr double zeroNorm = 1e-31;

/// The power iteration, the nearest correlation iteration and NIPALS have converged at this.
inline constexpr double convergenceTolerance = 1e-06;

} // namespace vecmat
