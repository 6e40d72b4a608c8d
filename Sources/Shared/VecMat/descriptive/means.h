// Means: arithmetic, absolute, harmonic and geometric, of a vector and of the columns of a table.
//
// Only the first n rows (and p columns) are read. A mask has n entries. The weights w have one cell for each row and
// are not normalised. A NaN enters, except in the two functions that take only what is above the missing value. Errors
// show only as the missing value in a result.
//
// @missing left out (equality)
// @mask a nonzero entry excludes its row; may be null
// @weights required; a row of weight 0 is left out
// @empty the missing value, also where no row enters
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Sum of w x over the sum of w, each summed in row order.
/// @formula \bar x = \frac{\sum_i w_i x_i}{\sum_i w_i}
/// @divisor the sum of the weights; missing where it is 0
VECMAT_API double V_Mean(matrix* v, int n, short* mask, matrix* w);
VECMAT_API double VB_V_Mean(double* v, int n, short* mask, double* w);

/// Sum of the present cells over their count.
/// @formula \bar x = \frac{1}{m} \sum_i x_i
/// @divisor the count of the present cells
VECMAT_API double V_Mean2(matrix* v, int n);
VECMAT_API double VB_V_Mean2(double* v, int n);

/// `V_Mean` of the absolute values.
/// @formula \frac{\sum_i w_i |x_i|}{\sum_i w_i}
/// @divisor the sum of the weights; missing where it is 0
VECMAT_API double V_MeanAbs(matrix* v, int n, short* mask, matrix* w);
VECMAT_API double VB_V_MeanAbs(double* v, int n, short* mask, double* w);

/// Sum of w over the sum of w / x.
/// @formula \frac{\sum_i w_i}{\sum_i w_i / x_i}
/// @missing left out (equality); a cell of exactly 0 that enters makes the result missing, even with weight 0
/// @weights required, not tested
/// @divisor the sum of w / x; missing where it is 0
VECMAT_API double V_HarmonicMean(matrix* v, int n, short* mask, matrix* w);
VECMAT_API double Cpp_V_HarmonicMean(double* v, int n, short* mask, double* w);

/// Geometric mean and geometric standard deviation: the exponentials of the mean and of the standard deviation of the
/// logarithms.
/// @formula g = \exp \frac{\sum_i w_i \ln x_i}{W}, \quad s_g = \exp \sqrt{\frac{\sum_i w_i (\ln x_i - \ln g)^2}{W -
///     W/m}}
/// @missing left out (equality); a cell at or below 0 that enters makes both results missing, even after good rows
/// @weights required; a row of weight 0 changes no sum but counts in m
/// @divisor W - W/m; `gsd` is missing where it is 0
/// @empty both missing, also where no row enters
VECMAT_API void V_GMeanGSD(matrix* v, int n, short* mask, matrix* w, double* gmean, double* gsd);
VECMAT_API void Cpp_V_GMeanGSD(double* v, int n, short* mask, double* w, double* gmean, double* gsd);

/// Weighted mean of each column, by the running update mean += d w / W, into p cells. `mean` is prepared with
/// `matCheck` (p by 1). `M_MeanSPV` reads an array of column tables. Returns 0.
/// @formula \bar x_j = \frac{\sum_i w_i x_{ij}}{\sum_i w_i}
/// @weights required; a weight of 0 changes nothing
/// @divisor the running sum of weights
/// @empty a column without rows has mean 0.0, not the missing value
VECMAT_API int M_Mean(matrix* X, int n, int p, matrix*& mean, matrix* w);
VECMAT_API int M_MeanSPV(matrix** X, int n, int p, matrix*& mean, matrix* w);
/// `mean` has p cells; `ignored` is not read.
VECMAT_API int VB_M_Mean(double* X, int n, int p, double* mean, int ignored, double* w);

/// As `M_Mean`, into a `mean` that must exist; it is not cleared. Returns 0.
/// @formula \bar x_j = \frac{\sum_i w_i x_{ij}}{\sum_i w_i}
/// @missing a cell enters only where it is above the missing value (order), which a NaN is not
/// @weights required, not tested: a weight of 0 ahead of all others divides 0 by 0, and the mean stays NaN
/// @divisor the running sum of weights
/// @empty a column without rows has a missing mean
VECMAT_API int M_Mean2(matrix* X, int n, int p, matrix* w, matrix* mean);
VECMAT_API int Cpp_M_Mean2(double* X, int n, int p, double* w, double* mean);

/// The plain mean of each column, by the running update mean += d / m. `mean` must exist; it is not cleared. Returns 0.
/// @formula \bar x_j = \frac{1}{m_j} \sum_i x_{ij}
/// @missing a cell enters only where it is above the missing value (order), which a NaN is not
/// @divisor the count of the cells that enter
/// @empty a column without rows has a missing mean
VECMAT_API int M_Mean3(matrix* X, int n, int p, matrix* mean);
VECMAT_API int Cpp_M_Mean3(double* X, int n, int p, double* mean);

/// Sum of the present cells of the 1-based column `col`.
/// @formula \sum_i x_{i,\,\mathrm{col}}
/// @empty 0.0, also where no cell is present
VECMAT_API double M_ColSum2(matrix* X, int n, int col);

} // extern "C"
