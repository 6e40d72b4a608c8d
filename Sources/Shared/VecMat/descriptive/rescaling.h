// Normalisation of columns to a weighted norm, and rescaling to a range.
//
// Only the first n rows and p columns are read. A mask has n entries: 0 keeps the row, any other value drops it.
// Nothing is reported.
//
// @missing left out of minimum and maximum (equality); a kept one is computed like an ordinary number
// @mask a nonzero entry excludes its row: the cell comes out missing
// @weights of the squares in the norm, null is 1 each; a weight of 0 adds nothing
// @divisor maximum less minimum; below 2.220446049250313e-16 every kept cell becomes the middle of the range
// @empty nothing is written
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Divides the cells of each column, in place, by the column's norm L and multiplies them by the root of n / (n - 1), n
/// being the argument. L, into norms (`matCheck`, p by 1), is the root of the sum of x x w over the rows that are kept
/// and not missing (equality test), 0 for n below 1; other cells stay. There is no guard: a column of zeros becomes
/// NaN. A null mask keeps every row, null weights are 1.
/// @missing stays, and is left out of the norm (equality)
/// @mask a nonzero entry: the row stays and is left out; may be null
/// @divisor the norm of the column, times the root of n / (n - 1); no guard: a column of zeros becomes NaN
/// @empty norm 0
VECMAT_API void M_Normalize(matrix*& X, int n, int p, matrix*& norms, short* mask, matrix* w);

/// `M_Normalize` of X with unit weights and no mask; then the first `nY` cells of each column of Y and `nV` of V are
/// divided by that column's norm and multiplied by the same root, untested.
/// @missing of X stays (equality); of Y and V is divided like an ordinary number
/// @divisor the norm of the column of X, times the root of n / (n - 1); no guard
/// @empty norm 0
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
/// @missing excludes its cell (order), which comes out missing
/// @mask exactly -1 in `a` excludes the row: its cells come out missing
/// @divisor maximum less minimum of the column; below 2.220446049250313e-16 every kept cell becomes the middle of the
///     range
VECMAT_API void VB_M_RescaleByVect(double* X, int n, int p, double low, double high, short* a, double* Z);
/// @missing excludes its cell (order), which comes out missing
/// @mask exactly -1 in `a` excludes the row: its cells come out missing
/// @divisor maximum less minimum of the column; below 2.220446049250313e-16 every kept cell becomes the middle of the
///     range
VECMAT_API void VB_M_RescaleByVect2(double* X, int n, int p, double low, double high, short* a);

} // extern "C"
