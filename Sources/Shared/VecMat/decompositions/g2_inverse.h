// The g2 inverse of a square table by sweeps with a tolerance for the pivot, in the manner of the G2SWEEP operator. A
// reflexive inverse, a g a = a and g a g = g, for symmetric tables without negative eigenvalues, but not that of Moore
// and Penrose: the row and the column of each dependent parameter are 0.
//
// All access is checked: outside a table a read gives -1.0, which takes part, and a write is dropped. Results are
// written in place, to tables that exist. Nothing fails.
//
// @missing an ordinary number
// @divisor a pivot below `tol` (one equal to it is not) zeroes its row and column; with a `tol` of 0 none does, and 0
//     divides
// @empty nothing is written
// @source Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
// @weak `tol` is absolute: what counts as dependent changes with the scale of the table
// @cost of the order n^3: n^2 for each pivot
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// One sweep of the full table `a` of order `n` on pivot `k`, 1-based, in place. The row is divided by the pivot, the
/// column by the pivot with its sign changed.
VECMAT_API void G2SweepStep(matrix* a, int n, int k, double tol);

/// The sweeps of a copy of `a` on all pivots in order, each seeing what the ones before have left.
VECMAT_API void M_InverseG2(matrix* a, int n, double tol, matrix* out);

/// The same on selected pivots.
/// @mask `select`: exactly 1 sweeps; for the others row and column become 0.0 in their turn where `zeroOthers` is
///     exactly -1; with any other value they stay, and hold the mixed cells of a partial sweep
VECMAT_API void M_InverseG2Selective(matrix* a, int n, matrixInt* select, double tol, matrix* out, short zeroOthers);

/// Flat forms: n by n arrays, n entries of `select`, the result in place.
VECMAT_API void Cpp_M_InverseG2(double* a, int n, double tol, double* out);
VECMAT_API void Cpp_M_InverseG2Selective(double* a, int n, int* select, double tol, double* out, short zeroOthers);

} // extern "C"
