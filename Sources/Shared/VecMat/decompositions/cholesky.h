// Cholesky factors, a = L L', of symmetric positive definite tables: the row form, which reads `a` on and above the
// diagonal only. L is lower triangular.
//
// The forms differ in the tests of a pivot, on purpose: 1e-12 is the least for a full factor, 0 for one of a retained
// block. A NaN passes both. All access is checked: outside the table a read gives -1.0, which takes part.
//
// @missing an ordinary number
// @divisor a pivot below 1e-12, in absolute terms, fails
// @empty 0
// @source Golub and Van Loan, Matrix Computations
// @cost of the order n^3
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// L of order `n` into `l`, which goes through `matCheck` with 0.0. The terms of a cell are subtracted from the last
/// column done back to the first.
/// @formula A = L L^{\top}
/// @failure -1; the columns before that pivot are done, the rest is 0.0. Otherwise 0
/// @memory a table of the order and up to 32 columns, for large tables
/// @weak the pivot is tested in absolute terms: a positive definite table fails where its cells are below about 1e-12
VECMAT_API int M_CholDecomp(matrix* a, int n, matrix*& l);

} // extern "C"

/// The same with a search for the pivot on the diagonal before each column but the last: L L' is `a` with rows and
/// columns in the order of `perm`, whose n cells, from 1, are written. `l` is cleared with 0.0 (`matCheck`); one that
/// is too small is left unchanged, and the result is lost.
///
/// The first pivot is the largest of the diagonal. Later ones are the largest of an estimate: the diagonal cell less
/// the square of the cell in the row of the pivot before over L's diagonal there, not over its square, and without the
/// rows before that one. Of equal candidates the first wins.
///
/// A `keep` of exactly -1 replaces `a` by the permuted table, as far as the permutation has gone; any other leaves it.
/// @formula P^{\top} A P = L L^{\top}
/// @failure -1, with the columns before that pivot done. Otherwise 0
/// @memory a copy of `a` and a column
/// @weak this is not the complete pivoting of the literature (Higham, Accuracy and Stability of Numerical Algorithms):
///     a table that it would factor may end in -1 here. The pivot is tested in absolute terms, as in `M_CholDecomp`
VECMAT_API int M_CholDecompPrinc(matrix* a, int n, matrix* l, matrix* perm, short keep);
VECMAT_API int M_CholDecompPrinc(matrix* a, int n, matrix* l, matrixInt* perm, short keep);

/// L of the rows and columns that `mask` retains. `l` exists and is not prepared: rows that were dropped keep their
/// values, in the others the columns that were dropped become 0.0.
/// @mask above 0 drops row and column, exactly 0 keeps them; there are no other entries
/// @divisor a pivot below 0 fails; one of exactly 0 is accepted, fails as the divisor of the next row, and passes at
///     the last one
/// @failure -1 with `l` untouched. Otherwise 0
/// @memory three tables of the order of the block and up to 32 columns
VECMAT_API int M_CholDecompCleaned(matrix* a, int n, matrix* mask, matrix* l);
VECMAT_API int M_CholDecompCleaned(matrix* a, int n, matrixInt* mask, matrix* l);

// ---- flat forms: n by n arrays, n cells of `perm` and `mask` --------------------------------------------------------

extern "C" {

VECMAT_API int VB_M_CholDecomp(double* a, int n, double* l);
/// `a`, `l` and `perm` are changed in place.
VECMAT_API int VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short keep);
VECMAT_API int VB_M_CholDecompCleaned(double* a, int n, int* mask, double* l);

} // extern "C"
