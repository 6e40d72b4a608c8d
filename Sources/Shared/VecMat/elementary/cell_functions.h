// Functions of single cells: squares, roots, logarithms.
//
// `rows` and `cols` are as passed and drive the loops, by rows; the table's own row count is its stride. A read outside
// a table yields -1.0; a write outside is dropped. "Missing" is the equality test.
//
// @missing stays missing (equality)
// @mask a row with a nonzero entry stays
// @empty nothing happens
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Squares the first `rows` times `cols` cells of the block in linear order, whatever the stride; missing cells stay.
VECMAT_API void M_Square(matrix*& a, int rows, int cols);

/// The square root of each cell, row by row, into out, which must exist, or in place. The first cell that is negative
/// (the missing value is), a NaN or out of range ends it: -1.0 is returned and the cells from there on are not written.
/// Else 0.0.
/// @missing ends the call with -1.0, like any negative cell or NaN; from there on nothing is written
/// @empty 0.0
VECMAT_API double M_SquareRootAij(matrix* a, int rows, int cols, matrix* out);
VECMAT_API double M_SquareRootAij2(matrix* a, int rows, int cols);

/// The natural logarithm in place, of the cells that are not missing in the rows with `mask` 0; any other entry
/// excludes a row. Nothing guards against zero (minus infinity) or negative cells (NaN).
VECMAT_API void M_LogMatrix(matrix*& a, int rows, int cols, short* mask);

/// The base-10 logarithm in place of the cells that are not missing, as the companion library computes it; zero and
/// negative cells are its affair, and it is asked about cells outside the table too.
VECMAT_API void M_Log10Matrix(matrix* a, int rows, int cols);

// Flat forms, on the caller's array; `mask` has `rows` entries.
VECMAT_API void VB_M_Square(double* a, int rows, int cols);
VECMAT_API double Cpp_M_SquareRootAij(double* a, int rows, int cols, double* out);
VECMAT_API double Cpp_M_SquareRootAij2(double* a, int rows, int cols);
VECMAT_API void VB_M_LogMatrix(double* a, int rows, int cols, short* mask);
VECMAT_API void VB_M_Log10Matrix(double* a, int rows, int cols);

} // extern "C"
