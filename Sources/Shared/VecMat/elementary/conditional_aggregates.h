// Counts, sums and extremes over the cells of a vector that a key selects.
//
// Vectors are tables walked in linear order, whatever their shape; `n` cells are visited, and one beyond a table reads
// as -1.0 and takes part. A cell is selected where its key equals `val` exactly; a NaN equals nothing.
//
// @missing left out, in the cell or in the key (equality); ints are never missing
// @weights one that is not above 0, or is beyond its table, adds nothing
// @empty the missing value, not 0.0; also where no cell is selected
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Number of cells equal to `val`.
/// @missing matched and counted like any value
/// @empty 0
VECMAT_API double V_NbIf(matrix* x, int n, double val);
VECMAT_API double V_NbIf(matrixInt* x, int n, double val);

/// Sum, largest and smallest of the selected cells. The searches for an extreme skip NaNs and start at the missing
/// value and its positive twin: a cell at or beyond these is not found.
VECMAT_API double V_SumIf(matrix* x, int n, matrix* key, double val);
VECMAT_API double V_SumIf(matrix* x, int n, matrixInt* key, double val);
VECMAT_API double V_MaxIf(matrix* x, int n, matrix* key, double val);
VECMAT_API double V_MaxIf(matrix* x, int n, matrixInt* key, double val);
VECMAT_API double V_MinIf(matrix* x, int n, matrix* key, double val);
VECMAT_API double V_MinIf(matrix* x, int n, matrixInt* key, double val);

extern "C" {

/// Sum of the weights at the cells equal to `val`.
/// @missing matched like any value
/// @empty 0.0, also where nothing is added
VECMAT_API double V_NbIfW(matrix* x, int n, matrix* w, double val);

/// Sum of w[i] x[i] over the cells that `V_SumIf` takes.
/// @missing left out, in the cell or in the key (equality)
/// @weights a row whose weight is not above 0, or is beyond its table, is left out
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
