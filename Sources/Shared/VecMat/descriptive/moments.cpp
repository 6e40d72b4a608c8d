#include "moments.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/detail/running_moments.h"
#include "detail/side_by_side_moments.h"

#include <memory>

using namespace vecmat;

namespace {

// A row of weight 0 counts in the first but not in the second: with `sample` -1 their divisors differ.
using CountingVariance = RunningVariance<update::Weighted, ZeroWeight::counted>;
using SkippingVariance = RunningVariance<update::Weighted, ZeroWeight::skipped>;
/// Weights are not tested for zero.
using UnguardedVariance = RunningVariance<update::Weighted, ZeroWeight::updated>;

CountingVariance vectorMoments(matrix* v, int n, const short* mask, matrix* w)
{
    return onBlocks(
        [&](auto x, auto weight) {
            CountingVariance moments;
            for (int i = 0; i < n; ++i)
                if (Mask(mask).keeps(i) && isPresent(x.get(i)))
                    moments.add(x.get(i), weight.get(i));
            return moments;
        },
        block(linear(v), n), block(linear(w), n));
}

/// Computes the moments of each column over the rows accepted by `rowEnters`.
template <class Moments, class Storage, class RowEnters, class Store>
void columnMoments(Storage X, int n, int p, matrix* w, RowEnters rowEnters, Store store)
{
    onBlocks([&](auto x, auto weight) { accumulateColumns<Moments>(x, n, p, weight, rowEnters, store); },
             block(X, n, p), block(linear(w), n));
}

/// The weights given, or unit weights built for the call.
class WeightsOrUnits
{
public:
    WeightsOrUnits(matrix* given, int n)
        : units_(given == nullptr ? std::make_unique<matrix>(n, 1, 1.0) : nullptr),
          weights_(given == nullptr ? units_.get() : given)
    {
    }
    matrix* get() const { return weights_; }

private:
    std::unique_ptr<matrix> units_;
    matrix* weights_;
};

template <class Storage>
int meanStDev(Storage X, int n, int p, matrix*& mean, matrix*& stdev, const short* mask, matrix* w, short sample,
              short freqWeights, short ignoreMask)
{
    const WeightsOrUnits weights(w, n); // memory before the first write to a result
    matrix::matCheck(mean, p, 1, 0.0);
    if (stdev != nullptr)
        matrix::matCheck(stdev, p, 1, 0.0);
    columnMoments<SkippingVariance>(
        X, n, p, weights.get(), [=](int i) { return ignoreMask == 0 ? Mask(mask).keeps(i) : ignoreMask == -1; },
        [&](int j, const SkippingVariance& moments) {
            const bool empty = moments.rows == 0;
            linear(mean).set(j, empty ? missingValue : moments.mean);
            if (stdev != nullptr)
                linear(stdev).set(j, empty ? missingValue : deviationOf(testedVariance(moments, sample, freqWeights)));
        });
    return 0;
}

/// A column without rows needs no test here: its mean is still 0.0, and its divisor 0, -1 or NaN.
template <class Storage>
int meanStDevVar(Storage X, int n, int p, matrix*& mean, matrix*& stdev, matrix*& var, const short* mask, matrix* w,
                 short sample, short freqWeights)
{
    matrix::matCheck(mean, p, 1, 0.0);
    if (stdev != nullptr)
        matrix::matCheck(stdev, p, 1, 0.0);
    matrix::matCheck(var, p, 1, 0.0);
    columnMoments<CountingVariance>(
        X, n, p, w, [=](int i) { return Mask(mask).keeps(i); },
        [&](int j, const CountingVariance& moments) {
            const double variance = testedVariance(moments, sample, freqWeights);
            linear(mean).set(j, moments.mean);
            linear(var).set(j, variance);
            if (stdev != nullptr)
                linear(stdev).set(j, deviationOf(variance));
        });
    return 0;
}

} // namespace

double V_Var(matrix* v, int n, short* mask, matrix* w, short sample, short freqWeights)
{
    return untestedVariance(vectorMoments(v, n, mask, w), sample, freqWeights);
}

