// Sums, sums of squares and squared distances of vectors.
//
// A vector is a table walked in linear order from its first cell, whatever its shape. `n` cells are visited; a cell
// beyond the table, or beyond a table of weights, reads as -1.0 and takes part. Every sum runs in order from +0.0.
//
// @missing an ordinary number
// @empty 0.0
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// Sum of w[i] x[i].
/// @missing left out, in the cell or in the weight (equality)
/// @mask a nonzero entry excludes its cell; may be null
/// @weights a zero or negative one counts like any other; null means 1.0 each
VECMAT_API double V_Sum(matrix* x, int n, short* mask, matrix* w);

/// Sum of squares: `V_Sq` of all cells, `V_SumSq` of the present ones.
VECMAT_API double V_Sq(matrix* x, int n);
/// @missing left out (equality)
VECMAT_API double V_SumSq(matrix* x, int n);

/// Sum of w[i-1] x[i]^2. The weight is the one before the cell, on purpose: the first cell has none and counts with
/// -1.0, and the last weight is not used.
/// @missing left out (equality)
/// @weights not tested; the weight of a cell is the one before its place, -1.0 for the first cell
VECMAT_API double V_SumSqW(matrix* x, int n, matrix* w);

/// Sum of (a[i] - b[i])^2, plain and with weights w[i], aligned with the cells.
VECMAT_API double V_DiffSq(matrix* a, int n, matrix* b);
/// @weights not tested
VECMAT_API double V_DiffSqW(matrix* a, int n, matrix* b, matrix* w);

/// `V_DiffSq` over the 1-based cells `start` to `n`; a `start` below 1 starts at the first cell.
/// @empty 0.0, also where `start` is above `n`
VECMAT_API double V_DiffSqStart(matrix* a, int n, matrix* b, int start);

} // extern "C"

/// Sum of the cells.
/// @missing left out (equality); ints are never missing
/// @empty 0.0 (0)
VECMAT_API double V_Sum2(matrix* x, int n);
VECMAT_API double V_Sum2(matrixInt* x, int n);

/// Sum of the second to the (n+1)th element: the first is left out and one past the `n` is read, on purpose. The caller
/// provides n + 1 elements.
/// @missing ints are never missing
/// @empty 0
VECMAT_API double V_Sum2(int* x, int n);

// ---- flat forms: x, w, a, b have n elements and are never written ---------------------------------------------------

extern "C" {

/// The functions of the same names.
VECMAT_API double VB_V_Sum(double* x, int n, short* mask, double* w);
VECMAT_API double VB_V_SumSq(double* x, int n);
VECMAT_API double VB_V_SumSqW(double* x, int n, double* w);
VECMAT_API double VB_V_DiffSq(double* a, int n, double* b);
VECMAT_API double VB_V_DiffSqW(double* a, int n, double* b, double* w);
VECMAT_API double Cpp_V_DiffSqStart(double* a, int n, double* b, int start);

/// `V_Sum2` over an array.
/// @missing left out (equality)
/// @empty 0.0
VECMAT_API double VB_V_Sum2Dbl(double* x, int n);

/// Sum from the first element on, in 32 bits: it wraps on overflow.
/// @missing ints are never missing
/// @empty 0
VECMAT_API int VB_V_Sum2Lng(int* x, int n);

/// Sum of the 1-based elements `from` to `to`. `n` is not used: the caller provides `to` elements. A `from` below 1
/// starts at the first element. The integer form wraps.
/// @empty 0.0 (0) where `from` is above `to`
VECMAT_API double VB_V_SumFromTo(double* x, int n, int from, int to);
VECMAT_API int VB_V_SumFromToLng(int* x, int n, int from, int to);

} // extern "C"
