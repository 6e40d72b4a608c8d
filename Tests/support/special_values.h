// Values at which rules part, under the names that tests use for them.
#pragma once

#include "support/constants.h"

#include <bit>
#include <cstdint>
#include <limits>

namespace vecmat::test {

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The next double below the missing value, from its bits: missing by the order test alone.
inline constexpr double belowMissing = std::bit_cast<double>(std::bit_cast<std::uint64_t>(M) + 1);

inline constexpr int lowestInt = std::numeric_limits<int>::min();
inline constexpr int highestInt = std::numeric_limits<int>::max();

} // namespace vecmat::test
