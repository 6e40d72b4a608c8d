// Covariances and correlations between two sets of columns, and the correlation of two vectors.
//
// n observations. A row enters a pair where the mask keeps it and neither cell is missing. The weights w have n cells.
// The variances of a pair come from the rows of that pair, unlike those of `covariance.h`. Divisors (`sample`,
// `freqWeights`) are those of `covariance.h`.
//
// @missing excludes its row of the pair (equality)
// @mask a nonzero entry excludes the row; may be null
// @weights required; a row of weight 0 counts in m, else changes nothing
// @divisor as in `covariance.h`, not tested. Correlations: the root of the product of two variances; where |product| -
//     1e-12 is not above 0 (a NaN is not) missing, or 0.0 for a nonzero `zeroForMissing`
// @empty a pair without rows gives 0/0, or 0/-1 for frequencies
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Covariances, or for any `corr` but 0 correlations, of the p columns of X with the q columns of Y. C is p by q,
/// prepared with `matCheck`; X is one table, or an array of columns.
///
/// A correlation divides by the root of a variance of the column of X times one of the column of Y. With missing cells
/// a column has another variance in each pair; the one used is that of its last pair: of each column of X with the last
/// column of Y, and of each column of Y with the last column of X. With a nonzero `square` a correlation that is
/// computed is squared. Returns 0.
/// @formula c_{jk} = \frac{1}{D_{jk}} \sum_i w_i (x_{ij} - \bar x_j)(y_{ik} - \bar y_k)
/// @weak the product of the variances is tested in absolute terms: the correlation of two columns whose deviations are
///     below 1e-3 is missing. With missing cells it takes the variances of other pairs, and can exceed 1;
///     `CorrelPearson` does neither
VECMAT_API int M_CorrMatMat(matrix* X, int n, int p, matrix* Y, int q, matrix*& C, short* mask, matrix* w, short corr,
                            short square, short sample, short freqWeights, short zeroForMissing);
VECMAT_API int M_CorrMatMatSPV(matrix** X, int n, int p, matrix* Y, int q, matrix*& C, short* mask, matrix* w,
                               short corr, short square, short sample, short freqWeights, short zeroForMissing);

/// Pearson's correlation of two vectors. Where neither varies, which includes a single row and rows of weight 0 alone,
/// it is 1.0; where the cross products sum to 0, 0.0.
/// @formula r = \frac{\sum_i w_i (x_i - \bar x)(y_i - \bar y)}{\sqrt{\sum_i w_i (x_i - \bar x)^2 \, \sum_i w_i (y_i -
///     \bar y)^2}}
/// @missing excludes its row (equality)
/// @divisor cancels: `sample` and `freqWeights` have no effect. Where just one of the vectors varies: missing, or 0.0
///     for `zeroForMissing` exactly -1
/// @empty 0.0
VECMAT_API double CorrelPearson(matrix* x, matrix* y, int n, short* mask, matrix* w, short sample, short freqWeights,
                                short zeroForMissing);

/// Flat forms: X n by p (or an array of p columns of n), Y n by q, C p by q, vectors of n; `zeroForMissing` 0.
VECMAT_API int VB_M_CorrMatMat(double* X, int n, int p, double* Y, int q, double* C, short* mask, double* w, short corr,
                               short square, short sample, short freqWeights);
VECMAT_API int VB_M_CorrMatMatSPV(SAFEARRAY** X, int n, int p, double* Y, int q, double* C, short* mask, double* w,
                                  short corr, short square, short sample, short freqWeights);
VECMAT_API double VB_CorrelPearson(double* x, double* y, int n, short* mask, double* w, short sample,
                                   short freqWeights);

} // extern "C"
