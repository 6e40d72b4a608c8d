#include "means.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/detail/mathematics/mathematics.h"
#include "../base/detail/running_moments.h"
#include "../kernels/logarithm_kernels.h"
#include "detail/side_by_side_moments.h"

#include <algorithm>
#include <cmath>

using namespace vecmat;

namespace {

/// Sum of w times `value(x)` over the sum of w. Weights of 0 are skipped, so that an infinite cell of weight 0 does not
/// turn the sum into a NaN.
template <class Value>
double weightedMean(matrix* v, int n, const short* mask, matrix* w, Value value)
{
    return onBlocks(
        [&](auto x, auto weight) {
            double weights = 0.0;
            double sum = 0.0;
            for (int i = 0; i < n; ++i) {
                if (!Mask(mask).keeps(i) || !isPresent(x.get(i)) || weight.get(i) == 0.0)
                    continue;
                weights += weight.get(i);
                sum += weight.get(i) * value(x.get(i));
            }
            return weights == 0.0 ? missingValue : sum / weights;
        },
        block(linear(v), n), block(linear(w), n));
}

/// Running mean of each column over the cells above the missing value, which is the result if there are none.
template <class Moments, class X, class Weights>
void columnMeansAbove(X x, int n, int p, Weights w, matrix* mean)
{
    accumulate<Moments>(
        p, n,
        [=](Moments& moments, int j, int i) {
            if (isPresent<MissingTest::order>(x.get(i, j)))
                moments.add(x.get(i, j), w.get(i));
        },
        [&](int j, const Moments& moments) { linear(mean).set(j, moments.rows > 0 ? moments.mean : missingValue); });
}

/// `M_Mean` over either storage: a column without rows keeps the initial running mean of 0.0.
template <class Storage>
int meansOrZero(Storage X, int n, int p, matrix*& mean, matrix* w)
{
    using Moments = RunningMean<update::Weighted, ZeroWeight::counted>;
    matrix::matCheck(mean, p, 1, 0.0);
    onBlocks(
        [&](auto x, auto weight) {
            accumulateColumns<Moments>(
                x, n, p, weight, [](int) { return true; },
                [&](int j, const Moments& moments) { linear(mean).set(j, moments.mean); });
        },
        block(X, n, p), block(linear(w), n));
    return 0;
}

using MomentsOfLogarithms = RunningVariance<update::Fractional, ZeroWeight::counted>;

/// Calls `take` with cell and weight of the kept rows that are not missing; false, and no further, at one that is 0 or below.
template <class X, class Weights, class Take>
bool takePositive(X x, Weights w, Mask mask, int first, int end, Take take)
{
    for (int i = first; i < end; ++i) {
        if (!mask.keeps(i) || !isPresent(x.get(i)))
            continue;
        if (x.get(i) <= 0.0)
            return false;
        take(x.get(i), w.get(i));
    }
    return true;
}

/// Without any row if a cell is 0 or below. The logarithms are taken many at a time, beside the running mean, each of whose
/// steps waits for the one before; one by one the machine works on both at once.
template <class X, class Weights>
MomentsOfLogarithms momentsOfLogarithms(X x, int n, Mask mask, Weights w)
{
    MomentsOfLogarithms moments;
    if (logarithmKernels().logarithms == nullptr) {
        const auto add = [&](double cell, double weight) { moments.add(vecmat::log(cell), weight); };
        return takePositive(x, w, mask, 0, n, add) ? moments : MomentsOfLogarithms();
    }
    double cells[logarithmsTogether];
    double weights[logarithmsTogether];
    double logarithm[logarithmsTogether];
    for (int first = 0; first < n; first += std::min(logarithmsTogether, n - first)) {
        int count = 0;
        const auto keep = [&](double cell, double weight) {
            cells[count] = cell;
            weights[count++] = weight;
        };
        if (!takePositive(x, w, mask, first, first + std::min(logarithmsTogether, n - first), keep))
            return {};
        logarithms(count, cells, logarithm);
        for (int k = 0; k < count; ++k)
            moments.add(logarithm[k], weights[k]);
    }
    return moments;
}

/// Used where a storage of weights is expected.
struct UnitWeights
{
    static double get(int) { return 1.0; }
};

} // namespace

double V_Mean(matrix* v, int n, short* mask, matrix* w)
{
    return weightedMean(v, n, mask, w, [](double x) { return x; });
}

double V_MeanAbs(matrix* v, int n, short* mask, matrix* w)
{
    return weightedMean(v, n, mask, w, [](double x) { return std::fabs(x); });
}

double V_Mean2(matrix* v, int n)
{
    return onBlocks(
        [n](auto x) {
            double sum = 0.0;
            int rows = 0;
            for (int i = 0; i < n; ++i)
                if (isPresent(x.get(i))) {
                    sum += x.get(i);
                    ++rows;
                }
            return rows > 0 ? sum / rows : missingValue;
        },
        block(linear(v), n));
}

double V_HarmonicMean(matrix* v, int n, short* mask, matrix* w)
{
    double weights = 0.0;
    double reciprocals = 0.0;
    for (int i = 0; i < n; ++i) {
        const double x = linear(v).get(i);
        if (!Mask(mask).keeps(i) || !isPresent(x))
            continue;
        if (x == 0.0)
            return missingValue;
        weights += linear(w).get(i);
        reciprocals += linear(w).get(i) / x;
    }
    // No rows, or n below 1, leave the sum at 0.0 as well.
    return reciprocals == 0.0 ? missingValue : weights / reciprocals;
}

void V_GMeanGSD(matrix* v, int n, short* mask, matrix* w, double* gmean, double* gsd)
{
    *gmean = missingValue;
    *gsd = missingValue;
    const MomentsOfLogarithms moments = momentsOfLogarithms(linear(v), n, Mask(mask), linear(w));
    if (moments.rows == 0)
        return;
    *gmean = vecmat::exp(moments.mean);
    const double divisor = moments.weights - moments.weights / moments.rows;
    if (divisor != 0.0)
        *gsd = vecmat::exp(squareRoot(moments.squares / divisor));
}

int M_Mean(matrix* X, int n, int p, matrix*& mean, matrix* w)
{
    return meansOrZero(cells(X), n, p, mean, w);
}

int M_MeanSPV(matrix** X, int n, int p, matrix*& mean, matrix* w)
{
    return meansOrZero(cells(X), n, p, mean, w);
}

int M_Mean2(matrix* X, int n, int p, matrix* w, matrix* mean)
{
    using Moments = RunningMean<update::Weighted, ZeroWeight::updated>;
    onBlocks([&](auto x, auto weight) { columnMeansAbove<Moments>(x, n, p, weight, mean); }, block(cells(X), n, p),
             block(linear(w), n));
    return 0;
}

int M_Mean3(matrix* X, int n, int p, matrix* mean)
{
    using Moments = RunningMean<update::Counted, ZeroWeight::updated>;
    onBlocks([&](auto x) { columnMeansAbove<Moments>(x, n, p, UnitWeights(), mean); }, block(cells(X), n, p));
    return 0;
}

double M_ColSum2(matrix* X, int n, int col)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i)
        if (const double x = X->vbget(i + 1, col); isPresent(x))
            sum += x;
    return sum;
}
