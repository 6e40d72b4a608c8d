// Cleaning a contingency table of its empty rows and columns.
//
// @missing left out of the sums (equality); a line that is missing throughout is dropped
// @empty a line without cells is dropped
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Copies T (n by p) to R without the rows and columns whose sums are at or below 1e-12, so without lines of negative
/// sum too. The rows and columns that are kept move up and to the left in R; R keeps its values after them, except for
/// cells that they moved over. A sum that is NaN is kept.
///
/// Both margins are taken once, from the whole of T: a dropped column still counts in the sums of the rows.
///
/// Entry j of `zeroCols` and entry i of `zeroRows` become 1 for a dropped line. Those of kept lines are not written, so
/// the caller clears both before. `colsLeft` and `rowsLeft` are the numbers of lines kept. R may be T itself.
VECMAT_API void CheckForMarginalSums(matrix& T, int n, int p, matrix& R, int& rowsLeft, int& colsLeft,
                                     matrixInt& zeroRows, matrixInt& zeroCols);

/// The same over column-major arrays: T and R of n by p, n flags of rows, p flags of columns. R is written in place.
VECMAT_API void Cpp_CheckForMarginalSums(double* T, int n, int p, double* R, int* rowsLeft, int* colsLeft,
                                         int* zeroRows, int* zeroCols);

} // extern "C"
