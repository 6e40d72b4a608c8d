// Linear equations by elimination.
//
// @missing an ordinary number, a large one
// @cost of the order n^3 for the inverse, and n^2 for each right-hand side
// @divisor the pivot; singular where it is exactly 0.0 or none is found
// @empty 0, nothing changed
// @failure -2 for a singular table; a and b are then left as the steps so far have made them
// @weak a pivot is searched in absolute terms: a regular table whose cells are all within 1e-12 of 0 is singular
// @source full pivoting: Golub and Van Loan, Matrix Computations, section 3.4
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Gauss-Jordan elimination with full pivoting: a, `n` by `n`, becomes its inverse and b, `n` by `m`, the solutions.
/// The pivot of a step is the cell of largest magnitude among the rows and columns not yet used; a cell replaces the
/// largest so far only where it exceeds it by more than 1e-12, so the first of nearly equal cells stays, and a table
/// whose cells are all within 1e-12 of 0 has no pivot. A NaN is never found as a pivot. With `noPivot` the pivots are
/// the diagonal cells in order; with `noSwap` they are searched, but the diagonal cell of the column found takes the
/// pivot's place, and no rows and columns are exchanged. Cells outside a table read as -1.0, also as a pivot. Returns
/// 0, or -2.
VECMAT_API int M_Gauss(matrix* a, int n, int m, matrix* b, bool noSwap, bool noPivot);

// Flat forms, with full pivoting and for one right-hand side or `m`: both arrays are written back, after -2 too.
VECMAT_API int VB_V_Gauss(double* a, int n, double* b);
VECMAT_API int VB_M_Gauss(double* a, int n, int m, double* b);

} // extern "C"
