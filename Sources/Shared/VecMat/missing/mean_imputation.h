// Missing numbers filled with the mean of their column.
//
// The means are weighted, and are those of `V_Mean` and `M_Mean`, taken before the first cell is filled. Missing cells
// of rows that are not marked stay.
//
// @missing filled with the mean of its column in a marked row (order; not a NaN); the means leave out the missing value
//     alone (equality)
// @mask a nonzero entry marks a row to be filled
// @weights one for each row of the statistics; they count in the means alone: a row of weight 0 is filled like any
//     other
// @divisor the sum of the weights of the column's mean; a column without data has mean 0.0, which fills its cells
// @empty `nCols` below 1 is a vector, whose mean without data is missing, so that its cells stay missing
// @cost two passes over the cells
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Fills `X`, `nRows` by `nCols`, with the means of the columns of `statX`, which has `nStat` rows and may be `X`
/// itself. With `nCols` below 1 both are vectors of `nStat` and `nRows` cells.
VECMAT_API void EstimateRowsWithMissingMean(matrix* statX, int nStat, matrix*& X, int nRows, int nCols, short* mask,
                                            matrix* weights);

/// The same over an array of columns, with statistics from the same data. A vector is no special case.
/// @empty without columns nothing happens
VECMAT_API void EstimateRowsWithMissingMeanSPV(matrix** X, int nRows, int nCols, short* mask, matrix* weights);

// Flat forms: X is filled in place, the other arrays are not written. With `nCols` below 1 the arrays have one column.
// The first and the third take the statistics from X itself; in `Pred` `weights` has `nStat` elements.
VECMAT_API void VB_EstimateRowsWithMissingMean(double* X, int n, int nCols, short* mask, double* weights);
VECMAT_API void VB_EstimateRowsWithMissingMeanPred(double* statX, int nStat, double* X, int nRows, int nCols,
                                                   short* mask, double* weights);
VECMAT_API void VB_EstimateRowsWithMissingMeanSPV(SAFEARRAY** X, int n, int nCols, short* mask, double* weights);

} // extern "C"
