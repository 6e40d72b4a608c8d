// The correlation table of a covariance table.
//
// Off the diagonal, the covariance divided by the root of the product of the two variances; on the diagonal, 1.0. The
// thresholds differ: a variance of 1e-13 gives a fallback on the diagonal beside real correlations. Everything returns
// 0.
//
// @missing an ordinary number
// @divisor the root of the product of the two variances, where that is above 0; 1.0 on the diagonal where the variance
//     is above 1e-12; elsewhere, a NaN included, the fallback: missing, or 0.0 for `zeroForMissing` exactly -1
// @empty nothing is written
// @cost p^2
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// From S into R, both of order p; R must exist, is not prepared, and may be S. Only the upper triangle and the
/// diagonal of S are read; R is symmetric.
/// @formula r_{jk} = \frac{s_{jk}}{\sqrt{s_{jj}\, s_{kk}}}, \quad r_{jj} = 1
VECMAT_API int M_CorrMatFromCovMat(matrix* S, int p, matrix* R, short zeroForMissing);

/// In place in a triangle of p columns, column j holding pair (j, k) in cell k - j.
/// @formula r_{jk} = \frac{s_{jk}}{\sqrt{s_{jj}\, s_{kk}}}, \quad r_{jj} = 1
/// @divisor the root of the product of the two variances, where that is above 0; 1.0 on the diagonal where the variance
///     is above 1e-12; elsewhere missing
VECMAT_API int M_CorrMatFromCovMatSPV2_T(matrix** C, int p);

/// Flat forms; S and R are p by p and may be the same array, `zeroForMissing` is 0.
VECMAT_API int VB_M_CorrMatFromCovMat(double* S, int p, double* R);
VECMAT_API int Cpp_M_CorrMatFromCovMatSPV2_T(SAFEARRAY** C, int p);

} // extern "C"
