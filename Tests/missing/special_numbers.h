// Numbers that one test for a missing value takes and the other does not, and flags of rows.
#pragma once

#include "support/bits.h"
#include "support/guarded.h"

#include <cmath>
#include <limits>

namespace vecmat::test {

inline constexpr double inf = std::numeric_limits<double>::infinity();
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
inline const double belowMissing = std::nextafter(M, -inf);

using Flags = Guarded<short>;

} // namespace vecmat::test
