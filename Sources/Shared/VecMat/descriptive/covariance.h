// Covariances and correlations of the columns of a table, pair by pair.
//
// Common to this unit: n observations of p variables. A row enters the pair (j, k) where the mask keeps it and neither
// of its two cells is missing; a NaN enters. The covariance of a pair comes from the rows of that pair, each variance
// from the rows of its own column, so correlations may exceed plus or minus 1 where cells are missing. The weights w
// have n cells.
//
// With W the sum of weights of the pair's rows and m their number, the divisor of its cross products is
//     W            for `sample` other than -1
//     W - 1        for `sample` -1 and `freqWeights` -1: the weights are frequencies
//     W - W/m      for `sample` -1 and any other `freqWeights`
// `corr` 0 gives covariances, any other value correlations, each covariance divided by the root of the product of the
// two variances, with 1.0 on the diagonal. A covariance that cannot be computed is then divided like any other. The
// variance of a column without a row is the missing value; its product with itself is infinite, so this diagonal cell
// is 1.0. Everything returns 0.
//
// @missing excludes its row of the pair (equality): pairwise, never listwise
// @mask a nonzero entry excludes the row; may be null
// @weights required; a row of weight 0 counts in m, else changes nothing
// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested: one row with a corrected divisor
//     gives 0/0, a NaN. Correlations: the root of the product of the two variances
// @empty a pair without rows, or for correlations a product of variances of 0: missing, or 0.0 for a nonzero
//     `zeroForMissing`
// @memory a copy of the rows that the mask keeps and a square of p by p; where that is short the functions do without,
//     slower and with the same results
// @cost of the order n p^2: one pass over the rows for each pair of columns
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

// ---- a square result ------------------------------------------------------------------------------------------------
//
// C is p by p, prepared with `matCheck`. A product of variances that is a NaN is not 0: the correlation is computed.

/// From one table.
/// @formula s_{jk} = \frac{1}{D_{jk}} \sum_i w_i (x_{ij} - \bar x_j)(x_{ik} - \bar x_k), \quad r_{jk} =
///     \frac{s_{jk}}{\sqrt{s_j^2\, s_k^2}}
VECMAT_API int M_CovCorr(matrix*& X, int n, int p, matrix*& C, short corr, short* mask, matrix* w, short sample,
                         short freqWeights, short zeroForMissing);

/// From an array of observations, each a table of p cells, and from an array of columns of n cells. C is passed by
/// value: where it is null or too small to be kept, the result is lost and C is left unchanged.
/// @formula s_{jk} = \frac{1}{D_{jk}} \sum_i w_i (x_{ij} - \bar x_j)(x_{ik} - \bar x_k), \quad r_{jk} =
///     \frac{s_{jk}}{\sqrt{s_j^2\, s_k^2}}
VECMAT_API int M_CovCorr3(matrix** X, int n, int p, matrix* C, short corr, short* mask, matrix* w, short sample,
                          short freqWeights, short zeroForMissing);
VECMAT_API int M_CovCorr3SPV(matrix** X, int n, int p, matrix* C, short corr, short* mask, matrix* w, short sample,
                             short freqWeights, short zeroForMissing);

/// Flat form: X n by p, never changed, C p by p, `zeroForMissing` 0.
VECMAT_API int VB_M_CovCorr(double* X, int n, int p, double* C, short corr, short* mask, double* w, short sample,
                            short freqWeights);

// ---- a triangular result --------------------------------------------------------------------------------------------
//
// C is an array of p columns that must exist: pair (j, k), from 0 and j at most k, is cell k - j of column j. Only
// these cells are written, and nothing is cleared. A product of variances that is a NaN has no correlation.
//
// Correlations do not read the covariance from the cell it was written to, but from cell j of column k: in a triangle
// that is the covariance of k and k + j, or -1.0 beyond the end of the column; in a longer column whatever is there.

/// From one table, and from an array of observations, each a table of p cells.
/// @formula s_{jk} = \frac{1}{D_{jk}} \sum_i w_i (x_{ij} - \bar x_j)(x_{ik} - \bar x_k), \quad j \le k
/// @weak correlations have other pairs' covariances as numerators, as told above: take them from a square result
VECMAT_API int M_CovCorrSPV(matrix*& X, int n, int p, matrix** C, short corr, short* mask, matrix* w, short sample,
                            short freqWeights, short zeroForMissing);
VECMAT_API int M_CovCorrSPV_T(matrix** X, int n, int p, matrix** C, short corr, short* mask, matrix* w, short sample,
                              short freqWeights, short zeroForMissing);

} // extern "C"
