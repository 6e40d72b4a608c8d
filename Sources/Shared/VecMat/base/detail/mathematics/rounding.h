// Rounding of whole numbers of many limbs to doubles.
#pragma once

#include "bits.h"

#include <array>
#include <bit>
#include <cstdint>

namespace vecmat::mathematics {

/// The double nearest to significand 2^exponent, or, where `more` is set, to a number that lies above it by less than
/// the significand's last place. The highest bit of the significand is set.
inline double nearestDouble(std::uint64_t significand, int exponent, bool more)
{
    const int top = exponent + 63; // that of the highest bit
    if (top > 1023)
        return doubleOf(infinityBits);
    // Of the 64 bits, those from 2^-1074 on remain, and not more than 53.
    const int dropped = top >= -1022 ? 11 : 11 - 1022 - top;
    if (dropped > 64)
        return 0.0;
    std::uint64_t kept = dropped == 64 ? 0 : significand >> dropped;
    const std::uint64_t half = std::uint64_t{1} << (dropped - 1);
    const std::uint64_t rest = significand & (half + (half - 1));
    const bool above = rest > half || (rest == half && more);
    if (above || (rest == half && (kept & 1) != 0))
        ++kept;
    // The bits of a normal number start above its highest one; a carry goes over into the exponent.
    const std::uint64_t biased = top >= -1022 ? static_cast<std::uint64_t>(top + 1022) : 0;
    return doubleOf((biased << 52) + kept);
}

/// The double nearest to number 2^exponent, for a number whose lowest limb comes first.
template <std::size_t limbs>
double nearestDouble(const std::array<std::uint32_t, limbs>& number, int exponent)
{
    std::size_t used = limbs;
    while (used > 0 && number[used - 1] == 0)
        --used;
    if (used == 0)
        return 0.0;
    // The three highest limbs hold 64 bits from the first one that is set.
    const auto limbBehind = [&](std::size_t i) { return i < used ? std::uint64_t{number[used - 1 - i]} : 0; };
    const std::uint64_t high = limbBehind(0) << 32 | limbBehind(1);
    const int leading = std::countl_zero(high); // below 32
    const std::uint64_t low = limbBehind(2) << leading;
    bool more = static_cast<std::uint32_t>(low) != 0;
    for (std::size_t i = 3; i < used; ++i)
        more = more || limbBehind(i) != 0;
    return nearestDouble(high << leading | low >> 32, exponent + 32 * (static_cast<int>(used) - 2) - leading, more);
}

} // namespace vecmat::mathematics
