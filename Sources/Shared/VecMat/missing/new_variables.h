// Variances and covariances of linear combinations.
//
// @missing an ordinary number
// @empty without rows of Q only `covariances` is prepared
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The covariance table Q C Q' of the `nRows` linear combinations in the rows of Q (`nRows` by `nCols`) of variables
/// with the covariance table C, of which only the lower triangle is read. A cell outside Q or C reads as -1.0.
///
/// Cell i of `variances`, which must exist, becomes the sum, for each variable j in turn, of Q(i,j)^2 C(j,j) and, for
/// each k before j, of 2 Q(i,j) Q(i,k) C(j,k). `covariances` is prepared with `matCheck`, `nRows` by `nRows`. Its
/// diagonal are the variances; off it a cell comes by polarisation,
///
///     cov(i, m) = var(i + m)/2 - (var(i) + var(m))/2,
///
/// with the coefficients t = Q(i,.) + Q(m,.), in the order of the sum above. A variable whose |t| is not above
/// 2.220446049250313e-16 is skipped with its cross terms; as the k of a later j it counts. So the last bits differ from
/// those of a product of tables.
/// @formula Q C Q^{\top}
/// @cost of the order nRows^2 nCols^2
VECMAT_API void ComputeNewVar(matrix* Q, int nRows, int nCols, matrix* C, matrix* variances, matrix*& covariances);

/// C is `nCols` by `nCols`; `variances` has `nRows` elements and `covariances` `nRows` by `nRows`.
VECMAT_API void VB_ComputeNewVar(double* Q, int nRows, int nCols, double* C, double* variances, double* covariances);

} // extern "C"
