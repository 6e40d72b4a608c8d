// Stable passes over the digits of ranks, the basis of the sorts of many numbers.
#pragma once

#include "../../base/missing_value.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace vecmat {

enum class Direction { ascending, descending };

/// Numbers as unsigned integers of the same order, or of the reverse.
using Rank = std::uint64_t;

class RankOf
{
public:
    explicit RankOf(Direction direction) : reversal_(direction == Direction::descending ? topBit : 0) {}

    /// The magnitude added to, or subtracted from, a midpoint that both zeros share. A NaN has no rank.
    Rank operator()(double number) const
    {
        const Rank bits = __builtin_bit_cast(Rank, number) ^ reversal_;
        const Rank magnitude = bits & ~topBit;
        const Rank allIfNegative = Rank{0} - (bits >> 63);
        return topBit + ((magnitude ^ allIfNegative) - allIfNegative);
    }
    Rank operator()(int number) const
    {
        const Rank above = static_cast<Rank>(std::int64_t{number});
        return topBit + (reversal_ == 0 ? above : Rank{0} - above);
    }

private:
    static constexpr Rank topBit = Rank{1} << 63;

    Rank reversal_;
};

/// The spread of the ranks.
struct Spread
{
    Rank lowest;
    Rank range; // highest minus lowest
    int common; // number of lowest bits equal in all; meaningless if the range is 0

    /// The ranks `rankAt(k)` of n numbers, at least one.
    template <class RankAt>
    Spread(std::size_t n, RankAt rankAt)
    {
        const Rank first = rankAt(std::size_t{0});
        lowest = first;
        Rank highest = first;
        Rank varying = 0;
        for (std::size_t k = 1; k < n; ++k) {
            const Rank rank = rankAt(k);
            lowest = std::min(lowest, rank);
            highest = std::max(highest, rank);
            varying |= rank ^ first;
        }
        range = highest - lowest;
        common = std::countr_zero(varying);
    }

    int bits() const { return static_cast<int>(std::bit_width(range)); }

    /// The lowest bit of a window that covers as many of the differing bits as fit, from the top.
    int windowStart(int width) const { return std::max(common, bits() - width); }
};

/// What the ranks of numbers do not show.
struct SpecialValues
{
    std::size_t missing = 0;
    bool anyNan = false;
    bool anyBelowMissing = false;
    bool anyMinusZero = false;

    SpecialValues(const double* numbers, std::size_t n)
    {
        constexpr auto minusZero = __builtin_bit_cast(std::uint64_t, -0.0);
        for (std::size_t k = 0; k < n; ++k) {
            const double number = numbers[k];
            missing += static_cast<std::size_t>(isMissing(number));
            anyNan |= number != number;
            anyBelowMissing |= number < missingValue;
            anyMinusZero |= __builtin_bit_cast(std::uint64_t, number) == minusZero;
        }
    }

    /// Number of missing values kept apart, at one end of all others. Sorted along with the others they would leave no
    /// bits in a window to distinguish them.
    std::size_t missingApart() const { return anyBelowMissing ? 0 : missing; }
};

/// Do the ranks ascend already?
template <class RankAt>
bool ascend(std::size_t n, RankAt rankAt)
{
    for (std::size_t k = 1; k < n; ++k)
        if (rankAt(k) < rankAt(k - 1))
            return false;
    return true;
}

/// Fewer items than this are sorted faster by comparisons.
inline constexpr std::size_t fewestForDigits = 300;

/// Width of the digits of windows: narrow ones cost more passes, wide ones more counters.
inline constexpr std::size_t fewestForWideDigits = 8000;
inline constexpr int wideDigit = 11;
inline constexpr int narrowDigit = 8;
inline constexpr int mostPasses = 3;

/// The greatest useful width of a window for this many ranks: few of them tie in more bits, and these cost another
/// pass.
constexpr int windowWidth(std::size_t n)
{
    return mostPasses * (n < fewestForWideDigits ? narrowDigit : wideDigit);
}

constexpr int passCount(std::size_t n, int bits)
{
    const int width = n < fewestForWideDigits ? narrowDigit : wideDigit;
    return (bits + width - 1) / width;
}

namespace detail {

template <int width, class Item, class WindowOf>
Item* sortByDigits(Item* from, Item* to, std::size_t n, int passes, WindowOf windowOf)
{
    constexpr Rank mask = (Rank{1} << width) - 1;
    const auto digitOf = [&](const Item& item, int digit) {
        return static_cast<std::size_t>(windowOf(item) >> (digit * width) & mask);
    };
    std::uint32_t places[mostPasses][mask + 1] = {};
    for (std::size_t k = 0; k < n; ++k)
        for (int digit = 0; digit < mostPasses; ++digit)
            ++places[digit][digitOf(from[k], digit)];
    for (int digit = 0; digit < passes; ++digit) {
        auto& placesOfDigit = places[digit];
        if (placesOfDigit[digitOf(from[0], digit)] == n)
            continue;
        std::uint32_t place = 0; // counts become the next position for each digit
        for (std::uint32_t& first : placesOfDigit)
            place += std::exchange(first, place);
        for (std::size_t k = 0; k < n; ++k)
            to[placesOfDigit[digitOf(from[k], digit)]++] = from[k];
        std::swap(from, to);
    }
    return from;
}

} // namespace detail

/// Sorts n items stably by their windows, numbers of this many bits, from the lowest digit to the highest; a digit
/// equal in all needs no pass. The items start in `from`, alternate between the two buffers, and end in the one
/// returned: after an even number of passes, `passCount` if none is skipped, where they started.
template <class Item, class WindowOf>
Item* sortByDigits(Item* from, Item* to, std::size_t n, int bits, WindowOf windowOf)
{
    return n < fewestForWideDigits ? detail::sortByDigits<narrowDigit>(from, to, n, passCount(n, bits), windowOf)
                                   : detail::sortByDigits<wideDigit>(from, to, n, passCount(n, bits), windowOf);
}

/// Calls `sort(first, count)` for each run of more than one item that `tied` finds equal to its first.
template <class Item, class Tied, class Sort>
void forEachTie(Item* items, std::size_t n, Tied tied, Sort sort)
{
    for (std::size_t first = 0, end = 1; end <= n; ++end)
        if (end == n || !tied(items[first], items[end])) {
            if (end - first > 1)
                sort(first, end - first);
            first = end;
        }
}

} // namespace vecmat
