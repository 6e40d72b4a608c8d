// Sums over the cells of a table: trace, norms, sums and sums of squares by row and by column.
//
// `rows` and `cols` bound the loops; the table's own row count is its stride. A read outside a table yields -1.0, which
// takes part; a write outside is dropped. Sums start at +0.0. Results in a table must exist and are written in place,
// one cell for each row or column.
//
// @missing left out (equality)
// @empty 0.0
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Sum of the first `n` diagonal cells.
/// @formula \operatorname{tr} A = \sum_i a_{ii}
/// @missing an ordinary number
VECMAT_API double M_Trace(matrix* a, int n);

/// The trace of a' b: the sum over the columns of their inner products, of two `rows` by `cols` tables. With b equal to
/// a it is the square of the Frobenius norm: no root is taken.
/// @formula \operatorname{tr}(A^{\top} B) = \sum_j \sum_i a_{ij} b_{ij}
/// @missing an ordinary number
VECMAT_API double M_FrobeniusNorm(matrix* a, int rows, int cols, matrix* b);

/// Sum of the cells, row after row.
/// @formula \sum_i \sum_j a_{ij}
VECMAT_API double M_Sum2(matrix* a, int rows, int cols);

/// Sum per column and per row.
/// @empty the missing value, not 0.0, for a line without a present cell
VECMAT_API void M_SumByCols(matrix* a, int rows, int cols, matrix* out);
VECMAT_API void M_SumByRows(matrix* a, int rows, int cols, matrix* out);

/// Sum of squares per row.
/// @formula \sum_j a_{ij}^2
/// @missing makes the sum of its row missing (equality)
/// @empty 0.0 for a row without columns
VECMAT_API void M_SquaredRows(matrix* a, int rows, int cols, matrix*& out);
VECMAT_API void M_SquaredRowsSPV(matrix** a, int rows, int cols, matrix*& out);

/// Sum of squares per column.
/// @formula \sum_i a_{ij}^2
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

/// Sum of the first `rows` column sums. So it covers all columns of a table with no more columns than rows, and the
/// first `rows` columns of a wider one. A place beyond the last column adds 0.0.
/// @missing left out (equality); a column without a present cell makes the result missing
VECMAT_API double VB_M_SumOfElem(double* a, int rows, int cols);

} // extern "C"
