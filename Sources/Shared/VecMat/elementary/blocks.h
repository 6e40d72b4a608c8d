// Blocks of cells copied between tables, arrays of columns and triangles of columns.
//
// Rules of the whole unit. Row and column numbers count from 1, and ranges include both ends. No target is prepared: it
// must exist, and cells outside the block keep their values. A read outside the source stores -1.0 (-1, an empty
// string); a write outside the target is dropped. Only the linear index of a table is checked, so a row number above
// its row count runs into the next column; in an array of columns it never does. Columns of an array that are used must
// exist.
//
// Cells are written row by row, from left to right. The order matters where two cells of the block fall on one cell of
// the target: in a triangle, where (R, C) and (C, R) are one cell and the later one, below the diagonal, stays; and
// where a row runs over.
//
// @missing copied unchanged
// @empty an empty block or range copies nothing
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

// ---- by size and corners --------------------------------------------------------------------------------------------

/// Copies `rows` by `cols` cells from (srcRow, srcCol) to (dstRow, dstCol). The forms differ in storage: SPV reads an
/// array of columns, SPV2 writes one, SPV3 does both; SPV2_T and SPV3_T write a triangle.
VECMAT_API void M_Duplicate(matrix* src, int rows, int cols, matrix* dst, int dstRow, int dstCol, int srcRow,
                            int srcCol);
VECMAT_API void M_Duplicate(matrixInt* src, int rows, int cols, matrixInt* dst, int dstRow, int dstCol, int srcRow,
                            int srcCol);

extern "C" {

VECMAT_API void M_DuplicateSPV(matrix** src, int rows, int cols, matrix* dst, int dstRow, int dstCol, int srcRow,
                               int srcCol);
VECMAT_API void M_DuplicateSPV2(matrix* src, int rows, int cols, matrix** dst, int dstRow, int dstCol, int srcRow,
                                int srcCol);
VECMAT_API void M_DuplicateSPV3(matrix** src, int rows, int cols, matrix** dst, int dstRow, int dstCol, int srcRow,
                                int srcCol);
VECMAT_API void M_DuplicateSPV2_T(matrix* src, int rows, int cols, matrix** dst, int dstRow, int dstCol, int srcRow,
                                  int srcCol);
VECMAT_API void M_DuplicateSPV3_T(matrix** src, int rows, int cols, matrix** dst, int dstRow, int dstCol, int srcRow,
                                  int srcCol);

/// Copies whole columns of strings.
VECMAT_API void M_DuplicateStrSPV(Smatrix** src, int rows, int cols, Smatrix** dst);

} // extern "C"

// ---- by rows and columns of the source ------------------------------------------------------------------------------

/// Copies rows r1 to r2 and columns c1 to c2 to the top left of `dst`; table 0 of an array of columns receives column
/// c1. The form between two plain tables is in `sorting/copy_block.h`.
VECMAT_API void M_CopyBlock(matrix** src, int r1, int r2, int c1, int c2, matrix* dst);
VECMAT_API void M_CopyBlock(matrix* src, int r1, int r2, int c1, int c2, matrix** dst);
VECMAT_API void M_CopyBlock(matrix** src, int r1, int r2, int c1, int c2, matrix** dst);
VECMAT_API void M_CopyBlock(Smatrix** src, int r1, int r2, int c1, int c2, Smatrix*& dst);

extern "C" {

/// The same from a triangle, read as the full symmetric table, to an array of full columns.
VECMAT_API void M_CopyBlockSPV_T(matrix** src, int r1, int r2, int c1, int c2, matrix** dst);
/// The same from full columns to a triangle: the two triangles of the block fold onto each other.
VECMAT_API void M_CopyBlockSPV2_T(matrix** src, int r1, int r2, int c1, int c2, matrix** dst);

/// The same, to (row, col) of `dst`.
VECMAT_API void M_CopyPasteBlock(matrix* src, int r1, int r2, int c1, int c2, matrix* dst, int row, int col);
VECMAT_API void M_CopyPasteBlockSPV(matrix** src, int r1, int r2, int c1, int c2, matrix* dst, int row, int col);
VECMAT_API void M_CopyPasteBlockStr(Smatrix* src, int r1, int r2, int c1, int c2, Smatrix* dst, int row, int col);

} // extern "C"

