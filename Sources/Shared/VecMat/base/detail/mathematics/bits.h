// The parts of a double. The names have no linkage: sources of kernels, which are compiled once for each instruction set,
// may include this.
#pragma once

#include <cstdint>

namespace vecmat::mathematics {
namespace {

constexpr std::uint64_t signBit = 0x8000000000000000;
constexpr std::uint64_t infinityBits = 0x7ff0000000000000;
constexpr std::uint64_t leastNormalBits = 0x0010000000000000;
constexpr std::uint64_t fractionBits = 0x000fffffffffffff;

// The builtin, as not every standard library with which this is compiled has std::bit_cast.
constexpr std::uint64_t bitsOf(double x)
{
    return __builtin_bit_cast(std::uint64_t, x);
}

constexpr double doubleOf(std::uint64_t bits)
{
    return __builtin_bit_cast(double, bits);
}

inline double magnitudeOf(double x)
{
    return doubleOf(bitsOf(x) & ~signBit);
}

/// The same magnitude, negative where told.
inline double withSign(bool negative, double magnitude)
{
    return negative ? -magnitude : magnitude;
}

/// mantissa 2^exponent, for a finite number other than 0; its sign is left out.
struct WholeAndExponent
{
    std::uint64_t mantissa;
    int exponent;
};

inline WholeAndExponent partsOf(double x)
{
    const std::uint64_t magnitude = bitsOf(x) & ~signBit;
    const int biased = static_cast<int>(magnitude >> 52);
    if (biased == 0)
        return {magnitude, -1074};
    return {(magnitude & fractionBits) | leastNormalBits, biased - 1075};
}

} // namespace
} // namespace vecmat::mathematics
