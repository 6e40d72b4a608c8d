#include "covariance_and_moments.h"

#include "../elementary/kernels/operands.h"
#include "../elementary/packed_storage.h"
#include "covariance_pass.h"

using namespace vecmat;

namespace {

/// A packed result, by row and column: cell (i, j) and cell (j, i), from 0, are the same one.
class PackedResult
{
public:
    explicit PackedResult(matrix* table) : cells_(linear(table)) {}

    double get(int i, int j) const { return cells_.get(position(i, j)); }
    void set(int i, int j, double value) const { cells_.set(position(i, j), value); }

private:
    static int position(int i, int j) { return static_cast<int>(static_cast<unsigned>(packedPosition(i, j))); }

    VectorCells<matrix> cells_;
};

/// What becomes of the cells of X.
enum class Standardisation { none, centred, reduced, both };

Standardisation standardisationOf(short center, short reduce)
{
    if (center == -1)
        return reduce == -1 ? Standardisation::both : Standardisation::centred;
    return reduce == -1 ? Standardisation::reduced : Standardisation::none;
}

template <class Cells>
void standardiseColumn(Cells x, int j, double mean, double variance, Standardisation kind, const PairOptions& options)
{
    const double deviation = kind == Standardisation::centred ? 1.0 : sqr(variance);
    const bool computable = kind == Standardisation::centred || variance > 0.0;
    // A column without spread is all zeros once centred; only reduced it has no value.
    const double otherwise = kind == Standardisation::both && variance == 0.0 ? 0.0 : missingValue;
    const auto standardised = [=](double cell) {
        if (kind == Standardisation::centred)
            return cell - mean;
        return kind == Standardisation::both ? (cell - mean) / deviation : cell / deviation;
    };
    const Mask rows(options.mask);
    for (int i = 0; i < options.n; ++i) {
        const double cell = x.get(i, j);
        x.set(i, j, computable && rows.keeps(i) && !isMissing(cell) ? standardised(cell) : otherwise);
    }
}

/// Stores the covariance of each pair, column number not below row number, with means and variances; the columns are
/// standardised on the way.
template <class Out>
void covariances(matrix* X, int p, Out C, VectorCells<matrix> means, VectorCells<matrix> variances, matrix* w,
                 const PairOptions& options, Standardisation standardisation)
{
    using Sums = RunningCovariance<RowFactor::magnitude>;
    onBlocks(
        [&](auto x, auto weight) {
            const CovariancePass<RowFactor::magnitude, decltype(x), decltype(weight)> pass(x, p, weight, options);
            for (int j = 0; j < p; ++j) {
                pass.run(j, [&](int k, const Sums& sums) {
                    const double covariance = options.quotient(sums.products, sums);
                    C.set(j, k, covariance);
                    if (j == k) {
                        means.set(j, sums.meanX);
                        variances.set(j, covariance);
                    }
                });
                // No later pair reads column j.
                if (standardisation != Standardisation::none)
                    standardiseColumn(x, j, means.get(j), variances.get(j), standardisation, options);
            }
        },
        block(cells(X), options.n, p), block(linear(w), options.n));
}

template <class Out>
int covCorrAndMoments(matrix* X, int p, Out C, matrix*& mean, matrix*& stdev, matrix*& var, short corr, matrix* w,
                      const PairOptions& options, Standardisation standardisation, short zeroForMissing)
{
    matrix::matCheck(mean, p, 1, 0.0);
    matrix::matCheck(stdev, p, 1, 0.0);
    matrix::matCheck(var, p, 1, 0.0);
    covariances(X, p, C, linear(mean), linear(var), w, options, standardisation);
    const auto variance = linear(var);
    if (corr == -1)
        correlate<NoCorrelation::atZeroOrBelow>(
            p, fallbackUnlessZero(zeroForMissing), [&](int j) { return variance.get(j); },
            [&](int j, int k) { return C.get(j, k); }, [&](int j, int k, double r) { C.set(j, k, r); });
    mirrorUpperTriangle(C, p);

    for (int j = 0; j < p; ++j)
        linear(stdev).set(j, sqr(variance.get(j)));
    return 0;
}

} // namespace

int M_CovCorrAndMeanStDevVar(matrix*& X, int n, int p, matrix*& C, matrix*& mean, matrix*& stdev, matrix*& var,
                             short corr, short* mask, matrix* w, short sample, short freqWeights, short center,
                             short reduce, short zeroForMissing)
{
    matrix::matCheck(C, p, p, 0.0);
    return covCorrAndMoments(X, p, cells(C), mean, stdev, var, corr, w, {n, mask, sample, freqWeights},
                             standardisationOf(center, reduce), zeroForMissing);
}

int M_CovCorrVAndMeanStDevVar(matrix*& X, int n, int p, matrix*& C, matrix*& mean, matrix*& stdev, matrix*& var,
                              short corr, short* mask, matrix* w, short sample, short freqWeights, short center,
                              short reduce, short zeroForMissing)
{
    matrix::matCheck(C, p > 0 ? INDEX3(p, p) : 0, 1, 0.0);
    return covCorrAndMoments(X, p, PackedResult(C), mean, stdev, var, corr, w, {n, mask, sample, freqWeights},
                             standardisationOf(center, reduce), zeroForMissing);
}

int INDEX3(int i, int j)
{
    int position = 0;
    GetKForVectFromIJSymMat(i, j, position);
    return position;
}
