// Arithmetic with scalars, and sums of tables.
//
// `rows` and `cols` bound the loops, which run by rows; each table's own row count is its stride. A read outside a
// table yields -1.0, which takes part; a write outside is dropped. A result described as "prepared" goes through
// `matCheck` with 0.0; every other one must exist and is written in place.
//
// @missing an ordinary number: it changes
// @empty nothing is written
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// s a(i, j). In place; over a itself through a temporary, which then gives a its shape of `rows` by `cols` (a table
/// without room for that is replaced); and as s a', prepared `cols` by `rows`.
/// @missing stays missing (equality), unlike in the sums with a scalar
VECMAT_API void M_ScalarsA(matrix* a, int rows, int cols, double s, matrix*& out);
VECMAT_API void M_ScalarsA2(matrix*& a, int rows, int cols, double s);
VECMAT_API void M_ScalarsTrA(matrix* a, int rows, int cols, double s, matrix*& out);

/// a s1 + (b s2). Prepared `rows` by `cols`. In the SPV forms a is an array of columns, in the last one a triangle of
/// columns, whose cell (i, j) is cell |i - j| of column min(i, j): the whole result is written.
/// @missing in either table makes the cell missing (equality)
VECMAT_API void M_Sums1As2B(matrix* a, int rows, int cols, matrix* b, double s1, double s2, matrix*& out);
VECMAT_API void M_Sums1As2BSPV(matrix** a, int rows, int cols, matrix* b, double s1, double s2, matrix*& out);
VECMAT_API void M_Sums1As2BSPV_T(matrix** a, int rows, int cols, matrix* b, double s1, double s2, matrix*& out);

/// a + b in place.
/// @missing an ordinary number
VECMAT_API void SumMat(matrix* a, matrix* b, int rows, int cols, matrix* out);

// Flat forms: views, results in the caller's array.
VECMAT_API void VB_M_ScalarsA(double* a, int rows, int cols, double s, double* out);
VECMAT_API void VB_M_ScalarsA2(double* a, int rows, int cols, double s);
VECMAT_API void VB_M_ScalarsTrA(double* a, int rows, int cols, double s, double* out);
VECMAT_API void VB_M_Sums1As2B(double* a, int rows, int cols, double* b, double s1, double s2, double* out);
VECMAT_API void VB_M_APlusVal(double* a, int rows, int cols, double v, double* out);
VECMAT_API void VB_M_APlusVal2(double* a, int rows, int cols, double v);
VECMAT_API void Cpp_SumMat(double* a, double* b, int rows, int cols, double* out);

} // extern "C"

/// a + v, prepared `rows` by `cols`, and in place. A result in ints is the sum in doubles, truncated.
VECMAT_API void M_APlusVal(matrix* a, int rows, int cols, double v, matrix*& out);
VECMAT_API void M_APlusVal(matrix* a, int rows, int cols, double v, matrixInt*& out);
VECMAT_API void M_APlusVal(matrixInt* a, int rows, int cols, double v, matrix*& out);
VECMAT_API void M_APlusVal(matrixInt* a, int rows, int cols, double v, matrixInt*& out);
VECMAT_API void M_APlusVal2(matrix* a, int rows, int cols, double v);
VECMAT_API void M_APlusVal2(matrixInt* a, int rows, int cols, double v);
