// Minima and maxima of a table: by column, by row and over all.
//
// `a` is a `rows` by `cols` block at the top left of a table with a stride of its own; a cell outside the table reads
// as -1.0. Results by column or row are stored in linear order in a table of the caller's, which is not resized: what
// does not fit is dropped.
//
// @missing with `mode` -1 left out (equality); with 0 an ordinary number, which counts for the minimum only until a
//     later cell takes its place
// @mask with `mode` 0 a nonzero entry excludes the row; with -1 it is not read; with others nothing enters
// @empty the missing value in both
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Largest, or smallest, value of each column. The search starts at the first cell that is above the missing value (a
/// NaN is not); without one the result is the missing value. The cells after it are compared with no test: a missing
/// cell can't win the maximum, but behind the first usable cell it does win the minimum.
/// @missing the search starts at the first cell above it (order); later cells are compared untested, so that it wins
///     the minimum
/// @empty the missing value
VECMAT_API void M_Max(matrix* a, int rows, int cols, matrix* out);
VECMAT_API void M_Min(matrix* a, int rows, int cols, matrix* out);

/// Smallest of all cells, with no test: any missing cell makes it the missing value. The positive twin of the missing
/// value where there are no rows or columns.
/// @missing an ordinary number: it wins
/// @empty the positive twin of the missing value
VECMAT_API double M_MinAll(matrix* a, int rows, int cols);

/// For each row the 1-based number of the column with the largest value, the first of equals; no missing test. 1 where
/// there are no columns.
/// @missing an ordinary number
/// @empty 1 where there are no columns
VECMAT_API void M_MaxPosByRow(matrix* a, int rows, int cols, matrixInt* out);

/// Minimum and maximum of each column over the cells that `mode` takes:
///   -1      those that are not missing (equality test); `mask` is not read
///    0      those whose `mask` entry (one for each row) is 0, missing or not
///   others  none.
/// Both results start as the missing value. A cell replaces the minimum where it is smaller or where the minimum is
/// still the missing value, so in mode 0 a missing cell counts for the minimum unless a later cell takes its place; it
/// replaces the maximum where it is larger.
VECMAT_API void M_MinMax(matrix* a, int rows, int cols, matrix* min, matrix* max, short* mask, short mode);

/// The same over an array of columns.
VECMAT_API void M_MinMaxSPV(matrix** a, int rows, int cols, matrix* min, matrix* max, short* mask, short mode);

/// The same over a triangle of columns: column j, from 0, has rows - j cells, and those alone are looked at. Cell i of
/// each column goes with entry i of `mask`.
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
