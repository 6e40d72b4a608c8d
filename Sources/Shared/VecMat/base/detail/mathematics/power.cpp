#include "bits.h"
#include "double_double.h"
#include "exact_phase.h"
#include "mathematics.h"
#include "quick_exponential.h"
#include "quick_logarithm.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace vecmat {

using namespace mathematics;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

bool isOddWhole(double y)
{
    return magnitudeOf(y) < 0x1p53 && std::floor(y) == y && std::floor(y * 0.5) != y * 0.5;
}

/// The power of a positive finite number, for |y| between 2^-65 and 2^65.
///
/// With the logarithm off by e, and after exactSum |low| at most 2^-53 |high|: y high is exact, y low and the sum are
/// rounded, below 2^-94 together where the result is a number. So y log x is off by |y| e + 2^-94, and the exponential,
/// whose high part is below 2, by 2.01 times that.
double powerOfPositive(double x, double y)
{
    const BoundedSum logarithm = quickLogarithm(x);
    const DoubleDouble log = exactSum(logarithm.high, logarithm.low);
    const DoubleDouble product = exactProduct(y, log.high);
    if (product.high > leastQuickExponent && product.high < greatestQuickExponent) [[likely]] {
        const ScaledSum sum = quickExponential(product.high, product.low + y * log.low);
        const double error = (quickExponentialError + 0x1p-92) + 2.1 * (magnitudeOf(y) * logarithm.error);
        const double upper = sum.high + (sum.low + error);
        const double lower = sum.high + (sum.low - error);
        return upper == lower ? upper * sum.scale : exactPow(x, y);
    }
    if (product.high > 711.0)
        return infinity;
    return product.high < -747.0 ? 0.0 : exactPow(x, y);
}

constexpr std::uint64_t bitsOfExponent(int exponent)
{
    return static_cast<std::uint64_t>(exponent + 1023) << 52;
}
constexpr std::uint64_t leastY = bitsOfExponent(-65);
constexpr std::uint64_t greatestY = bitsOfExponent(65);

/// The power of a number that is not below 0, for y other than 0.
double powerOfMagnitude(double x, double y)
{
    if (x == 1.0)
        return 1.0;
    if (x == 0.0)
        return y < 0.0 ? infinity : 0.0;
    if (x == infinity)
        return y < 0.0 ? 0.0 : infinity;
    const std::uint64_t magnitude = bitsOf(y) & ~signBit;
    if (magnitude >= greatestY) // |log x| is at least 2^-53
        return (x > 1.0) == (y > 0.0) ? infinity : 0.0;
    if (magnitude < leastY) // |log x| is at most 745
        return 1.0;
    return powerOfPositive(x, y);
}

double powerOfSpecial(double x, double y)
{
    if (y == 0.0 || x == 1.0)
        return 1.0;
    if (x != x || y != y)
        return x + y;
    if ((bitsOf(x) & signBit) == 0)
        return powerOfMagnitude(x, y);
    // Infinity and all numbers from 2^53 on are even.
    if (std::floor(y) != y && bitsOf(x) != signBit && x != -infinity)
        return std::numeric_limits<double>::quiet_NaN();
    return withSign(isOddWhole(y), powerOfMagnitude(-x, y));
}

} // namespace

double pow(double x, double y)
{
    const bool usualX = bitsOf(x) - 1 < infinityBits - 1;
    const bool usualY = (bitsOf(y) & ~signBit) - leastY < greatestY - leastY;
    return usualX && usualY ? powerOfPositive(x, y) : powerOfSpecial(x, y);
}

} // namespace vecmat
