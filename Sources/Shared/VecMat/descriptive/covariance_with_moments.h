// Covariances or correlations of the columns of a table together with their means, standard deviations and variances,
// and the standardisation of the columns in the same pass.
//
// n observations of p variables. Pairs, weights, masks and divisors are those of `covariance.h`. What sets these
// functions apart:
//   - The factor of a row's cross product is the absolute value |w - w w / W|: other results for negative weights.
//   - A column or pair without rows is not detected: its mean is 0.0, its variance and covariance are the quotient 0/0
//     or whatever the divisor makes of 0.
//   - Only -1 in `corr` asks for correlations. There is none where the product of the two variances is 0 or below,
//     which a NaN is not; the diagonal of a column without a row is therefore 1.0.
//   - `center` and `reduce`, each exactly -1 or not at all, change X in place, column by column:
//         both            (x - mean) / root of the variance; a column of variance 0 becomes 0.0 throughout, its missing
//                         and masked cells too; cells that can't be computed become missing
//         center alone    x - mean
//         reduce alone    x / root of the variance; a column of variance 0 becomes missing
//     Masked and missing cells, and all cells of a column whose variance is not above 0 where it is divided by, become
//     missing (except for the 0.0 above). Otherwise X is left unchanged.
//
// All results are prepared with `matCheck`: C as each function says, the others p by 1. `stdev` is the root of `var`, a
// NaN for a negative one. Everything returns 0.
//
// @missing excludes its row of the pair (equality); where X is centred or reduced it stays missing, except in a column
//     of variance 0, which both together make 0.0
// @mask a nonzero entry excludes the row; may be null
// @weights required; a row of weight 0 counts in m, else changes nothing
// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested. Correlations (`corr` exactly -1):
//     none where the product of variances is 0 or below: missing, or 0.0 for a nonzero `zeroForMissing`
// @empty not detected: mean 0.0, and the quotient 0/0 where that is the divisor
// @cost of the order n p^2: one pass over the rows for each pair of columns
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// C is p by p.
VECMAT_API int M_CovCorrAndMeanStDevVar(matrix*& X, int n, int p, matrix*& C, matrix*& mean, matrix*& stdev,
                                        matrix*& var, short corr, short* mask, matrix* w, short sample,
                                        short freqWeights, short center, short reduce, short zeroForMissing);

/// C is packed, p(p+1)/2 by 1: the lower triangle by rows, pair (j, k) at position `INDEX3(j, k)`.
VECMAT_API int M_CovCorrVAndMeanStDevVar(matrix*& X, int n, int p, matrix*& C, matrix*& mean, matrix*& stdev,
                                         matrix*& var, short corr, short* mask, matrix* w, short sample,
                                         short freqWeights, short center, short reduce, short zeroForMissing);

/// The position, from 1, of element (i, j) in a packed symmetric table, in either order: with a the larger and b the
/// smaller number, both from 1, (a - 1) a / 2 + b. The numbers are not tested.
/// @divisor -
VECMAT_API int INDEX3(int i, int j);

/// Flat forms: X n by p, the results as above, `zeroForMissing` 0. X is written only where `center` or `reduce` is -1.
VECMAT_API int VB_M_CovCorrAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev, double* var,
                                           short corr, short* mask, double* w, short sample, short freqWeights,
                                           short center, short reduce);
VECMAT_API int VB_M_CovCorrVAndMeanStDevVar(double* X, int n, int p, double* C, double* mean, double* stdev,
                                            double* var, short corr, short* mask, double* w, short sample,
                                            short freqWeights, short center, short reduce);

} // extern "C"
