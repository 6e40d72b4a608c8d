#include "cross_correlation.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "detail/pair_pass.h"

#include <cmath>
#include <vector>

using namespace vecmat;

namespace {

/// The last variances stored for each column of either side.
struct Variances
{
    std::vector<double> ofX;
    std::vector<double> ofY;
};

template <class Data>
void findCovariances(Data X, int p, matrix* Y, int q, matrix* C, Variances& variances, matrix* w,
                     const PairOptions& options)
{
    const auto result = cells(C);
    onBlocks(
        [&](auto x, auto y, auto weight) {
            const auto pass = pairPass<RunningCorrelation>(x, y, q, weight, options);
            for (int j = 0; j < p; ++j)
                pass.run(j, 0, q, [&](int k, const RunningCorrelation& sums) {
                    result.set(j, k, options.quotient(sums.products, sums));
                    // Every pair overwrites both: the last pair's remain.
                    variances.ofX[countOf(j)] = options.quotient(sums.squaresX, sums);
                    variances.ofY[countOf(k)] = options.quotient(sums.squaresY, sums);
                });
        },
        block(X, options.n, p), block(cells(Y), options.n, q), block(linear(w), options.n));
}

template <class Data>
int corrMatMat(Data X, int p, matrix* Y, int q, matrix*& C, matrix* w, short corr, short square,
               const PairOptions& options, short zeroForMissing)
{
    // Taken before the first write to a result.
    Variances variances{std::vector<double>(countOf(p)), std::vector<double>(countOf(q))};
    matrix::matCheck(C, p, q, 0.0);
    findCovariances(X, p, Y, q, C, variances, w, options);
    if (corr == 0)
        return 0;
    const auto result = cells(C);
    for (int j = 0; j < p; ++j)
        for (int k = 0; k < q; ++k) {
            const double product = variances.ofX[countOf(j)] * variances.ofY[countOf(k)];
            if (!(std::fabs(product) - zeroTolerance > 0.0)) {
                result.set(j, k, fallbackUnlessZero(zeroForMissing));
                continue;
            }
            const double r = result.get(j, k) / std::sqrt(product);
            result.set(j, k, square != 0 ? r * r : r);
        }
    return 0;
}

} // namespace

int M_CorrMatMat(matrix* X, int n, int p, matrix* Y, int q, matrix*& C, short* mask, matrix* w, short corr,
                 short square, short sample, short freqWeights, short zeroForMissing)
{
    return corrMatMat(cells(X), p, Y, q, C, w, corr, square, {n, mask, sample, freqWeights}, zeroForMissing);
}

int M_CorrMatMatSPV(matrix** X, int n, int p, matrix* Y, int q, matrix*& C, short* mask, matrix* w, short corr,
                    short square, short sample, short freqWeights, short zeroForMissing)
{
    return corrMatMat(cells(X), p, Y, q, C, w, corr, square, {n, mask, sample, freqWeights}, zeroForMissing);
}

double CorrelPearson(matrix* x, matrix* y, int n, short* mask, matrix* w, short sample, short freqWeights,
                     short zeroForMissing)
{
    RunningCorrelation sums;
    onBlocks(
        [&](auto cellsOfX, auto cellsOfY, auto weight) {
            pairPass<RunningCorrelation>(cellsOfX, cellsOfY, 1, weight, {n, mask, sample, freqWeights})
                .run(0, 0, 1, [&](int, const RunningCorrelation& all) { sums = all; });
        },
        block(cells(x), n, 1), block(cells(y), n, 1), block(linear(w), n));
    if (sums.rows == 0)
        return 0.0;
    if (sums.products == 0.0 && sums.squaresX == 0.0 && sums.squaresY == 0.0)
        return 1.0;
    if (sums.squaresX == 0.0 || sums.squaresY == 0.0)
        return fallbackForMinusOne(zeroForMissing);
    if (sums.products == 0.0)
        return 0.0;
    return sums.products / std::sqrt(sums.squaresX * sums.squaresY);
}
