// Single columns and rows copied between tables and vectors.
//
// A read outside a table stores -1.0 (an empty string), a write outside is dropped; only the linear index is checked,
// so a long column runs into the next one. Numbers count from 1 except in the two functions that say otherwise.
//
// @missing copied unchanged
// @empty nothing is copied; `prepare` still applies
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Copies `n` cells of column `col` into column `dstCol` of `dst`. With a nonzero `prepare`, `dst` is first prepared as
/// `n` by `dstCol`: a table at least that large is kept, and its first n*dstCol cells are cleared.
VECMAT_API void CopyMatrixColToMatrixCol(matrix* src, int n, int col, matrix*& dst, int dstCol, short prepare);

/// Prepares `v` as `n` by 1 and copies column `col` (of an array of columns: table `col`) into it.
VECMAT_API void CopyMatrixColToVector(matrix* src, int n, int col, matrix*& v);
VECMAT_API void CopyMatrixColToVectorSPV(matrix** src, int n, int col, matrix*& v);

/// Copies `cols` cells of row `row` to row `dstRow`, each table with its own stride. Both numbers count from 0. With a
/// nonzero `prepare`, `dst` is first prepared as `dstRows` by `cols`.
VECMAT_API void CopyMatrixRowToMatrixRow(matrix* src, int cols, int row, matrix*& dst, int dstRows, int dstRow,
                                         short prepare);

/// Copies column `col` into the first `n` cells of `out`, which is not prepared.
VECMAT_API void CopyMatrixColToOneColMatStr(Smatrix* src, int n, int col, Smatrix* out);

/// Copies all cells of table `srcCol` of the `nTables` into column `dstCol` of `dst`. Both numbers count from 0;
/// nothing happens for one out of range.
VECMAT_API void CopyCol(matrix** src, int nTables, int srcCol, int dstCol, matrix* dst);

/// Copies `n` cells of the columns `i` and `j` into columns 1 and 2 of `out`, which is not prepared.
VECMAT_API void Extractij(matrix* a, int n, int i, int j, matrix* out);

// ---- flat forms -----------------------------------------------------------------------------------------------------

/// `src` has `n` rows and at least `col` columns; `dst` is `n` by `dstCol` and keeps its other columns unless `prepare`
/// is nonzero, which clears them.
VECMAT_API void VB_CopyMatrixColToMatrixCol(double* src, int n, int col, double* dst, int dstCol, short prepare);
VECMAT_API void VB_CopyMatrixColToVector(double* src, int n, int col, double* v);
/// `src` is `rows` by `cols`, `dst` `dstRows` by `cols`. Unlike in the function it calls, both numbers count from 1.
VECMAT_API void VB_CopyMatrixRowToMatrixRow(double* src, int rows, int cols, int row, double* dst, int dstRows,
                                            int dstRow, short prepare);
VECMAT_API void VB_CopyMatrixColToOneColMatStr(wchar_t** src, int n, int col, wchar_t** out);
/// `a` is `n` by max(i, j), `out` `n` by 2.
VECMAT_API void Cpp_Extractij(double* a, int n, int i, int j, double* out);

} // extern "C"
