#include "power_kernels.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

/// high + low, where high is the sum rounded to nearest.
struct Pair
{
    double high;
    double low;
};

/// The exact product, for factors whose halves and products neither overflow nor become subnormal.
inline Pair product(double x, double y)
{
    constexpr double splitter = 134217729.0; // 2^27 + 1
    const double xScaled = splitter * x;
    const double xHigh = xScaled - (xScaled - x);
    const double xLow = x - xHigh;
    const double yScaled = splitter * y;
    const double yHigh = yScaled - (yScaled - y);
    const double yLow = y - yHigh;
    const double high = x * y;
    return {high, ((xHigh * yHigh - high) + xHigh * yLow + xLow * yHigh) + xLow * yLow};
}

/// The pair with its parts not overlapping, for |low| below |high|.
inline Pair settled(double high, double low)
{
    const double sum = high + low;
    return {sum, low - (sum - high)};
}

inline long long bitsOf(double x)
{
    return __builtin_bit_cast(long long, x);
}

/// Is the low part more than 0.45 units in the last place of the high one? Below a power of two the unit is half as
/// large: such a place counts as near the middle, too.
inline long long nearMiddle(Pair value)
{
    constexpr long long exponentBits = 0x7ff0000000000000;
    constexpr long long magnitudeBits = 0x7fffffffffffffff;
    const long long exponent = bitsOf(value.high) & exponentBits;
    const double limit = __builtin_bit_cast(double, exponent) * (0.45 * 0x1p-52);
    const double low = __builtin_bit_cast(double, bitsOf(value.low) & magnitudeBits);
    const bool powerOfTwo = (bitsOf(value.high) & magnitudeBits) == exponent;
    return static_cast<long long>(!(low <= limit)) | static_cast<long long>(powerOfTwo & (value.low != 0.0));
}

void cubesAndFourths(int count, const double* __restrict x, double* __restrict cube, double* __restrict fourth,
                     long long* __restrict unsure)
{
    for (int k = 0; k < count; ++k) {
        const double magnitude = __builtin_fabs(x[k]);
        const Pair square = product(x[k], x[k]);
        const Pair third = product(square.high, x[k]);
        const Pair thirdSettled = settled(third.high, third.low + square.low * x[k]);
        const Pair fourthPower = product(square.high, square.high);
        const Pair fourthSettled =
            settled(fourthPower.high, fourthPower.low + (square.high * square.low + square.high * square.low));
        cube[k] = thirdSettled.high;
        fourth[k] = fourthSettled.high;
        const auto inRange = static_cast<long long>((magnitude > 0x1p-200) & (magnitude < 0x1p200));
        unsure[k] = nearMiddle(thirdSettled) | 2 * nearMiddle(fourthSettled) | 3 * (inRange ^ 1);
    }
}

} // namespace

const PowerKernels powerKernels = {cubesAndFourths};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
