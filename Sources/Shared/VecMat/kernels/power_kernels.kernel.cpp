#include "power_kernels.h"

#include "../base/detail/mathematics/double_double.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

inline long long bitsOf(double x)
{
    return __builtin_bit_cast(long long, x);
}

/// Is the low part so near half a unit in the last place of the high one that the rounding is in doubt? Below a power of
/// two the unit is half as large: such a place counts as doubtful, too. So does what is infinite or no number.
inline long long isDoubtful(DoubleDouble value)
{
    constexpr long long exponentBits = 0x7ff0000000000000;
    constexpr long long magnitudeBits = 0x7fffffffffffffff;
    const long long exponent = bitsOf(value.high) & exponentBits;
    const double limit = __builtin_bit_cast(double, exponent) * (0x1p-53 - 0x1p-93);
    const double low = __builtin_bit_cast(double, bitsOf(value.low) & magnitudeBits);
    const bool powerOfTwo = (bitsOf(value.high) & magnitudeBits) == exponent;
    return static_cast<long long>(!(low <= limit)) | static_cast<long long>(powerOfTwo & (low > 0.25 * limit));
}

bool cubesAndFourths(int count, const double* __restrict x, double* __restrict cube, double* __restrict fourth)
{
    long long doubtful = 0;
    for (int k = 0; k < count; ++k) {
        const double magnitude = __builtin_fabs(x[k]);
        const DoubleDouble square = exactProduct(x[k], x[k]);
        const DoubleDouble third = exactProduct(square.high, x[k]);
        const DoubleDouble thirdSettled = exactSum(third.high, third.low + square.low * x[k]);
        const DoubleDouble fourthPower = exactProduct(square.high, square.high);
        const DoubleDouble fourthSettled =
            exactSum(fourthPower.high, fourthPower.low + (square.high * square.low + square.high * square.low));
        cube[k] = thirdSettled.high;
        fourth[k] = fourthSettled.high;
        const bool inRange = ((magnitude > 0x1p-200) & (magnitude < 0x1p200)) | (magnitude == 0.0);
        doubtful |= isDoubtful(thirdSettled) | isDoubtful(fourthSettled) | static_cast<long long>(!inRange);
    }
    return doubtful == 0;
}

} // namespace

const PowerKernels powerKernels = {cubesAndFourths};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
