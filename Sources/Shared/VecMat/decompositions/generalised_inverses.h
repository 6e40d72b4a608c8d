// Moore-Penrose inverses of square tables that may be singular, from the singular value decomposition a = U S V'
// (Golub, Kahan: Calculating the singular values and pseudo-inverse of a matrix, SIAM Journal on Numerical Analysis 2,
// 1965).
//
// `out` of order `n` exists and is written in place. A singular value at or above `tol`, in absolute terms, is inverted
// and the others count as 0; `*rank` is the number of those that were not left out. Returns 0, or -1 where the
// decomposition did not converge: then each value is judged for itself, since they are not sorted, a NaN is kept, and
// rank and result are written all the same. No test for the missing value. Scratch: four tables of n by n.
//
// @missing an ordinary number
// @divisor a singular value below `tol` in absolute terms counts as 0
// @empty 0, rank 0
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// V inv(S) U', of a plain table and of `n` columns. The input survives.
VECMAT_API int M_InvGeneralized(matrix* a, int n, matrix* out, double tol, int* rank);
VECMAT_API int M_InvGeneralizedSPV(matrix** a, int n, matrix* out, double tol, int* rank);

/// U inv(S) U', for symmetric tables without negative eigenvalues. Where there is one, the columns of U and V have
/// opposite signs, and this is not the inverse. Works on `a` itself, which is restored.
VECMAT_API int M_InvGeneralizedSym(matrix* a, int n, matrix* out, double tol, int* rank);

/// Flat forms: n by n arrays, the result in place.
VECMAT_API int VB_M_InvGeneralized(double* a, int n, double* out, double tol, int* rank);
VECMAT_API int VB_M_InvGeneralizedSym(double* a, int n, double* out, double tol, int* rank);

} // extern "C"
