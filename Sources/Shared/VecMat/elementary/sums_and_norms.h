// Sums over the cells of a table: trace, norms, sums and sums of squares by row and by column.
//
// `rows` and `cols` are as passed and drive the loops; the table's own row count is its stride. A read outside a table
// yields -1.0, which takes part; a write outside is dropped. Sums start at +0.0. "Missing" is the equality test.
// Results in a table must exist and are written in place, one cell for each row or column.
//
// @missing left out (equality)
// @empty 0.0
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Sum of the first `n` diagonal cells; 0.0 for `n` below 1. No test for the missing value.
/// @missing an ordinary number
VECMAT_API double M_Trace(matrix* a, int n);

/// The trace of a' b: the sum over the columns of their inner products, of two `rows` by `cols` tables. With b equal to
/// a it is the square of the Frobenius norm: no root is taken. No test for the missing value.
/// @missing an ordinary number
VECMAT_API double M_FrobeniusNorm(matrix* a, int rows, int cols, matrix* b);

/// Sum of the cells that are not missing, row after row; 0.0 where there are none.
VECMAT_API double M_Sum2(matrix* a, int rows, int cols);

/// Sum of the cells that are not missing, per column and per row; the missing value for a line without any.
/// @empty the missing value for a line without any present cell
VECMAT_API void M_SumByCols(matrix* a, int rows, int cols, matrix* out);
VECMAT_API void M_SumByRows(matrix* a, int rows, int cols, matrix* out);

/// Sum of squares per row; a missing cell makes that of its row missing.
/// @missing makes the sum of its row missing (equality)
/// @empty 0.0 for a row without columns
VECMAT_API void M_SquaredRows(matrix* a, int rows, int cols, matrix*& out);
VECMAT_API void M_SquaredRowsSPV(matrix** a, int rows, int cols, matrix*& out);

/// Sum of squares per column, with no test: the square of a missing cell is infinite.
/// @missing an ordinary number: its square is infinite
/// @empty 0.0 for a column without rows
VECMAT_API void M_SquaredColumns(matrix* a, int rows, int cols, matrix*& out);

// Flat forms: views, results in the caller's array.
VECMAT_API double VB_M_Trace(double* a, int n);
VECMAT_API double VB_M_FrobeniusNorm(double* a, int rows, int cols, double* b);
VECMAT_API void VB_M_SumByCols(double* a, int rows, int cols, double* out);
VECMAT_API void VB_M_SumByRows(double* a, int rows, int cols, double* out);
VECMAT_API void VB_M_SquaredRows(double* a, int rows, int cols, double* out);
VECMAT_API void VB_M_SquaredColumns(double* a, int rows, int cols, double* out);

/// Sum of the first `rows` column sums; the missing value if one of these is missing. So the cells of all columns are
/// counted in a table with no more columns than rows, and those of the first `rows` columns in a wider one. A place
/// beyond the last column adds 0.0.
/// @missing left out (equality); a column without any present cell makes the result missing
VECMAT_API double VB_M_SumOfElem(double* a, int rows, int cols);

} // extern "C"
