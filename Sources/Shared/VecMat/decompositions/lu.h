// Triangular factors of a square table.
//
// @missing an ordinary number
// @divisor a pivot of exactly 0 becomes 1e-20, also the last one, so that a singular table is factored too
// @empty status 0, parity 1.0
// @cost of the order n^3
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// P a = L U of order `n` in place: L below the diagonal, its unit diagonal implied, U on and above it, of the rows as
/// permuted. `index` goes through `matCheck`, n by 1: index(j) is the row, from 1, that was exchanged with row j at
/// step j; `*d` is the parity of the exchanges, 1.0 or -1.0.
///
/// Crout's method with implicit scaled pivoting. Of equal candidates for a pivot the last wins. All access is checked:
/// outside the table a read gives -1.0, which takes part, and a write is dropped.
/// @formula P A = L U
/// @failure `*status`: -1 where a row is all zeros (NaN counts as zero), with `a` untouched, `index` 0 and `*d` 1.0; 1
///     where no candidate of the first column compares, all being NaN, with the same. Otherwise 0
/// @memory a table of the order and up to 16 columns, for large tables
/// @source ludcmp of Press, Flannery, Teukolsky and Vetterling, Numerical Recipes, 1st edition
VECMAT_API void M_LUDecomp(matrix*& a, int n, matrixInt*& index, double* d, short* status);

/// Flat form: `a` n by n and `index` n, both in place. Returns 0.
VECMAT_API int VB_M_LUDecomp(double* a, int n, int* index, double* d, short* status);

} // extern "C"
