// Stable orders of many numbers, found by counting passes over the bits of the keys instead of by comparisons.
#pragma once

#include "../elementary/kernels/scratch.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

namespace vecmat {

enum class Direction { ascending, descending };

/// For each place the number of the row that goes there, from 0; or nothing.
class RowOrder
{
public:
    /// Words of which the lower halves are the numbers; what the upper halves hold is of no matter.
    using Words = std::unique_ptr<std::uint64_t[]>;

    RowOrder() = default;
    /// Without numbers yet. Holds nothing where memory is short.
    explicit RowOrder(std::size_t n) : RowOrder(Words(new (std::nothrow) std::uint64_t[n])) {}
    explicit RowOrder(Words words) : words_(std::move(words)) {}

    explicit operator bool() const { return words_ != nullptr; }
    std::uint32_t operator[](std::size_t place) const { return static_cast<std::uint32_t>(words_[place]); }

    std::uint64_t* words() const { return words_.get(); }

private:
    Words words_;
};

/// Fewer keys than this are merged faster.
inline constexpr long long fewestKeysToCount = 300;

/// The stable order of `n` keys under the plain less-than: zeros of both signs tie, and tied keys keep the order of the
/// input in both directions. Nothing where a merge has to serve: few keys, a NaN, which is not ordered against
/// anything, or no memory. `spare` has room for n numbers, and is left with any. The order takes as much as the keys.
RowOrder orderByBits(const double* keys, std::size_t n, Direction direction, const Scratch& spare);

/// Integer keys, compared as the doubles that they are widened to.
RowOrder orderByBits(const int* keys, std::size_t n, Direction direction, const Scratch& spare);

} // namespace vecmat
