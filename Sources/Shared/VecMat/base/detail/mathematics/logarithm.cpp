#include "bits.h"
#include "double_double.h"
#include "exact_phase.h"
#include "mathematics.h"
#include "quick_logarithm.h"

#include <cstdint>
#include <limits>

namespace vecmat {

using namespace mathematics;

namespace {

/// What stands in no table: zeros, infinity, numbers below 0 and NaNs.
double logarithmOfSpecial(double x)
{
    if (x != x)
        return x + x;
    if (x == 0.0)
        return -std::numeric_limits<double>::infinity();
    return x > 0.0 ? x : std::numeric_limits<double>::quiet_NaN();
}

bool isPositiveAndFinite(std::uint64_t bits)
{
    return bits - 1 < infinityBits - 1;
}

} // namespace

double log(double x)
{
    if (!isPositiveAndFinite(bitsOf(x))) [[unlikely]]
        return logarithmOfSpecial(x);
    const BoundedSum sum = quickLogarithm(x);
    const double upper = sum.high + (sum.low + sum.error);
    const double lower = sum.high + (sum.low - sum.error);
    return upper == lower ? upper : exactLog(x);
}

/// The quick logarithm times 1/ln 10, by two doubles each: the product of the high parts is exact, those with a low part
/// are rounded, and so is 1/ln 10 at 2^-108. With high at most 710 and |low| at most 2^-16 |high|, and after exactSum at
/// most 2^-53 |high|, all this is below 2^-103 |high|; the error of the logarithm counts 0.4343 times.
double log10(double x)
{
    if (!isPositiveAndFinite(bitsOf(x))) [[unlikely]]
        return logarithmOfSpecial(x);
    const BoundedSum sum = quickLogarithm(x);
    const DoubleDouble natural = exactSum(sum.high, sum.low);
    const DoubleDouble product = exactProduct(natural.high, inverseLn10High);
    const double low = product.low + (natural.high * inverseLn10Low + natural.low * inverseLn10High);
    const double error = 0.5 * sum.error + 0x1p-102 * magnitudeOf(natural.high);
    const double upper = product.high + (low + error);
    const double lower = product.high + (low - error);
    return upper == lower ? upper : exactLog10(x);
}

} // namespace vecmat
