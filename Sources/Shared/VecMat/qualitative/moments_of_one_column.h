// Mean, standard deviation and variance of one column of a table.
//
// @missing a cell enters where it is above the missing value (order), which a NaN is not
// @weights required; a row of weight 0 changes no sum but counts in m
// @divisor W; with `sampleVariance` -1 W - 1 for `countDivisor` -1, else W - W/m; not tested
// @empty mean 0.0, the other two NaN
// @source Welford (1962) and West (1979), as in `descriptive/moments.h`
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The moments of column `col`, 1-based, over its first nRows cells, by the running updates W += w, d = x - mean, Q +=
/// d d (w - w w / W), mean += d w / W. The variance is Q over the divisor, m being the count of the rows that enter. A
/// cell beyond either table is -1.0.
VECMAT_API void M_MeanStDevVarOneInMat(matrix* table, int nRows, int col, double* mean, double* stdDev,
                                       double* variance, matrix* weights, short sampleVariance, short countDivisor);

/// The same over an array of nRows by `col`: the column is the last.
VECMAT_API void VB_M_MeanStDevVarOneInMat(double* table, int nRows, int col, double* mean, double* stdDev,
                                          double* variance, int ignored, double* weights, short sampleVariance,
                                          short countDivisor);

} // extern "C"
