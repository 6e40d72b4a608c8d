// Covariances or correlations together with the moments of the columns, from any storage: the steps of
// `covariance_with_moments.h`. Internal to the library.
#pragma once

#include "../../access/cells.h"
#include "../../access/packed_cells.h"
#include "../../base/detail/companions.h"
#include "covariance_pass.h"
#include "pair_pass.h"

namespace vecmat {

/// Where the moments of the columns are written.
struct ColumnMoments
{
    VectorCells<matrix> means;
    VectorCells<matrix> deviations;
    VectorCells<matrix> variances;
};

/// Stores the covariance of each pair, column number not below row number, with means and variances. `done(j)` is
/// called after the pairs of column j, which no later pair reads.
template <class X, class Weight, class Out, class Done>
void covariances(X x, int p, Weight weight, const PairOptions& options, Out C, const ColumnMoments& moments, Done done)
{
    using Sums = RunningCovariance<RowFactor::magnitude>;
    const CovariancePass<RowFactor::magnitude, X, Weight> pass(x, p, weight, options);
    for (int j = 0; j < p; ++j) {
        pass.run(j, [&](int k, const Sums& sums) {
            const double covariance = options.quotient(sums.products, sums);
            C.set(j, k, covariance);
            if (j == k) {
                moments.means.set(j, sums.meanX);
                moments.variances.set(j, covariance);
            }
        });
        done(j);
    }
}

/// Turns them into correlations.
template <class Out>
void correlate(int p, Out C, const ColumnMoments& moments, double fallback)
{
    correlate<NoCorrelation::atZeroOrBelow>(
        p, fallback, [&](int j) { return moments.variances.get(j); }, [&](int j, int k) { return C.get(j, k); },
        [&](int j, int k, double r) { C.set(j, k, r); });
}

/// Replaces variances by standard deviations.
inline void takeRoots(int p, const ColumnMoments& moments)
{
    for (int j = 0; j < p; ++j)
        moments.deviations.set(j, squareRoot(moments.variances.get(j)));
}

} // namespace vecmat
