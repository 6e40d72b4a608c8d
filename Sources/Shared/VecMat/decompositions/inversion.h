// Inverses of square and triangular tables. The square one is the member `matrix::inverse1`, with a twin over columns.
//
// All access is checked: outside a table a read gives -1.0, which takes part, and a write is dropped.
//
// @missing an ordinary number
// @divisor a pivot up to 1e-8, or 2.220446049250313e-16 for `tol` at or below 0, or a row of zeros fails
// @empty 0
// @weak pivots are tested in absolute terms: a regular table of small scale fails, a singular one of large scale may
//     pass
// @cost of the order n^3
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// `matrix::inverse1` over an array of `count` columns of at least n cells; `out` is a plain table of n by n. A column
/// that is not there is one without cells. `ignored` is not used. The input is left unchanged.
///
/// Both factor a private copy by Crout's method with implicit scaled pivoting and solve for each unit vector. Of `tol`
/// only the sign counts (a NaN is positive).
/// @failure -1 with `out` untouched. Otherwise 0
/// @memory two tables of n by n and up to 32 columns
/// @source ludcmp and lubksb of Press, Flannery, Teukolsky and Vetterling, Numerical Recipes, 1st edition
VECMAT_API int Inverse1SPV(matrix** a, matrix* out, int n, int count, int ignored, double tol);

/// Inverse of a triangular table by substitution: lower triangular for any `lower` but 0, otherwise upper. The other
/// triangle of `a` is not read, that of `out` keeps its values: `out` exists and is not prepared.
/// @divisor a diagonal cell below `tol` in absolute terms (one equal to it passes) fails
/// @failure -1; the diagonal of `out` is done up to that cell. Otherwise 0
/// @memory up to 32 columns, for large tables
VECMAT_API int M_InverseTriang(matrix* a, int n, short lower, matrix*& out, double tol);

// ---- flat forms: n by n arrays -------------------------------------------------------------------------------------

/// Returns the status: 0, or -1 with `out` untouched. The two arrays may be one.
VECMAT_API int VB_M_Inverse1(double* a, int n, double* out, double tol);
/// Here the other triangle of `out` becomes 0.0, and after -1 everything but the part of the diagonal that was done.
VECMAT_API int VB_M_InverseTriang(double* a, int n, short lower, double* out, double tol);

} // extern "C"
