// The two constants that results are made of.
#pragma once

#include <bit>
#include <cstdint>

namespace vecmat::test {

/// The missing value, and its positive twin, from their bits: independent of the library's own constants.
inline constexpr double M = std::bit_cast<double>(std::uint64_t{0xffefffffffffffe2});
inline constexpr double positiveTwin = std::bit_cast<double>(std::uint64_t{0x7fefffffffffffe2});

} // namespace vecmat::test
