#include "covariance.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../base/detail/local_array.h"
#include "../base/detail/numbers.h"
#include "detail/covariance_pass.h"
#include "detail/pair_pass.h"

#include <memory>

using namespace vecmat;

namespace {

using Variances = LocalArray<double>;

/// Stores the covariance of each pair, column number not below row number, and the variances of all p columns.
template <class Data, class Out>
void findCovariances(Data X, int p, Out C, Variances& variances, matrix* w, const PairOptions& options, double fallback)
{
    using Sums = RunningCovariance<RowFactor::signedValue>;
    onBlocks(
        [&](auto x, auto weight) {
            const CovariancePass<RowFactor::signedValue, decltype(x), decltype(weight)> pass(x, p, weight, options);
            for (int j = 0; j < p; ++j)
                pass.run(j, [&](int k, const Sums& sums) {
                    const bool empty = sums.rows < 1;
                    const double covariance = options.quotient(sums.products, sums);
                    C.set(j, k, empty ? fallback : covariance);
                    if (j == k)
                        variances[countOf(j)] = empty ? missingValue : covariance;
                });
        },
        block(X, options.n, p), block(linear(w), options.n));
}

template <class Data>
int covCorr(Data X, int p, matrix*& C, short corr, matrix* w, const PairOptions& options, short zeroForMissing)
{
    const double fallback = fallbackUnlessZero(zeroForMissing);
    Variances variances(countOf(p), 0.0); // before the first write to a result
    matrix::matCheck(C, p, p, 0.0);
    const auto result = cells(C);
    findCovariances(X, p, result, variances, w, options, fallback);
    if (corr == 0) {
        mirrorUpperTriangle(result, p);
        return 0;
    }
    correlate<NoCorrelation::atZero>(
        p, fallback, [&](int j) { return variances[countOf(j)]; }, [&](int j, int k) { return result.get(j, k); },
        [&](int j, int k, double r) {
            result.set(j, k, r);
            result.set(k, j, r);
        });
    return 0;
}

/// A result by value: the caller's table can't be replaced, so an unsuitable one is left alone.
template <class Data>
int covCorrByValue(Data X, int p, matrix* C, short corr, matrix* w, const PairOptions& options, short zeroForMissing)
{
    std::unique_ptr<matrix> unseen;
    if (C == nullptr || C->nRows < p || C->nCols < p) {
        unseen = std::make_unique<matrix>(p, p, 0.0);
        C = unseen.get();
    }
    return covCorr(X, p, C, corr, w, options, zeroForMissing);
}

template <class Data>
int covCorrTriangle(Data X, int p, matrix** C, short corr, matrix* w, const PairOptions& options, short zeroForMissing)
{
    const double fallback = fallbackUnlessZero(zeroForMissing);
    const auto result = triangle(C);
    Variances variances(countOf(p), 0.0);
    findCovariances(X, p, result, variances, w, options, fallback);
    if (corr == 0)
        return 0;
    // The covariance is read from cell j of column k, not from cell k - j of column j where it was written: part of the
    // contract.
    correlate<NoCorrelation::atZeroOrNaN>(
        p, fallback, [&](int j) { return variances[countOf(j)]; }, [&](int j, int k) { return cells(C).get(j, k); },
        [&](int j, int k, double r) { result.set(j, k, r); });
    return 0;
}

} // namespace

int M_CovCorr(matrix*& X, int n, int p, matrix*& C, short corr, short* mask, matrix* w, short sample, short freqWeights,
              short zeroForMissing)
{
    return covCorr(cells(X), p, C, corr, w, {n, mask, sample, freqWeights}, zeroForMissing);
}

int M_CovCorr3(matrix** X, int n, int p, matrix* C, short corr, short* mask, matrix* w, short sample, short freqWeights,
               short zeroForMissing)
{
    return covCorrByValue(transposed(cells(X)), p, C, corr, w, {n, mask, sample, freqWeights}, zeroForMissing);
}

int M_CovCorr3SPV(matrix** X, int n, int p, matrix* C, short corr, short* mask, matrix* w, short sample,
                  short freqWeights, short zeroForMissing)
{
    return covCorrByValue(cells(X), p, C, corr, w, {n, mask, sample, freqWeights}, zeroForMissing);
}

int M_CovCorrSPV(matrix*& X, int n, int p, matrix** C, short corr, short* mask, matrix* w, short sample,
                 short freqWeights, short zeroForMissing)
{
    return covCorrTriangle(cells(X), p, C, corr, w, {n, mask, sample, freqWeights}, zeroForMissing);
}

int M_CovCorrSPV_T(matrix** X, int n, int p, matrix** C, short corr, short* mask, matrix* w, short sample,
                   short freqWeights, short zeroForMissing)
{
    return covCorrTriangle(transposed(cells(X)), p, C, corr, w, {n, mask, sample, freqWeights}, zeroForMissing);
}
