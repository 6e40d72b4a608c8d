// Counts, sums and extremes over the cells of a vector that a key selects.
//
// Vectors are tables walked in linear order, whatever their shape; `n` cells are visited and one beyond a table reads
// as -1.0 and takes part as that number. A cell is selected where its key equals `val` exactly; a NaN equals nothing.
// "Missing" is the equality test; a key of ints is never missing.
//
// @missing left out, in the cell or in the key (equality); ints are never missing
// @weights one that is not above 0, or beyond its table, adds nothing
// @empty the missing value, also where nothing is selected
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Number of cells equal to `val`, 0.0 where there are none. There is no missing test: the missing value can be
/// counted.
/// @missing counted like any value
/// @empty 0
VECMAT_API double V_NbIf(matrix* x, int n, double val);
VECMAT_API double V_NbIf(matrixInt* x, int n, double val);

/// Sum, largest and smallest of the selected cells. Those that are missing, or whose key is, are left out. The missing
/// value, not 0.0, where no cell remains, also for `n` below 1. The searches for an extreme pass over a NaN, and start
/// at the missing value and its positive twin: a cell at or beyond these is not found.
VECMAT_API double V_SumIf(matrix* x, int n, matrix* key, double val);
VECMAT_API double V_SumIf(matrix* x, int n, matrixInt* key, double val);
VECMAT_API double V_MaxIf(matrix* x, int n, matrix* key, double val);
VECMAT_API double V_MaxIf(matrix* x, int n, matrixInt* key, double val);
VECMAT_API double V_MinIf(matrix* x, int n, matrix* key, double val);
VECMAT_API double V_MinIf(matrix* x, int n, matrixInt* key, double val);

extern "C" {

/// Sum of the weights at the cells equal to `val`, with no missing test on the cells. A weight that is not above 0, or
/// lies beyond its table, adds nothing; 0.0 where nothing is added.
/// @missing matched like any value
/// @empty 0.0
VECMAT_API double V_NbIfW(matrix* x, int n, matrix* w, double val);

/// Sum of w[i] x[i] over the cells that `V_SumIf` takes and whose weight is above 0 and inside its table; the missing
/// value where none remains.
/// @missing left out, in the cell or in the key (equality)
/// @weights a row whose weight is not above 0, or beyond its table, is left out
VECMAT_API double V_SumIfW(matrix* x, int n, matrix* key, matrix* w, double val);

// ---- flat forms: arrays have n elements and are never written -------------------------------------------------------

/// The functions of the same names; the count over ints is an int.
VECMAT_API double VB_V_NbIf(double* x, int n, double val);
VECMAT_API int VB_V_NbIfLng(int* x, int n, int val);
VECMAT_API double VB_V_NbIfW(double* x, int n, double* w, double val);
VECMAT_API double VB_V_SumIf(double* x, int n, double* key, double val);
VECMAT_API double VB_V_SumIfW(double* x, int n, double* key, double* w, double val);
VECMAT_API double VB_V_MaxIf(double* x, int n, double* key, double val);
VECMAT_API double VB_V_MinIf(double* x, int n, double* key, double val);

} // extern "C"
