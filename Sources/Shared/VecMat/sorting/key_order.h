// Stable orders of many numbers, found by counting passes over the bits of the keys instead of by comparisons.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace vecmat {

enum class Direction { ascending, descending };

/// For each place the row that goes there; from 0.
using RowOrder = std::unique_ptr<std::uint32_t[]>;

/// Fewer keys than this are merged faster.
inline constexpr long long fewestKeysToCount = 300;

/// The stable order of `n` keys under the plain less-than: zeros of both signs tie, and tied keys keep the order of the
/// input in both directions. Null where a merge has to serve: few keys, a NaN, which is not ordered against anything,
/// or no memory. The scratch is twice the size of the keys, the order half of it.
RowOrder orderByBits(const double* keys, std::size_t n, Direction direction);

/// Integer keys, compared as the doubles that they are widened to; these take as much scratch again.
RowOrder orderByBits(const int* keys, std::size_t n, Direction direction);

} // namespace vecmat
