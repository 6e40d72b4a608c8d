// Error measures between an observed and a fitted vector, and the sum of squares about the mean.
//
// Rows are 1-based; the measures with `first` score from that row on to n. Cells are read with the checks of the
// tables. Errors show only in the result.
//
// @missing excludes its row, in either vector (equality); so does a y of 0
// @weights not tested
// @divisor the sum of the weights; missing where it is 0
// @empty the missing value, also for `first` above `n`
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Mean absolute percentage error: 100 times the weighted mean of |1 - f/y|. A `first` of 0 counts as 1.
/// @formula 100\, \frac{\sum_i w_i |1 - f_i / y_i|}{\sum_i w_i}
/// @weights not tested; null means 1 each
/// @divisor the sum of the weights; where it is 0 the result is the sum so far, unlike in the two below
/// @empty 0.0
VECMAT_API double MAPE(matrix* y, matrix* f, int n, matrix* w, int first);

/// Mean percentage error: 100 times the weighted mean of (y - f) / y. `first` is used as given: a position before the
/// table reads -1.0 in all three vectors.
/// @formula 100\, \frac{\sum_i w_i (y_i - f_i) / y_i}{\sum_i w_i}
VECMAT_API double MPE(matrix* y, matrix* f, int n, matrix* w, int first);

/// Mean absolute error: the weighted mean of |y - f|. `first` as in `MPE`.
/// @formula \frac{\sum_i w_i |y_i - f_i|}{\sum_i w_i}
/// @missing excludes its row, in either vector (equality); a y of 0 counts
VECMAT_API double MAE(matrix* y, matrix* f, int n, matrix* w, int first);

/// Root of the sum of (Y - F)^2 over `divisor`, in the 1-based column `col` of both tables. 0.0 for `col` below 1.
/// @formula \sqrt{\frac{1}{\mathrm{divisor}} \sum_i (y_i - f_i)^2}
/// @missing a row whose Y is not above the missing value is left out (order), but counts in the caller's divisor; F is
///     not tested
/// @divisor `divisor`, the caller's, not tested
/// @empty 0.0 over the divisor
VECMAT_API double RMSE(matrix* Y, int n, int col, matrix* F, int divisor);

/// Weighted sum of squares about the plain mean, which is returned too. Not divided.
/// @formula \sum_i w_i (x_i - \bar x)^2, \quad \bar x = \frac{1}{m} \sum_i x_i
/// @missing left out of mean and sum (equality)
/// @weights weight the sum, not the mean; where they sum to 0 the result is missing
/// @divisor none
/// @empty the missing value
VECMAT_API double GetSSE(matrix* v, int n, matrix* w, double* mean);

// ---- flat forms -----------------------------------------------------------------------------------------------------

VECMAT_API double VB_MAPE(double* y, double* f, int n, double* w, int first);
VECMAT_API double VB_MPE(double* y, double* f, int n, double* w, int first);
VECMAT_API double VB_MAE(double* y, double* f, int n, double* w, int first);
/// Scores the last column of two n by p tables.
VECMAT_API double VB_RMSE(double* Y, int n, int p, double* F, int divisor);

} // extern "C"
