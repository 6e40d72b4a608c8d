// Normalisation of columns to a weighted norm, and rescaling to a range.
//
// Only the first n rows and p columns are read. A mask has n entries. No error is reported.
//
// @missing left out of minimum and maximum (equality); computed like an ordinary number all the same
// @mask a nonzero entry excludes its row: the cell comes out missing
// @empty nothing is written
// @cost two passes over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Divides the cells of each column, in place, by the column's norm L and multiplies them by the root of n / (n - 1), n
/// being the argument. L, into norms (`matCheck`, p by 1), is the root of the sum of x x w.
/// @formula x_{ij}' = \frac{x_{ij}}{L_j} \sqrt{\frac{n}{n - 1}}, \quad L_j = \sqrt{\sum_i w_i x_{ij}^2}
/// @missing left unchanged, and left out of the norm (equality)
/// @mask a nonzero entry: the row is left unchanged and out of the norm; may be null
/// @weights multiply the squares in the norm, where a weight of 0 adds nothing; null means 1 each
/// @divisor L and the root of n / (n - 1), without a guard: a column of zeros becomes NaN
/// @empty norm 0
VECMAT_API void M_Normalize(matrix*& X, int n, int p, matrix*& norms, short* mask, matrix* w);

/// `M_Normalize` of X with unit weights and no mask; then the first `nY` cells of each column of Y and `nV` of V are
/// divided by that column's norm and multiplied by the same root.
/// @missing of X is left unchanged (equality); of Y and V it is divided like an ordinary number
/// @divisor the norm of the column of X and the root of n / (n - 1), without a guard
/// @empty norm 0
VECMAT_API void M_NormalizeMatrix(matrix*& X, int n, int p, matrix*& Y, int nY, matrix*& V, int nV);

/// Brings the vector to the range from `low` to `high`, into the existing out: (x - min) (high - low) / (max - min) +
/// low, with the minimum and maximum of the present cells that the mask keeps.
/// @formula x_i' = \frac{(x_i - \min x)(\mathrm{high} - \mathrm{low})}{\max x - \min x} + \mathrm{low}
/// @divisor maximum less minimum; where it is below 2.220446049250313e-16 every kept cell becomes the middle of the
///     range
VECMAT_API void V_Rescale(matrix* v, int n, double low, double high, short* mask, matrix* out);

// ---- flat forms -----------------------------------------------------------------------------------------------------

/// The functions of the same names.
VECMAT_API void VB_M_Normalize(double* X, int n, int p, double* norms, short* mask, double* w);
VECMAT_API void VB_M_NormalizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV);
VECMAT_API void VB_V_Rescale(double* v, int n, double low, double high, short* mask, double* out);

/// `VB_V_Rescale` over its own array.
/// @divisor maximum less minimum; where it is below 2.220446049250313e-16 every kept cell becomes the middle of the
///     range
VECMAT_API void VB_V_Rescale2(double* x, int n, double low, double high, short* mask);

/// Each column by itself, with a mask of its own. The form with a 2 writes over X.
/// @missing excludes its cell (order), which comes out missing
/// @mask exactly -1 in `a` excludes the row: its cells come out missing
/// @divisor maximum less minimum of the column; where it is below 2.220446049250313e-16 every kept cell becomes the
///     middle of the range
VECMAT_API void VB_M_RescaleByVect(double* X, int n, int p, double low, double high, short* a, double* Z);
VECMAT_API void VB_M_RescaleByVect2(double* X, int n, int p, double low, double high, short* a);

} // extern "C"
