// Missing numbers filled with the mean of their column.
//
// A cell is filled where it is missing (the missing value, anything below it, minus infinity; not a NaN) and the mask
// entry of its row, one of `nRows`, is not 0; any other value than 0 marks the row. Missing cells of the other rows
// stay. The means are weighted, and are those of `V_Mean` and `M_Mean`: they leave out the missing value alone. The
// weights, one for each row of the statistics, count there and nowhere else: a row of weight 0 is filled like any
// other. All means are taken before the first cell is filled.
//
// @missing filled with the mean of its column in a marked row (order); the means leave out the missing value alone
//     (equality)
// @mask a nonzero entry marks a row to be filled
// @weights count in the means alone: a row of weight 0 is filled like any other
// @divisor the sum of the weights of the column's mean, which is 0.0 without data
// @empty `nCols` below 1 is a vector, whose mean without data is missing, so that its cells stay missing
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Fills `X`, `nRows` by `nCols`, with the means of the columns of `statX`, which has `nStat` rows and may be `X`
/// itself. A column without data has mean 0.0, and its cells become 0.0. With `nCols` below 1 both are vectors of
/// `nStat` and `nRows` cells; the mean of one without data is missing, and its cells stay missing.
VECMAT_API void EstimateRowsWithMissingMean(matrix* statX, int nStat, matrix*& X, int nRows, int nCols, short* mask,
                                            matrix* weights);

/// The same over an array of columns, with statistics from the same data. There is no case of a vector: without columns
/// nothing happens.
/// @empty without columns nothing happens
VECMAT_API void EstimateRowsWithMissingMeanSPV(matrix** X, int nRows, int nCols, short* mask, matrix* weights);

// Flat forms: X is filled in place, the other arrays are not written. With `nCols` below 1 the arrays have one column.
// The first and the third take the statistics from X itself; in `Pred` `weights` has `nStat` elements.
VECMAT_API void VB_EstimateRowsWithMissingMean(double* X, int n, int nCols, short* mask, double* weights);
VECMAT_API void VB_EstimateRowsWithMissingMeanPred(double* statX, int nStat, double* X, int nRows, int nCols,
                                                   short* mask, double* weights);
VECMAT_API void VB_EstimateRowsWithMissingMeanSPV(SAFEARRAY** X, int n, int nCols, short* mask, double* weights);

} // extern "C"
