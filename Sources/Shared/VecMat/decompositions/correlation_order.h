// The variables of a correlation table, in the order of a score.
//
// @missing left out of the first row for `mode` 1 and 2 (equality); with `mode` 3 any one makes every score 0
// @divisor with `mode` 2 W - 1; where that is 0 (n = 2) the variance is a NaN and the order is undetermined
// @empty nothing moves
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Sorts the n variables of R by a score, descending, equal scores in the order they had, and applies that order to the
/// `labels` (n) and to both axes of R and of the companion tables `second` and `third` (each n by n), all in place.
/// Only these cells are changed. The diagonal of R is 1.0 afterwards, whatever it was.
///
/// The score of variable i is for `mode`
///     1      the largest cell of the first row of R
///     2      the variance of the first row, W - 1 being the divisor
///     3      cell i of the first eigenvector, with its sign; 0 for every i where a cell of R is missing
///     other  0
/// In modes 1 and 2 it is the first row for every i. For i = 1 its diagonal cell is left out, for the others it counts
/// as 1.0, so the first variable is set apart and the rest tie.
///
/// Cell (i, j) of a result is cell (order[j], order[i]) of the table: one that is not symmetric comes out transposed.
/// Returns 0.
VECMAT_API int ReOrderCorrelations(matrix* R, int n, int mode, Smatrix* labels, matrix* second, matrixInt* third);

/// Flat form: the labels come back as new BSTRs in all n places; the old ones are not released.
VECMAT_API int Cpp_ReOrderCorrelations(double* R, int n, int mode, wchar_t** labels, double* second, int* third);

} // extern "C"