double V_Var2(matrix* v, int n, short sample, short freqWeights)
{
    const auto moments = onBlocks(
        [n](auto x) {
            RunningVariance<update::Counted, ZeroWeight::updated> running;
            for (int i = 0; i < n; ++i)
                if (isPresent(x.get(i)))
                    running.add(x.get(i), 1.0);
            return running;
        },
        block(linear(v), n));
    return untestedVariance(moments, sample, freqWeights);
}

double V_Stdev(matrix* v, int n, short* mask, matrix* w, short sample, short freqWeights)
{
    const double variance = V_Var(v, n, mask, w, sample, freqWeights);
    return variance == 0.0 ? 0.0 : squareRoot(variance);
}

void V_MeanVar(matrix* v, int n, double* mean, double* var, short* mask, matrix* w, short sample, short freqWeights)
{
    const CountingVariance moments = vectorMoments(v, n, mask, w);
    // Without rows the mean and Q are still 0.0, and so are both results.
    *mean = moments.mean;
    *var = moments.squares == 0.0 ? 0.0 : untestedVariance(moments, sample, freqWeights);
}

void V_MeanStdev(matrix* v, int n, double* mean, double* stdev, short* mask, matrix* w, short sample, short freqWeights)
{
    double variance = 0.0;
    V_MeanVar(v, n, mean, &variance, mask, w, sample, freqWeights);
    *stdev = squareRoot(variance);
}

int M_MeanStDev(matrix* X, int n, int p, matrix*& mean, matrix*& stdev, short* mask, matrix* w, short sample,
                short freqWeights, short ignoreMask)
{
    return meanStDev(cells(X), n, p, mean, stdev, mask, w, sample, freqWeights, ignoreMask);
}

int M_MeanStDevSPV(matrix** X, int n, int p, matrix*& mean, matrix*& stdev, short* mask, matrix* w, short sample,
                   short freqWeights, short ignoreMask)
{
    return meanStDev(cells(X), n, p, mean, stdev, mask, w, sample, freqWeights, ignoreMask);
}

int M_MeanStDevVar(matrix* X, int n, int p, matrix*& mean, matrix*& stdev, matrix*& var, short* mask, matrix* w,
                   short sample, short freqWeights)
{
    return meanStDevVar(cells(X), n, p, mean, stdev, var, mask, w, sample, freqWeights);
}

int M_MeanStDevVarSPV(matrix** X, int n, int p, matrix*& mean, matrix*& stdev, matrix*& var, short* mask, matrix* w,
                      short sample, short freqWeights)
{
    return meanStDevVar(cells(X), n, p, mean, stdev, var, mask, w, sample, freqWeights);
}

int M_MeanStDevByRow(matrix* X, int n, int p, matrix*& mean, matrix*& stdev, matrix* w, short sample, short freqWeights)
{
    const WeightsOrUnits weights(w, p);
    // Sized by the columns although there is one result per row: part of the contract. A flat form's result is replaced
    // here, before the first write to the other.
    if (stdev != nullptr)
        matrix::matCheck(stdev, p, 1, 0.0);
    matrix::matCheck(mean, n, 1, 0.0);
    const auto rowWeight = linear(weights.get());
    const auto store = [&](int i, const UnguardedVariance& moments) {
        const bool empty = moments.rows == 0;
        linear(mean).set(i, empty ? missingValue : moments.mean);
        if (stdev != nullptr)
            linear(stdev).set(i, empty ? missingValue : deviationOf(testedVariance(moments, sample, freqWeights)));
    };
    onBlocks(
        [&](auto x, auto weight) {
            accumulate<UnguardedVariance>(
                n, p,
                [=](UnguardedVariance& moments, int i, int j) {
                    // The weight tested is that of the row, the weight added that of the column.
                    if (rowWeight.get(i) != 0.0 && isPresent(x.get(i, j)))
                        moments.add(x.get(i, j), weight.get(j));
                },
                store);
        },
        block(cells(X), n, p), block(linear(weights.get()), p));
    return 0;
}
