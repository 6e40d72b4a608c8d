// Cell-by-cell products: of two tables, and of every column of one with every column of another (Horiz), as the columns
// of an interaction.
//
// `rows` and the column counts bound the loops; each table's own row count is its stride. A read outside a table yields
// -1.0, which takes part; a write outside is dropped. Results are written in place. New column i*`colsB` + j, from 0,
// belongs to column i of a and column j of b.
//
// @missing an ordinary number
// @weights summed over the rows with 1 (P) and with -1 (Q) in each new column; a zero weight adds nothing
// @empty nothing is written
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// out(i, j) = a(i, j) b(i, j).
/// @formula c_{ij} = a_{ij} b_{ij}
VECMAT_API void M_ProductByElement(matrix* a, int rows, int cols, matrix* b, matrix*& out);

/// The products of all pairs of columns.
VECMAT_API void M_ProductHorizAB(matrix* a, int rows, int cols, matrix* b, int colsB, matrix*& out);

/// The same over a itself, through a temporary. `*cols` becomes `*cols` times `colsB`; a must have room for that many
/// columns.
/// @missing in either factor makes the cell missing (equality)
/// @empty no cell is written; `*cols` is multiplied all the same
VECMAT_API void M_ProductHorizAB2(matrix* a, int rows, int* cols, matrix* b, int colsB);

/// The columns of a design for the interaction of two coded tables, whose cells are near 1, -1 or 0, over a itself.
///
/// The first new column is the plain product of the first columns. In every other the product p decides the cell: above
/// 2.2e-16 it is 1.0 or -1.0, with the sign of the factor from a; below -2.2e-16 it is -1.0 where the column comes from
/// the first column of a or of b; otherwise it is 0.0. `*cols` becomes `*cols` times `colsB`; a must have room for that
/// many columns. Cell c of out receives P of column c. With `mode` 3 the cells with -1 become -P/Q, which balances the
/// column.
/// @divisor Q, with `mode` 3 only; where Q is at most 2.2e-16 the cells stay -1.0
/// @empty no cell of `a` is written, P is 0.0; `*cols` is multiplied all the same
VECMAT_API void M_ProductDesignAB2(matrix* a, int rows, int* cols, matrix* b, int colsB, int mode, matrix* w,
                                   matrix*& out);

// Flat forms: views, results in the caller's array. Where a grows, its array has room for `rows` by `*cols` times
// `colsB` cells; w has `rows` cells and out of the design `*cols` times `colsB`.
VECMAT_API void VB_M_ProductByElement(double* a, int rows, int cols, double* b, double* out);
VECMAT_API void VB_M_ProductHorizAB(double* a, int rows, int cols, double* b, int colsB, double* out);
VECMAT_API void VB_M_ProductHorizAB2(double* a, int rows, int* cols, double* b, int colsB);
VECMAT_API void VB_M_ProductDesignAB2(double* a, int rows, int* cols, double* b, int colsB, int mode, double* w,
                                      double* out);

} // extern "C"
