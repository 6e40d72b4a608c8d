// Rows and columns removed, moved up or exchanged.
//
// Numbers count from 1. A read outside a table yields -1.0 (an empty string), which is stored; a write outside is
// dropped. Results are not prepared: they must exist.
//
// @missing copied unchanged
// @empty nothing happens
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// `out` receives the `rows` by `cols` cells of `a` without one column (row); all of them where there is no column
/// (row) of that number.
VECMAT_API void M_RemoveCol(matrix* a, int rows, int cols, int col, matrix* out);
VECMAT_API void M_RemoveRow(matrix* a, int rows, int cols, int row, matrix* out);

/// Exchanges two rows over `cols` columns.
VECMAT_API void M_MoveRow(matrix*& a, int cols, int r1, int r2);

/// In place: the columns to + 1 to `cols` move left to start at `from`. The table keeps its shape, and the columns at
/// its end keep their cells.
VECMAT_API void M_RemoveCols2(matrix*& a, int rows, int cols, int from, int to);

} // extern "C"

/// In place: the rows to + 1 to `rows` move up to start at `from`. The table keeps its shape, and the rows at its end
/// keep their cells.
VECMAT_API void M_RemoveRows2(matrix*& a, int rows, int cols, int from, int to);
VECMAT_API void M_RemoveRows2(Smatrix*& a, int rows, int cols, int from, int to);

/// Remove the rows (columns) flagged 1: those flagged 0 go to the head of `out` in their order. Returns how many are
/// removed.
///
/// `flags` is expected to hold 0 and 1: as many rows are removed as the flags sum to (the sum truncated), from the end
/// of the rows sorted by their flags. A flag outside the table is -1.0. Where every row is to go, `out` is left
/// unchanged.
/// @missing copied unchanged; a missing flag of a `matrix` is left out of the sum of the flags
/// @empty 0 removed; `out` is left unchanged
VECMAT_API int M_RemoveRowsInList(matrix* a, int rows, int cols, matrixInt* flags, matrix* out);
VECMAT_API int M_RemoveRowsInList(matrix* a, int rows, int cols, matrix* flags, matrix* out);
VECMAT_API int M_RemoveColsInList(matrix* a, int rows, int cols, matrixInt* flags, matrix* out);
VECMAT_API int M_RemoveColsInList(matrix* a, int rows, int cols, matrix* flags, matrix* out);

// ---- flat forms -----------------------------------------------------------------------------------------------------

extern "C" {

/// `a` is `rows` by `cols`; `out` has one column (row) less.
VECMAT_API void VB_M_RemoveCol(double* a, int rows, int cols, int col, double* out);
VECMAT_API void VB_M_RemoveRow(double* a, int rows, int cols, int row, double* out);
VECMAT_API void VB_M_MoveRow(double* a, int rows, int cols, int r1, int r2);
VECMAT_API void VB_M_RemoveCols2(double* a, int rows, int cols, int from, int to);
VECMAT_API void VB_M_RemoveRows2(double* a, int rows, int cols, int from, int to);
VECMAT_API void Cpp_M_RemoveRowsStr2(wchar_t** a, int rows, int cols, int from, int to);

/// `flags` has an entry for each row (column); `out` is nOut by `cols` (`rows` by nOut) and takes what fits. Returns
/// how many are removed.
VECMAT_API int VB_M_RemoveRowsInList(double* a, int rows, int cols, int* flags, int nOut, double* out);
VECMAT_API int VB_M_RemoveColsInList(double* a, int rows, int cols, int* flags, int nOut, double* out);

} // extern "C"
