#include "selection.h"

#include "../../base/detail/scratch.h"
#include "../../base/missing_value.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vecmat {

namespace {

/// Up to this many are copied to the stack.
constexpr std::size_t mostOnStack = 64;
constexpr std::size_t fewestToSample = 3000;

struct Bounds
{
    double low = -std::numeric_limits<double>::infinity();
    double high = std::numeric_limits<double>::infinity();
};

/// Bounds that most likely enclose the requested places, from numbers at even steps. `sample` has room for n.
Bounds likelyBounds(const double* x, std::size_t n, std::size_t place, double* sample)
{
    std::size_t step = 1; // the cube root of n
    while ((step + 1) * (step + 1) * (step + 1) <= n)
        ++step;
    const std::size_t size = n / step;
    for (std::size_t k = 0; k < size; ++k)
        sample[k] = x[k * step];
    if (std::any_of(sample, sample + size, [](double number) { return std::isnan(number); }))
        return {};
    // Four times the standard deviation of the place of a median in such a sample.
    const auto margin = static_cast<std::size_t>(2.0 * std::sqrt(static_cast<double>(size)));
    const std::size_t middle = place / step;
    Bounds bounds;
    double* rest = sample;
    if (middle > margin) {
        rest = sample + (middle - margin);
        std::nth_element(sample, rest, sample + size);
        bounds.low = *rest;
    }
    if (middle + margin < size) {
        std::nth_element(rest, sample + (middle + margin), sample + size);
        bounds.high = sample[middle + margin];
    }
    return bounds;
}

/// The numbers of a vector, sorted only as far as requested: those within the bounds are copied to separate memory; of
/// the others only those below the bounds and those equal to them are counted.
class Partition
{
public:
    /// `memory` has room for n.
    Partition(Bounds bounds, const double* x, std::size_t n, double* memory) : bounds_(bounds), inside_(memory)
    {
        const auto [low, high] = bounds;
        std::size_t notAboveLow = 0;
        std::size_t notAboveHigh = 0;
        for (std::size_t k = 0; k < n; ++k) {
            const double number = x[k];
            // Without branches: which numbers lie inside is unpredictable.
            inside_[countInside_] = number;
            countInside_ += static_cast<std::size_t>(number > low) & static_cast<std::size_t>(number < high);
            countBelow_ += static_cast<std::size_t>(number < low);
            notAboveLow += static_cast<std::size_t>(number <= low);
            notAboveHigh += static_cast<std::size_t>(number <= high);
            anyNan_ |= number != number;
        }
        countAtLow_ = notAboveLow - countBelow_;
        countAtHigh_ = notAboveHigh - notAboveLow - countInside_;
    }

    bool anyNan() const { return anyNan_; }
    bool holds(std::size_t place) const { return place >= countBelow_ && place - countBelow_ < count(); }

    /// The number at a place it holds. Places are requested in ascending order.
    double at(std::size_t place)
    {
        place -= countBelow_;
        if (place < countAtLow_)
            return bounds_.low;
        place -= countAtLow_;
        if (place >= countInside_)
            return bounds_.high;
        std::nth_element(inside_ + settled_, inside_ + place, inside_ + countInside_);
        settled_ = place + 1;
        return inside_[place];
    }

private:
    std::size_t count() const { return countAtLow_ + countInside_ + countAtHigh_; }

    Bounds bounds_;
    double* inside_;
    std::size_t countBelow_ = 0;
    std::size_t countAtLow_ = 0;
    std::size_t countInside_ = 0;
    std::size_t countAtHigh_ = 0;
    std::size_t settled_ = 0; // this many of those inside are in place, or below all places to come
    bool anyNan_ = false;
};

/// A selection compares, and does not distinguish the two zeros. In the sorted vector they keep the order of the input.
class Zeros
{
public:
    Zeros(const double* x, std::size_t n) : x_(x), n_(n)
    {
        std::size_t withSign = 0;
        std::size_t count = 0;
        for (std::size_t k = 0; k < n; ++k) {
            const auto isZero = static_cast<std::size_t>(x[k] == 0.0);
            before_ += static_cast<std::size_t>(x[k] < 0.0);
            count += isZero;
            withSign += isZero & static_cast<std::size_t>(std::signbit(x[k]));
        }
        isMixed_ = withSign > 0 && withSign < count;
    }

    /// The zero at a place of the sorted vector, given a zero.
    double at(std::size_t place, double zero) const
    {
        auto skipped = place - before_;
        return isMixed_ ? *std::find_if(x_, x_ + n_, [&](double number) { return number == 0.0 && skipped-- == 0; })
                        : zero;
    }

private:
    const double* x_;
    std::size_t n_;
    std::size_t before_ = 0;
    bool isMixed_;
};

/// Selects with memory for n numbers.
std::optional<Neighbours> selectWith(double* memory, const double* x, std::size_t n, std::size_t place)
{
    const std::size_t next = std::min(place + 1, n - 1);
    Partition numbers(n < fewestToSample ? Bounds{} : likelyBounds(x, n, place, memory), x, n, memory);
    if (numbers.anyNan())
        return std::nullopt;
    if (!numbers.holds(place) || !numbers.holds(next))
        numbers = Partition({}, x, n, memory);
    Neighbours found{numbers.at(place), next > place ? numbers.at(next) : outOfRangeValue};
    if (found.at == 0.0 || found.next == 0.0) {
        const Zeros zeros(x, n);
        found.at = found.at == 0.0 ? zeros.at(place, found.at) : found.at;
        found.next = found.next == 0.0 ? zeros.at(next, found.next) : found.next;
    }
    return found;
}

} // namespace

std::optional<Neighbours> selectNeighbours(const double* x, std::size_t n, std::size_t place)
{
    if (n <= mostOnStack) {
        double memory[mostOnStack];
        return selectWith(memory, x, n, place);
    }
    const Scratch memory(n);
    return memory ? selectWith(memory.data(), x, n, place) : std::nullopt;
}

} // namespace vecmat
