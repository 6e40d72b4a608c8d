#include "ranks.h"

#include "../access/block_copy.h"
#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "detail/key_order.h"
#include "detail/stable_order.h"
#include "sort.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

namespace {

using namespace vecmat;

/// Values closer than this count as equal in the ranks by weighted means.
constexpr double tieTolerance = 1e-15;

/// Steps of a series that differ by more than this are uneven.
constexpr double stepTolerance = 1e-6;

/// The elements of a vector in ascending order, and the row, from 0, each came from.
class SortedElements
{
public:
    SortedElements(matrix* x, int n) : count_(countOf(n)), rows_(ascendingRows(x, n)), values_(new double[count_])
    {
        onBlocks(
            [this](auto elements) {
                for (std::size_t k = 0; k < count_; ++k)
                    values_[k] = elements.get(row(k)); // NOLINT(clang-analyzer-cplusplus.NewDelete): k is below count_
            },
            block(linear(x), n));
    }

    std::size_t count() const { return count_; }
    int row(std::size_t k) const { return static_cast<int>(rows_[k]); }
    double value(std::size_t k) const { return values_[k]; }

private:
    std::size_t count_;
    RowOrder rows_;
    std::unique_ptr<double[]> values_;
};

/// Gives each element its rank: `rank(k)`, called for k from 0 up, is that of the k-th sorted one.
template <class Ranks, class Rank>
void writeInRows(const SortedElements& sorted, Ranks* out, Rank rank)
{
    onBlocks(
        [&](auto ranks) {
            for (std::size_t k = 0; k < sorted.count(); ++k)
                ranks.set(sorted.row(k), rank(k));
        },
        block(linear(out), static_cast<int>(sorted.count())));
}

template <class Ranks>
void denseRanks(matrix* x, int n, Ranks*& ranks)
{
    const SortedElements sorted(x, n);
    Ranks::matCheck(ranks, n, 1, 0.0);
    int rank = 1;
    writeInRows(sorted, ranks, [&](std::size_t k) {
        if (k > 0 && sorted.value(k) != sorted.value(k - 1))
            ++rank;
        return rank;
    });
}

/// Sorted elements with their ranks before ties are settled.
struct Ranking
{
    SortedElements sorted;
    std::unique_ptr<double[]> ranks;
    std::size_t missing; // number of missing values, which come first

    Ranking(matrix* x, int n) : sorted(x, n), ranks(new double[sorted.count()]), missing(0)
    {
        for (; missing < sorted.count() && isMissing(sorted.value(missing)); ++missing)
            ranks[missing] = missingValue; // NOLINT(clang-analyzer-cplusplus.NewDelete): it is below the count
        for (std::size_t k = missing; k < sorted.count(); ++k)
            ranks[k] = static_cast<double>(k - missing + 1); // NOLINT(clang-analyzer-cplusplus.NewDelete)
    }

    void writeTo(matrix* out) const
    {
        writeInRows(sorted, out, [this](std::size_t k) { return ranks[k]; });
    }
};

/// Finds the groups of ties from the lowest value up and calls `settle(first, end)` for each, which may change the
/// ranks. `tied` says whether two values tie. Returns the sizes of the groups.
template <class Tied, class Settle>
std::vector<std::size_t> settleTies(const Ranking& ranking, Tied tied, Settle settle)
{
    const auto& sorted = ranking.sorted;
    const std::size_t count = sorted.count();
    std::vector<std::size_t> lengths;
    std::size_t k = ranking.missing + 1;
    while (k < count) {
        const std::size_t first = k - 1;
        if (!tied(sorted.value(k), sorted.value(first))) {
            ++k;
            continue;
        }
        do
            ++k;
        while (k < count && tied(sorted.value(k), sorted.value(first)));
        settle(first, k);
        lengths.push_back(k - first);
    }
    return lengths;
}

/// The weights of sorted elements, asked for in ascending order and read many ahead: one by one, between the branches
/// of the ties, most reads would wait for memory.
class WeightsInOrder
{
public:
    WeightsInOrder(matrix* weights, const SortedElements& sorted) : weights_(weights), sorted_(sorted) {}

