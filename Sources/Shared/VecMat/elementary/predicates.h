// Questions about the cells of a table: are they constant, positive, whole, within an interval?
//
// Answers are the callers' Booleans, -1 for true and 0 for false, unless a comment says otherwise. Numbers of rows and
// columns are 1-based where they leave a function. Cells are read with the checks of the tables: one out of range is
// -1.0 and is examined like any other. Equality is that of doubles, under which a NaN differs from everything, itself
// included. A missing cell is told by the equality test; it is a number like any other where nothing is said of it. No
// function here changes what it is given.
//
// @missing left out (equality)
// @mask a row with a nonzero entry passes, whatever it holds
// @empty -1 (true)
#pragma once

#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

// ---- constant -------------------------------------------------------------------------------------------------------

/// Are the first `n` cells equal? With `mode` exactly -1 missing cells are left out: those present are compared with
/// the first of them from the second cell on, and without any, or for `n` below 2, the answer is true. With any other
/// `mode` all cells are compared with the first, a missing one too; no cell at all is true.
/// @missing with `mode` exactly -1 left out (equality), else compared like a number
VECMAT_API short V_IsConstant(matrix* x, int n, short mode);

/// The same on a flat array, but that without `mode` -1 the first element is not compared with itself: one NaN is
/// constant here.
VECMAT_API short VB_V_IsConstant(double* x, int n, short mode);

/// Do all elements equal the first? No integer is missing, so `mode` has no effect.
/// @missing there is none
VECMAT_API short VB_V_IsConstantLng(int* x, int n, short mode);
VECMAT_API short V_IsConstantBool(short* x, int n);
VECMAT_API short VB_V_IsConstantBool(short* x, int n);

/// Are the cells of the `n` by `n` block equal? With `mode` exactly -1 missing cells are left out, and the value to
/// equal is the first cell not missing among the first `n` cells in linear order: without one there the answer is true
/// and the rest is not looked at. With any other `mode` all are compared with the first cell, a missing one too.
/// @missing with `mode` exactly -1 left out (equality), else compared like a number
/// @empty -1 (true); with `mode` -1 also where the first `n` cells are all missing
VECMAT_API short M_IsConstant(matrix* a, int n, short mode);

/// The 1-based number of the first constant column, 0 if there is none. Missing cells are left out. A column without
/// any other cell, or without rows, is constant; one whose only present cell is the last row is not. The form over
/// columns does not compare the last row: a column that differs only there is constant.
/// @empty a column without rows is constant: 1; without columns 0
VECMAT_API int VB_M_IsColConstant(double* a, int rows, int cols);
VECMAT_API int VB_M_IsColConstantSPV(SAFEARRAY** a, int rows, int cols);

/// Do the diagonal cells from the second on equal the block's first cell? True for `n` below 2.
/// @missing compared like a number
/// @empty -1 (true) for `n` below 2
VECMAT_API short M_IsDiagConstant(matrix* a, int n);
VECMAT_API short VB_M_IsDiagConstant(double* a, int n);

// ---- sign and range -------------------------------------------------------------------------------------------------

/// Is no cell below 0.0 (`strict` 0), or none at or below 0.0 (any other `strict`)? Missing cells are left out; no cell
/// is true, and an `n` beyond the table false.
VECMAT_API short V_IsPositive(matrix* x, int n, short strict);
VECMAT_API short VB_V_IsPositive(double* x, int n, short strict);

/// The same for a table, with other rules: only a `strict` of exactly -1 is strict, a missing cell fails, and so does
/// one beyond the table. A row whose `mask` entry is not 0 passes whatever it holds; without a mask no row does.
/// @missing fails the test
VECMAT_API short M_IsPositive(matrix* a, int rows, int cols, short* mask, short strict);
VECMAT_API short VB_M_IsPositive(double* a, int rows, int cols, short* mask, short strict);

/// Do all cells lie from 0.0 to 1.0, ends included? A missing cell, one beyond the table and a NaN do not.
/// @missing fails the test
VECMAT_API short M_IsIn01(matrix* a, int rows, int cols);
VECMAT_API short VB_M_IsIn01(double* a, int rows, int cols);

/// Are all cells whole numbers, as `IsLong` tells them? A missing cell is asked like any other. True without rows.
/// @missing tested like an ordinary number
VECMAT_API short M_IsLong(matrix* a, int rows, int cols);
VECMAT_API short VB_M_IsLong(double* a, int rows, int cols);

/// Do all cells lie between `lo` and `hi`, the ends excluded if `open` is exactly -1? With `skipMissing` exactly -1
/// missing cells are left out. A NaN lies nowhere. True without cells.
/// @missing with `skipMissing` exactly -1 left out (equality), else an ordinary number
VECMAT_API short V_IsInInterval(matrix* x, int n, double lo, double hi, short open, short skipMissing);
VECMAT_API short VB_V_IsInInterval(double* x, int n, double lo, double hi, short open, short skipMissing);
VECMAT_API short M_IsInIntervalSPV(matrix** a, int rows, int cols, double lo, double hi, short open, short skipMissing);
VECMAT_API short VB_M_IsInIntervalSPV(SAFEARRAY** a, int rows, int cols, double lo, double hi, short open,
                                      short skipMissing);

} // extern "C"

/// Is every column constant, missing cells taken as they are? No columns are true; a single column is false at once.
/// @missing compared like a number
/// @empty without columns -1 (true); for a single column 0
VECMAT_API short M_EachColIsConstant(matrix** a, int rows, int cols);

/// The same answers for one column and none, but the columns tested lie one behind: the one before the first, whose
/// cells are out of range and agree, up to the last but one. The last column is never tested.
/// @missing compared like a number
/// @empty without columns -1 (true); for a single column 0
VECMAT_API short M_EachColIsConstant(matrix* a, int rows, int cols);
