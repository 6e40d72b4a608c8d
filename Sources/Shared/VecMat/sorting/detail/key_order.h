// Stable orders and sorts of numbers, by counting passes over the bits of the keys if there are many.
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
    /// The lower halves of the words are the numbers; the upper halves are unspecified.
    using Words = std::unique_ptr<std::uint64_t[]>;

    RowOrder() = default;
    /// Without numbers yet. Empty if allocation fails.
    explicit RowOrder(std::size_t n) : RowOrder(Words(new (std::nothrow) std::uint64_t[n])) {}
    explicit RowOrder(Words words) : words_(std::move(words)) {}

    explicit operator bool() const { return words_ != nullptr; }
    std::uint32_t operator[](std::size_t place) const { return static_cast<std::uint32_t>(words_[place]); }
    std::uint64_t* words() const { return words_.get(); }

private:
    Words words_;
};

/// The stable order of `n` keys under the plain less-than: zeros of both signs tie, and tied keys keep the order of the
/// input in both directions. Nothing if a merge is needed: with a NaN, which is unordered, or if allocation fails.
/// `spare` has room for n numbers, is left with unspecified contents, or is null: `fewestForDigits` keys and more need
/// it. The order takes 8 bytes per key.
RowOrder stableOrder(const double* keys, std::size_t n, Direction direction, void* spare);
RowOrder stableOrder(const int* keys, std::size_t n, Direction direction, void* spare);

/// Sorts numbers whose ties are all identical. Returns false, having done nothing, if `stableOrder` or a merge is
/// needed: with a negative zero or a NaN, or if a copy of many cannot be allocated.
bool sortNumbers(double* x, std::size_t n, Direction direction);
bool sortNumbers(int* x, std::size_t n, Direction direction);

} // namespace vecmat
