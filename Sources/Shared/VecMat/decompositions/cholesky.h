// Cholesky factors, a = L L', of symmetric positive definite tables: the row form (Golub, Van Loan: Matrix
// Computations), which reads `a` on and above the diagonal only. L is lower triangular.
//
// The forms differ in the tests of a pivot, on purpose: 1e-12 is the least for a full factor, 0 for one of a retained
// block. A NaN passes both. All access is checked: outside the table a read gives -1.0, which takes part. No test for
// the missing value.
//
// @missing an ordinary number
// @mask above 0 drops row and column, exactly 0 keeps
// @divisor a pivot below 1e-12: -1
// @empty 0
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// L of order `n` into `l`, which goes through `matCheck` with 0.0. Returns 0, or -1 at the first pivot below 1e-12, in
/// absolute terms; the columns before it are done, the rest is 0.0. The terms of a cell are taken off from the last
/// column done back to the first. Scratch: a table of the order and up to 32 columns, for large tables.
/// @divisor a pivot below 1e-12 in absolute terms: -1
VECMAT_API int M_CholDecomp(matrix* a, int n, matrix*& l);

} // extern "C"

/// The same with a search for the pivot on the diagonal before each column but the last: L L' is `a` with rows and
/// columns in the order of `perm`, whose n cells, from 1, are written. `l` is cleared with 0.0 (`matCheck`); one that
/// is too small stays as it is, and the result is lost.
///
/// The first pivot is the largest of the diagonal. Later ones are the largest of an estimate: the diagonal cell less
/// the square of the cell in the row of the pivot before over L's diagonal there, not over its square, and without the
/// rows before that one. So this is not the complete pivoting of the literature (Higham: Accuracy and Stability of
/// Numerical Algorithms), and a table that it would factor may end in -1 here. Of equal candidates the first wins.
///
/// Returns 0, or -1 at a pivot below 1e-12 with the columns before it done. On both, a `keep` of exactly -1 replaces
/// `a` by the permuted table, as far as the permutation has gone; any other leaves it. Scratch: a copy of
/// `a`, a column.
VECMAT_API int M_CholDecompPrinc(matrix* a, int n, matrix* l, matrix* perm, short keep);
VECMAT_API int M_CholDecompPrinc(matrix* a, int n, matrix* l, matrixInt* perm, short keep);

/// L of the rows and columns that `mask` retains: an entry above 0 drops row and column i, one of exactly 0 keeps them;
/// there are no others. `l` exists and is not prepared: rows that were dropped keep what they held, in the others the
/// columns that were dropped become 0.0.
///
/// Here a pivot fails only below 0. One of exactly 0 is accepted: it fails as the divisor of the next row, and passes
/// at the last one. Returns 0, or -1 with `l` untouched. Scratch: three tables of the order of the block and up to
/// 32 columns.
/// @divisor a pivot below 0: -1; one of exactly 0 fails as the divisor of the next row
VECMAT_API int M_CholDecompCleaned(matrix* a, int n, matrix* mask, matrix* l);
VECMAT_API int M_CholDecompCleaned(matrix* a, int n, matrixInt* mask, matrix* l);

// ---- flat forms: n by n arrays, n cells of `perm` and `mask` --------------------------------------------------------

extern "C" {

VECMAT_API int VB_M_CholDecomp(double* a, int n, double* l);
/// `a`, `l` and `perm` are changed in place.
VECMAT_API int VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short keep);
VECMAT_API int VB_M_CholDecompCleaned(double* a, int n, int* mask, double* l);

} // extern "C"
