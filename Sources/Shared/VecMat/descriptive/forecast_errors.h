// Error measures between an observed and a fitted vector, and the sum of squares about the mean.
//
// Rows are 1-based; the measures with `first` score from that row on to n. Cells are read with the checks of the
// tables. "Missing" is the equality test, unless told otherwise. Weights are used as they are. Nothing is reported but
// by the result.
//
// @missing excludes its row, in either vector (equality); so does a y of 0
// @weights used as given
// @divisor the sum of the weights; missing where it is 0
// @empty the missing value, also for `first` above `n`
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Mean absolute percentage error: 100 times the weighted mean of |1 - f/y| over rows where y is not 0 and neither is
/// missing. Null weights are 1, and a `first` of 0 counts as 1. Where the weights sum to 0 the result is the sum so
/// far, 0.0 without rows: not the missing value, unlike the two below.
/// @weights used as given; null is 1 each
/// @divisor the sum of the weights; where it is 0 the result is the sum so far
/// @empty 0.0
VECMAT_API double MAPE(matrix* y, matrix* f, int n, matrix* w, int first);

/// Mean percentage error: 100 times the weighted mean of (y - f) / y over the same rows. `first` is taken as it is: a
/// position before the table reads -1.0 in all three vectors. The missing value for `first` above n or weights that sum
/// to 0.
VECMAT_API double MPE(matrix* y, matrix* f, int n, matrix* w, int first);

/// Mean absolute error: the weighted mean of |y - f| over rows where neither is missing; a y of 0 counts. `first` and
/// the missing result as in `MPE`.
/// @missing excludes its row, in either vector (equality); a y of 0 counts
VECMAT_API double MAE(matrix* y, matrix* f, int n, matrix* w, int first);

/// Root of the sum of (Y - F)^2 over `divisor`, in the 1-based column `col` of both tables. A row whose Y is not above
/// the missing value by the order test is skipped, and counts in the caller's divisor all the same. 0.0 for `col` below
/// 1.
/// @missing a row whose Y is not above the missing value is left out (order), but counts in the divisor
/// @divisor `divisor`, the caller's, untested
/// @empty 0.0 over the divisor; 0.0 for `col` below 1
VECMAT_API double RMSE(matrix* Y, int n, int col, matrix* F, int divisor);

/// Weighted sum of squares about the plain mean, which is handed back too: the sum is weighted, the mean is not.
/// Missing cells (equality test) are left out of both. Not divided. The missing value for n below 1 or weights that sum
/// to 0.
/// @missing left out of mean and sum (equality)
/// @weights weigh the sum, not the mean
/// @divisor none: the sum is not divided; missing where the weights sum to 0
/// @empty the missing value
VECMAT_API double GetSSE(matrix* v, int n, matrix* w, double* mean);

// ---- flat forms -----------------------------------------------------------------------------------------------------

VECMAT_API double VB_MAPE(double* y, double* f, int n, double* w, int first);
VECMAT_API double VB_MPE(double* y, double* f, int n, double* w, int first);
VECMAT_API double VB_MAE(double* y, double* f, int n, double* w, int first);
/// Scores the last column of two n by p tables.
VECMAT_API double VB_RMSE(double* Y, int n, int p, double* F, int divisor);

} // extern "C"