// ---- from the first cell --------------------------------------------------------------------------------------------

/// Cell (i, j) goes to (row + i - 1, col + j - 1).
VECMAT_API void M_PasteBlock(matrix* src, int rows, int cols, matrix* dst, int row, int col);
VECMAT_API void M_PasteBlock(matrixInt* src, int rows, int cols, matrixInt* dst, int row, int col);

/// Cell (i, j) goes to (i, j), each table with its own stride.
extern "C" VECMAT_API void M_CopyToBigger(matrix* src, int rows, int cols, matrix* dst);

// ---- in linear order ------------------------------------------------------------------------------------------------

/// Copies `n` consecutive cells from (row, col) to (dstRow, dstCol), running over column ends on both sides.
VECMAT_API void V_Duplicate(matrix* src, int row, int col, int n, matrix* dst, int dstRow, int dstCol);
VECMAT_API void V_Duplicate(matrixInt* src, int row, int col, int n, matrix* dst, int dstRow, int dstCol);
VECMAT_API void V_Duplicate(matrixInt* src, int row, int col, int n, matrixInt* dst, int dstRow, int dstCol);

// ---- flat forms -----------------------------------------------------------------------------------------------------

extern "C" {

/// `src` is `rows` by `cols`, in an array of columns of r2 rows; `dst` receives r2 - r1 + 1 rows and c2 - c1 + 1
/// columns. SPV2 writes an array of columns, SPV2_T a triangle of c2 - c1 + 1 columns.
VECMAT_API void VB_M_CopyBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst);
VECMAT_API void VB_M_CopyBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2, wchar_t** dst);
VECMAT_API void VB_M_CopyBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst);
VECMAT_API void Cpp_M_CopyBlockSPV2(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst);
VECMAT_API void Cpp_M_CopyBlockSPV2_T(SAFEARRAY** src, int r1, int r2, int c1, int c2, SAFEARRAY** dst);

/// Whole tables of `rows` by `cols`. The numbers in these names are not those of the functions they call: SPV is
/// `M_DuplicateSPV`, SPV2 is `M_DuplicateSPV3`, SPV2_T is `M_DuplicateSPV3_T` towards a triangle of `cols` columns,
/// SPV3 is `M_DuplicateSPV2`.
VECMAT_API void Cpp_M_DuplicateDblSPV(SAFEARRAY** src, int rows, int cols, double* dst);
VECMAT_API void Cpp_M_DuplicateDblSPV2(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);
VECMAT_API void Cpp_M_DuplicateDblSPV2_T(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);
VECMAT_API void Cpp_M_DuplicateDblSPV3(double* src, int rows, int cols, SAFEARRAY** dst);
VECMAT_API void VB_M_DuplicateStrSPV(SAFEARRAY** src, int rows, int cols, SAFEARRAY** dst);

/// `src` is `rows` by `cols` (r2 rows in c2 columns), `dst` is dstRows by dstCols and keeps its cells outside the
/// block. The source is read before anything is written, so that both may be one array. The string form stores new
/// BSTRs in every element of `dst`.
VECMAT_API void Cpp_M_CopyPasteBlock(double* src, int rows, int cols, int r1, int r2, int c1, int c2, double* dst,
                                     int dstRows, int dstCols, int row, int col);
VECMAT_API void Cpp_M_CopyPasteBlockSPV(SAFEARRAY** src, int r1, int r2, int c1, int c2, double* dst, int dstRows,
                                        int dstCols, int row, int col);
VECMAT_API void Cpp_M_CopyPasteBlockStr(wchar_t** src, int rows, int cols, int r1, int r2, int c1, int c2,
                                        wchar_t** dst, int dstRows, int dstCols, int row, int col);
VECMAT_API void VB_M_PasteBlock(double* src, int rows, int cols, double* dst, int dstRows, int dstCols, int row,
                                int col);
VECMAT_API void VB_M_PasteBlockLng(int* src, int rows, int cols, int* dst, int dstRows, int dstCols, int row, int col);
VECMAT_API void VB_M_CopyToBigger(double* src, int rows, int cols, double* dst, int dstRows, int dstCols);

} // extern "C"
