#include "ranks.h"

#include "../elementary/columns_and_rows.h"
#include "../frame/cells.h"
#include "../frame/missing_value.h"
#include "../frame/numbers.h"
#include "sort.h"
#include "stable_order.h"

#include <cmath>
#include <vector>

namespace {

using namespace vecmat;

/// Values closer than this are one value to the ranks of weighted means.
constexpr double tieTolerance = 1e-15;

/// Steps of a series that differ by more than this are uneven.
constexpr double stepTolerance = 1e-6;

/// The elements of a vector in ascending order, each with the place that it came from.
std::vector<pairToSort> sortedElements(matrix* x, int n)
{
    std::vector<pairToSort> sorted;
    sorted.reserve(countOf(n));
    const auto values = linear(x);
    placeInStableOrder(
        {1, n}, Direction::ascending,
        [&](int number) {
            return pairToSort{number, values.get(zeroBased(number))};
        },
        [&](int, const pairToSort& record) { sorted.push_back(record); });
    return sorted;
}

template <class Ranks>
void denseRanks(matrix* x, int n, Ranks*& ranks)
{
    const auto sorted = sortedElements(x, n);
    Ranks::matCheck(ranks, n, 1, 0.0);
    int rank = 1;
    for (std::size_t k = 0; k < sorted.size(); ++k) {
        if (k > 0 && sorted[k].key != sorted[k - 1].key)
            ++rank;
        linear(ranks).set(zeroBased(sorted[k].position), rank);
    }
}

/// Sorted elements with their ranks as they stand before ties are looked at.
struct Ranking
{
    std::vector<pairToSort> sorted;
    std::vector<double> ranks;
    std::size_t missing; // how many of the first elements are missing

    Ranking(matrix* x, int n) : sorted(sortedElements(x, n)), ranks(sorted.size(), missingValue), missing(0)
    {
        while (missing < sorted.size() && isMissing(sorted[missing].key))
            ++missing;
        for (std::size_t k = missing; k < ranks.size(); ++k)
            ranks[k] = static_cast<double>(k - missing + 1);
    }

    void writeTo(matrix* out) const
    {
        for (std::size_t k = 0; k < ranks.size(); ++k)
            linear(out).set(zeroBased(sorted[k].position), ranks[k]);
    }
};

/// Finds the runs of ties from the lowest value up and calls `settle(first, behind)` for each, which may change the
/// ranks. `tied` tells whether two values tie. Stores the number of runs, and their lengths.
template <class Tied, class Settle>
void forEachTie(const Ranking& ranking, Tied tied, Settle settle, int* nTies, matrix* tieSizes)
{
    const auto& sorted = ranking.sorted;
    *nTies = 0;
    std::size_t k = ranking.missing + 1;
    while (k < sorted.size()) {
        const std::size_t first = k - 1;
        if (!tied(sorted[k].key, sorted[first].key)) {
            ++k;
            continue;
        }
        do
            ++k;
        while (k < sorted.size() && tied(sorted[k].key, sorted[first].key));
        settle(first, k);
        linear(tieSizes).set(*nTies, static_cast<double>(k - first));
        ++*nTies;
    }
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
    Ranking ranking(x, n);
    std::vector<double> sortedWeights;
    sortedWeights.reserve(ranking.sorted.size());
    for (const pairToSort& element : ranking.sorted)
        sortedWeights.push_back(linear(weights).get(zeroBased(element.position)));
    matrix::matCheck(tieSizes, n, 1, 0.0);

    const auto closerThanTolerance = [](double value, double other) { return std::abs(value - other) < tieTolerance; };
    const auto shareWeightedMean = [&](std::size_t first, std::size_t behind) {
        // The first of a run borrows the weight of the first of all: a settled part of the rule.
        double weightSum = sortedWeights[0];
        double rankSum = ranking.ranks[first] * sortedWeights[0];
        for (std::size_t k = first + 1; k < behind; ++k) {
            weightSum += sortedWeights[k];
            rankSum += ranking.ranks[k] * sortedWeights[k];
        }
        for (std::size_t k = first; k < behind; ++k)
            ranking.ranks[k] = rankSum / weightSum;
    };
    forEachTie(ranking, closerThanTolerance, shareWeightedMean, nTies, tieSizes);
    ranking.writeTo(ranks);
}

void V_GetRanksTiesInt(matrix* x, int n, matrix* /*weights*/, matrix*& ranks, int* nTies, matrix* tieSizes)
{
    Ranking ranking(x, n);
    const auto equal = [](double value, double other) { return value == other; };
    const auto shareLowest = [&](std::size_t first, std::size_t behind) {
        for (std::size_t k = first + 1; k < behind; ++k)
            ranking.ranks[k] = ranking.ranks[first];
    };
    forEachTie(ranking, equal, shareLowest, nTies, tieSizes);
    ranking.writeTo(ranks);
}

void M_GetRanksTies(matrix* table, int n, int col, matrix* weights, matrix*& out, int* nTies, matrix*& tieSizes)
{
    matrix x(n, 1, 0.0);
    matrix ranks(n, 1, 0.0);
    matrix* column = &x;
    matrix* ranksOfColumn = &ranks;
    CopyMatrixColToVector(table, n, col, column);
    V_GetRanksTies(column, n, weights, ranksOfColumn, nTies, tieSizes);
    CopyMatrixColToMatrixCol(ranksOfColumn, n, 1, out, col, 0);
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
