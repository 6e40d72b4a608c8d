// Inverses and determinants of what linear constraints leave of a square table of order `n`.
//
// An inverse goes to the kept rows of `out`, each over all n columns, with 0.0 in the columns that were removed; rows
// that were removed keep their values. `out` exists and is not prepared. A single kept row has an inverse of its own:
// the reciprocal of the cell. The input is left unchanged.
//
// @missing an ordinary number
// @mask `constraints`, n entries: above 0 removes row and column, exactly 0 keeps them; there are no other entries
// @divisor a pivot up to 1e-8 is singular; a single kept cell of exactly 0 counts as 1e-12
// @empty nothing kept is a success: 0
// @weak pivots are tested in absolute terms: a regular block of small scale counts as singular, one of large scale that
//     is singular may pass
// @cost of the order n^3
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Inverse of the block by `matrix::inverse1` with its larger threshold.
/// @failure none: returns 0, or 1 where the block is singular and `out` has its g2 inverse instead, with a tolerance of
///     1e-12
VECMAT_API int cCleanConstraintsAndInvert(int n, matrix* constraints, matrix* a, matrix*& out);
VECMAT_API int cCleanConstraintsAndInvert(int n, matrixInt* constraints, matrix* a, matrix*& out);

/// Inverse of a triangular block by `M_InverseTriang` with a tolerance of 1e-12.
/// @divisor a diagonal cell below 1e-12 in absolute terms fails; a single kept cell of exactly 0 counts as 1e-12
/// @failure -1 with `out` untouched: there is no generalised inverse to fall back on. Otherwise 0
VECMAT_API int cCleanConstraintsAndInvertTriang(int n, matrix* constraints, matrix* a, short lower, matrix*& out);
VECMAT_API int cCleanConstraintsAndInvertTriang(int n, matrixInt* constraints, matrix* a, short lower, matrix*& out);

/// `M_Determinant` of the block without the logarithm on overflow. With one kept row it is the cell itself, without
/// logarithms, and `*status` is not written.
/// @divisor as `M_Determinant`
/// @empty 1.0
/// @weak -
VECMAT_API double M_DeterminantCleaned(matrix* a, int n, matrix* constraints, short* status);
VECMAT_API double M_DeterminantCleaned(matrix* a, int n, matrixInt* constraints, short* status);

// ---- flat forms: n by n arrays, n entries of `constraints`, results in place ----------------------------------------

extern "C" {

VECMAT_API int CleanConstraintsAndInvert(int n, int* constraints, double* a, double* out);
VECMAT_API int CleanConstraintsAndInvertTriang(int n, int* constraints, double* a, short lower, double* out);
VECMAT_API double VB_M_DeterminantCleaned(double* a, int n, int* constraints, short* status);

} // extern "C"
