#include "vector_sums.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/missing_value.h"

#include <algorithm>

using namespace vecmat;

namespace {

/// Replaces a weight table omitted by the caller.
struct UnitWeights
{
    double get(int /*i*/) const { return 1.0; }
};

/// Adds term(i) for each i from `first` to `end` - 1 that `keep` accepts, in order.
template <class Keep, class Term>
double sumWhere(int first, int end, Keep keep, Term term)
{
    double sum = 0.0;
    for (int i = first; i < end; ++i)
        if (keep(i))
            sum += term(i);
    return sum;
}

constexpr auto everyCell = [](int /*i*/) { return true; };

template <class Cells>
auto presentIn(Cells cells)
{
    return [cells](int i) { return !isMissing(cells.get(i)); };
}

template <class Cells, class Weights>
double weightedSum(Cells cells, Weights weights, int n, Mask mask)
{
    const auto counts = [&](int i) { return mask.keeps(i) && !isMissing(weights.get(i)) && !isMissing(cells.get(i)); };
    return sumWhere(0, n, counts, [&](int i) { return weights.get(i) * cells.get(i); });
}

template <class A, class B>
double squaredDifference(A a, B b, int i)
{
    const double difference = a.get(i) - b.get(i);
    return difference * difference;
}

} // namespace

double V_Sum(matrix* x, int n, short* mask, matrix* w)
{
    if (w == nullptr)
        return onBlocks([&](auto cells) { return weightedSum(cells, UnitWeights(), n, Mask(mask)); },
                        block(linear(x), n));
    return onBlocks([&](auto cells, auto weights) { return weightedSum(cells, weights, n, Mask(mask)); },
                    block(linear(x), n), block(linear(w), n));
}

double V_Sum2(matrix* x, int n)
{
    return onBlocks(
        [n](auto cells) { return sumWhere(0, n, presentIn(cells), [cells](int i) { return cells.get(i); }); },
        block(linear(x), n));
}

double V_Sum2(matrixInt* x, int n)
{
    return onBlocks(
        [n](auto cells) {
            return sumWhere(0, n, everyCell, [cells](int i) { return static_cast<double>(cells.get(i)); });
        },
        block(linear(x), n));
}

double V_Sum2(int* x, int n)
{
    // Every element is read one place late: callers of this form rely on it.
    return sumWhere(0, n, everyCell, [x](int i) { return static_cast<double>(x[i + 1]); });
}

double V_Sq(matrix* x, int n)
{
    return onBlocks(
        [n](auto cells) { return sumWhere(0, n, everyCell, [cells](int i) { return cells.get(i) * cells.get(i); }); },
        block(linear(x), n));
}

double V_SumSq(matrix* x, int n)
{
    return onBlocks(
        [n](auto cells) {
            return sumWhere(0, n, presentIn(cells), [cells](int i) { return cells.get(i) * cells.get(i); });
        },
        block(linear(x), n));
}

double V_SumSqW(matrix* x, int n, matrix* w)
{
    if (n < 1)
        return 0.0;
    return onBlocks(
        [n](auto cells, auto weights) {
            // The weight lies one place before its cell; before the first it is what an out-of-range read gives.
            const auto weight = [weights](int i) { return i == 0 ? outOfRangeValue : weights.get(i - 1); };
            return sumWhere(0, n, presentIn(cells), [&](int i) { return weight(i) * cells.get(i) * cells.get(i); });
        },
        block(linear(x), n), block(linear(w), n - 1));
}

double V_DiffSq(matrix* a, int n, matrix* b)
{
    return V_DiffSqStart(a, n, b, 1);
}

double V_DiffSqW(matrix* a, int n, matrix* b, matrix* w)
{
    return onBlocks(
        [n](auto cellsA, auto cellsB, auto weights) {
            return sumWhere(0, n, everyCell,
                            [&](int i) { return weights.get(i) * squaredDifference(cellsA, cellsB, i); });
        },
        block(linear(a), n), block(linear(b), n), block(linear(w), n));
}

double V_DiffSqStart(matrix* a, int n, matrix* b, int start)
{
    // Places before the first cell read -1.0 in both vectors, so that skipping them changes nothing.
    const int first = std::max(start, 1) - 1;
    return onBlocks(
        [=](auto cellsA, auto cellsB) {
            return sumWhere(first, n, everyCell, [&](int i) { return squaredDifference(cellsA, cellsB, i); });
        },
        block(linear(a), n), block(linear(b), n));
}
