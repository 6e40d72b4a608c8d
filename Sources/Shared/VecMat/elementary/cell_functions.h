// Functions of single cells: squares, roots, logarithms.
//
// `rows` and `cols` bound the loops, which run by rows; the table's own row count is its stride. A read outside a table
// yields -1.0; a write outside is dropped.
//
// @missing stays missing (equality)
// @mask a row with a nonzero entry is left unchanged
// @empty nothing happens
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Squares the first `rows` times `cols` cells in linear order, whatever the stride.
VECMAT_API void M_Square(matrix*& a, int rows, int cols);

/// The square root of each cell, row by row, into out, which must exist, or in place. The first cell that is negative,
/// a NaN or out of range ends the call.
/// @missing negative, so it ends the call
/// @empty 0.0
/// @failure returns -1.0; that cell and those after it are not written. Otherwise 0.0
VECMAT_API double M_SquareRootAij(matrix* a, int rows, int cols, matrix* out);
VECMAT_API double M_SquareRootAij2(matrix* a, int rows, int cols);

/// The natural logarithm in place. There is no guard against zero (minus infinity) or negative cells (NaN).
VECMAT_API void M_LogMatrix(matrix*& a, int rows, int cols, short* mask);

/// The base-10 logarithm in place, as the companion library computes it. Zero and negative cells are left to the
/// companion, which is called for cells outside the table too.
VECMAT_API void M_Log10Matrix(matrix* a, int rows, int cols);

// Flat forms, on the caller's array; `mask` has `rows` entries.
VECMAT_API void VB_M_Square(double* a, int rows, int cols);
VECMAT_API double Cpp_M_SquareRootAij(double* a, int rows, int cols, double* out);
VECMAT_API double Cpp_M_SquareRootAij2(double* a, int rows, int cols);
VECMAT_API void VB_M_LogMatrix(double* a, int rows, int cols, short* mask);
VECMAT_API void VB_M_Log10Matrix(double* a, int rows, int cols);

} // extern "C"