    double operator()(std::size_t k)
    {
        if (k >= end_)
            read(k);
        return ahead_[k - first_];
    }

private:
    void read(std::size_t first)
    {
        first_ = first;
        end_ = std::min(first + ahead_.size(), sorted_.count());
        for (std::size_t k = first; k < end_; ++k)
            ahead_[k - first] = linear(weights_).get(sorted_.row(k));
    }

    matrix* weights_;
    const SortedElements& sorted_;
    std::array<double, 256> ahead_;
    std::size_t first_ = 0;
    std::size_t end_ = 0;
};

void writeTies(const std::vector<std::size_t>& lengths, int* nTies, matrix* tieSizes)
{
    *nTies = 0;
    for (const std::size_t length : lengths)
        linear(tieSizes).set((*nTies)++, static_cast<double>(length));
}

} // namespace

void V_GetRanks(matrix* x, int n, matrix*& ranks)
{
    denseRanks(x, n, ranks);
}

void V_GetRanks(matrix* x, int n, matrixInt*& ranks)
{
    denseRanks(x, n, ranks);
}

void V_GetRanksTies(matrix* x, int n, matrix* weights, matrix*& ranks, int* nTies, matrix*& tieSizes)
{
    const Ranking ranking(x, n);
    WeightsInOrder weight(weights, ranking.sorted);
    const auto closerThanTolerance = [](double value, double other) { return std::abs(value - other) < tieTolerance; };
    const auto shareWeightedMean = [&](std::size_t first, std::size_t end) {
        // The first of a group takes the weight of the very first element: a fixed part of the rule.
        double weightSum = linear(weights).get(ranking.sorted.row(0));
        double rankSum = ranking.ranks[first] * weightSum;
        for (std::size_t k = first + 1; k < end; ++k) {
            weightSum += weight(k);
            rankSum += ranking.ranks[k] * weight(k);
        }
        std::fill(ranking.ranks.get() + first, ranking.ranks.get() + end, rankSum / weightSum);
    };
    const auto lengths = settleTies(ranking, closerThanTolerance, shareWeightedMean);
    // All weights have been read: nothing written from here on can change them.
    matrix::matCheck(tieSizes, n, 1, 0.0);
    writeTies(lengths, nTies, tieSizes);
    ranking.writeTo(ranks);
}

void V_GetRanksTiesInt(matrix* x, int n, matrix* /*weights*/, matrix*& ranks, int* nTies, matrix* tieSizes)
{
    const Ranking ranking(x, n);
    const auto equal = [](double value, double other) { return value == other; };
    const auto shareLowest = [&](std::size_t first, std::size_t end) {
        std::fill(ranking.ranks.get() + first, ranking.ranks.get() + end, ranking.ranks[first]);
    };
    writeTies(settleTies(ranking, equal, shareLowest), nTies, tieSizes);
    ranking.writeTo(ranks);
}

void M_GetRanksTies(matrix* table, int n, int col, matrix* weights, matrix*& out, int* nTies, matrix*& tieSizes)
{
    matrix x(n, 1, 0.0);
    matrix ranks(n, 1, 0.0);
    matrix* ranksOfColumn = &ranks;
    copyCells(window(table, 0, zeroBased(col)), window(&x, 0, 0), n, 1);
    V_GetRanksTies(&x, n, weights, ranksOfColumn, nTies, tieSizes);
    copyCells(window(ranksOfColumn, 0, 0), window(out, 0, zeroBased(col)), n, 1);
}

short V_IsSorted(matrix* x, int n, short strict)
{
    const auto values = linear(x);
    for (int i = 1; i < n; ++i) {
        const double before = values.get(i - 1);
        const double after = values.get(i);
        if (strict == -1 ? before >= after : before > after)
            return 0;
    }
    return -1;
}

double V_TimeIntervalSize(matrix* t, int n, short sorted)
{
    matrix copy(n, t);
    matrix* times = &copy;
    if (sorted == -1)
        SortQVector(times, n, 1, n, 0);
    const auto time = linear(times);
    const double step = time.get(1) - time.get(0);
    for (int i = 2; i < n; ++i)
        if (std::abs(time.get(i) - time.get(i - 1) - step) > stepTolerance)
            return missingValue;
    return step;
}
