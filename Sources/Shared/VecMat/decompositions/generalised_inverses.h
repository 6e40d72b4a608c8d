// Moore-Penrose inverses of square tables that may be singular, from the singular value decomposition a = U S V'.
//
// `out` of order `n` exists and is written in place. `*rank` is the number of singular values that were inverted.
//
// @missing an ordinary number
// @divisor a singular value below `tol` counts as 0
// @empty 0, rank 0
// @failure -1 where the decomposition did not converge: then each value is tested by itself, since they are not sorted,
//     a NaN is kept, and rank and result are written all the same. Otherwise 0
// @memory four tables of n by n
// @source Golub and Kahan (1965), Calculating the singular values and pseudo-inverse of a matrix, SIAM Journal on
//     Numerical Analysis 2
// @weak `tol` is absolute: rank and inverse change with the scale of the table
// @cost of the order n^3
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// V inv(S) U', of a plain table and of `n` columns. The input is left unchanged.
/// @formula A^{+} = V S^{+} U^{\top}, \quad A = U S V^{\top}
VECMAT_API int M_InvGeneralized(matrix* a, int n, matrix* out, double tol, int* rank);
VECMAT_API int M_InvGeneralizedSPV(matrix** a, int n, matrix* out, double tol, int* rank);

/// U inv(S) U', for symmetric tables without negative eigenvalues. Where there is one, the columns of U and V have
/// opposite signs, and this is not the inverse. Works on `a` itself, which is restored.
/// @formula A^{+} = U S^{+} U^{\top}
VECMAT_API int M_InvGeneralizedSym(matrix* a, int n, matrix* out, double tol, int* rank);

/// Flat forms: n by n arrays, the result in place.
VECMAT_API int VB_M_InvGeneralized(double* a, int n, double* out, double tol, int* rank);
VECMAT_API int VB_M_InvGeneralizedSym(double* a, int n, double* out, double tol, int* rank);

} // extern "C"
