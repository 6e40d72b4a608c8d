#include "covariance_with_moments.h"

#include "../access/cells.h"
#include "../access/packed_cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/missing_value.h"
#include "../elementary/packed_storage.h"
#include "detail/moments_pass.h"
#include "detail/pair_pass.h"

using namespace vecmat;

namespace {

/// What is done to the cells of X.
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
    const double deviation = kind == Standardisation::centred ? 1.0 : squareRoot(variance);
    const bool computable = kind == Standardisation::centred || variance > 0.0;
    // A column without spread becomes zeros if it is centred too; if only reduced it has no value.
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

/// Rows past the end of a column are rows of the next one: changing a column then changes the next too, before that
/// one's own pairs are computed.
Reading readingOf(matrix* X, int n, int p, Standardisation standardisation)
{
    if (standardisation == Standardisation::none || n < 1 || p < 2)
        return Reading::ahead;
    return n > X->nRows ? Reading::inTurn : Reading::ahead;
}

template <class Out>
int covCorrAndMoments(matrix* X, int p, Out C, matrix*& mean, matrix*& stdev, matrix*& var, short corr, matrix* w,
                      PairOptions options, Standardisation standardisation, short zeroForMissing)
{
    options.reading = readingOf(X, options.n, p, standardisation);
    matrix::matCheck(mean, p, 1, 0.0);
    matrix::matCheck(stdev, p, 1, 0.0);
    matrix::matCheck(var, p, 1, 0.0);
    const ColumnMoments moments{linear(mean), linear(stdev), linear(var)};
    onBlocks(
        [&](auto x, auto weight) {
            covariances(x, p, weight, options, C, moments, [&](int j) {
                if (standardisation != Standardisation::none)
                    standardiseColumn(x, j, moments.means.get(j), moments.variances.get(j), standardisation, options);
            });
        },
        block(cells(X), options.n, p), block(linear(w), options.n));
    if (corr == -1)
        correlate(p, C, moments, fallbackUnlessZero(zeroForMissing));
    mirrorUpperTriangle(C, p);
    takeRoots(p, moments);
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
