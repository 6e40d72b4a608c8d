// Transposition: cell (i, j) of the source goes to (j, i) of the target, for `rows` rows and `cols` columns of the
// source.
//
// A read outside the source stores -1.0 (-1, an empty string).
//
// @missing copied unchanged
// @empty nothing is copied; a target that is a plain table is prepared all the same
// @cost one pass over the cells
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// A target that is a plain table is prepared as `cols` by `rows`: a larger numeric table is kept with its own stride
/// and its head cleared, a string table only in the exact shape. Ints are widened where the target is a `matrix`. The
/// array of columns in the last form must exist: its i-th table takes row i of the source.
VECMAT_API void M_Transpose(matrix*& src, int rows, int cols, matrix*& dst);
VECMAT_API void M_Transpose(matrixInt*& src, int rows, int cols, matrixInt*& dst);
VECMAT_API void M_Transpose(matrixInt*& src, int rows, int cols, matrix*& dst);
VECMAT_API void M_Transpose(Smatrix*& src, int rows, int cols, Smatrix*& dst);
VECMAT_API void M_Transpose(matrix** src, int rows, int cols, matrix*& dst);
VECMAT_API void M_Transpose(matrix* src, int rows, int cols, matrix** dst);

/// From an array of columns to an array of columns, which must exist.
extern "C" VECMAT_API void M_TransposeSPV(matrix** src, int rows, int cols, matrix** dst);

/// Transposes in place: `a` becomes `cols` by `rows` in the block it has, which must hold that many cells.
VECMAT_API void M_Transpose2(matrix*& a, int rows, int cols);
VECMAT_API void M_Transpose2(Smatrix*& a, int rows, int cols);

// ---- flat forms -----------------------------------------------------------------------------------------------------

extern "C" {

/// `a` is `r` by `c`, the result `c` by `r`. The forms ending in 2 write it over `a`.
VECMAT_API void VB_M_Transpose(double* a, int r, int c, double* out);
VECMAT_API void VB_M_TransposeLng(int* a, int r, int c, int* out);
VECMAT_API void VB_M_TransposeStr(wchar_t** a, int r, int c, wchar_t** out);
VECMAT_API void VB_M_Transpose2(double* a, int r, int c);
VECMAT_API void VB_M_Transpose2Lng(int* a, int r, int c);
VECMAT_API void VB_M_Transpose2Str(wchar_t** a, int r, int c);
VECMAT_API void VB_M_TransposeSPV(SAFEARRAY** a, int r, int c, SAFEARRAY** out);

} // extern "C"
