// Rearranging a table by an order that was computed elsewhere.
//
// An order is a vector of `nRows` 1-based source row numbers, held as doubles. From each, 1 is subtracted and the rest
// truncated towards zero: 2.9 is row 2, 0.5 is row 1. A source row may appear any number of times. Only the linear
// position of a source cell is checked: beyond the table it reads -1.0 (-1, an empty string), and a number past the
// last row, or below the first, slides into the next or previous column. An order that is too short reads -1.0 as well.
// No error is reported.
//
// @missing moved like any other; where doubles become ints it becomes the lowest int; a missing order is a row out of
//     range
// @empty nothing is written
// @cost one move of each cell
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Cell (i, j) of `out` takes cell (order[i], j) of `source`, for `nRows` rows and `nCols` columns. `out` is prepared
/// with `matCheck` and must be another table than `source`. Ints are widened; doubles are truncated towards zero, those
/// outside the range of int to the lowest int.
VECMAT_API void SortApply(matrix* source, int nRows, int nCols, matrix* order, matrix*& out);
VECMAT_API void SortApply(matrixInt* source, int nRows, int nCols, matrix* order, matrix*& out);
VECMAT_API void SortApply(matrix* source, int nRows, int nCols, matrix* order, matrixInt*& out);
VECMAT_API void SortApply(matrixInt* source, int nRows, int nCols, matrix* order, matrixInt*& out);

/// The same in place: all rows are read before the first is written.
VECMAT_API void SortApply2(matrix* table, int nRows, int nCols, matrix* order);
VECMAT_API void SortApply2(matrixInt* table, int nRows, int nCols, matrix* order);

extern "C" {

/// The same for strings; `out` must exist, is not prepared and is another table than `source`.
VECMAT_API void SortApplyStr(Smatrix* source, int nRows, int nCols, matrix* order, Smatrix* out);

/// Flat forms over column-major arrays of `nRows` by `nCols` and an order of `nRows`. The forms with a 2 work in place.
/// The result may share memory with the source and the order, which are then copied first. Strings are stored as new
/// BSTRs in every cell; the old ones are not released.
VECMAT_API void VB_SortApply(double* source, int nRows, int nCols, double* order, double* out);
VECMAT_API void VB_SortApply2(double* table, int nRows, int nCols, double* order);
VECMAT_API void VB_SortApplyLng(int* source, int nRows, int nCols, double* order, int* out);
VECMAT_API void VB_SortApply2Lng(int* table, int nRows, int nCols, double* order);
VECMAT_API void VB_SortApplyStr(wchar_t** source, int nRows, int nCols, double* order, wchar_t** out);
VECMAT_API void VB_SortApply2Str(wchar_t** table, int nRows, int nCols, double* order);

} // extern "C"
