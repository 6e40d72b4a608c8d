// Inverses of square and triangular tables. The square one is the member `matrix::inverse1`, with a twin over columns.
//
// All access is checked: outside a table a read gives -1.0, which takes part, and a write is dropped. No test for the
// missing value: it is the number that it is.
//
// @missing an ordinary number
// @divisor a pivot up to 1e-8, or 2.220446049250313e-16 for `tol` at or below 0, or a row of zeros: -1, `out` untouched
// @empty 0
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// `matrix::inverse1` over an array of `count` columns of at least n cells; `out` is a plain table of n by n. A column
/// that is not there is one without cells. `ignored` is not used. The input survives.
///
/// Both factor a private copy by Crout's method with implicit scaled pivoting and solve for each unit vector (ludcmp
/// and lubksb of Press, Flannery, Teukolsky, Vetterling: Numerical Recipes, 1st edition), but end where a row is all
/// zeros, or where a pivot is at most 1e-8 in absolute terms; at most 2.220446049250313e-16 for a `tol` of 0 or below,
/// of which nothing but the sign counts (a NaN is positive). Returns 0; -1 where it ends early, and then `out` is not
/// touched. Order 0 succeeds. Scratch: two tables of n by n and up to 32 columns.
VECMAT_API int Inverse1SPV(matrix** a, matrix* out, int n, int count, int ignored, double tol);

/// Inverse of a triangular table by substitution: lower triangular for any `lower` but 0, else upper. The other
/// triangle of `a` is not read, that of `out` keeps what it held: `out` exists and is not prepared.
///
/// Returns 0, or -1 at the first diagonal cell below `tol` in absolute terms (one equal to `tol` passes); the diagonal
/// of `out` is done up to there. Scratch: up to 32 columns, for large tables.
/// @divisor a diagonal cell below `tol` in absolute terms: -1
VECMAT_API int M_InverseTriang(matrix* a, int n, short lower, matrix*& out, double tol);

// ---- flat forms: n by n arrays -------------------------------------------------------------------------------------

/// Returns the status: 0, or -1 with `out` untouched. The two arrays may be one.
VECMAT_API int VB_M_Inverse1(double* a, int n, double* out, double tol);
/// Here the other triangle of `out` becomes 0.0, and after -1 everything but the part of the diagonal that was done.
VECMAT_API int VB_M_InverseTriang(double* a, int n, short lower, double* out, double tol);

} // extern "C"
