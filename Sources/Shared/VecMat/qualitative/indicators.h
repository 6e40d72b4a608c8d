// Is a vector one of weights, of counts, or an indicator of 0 and 1?
//
// Answers are -1 for true and 0 for false. The first n cells are read in linear order; one beyond the table is -1.0,
// which fails every test here.
//
// @missing fails the test
// @empty 0 (false)
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Is every cell exactly 0 or exactly 1? A NaN is neither.
/// @empty -1 (true)
VECMAT_API short V_Is01(matrix* x, int n);
VECMAT_API short VB_V_Is01(double* x, int n);

/// Weights: the sum of the cells is above 0, and none of them is negative.
/// @missing left out (equality)
VECMAT_API short V_IsWeights(matrix* x, int n);
VECMAT_API short VB_V_IsWeights(double* x, int n);

/// Weights that are counts: all cells are whole numbers as well, by the test of `IsLong`.
/// @missing left out (equality), and counts as a whole number
VECMAT_API short V_IsCWeights(matrix* x, int n);
VECMAT_API short VB_V_IsCWeights(double* x, int n);

/// Every cell is 0 or 1, and one of them is 1.
VECMAT_API short V_IsIndicator(matrix* x, int n);
VECMAT_API short VB_V_IsIndicator(double* x, int n);

/// The same of all columns together: a column may be without a 1 where another has one.
/// @empty 0 (false), also without columns
VECMAT_API short M_IsIndicatorSPV(matrix** x, int nRows, int nCols);
VECMAT_API short VB_V_IsIndicatorSPV(SAFEARRAY** x, int nRows, int nCols);

} // extern "C"
