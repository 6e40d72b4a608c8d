// Stable orders and sorts of numbers, by counting passes over the bits of the keys where there are many.
#pragma once

#include "digit_passes.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

namespace vecmat {

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

/// The stable order of `n` keys under the plain less-than: zeros of both signs tie, and tied keys keep the order of the
/// input in both directions. Nothing where a merge has to serve: with a NaN, which is not ordered against anything, and
/// where memory is short. `spare` has room for n numbers and is left with any, or is null: `fewestForDigits` keys and
/// more need it. The order takes 8 bytes for each key.
RowOrder stableOrder(const double* keys, std::size_t n, Direction direction, void* spare);
RowOrder stableOrder(const int* keys, std::size_t n, Direction direction, void* spare);

/// Sorts numbers among which no two tie that can be told apart. False where `stableOrder` or a merge has to serve: with
/// a negative zero, a NaN, and where there is no memory for a copy of many; nothing is done then.
bool sortNumbers(double* x, std::size_t n, Direction direction);
bool sortNumbers(int* x, std::size_t n, Direction direction);

} // namespace vecmat
