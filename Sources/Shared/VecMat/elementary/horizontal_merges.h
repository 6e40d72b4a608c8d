// Tables and vectors merged side by side: the first argument's cells in the left columns, the second's in the right.
//
// A result given as a reference is prepared with as many rows as the longer side has. In a new result the cells below
// the shorter side are 0.0 (0, an empty string); a numeric table that is already large enough is kept with its own
// stride, and only the head of its block is cleared. A read outside a table stores -1.0 (-1, an empty string); a vector
// given as `double*` is read directly.
//
// @missing copied unchanged; towards ints it becomes the lowest int
// @empty an empty side adds no column or leaves 0.0 (0, an empty string) in a new result
// @cost one pass over the cells
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

// ---- vectors --------------------------------------------------------------------------------------------------------

extern "C" {

/// max(nA, nB) by 2.
VECMAT_API void HMergeVectors(double* a, int nA, double* b, int nB, matrix*& out);

/// max(n, r) by c + 1, with `v` in the last column.
VECMAT_API void HMergeTableVect(matrix* t, int r, int c, double* v, int n, matrix*& out);

/// Writes `v` into column `c`, counted from 0, of the table as it is. A vector longer than the table runs into the next
/// column.
VECMAT_API void HMergeTableVect2(matrix* t, int c, double* v, int n);

} // extern "C"

/// max(n, r) by c + 1, with `v` in the first column.
VECMAT_API void HMergeVectTable(double* v, int n, matrix* t, int r, int c, matrix*& out);
VECMAT_API void HMergeVectTable(matrix* v, int n, matrix* t, int r, int c, matrix*& out);

/// max(n, r) by 2: `v` and one column of `t`. The two forms count `col` differently: from 1 where the vector is an
/// array, from 0 where it is a table.
VECMAT_API void HMergeVectCol(double* v, int n, matrix* t, int r, int col, matrix*& out);
VECMAT_API void HMergeVectCol(matrix* v, int n, matrix* t, int r, int col, matrix*& out);

// ---- tables ---------------------------------------------------------------------------------------------------------

/// max(r1, r2) by c1 + c2. Towards a `matrixInt` each double is truncated.
VECMAT_API void HMergeTables(matrix* a, int r1, int c1, matrix* b, int r2, int c2, matrix*& out);
VECMAT_API void HMergeTables(matrix* a, int r1, int c1, matrix* b, int r2, int c2, matrixInt*& out);
VECMAT_API void HMergeTables(matrixInt* a, int r1, int c1, matrixInt* b, int r2, int c2, matrixInt*& out);
VECMAT_API void HMergeTables(Smatrix* a, int r1, int c1, Smatrix* b, int r2, int c2, Smatrix*& out);

/// Writes the columns of `b` into the tables c1 to c1 + c2 - 1, from 0, of `a`, which must exist. Leaves the others,
/// and cells below `r2`, as they are; drops rows that the columns of `a` do not have.
VECMAT_API void HMergeTables(matrix** a, int r1, int c1, matrix* b, int r2, int c2);
VECMAT_API void HMergeTables(matrix** a, int r1, int c1, matrix** b, int r2, int c2);

// ---- flat forms -----------------------------------------------------------------------------------------------------

extern "C" {

/// `out` has the size of the result, as given above, and may be one of the sources.
VECMAT_API void VB_HMergeVectors(double* a, int nA, double* b, int nB, double* out);
VECMAT_API void VB_HMergeTableVect(double* t, int r, int c, double* v, int n, double* out);
VECMAT_API void VB_HMergeVectTable(double* v, int n, double* t, int r, int c, double* out);
/// `col` counts from 1.
VECMAT_API void VB_HMergeVectColDbl(double* v, int n, double* t, int r, int col, double* out);
VECMAT_API void VB_HMergeTablesDbl(double* a, int r1, int c1, double* b, int r2, int c2, double* out);
/// Every entry of the result is -1 or 0.
VECMAT_API void VB_HMergeTablesBool(short* a, int r1, int c1, short* b, int r2, int c2, short* out);
VECMAT_API void VB_HMergeTablesStr(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2, wchar_t** out);

/// These write the result over the first array, which must be large enough for it.
VECMAT_API void VB_HMergeTablesDbl2(double* a, int r1, int c1, double* b, int r2, int c2);
VECMAT_API void VB_HMergeTablesLng2(int* a, int r1, int c1, int* b, int r2, int c2);
VECMAT_API void VB_HMergeTablesBool2(short* a, int r1, int c1, short* b, int r2, int c2);
VECMAT_API void VB_HMergeTablesStr2(wchar_t** a, int r1, int c1, wchar_t** b, int r2, int c2);

/// Opens `t` at max(r, n) by c + 1 over its r by c cells and writes `v` into the last column. The cells of `t` are
/// taken in linear order, not moved to the new stride: with n above r and more than one column, the columns of `t` come
/// back shifted. Cells beyond those of `t` become 0.0.
VECMAT_API void VB_HMergeTableVect2(double* t, int r, int c, double* v, int n);

/// Columns c1 + 1 to c1 + c2 of `a`, of `r1` rows each, take the columns of `b`, as far as they have rows.
VECMAT_API void VB_HMergeTablesDbl2SPV(SAFEARRAY** a, int r1, int c1, double* b, int r2, int c2);
VECMAT_API void VB_HMergeTablesDbl2SPV2(SAFEARRAY** a, int r1, int c1, SAFEARRAY** b, int r2, int c2);

} // extern "C"
