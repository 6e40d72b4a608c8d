// Questions about the cells of a table: are they constant, positive, whole, within an interval?
//
// Answers are the callers' Booleans, -1 for true and 0 for false, unless a comment says otherwise. Row and column
// numbers in results are 1-based. Cells are read with the checks of the tables: one out of range is -1.0 and is tested
// like any other. Equality is that of doubles, under which a NaN differs from everything, itself included. No function
// here changes its arguments.
//
// @missing left out (equality)
// @empty -1 (true)
// @cost one pass over the cells at most
#pragma once

#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

// ---- constant -------------------------------------------------------------------------------------------------------

/// Are the first `n` cells equal? With `mode` exactly -1 the present cells are compared with the first of them, from
/// the second cell on; no present cell, and an `n` below 2, is true. With any other `mode` all cells are compared with
/// the first.
/// @missing with `mode` exactly -1 left out (equality), otherwise compared like a number
VECMAT_API short V_IsConstant(matrix* x, int n, short mode);

/// The same on a flat array, except that with another `mode` than -1 the first element is not compared with itself: one
/// NaN is constant here.
VECMAT_API short VB_V_IsConstant(double* x, int n, short mode);

/// Do all elements equal the first? `mode` has no effect.
/// @missing ints and Booleans are never missing
VECMAT_API short VB_V_IsConstantLng(int* x, int n, short mode);
VECMAT_API short V_IsConstantBool(short* x, int n);
VECMAT_API short VB_V_IsConstantBool(short* x, int n);

/// Are the cells of the `n` by `n` block equal? With `mode` exactly -1 the value to equal is the first present cell
/// among the first `n` cells in linear order; without one there the answer is true and the rest is not read. With any
/// other `mode` all cells are compared with the first.
/// @missing with `mode` exactly -1 left out (equality), otherwise compared like a number
VECMAT_API short M_IsConstant(matrix* a, int n, short mode);

/// The 1-based number of the first constant column, 0 if there is none. A column with at most one present cell is
/// constant, unless that cell is in the last row. The form over columns does not compare the last row: a column that
/// differs only there is constant.
/// @empty a column without rows is constant: 1; without columns 0
VECMAT_API int VB_M_IsColConstant(double* a, int rows, int cols);
VECMAT_API int VB_M_IsColConstantSPV(SAFEARRAY** a, int rows, int cols);

/// Do the diagonal cells from the second on equal the block's first cell?
/// @missing compared like a number
/// @empty -1 (true) for `n` below 2
VECMAT_API short M_IsDiagConstant(matrix* a, int n);
VECMAT_API short VB_M_IsDiagConstant(double* a, int n);

// ---- sign and range -------------------------------------------------------------------------------------------------

/// Is no cell below 0.0 (`strict` 0), or none at or below 0.0 (any other `strict`)? False for an `n` beyond the table.
VECMAT_API short V_IsPositive(matrix* x, int n, short strict);
VECMAT_API short VB_V_IsPositive(double* x, int n, short strict);

/// The same for a table, with other rules: only a `strict` of exactly -1 is strict, and a cell beyond the table fails.
/// @missing fails the test
/// @mask a row with a nonzero entry passes, whatever it holds; null: every row is tested
VECMAT_API short M_IsPositive(matrix* a, int rows, int cols, short* mask, short strict);
VECMAT_API short VB_M_IsPositive(double* a, int rows, int cols, short* mask, short strict);

/// Do all cells lie from 0.0 to 1.0, ends included? One beyond the table and a NaN do not.
/// @missing fails the test
VECMAT_API short M_IsIn01(matrix* a, int rows, int cols);
VECMAT_API short VB_M_IsIn01(double* a, int rows, int cols);

/// Are all cells whole numbers, by the test of `IsLong`?
/// @missing tested like an ordinary number
VECMAT_API short M_IsLong(matrix* a, int rows, int cols);
VECMAT_API short VB_M_IsLong(double* a, int rows, int cols);

/// Do all cells lie between `lo` and `hi`, the ends excluded if `open` is exactly -1? A NaN never does.
/// @missing with `skipMissing` exactly -1 left out (equality), otherwise an ordinary number
VECMAT_API short V_IsInInterval(matrix* x, int n, double lo, double hi, short open, short skipMissing);
VECMAT_API short VB_V_IsInInterval(double* x, int n, double lo, double hi, short open, short skipMissing);
VECMAT_API short M_IsInIntervalSPV(matrix** a, int rows, int cols, double lo, double hi, short open, short skipMissing);
VECMAT_API short VB_M_IsInIntervalSPV(SAFEARRAY** a, int rows, int cols, double lo, double hi, short open,
                                      short skipMissing);

} // extern "C"

/// Is every column constant?
/// @missing compared like a number
/// @empty without columns -1 (true); a single column is false: 0
VECMAT_API short M_EachColIsConstant(matrix** a, int rows, int cols);

/// The same answers for one column and for none, but the columns tested are shifted by one: from the one before the
/// first, whose cells are out of range and agree, to the last but one. The last column is never tested.
/// @missing compared like a number
/// @empty without columns -1 (true); a single column is false: 0
VECMAT_API short M_EachColIsConstant(matrix* a, int rows, int cols);
