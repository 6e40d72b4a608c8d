// Minima and maxima of a table: by column, by row and over all.
//
// `a` is a `rows` by `cols` block at the top left of a table with a stride of its own; a cell outside the table reads
// as -1.0. Results by column or row are stored in linear order in the caller's table, which is not resized: what does
// not fit is dropped.
//
// @missing with `mode` -1 left out (equality); with 0 an ordinary number, which wins the minimum only until the next
//     cell replaces it
// @mask one entry for each row. With `mode` 0 a nonzero entry excludes the row; with -1 it is not read; with any other
//     `mode` every row is excluded
// @empty the missing value in both
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Largest, or smallest, value of each column. The search starts at the first cell above the missing value, which a NaN
/// is not.
/// @missing skipped until the search starts (order); after that compared untested, so it cannot win the maximum but
///     does win the minimum. Without any cell above it the result is missing
/// @empty the missing value
VECMAT_API void M_Max(matrix* a, int rows, int cols, matrix* out);
VECMAT_API void M_Min(matrix* a, int rows, int cols, matrix* out);

/// Smallest of all cells.
/// @missing an ordinary number: it wins
/// @empty the positive twin of the missing value
VECMAT_API double M_MinAll(matrix* a, int rows, int cols);

/// For each row the 1-based number of the column with the largest value, the first of equals.
/// @missing an ordinary number
/// @empty 1 where there are no columns
VECMAT_API void M_MaxPosByRow(matrix* a, int rows, int cols, matrixInt* out);

/// Minimum and maximum of each column over the cells that `mode` and `mask` admit. Both results start as the missing
/// value. A cell replaces the minimum where it is smaller or where the minimum is still the missing value; it replaces
/// the maximum where it is larger.
VECMAT_API void M_MinMax(matrix* a, int rows, int cols, matrix* min, matrix* max, short* mask, short mode);

/// The same over an array of columns.
VECMAT_API void M_MinMaxSPV(matrix** a, int rows, int cols, matrix* min, matrix* max, short* mask, short mode);

/// The same over a triangle of columns: column j, from 0, has rows - j cells, and only those are read. Cell i of each
/// column goes with entry i of `mask`.
VECMAT_API void M_MinMaxSPV_T(matrix** a, int rows, int cols, matrix* min, matrix* max, short* mask, short mode);

// ---- flat forms: results by column have `cols` elements, those by row `rows`; `a` is never written ------------------

VECMAT_API void VB_M_Max(double* a, int rows, int cols, double* out);
VECMAT_API void VB_M_Min(double* a, int rows, int cols, double* out);
VECMAT_API double Cpp_M_MinAll(double* a, int rows, int cols);
VECMAT_API void Cpp_M_MaxPosByRow(double* a, int rows, int cols, int* out);
VECMAT_API void VB_M_MinMax(double* a, int rows, int cols, double* min, double* max, short* mask, short mode);
VECMAT_API void VB_M_MinMaxSPV(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask, short mode);
VECMAT_API void VB_M_MinMaxSPV_T(SAFEARRAY** a, int rows, int cols, double* min, double* max, short* mask, short mode);

} // extern "C"
