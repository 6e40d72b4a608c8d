// Normalisation of columns to a weighted norm, and rescaling to a range.
//
// Only the first n rows and p columns are read. A mask has n entries: 0 keeps the row, any other value drops it.
// Nothing is reported.
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Divides the cells of each column, in place, by the column's norm L and multiplies them by the root of n / (n - 1), n
/// being the argument. L, into norms (`matCheck`, p by 1), is the root of the sum of x x w over the rows that are kept
/// and not missing (equality test), 0 for n below 1; other cells stay. There is no guard: a column of zeros becomes
/// NaN. A null mask keeps every row, null weights are 1.
VECMAT_API void M_Normalize(matrix*& X, int n, int p, matrix*& norms, short* mask, matrix* w);

/// `M_Normalize` of X with unit weights and no mask; then the first `nY` cells of each column of Y and `nV` of V are
/// divided by that column's norm and multiplied by the same root, untested.
VECMAT_API void M_NormalizeMatrix(matrix*& X, int n, int p, matrix*& Y, int nY, matrix*& V, int nV);

/// Brings the vector to the range from `low` to `high`, into the existing out: (x - min) (high - low) / (max - min) +
/// low, minimum and maximum taken over the cells that are kept and not missing. Where max - min is below
/// 2.220446049250313e-16 every kept cell becomes the middle of the range. A missing kept cell is computed like any
/// other; a dropped one becomes missing.
VECMAT_API void V_Rescale(matrix* v, int n, double low, double high, short* mask, matrix* out);

// ---- flat forms -----------------------------------------------------------------------------------------------------

VECMAT_API void VB_M_Normalize(double* X, int n, int p, double* norms, short* mask, double* w);
VECMAT_API void VB_M_NormalizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV);
VECMAT_API void VB_V_Rescale(double* v, int n, double low, double high, short* mask, double* out);

/// `VB_V_Rescale` over its own array.
VECMAT_API void VB_V_Rescale2(double* x, int n, double low, double high, short* mask);

/// Each column by itself, with a mask of its own: rows where `a` is exactly -1 or the cell is missing by the order test
/// are dropped, and come out missing. The form with a 2 writes over X.
VECMAT_API void VB_M_RescaleByVect(double* X, int n, int p, double low, double high, short* a, double* Z);
VECMAT_API void VB_M_RescaleByVect2(double* X, int n, int p, double low, double high, short* a);

} // extern "C"
