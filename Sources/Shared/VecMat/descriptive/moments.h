// Means, variances and standard deviations of a vector, and of the columns or rows of a table.
//
// Only the first n rows (and p columns) are read. A mask has n entries. The weights w are not normalised. A NaN enters.
//
// Variances come from one pass of running updates: W += w, d = x - mean, Q += d d (w - w w / W), mean += d w / W. With
// W the sum of weights and m the count of rows, the divisor of Q is
//     W            for `sample` other than -1
//     W - 1        for `sample` -1 and `freqWeights` -1: the weights are frequencies
//     W - W/m      for `sample` -1 and any other `freqWeights`
// The functions differ in whether a row of weight 0 counts in m, in what they return without rows, and in whether they
// test the divisor. Errors show only as the missing value in a result.
//
// @missing left out (equality)
// @mask a nonzero entry excludes its row; may be null
// @weights required; a row of weight 0 changes no sum but counts in m
// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not above 0 (a NaN is not): missing
// @empty 0/0, a NaN
// @source Welford (1962), Note on a method for calculating corrected sums of squares and products; West (1979),
//     Updating mean and variance estimates: an improved method
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

// ---- vectors --------------------------------------------------------------------------------------------------------

/// Variance.
/// @formula s^2 = \frac{1}{D} \sum_i w_i (x_i - \bar x)^2, \quad \bar x = \frac{\sum_i w_i x_i}{W}, \quad D = W,\ W - 1
///     \text{ or } W - W/m
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested
VECMAT_API double V_Var(matrix* v, int n, short* mask, matrix* w, short sample, short freqWeights);
VECMAT_API double VB_V_Var(double* v, int n, short* mask, double* w, short sample, short freqWeights);

/// The same without mask and weights: Q += d d (1 - 1/m), mean += d / m. The flat form is `V_Var` with unit weights and
/// a mask that keeps every row.
/// @formula s^2 = \frac{1}{D} \sum_i (x_i - \bar x)^2, \quad D = m \text{ or } m - 1
/// @divisor m - 1 for `sample` -1, else m; not tested
VECMAT_API double V_Var2(matrix* v, int n, short sample, short freqWeights);
VECMAT_API double Cpp_V_Var2(double* v, int n, short sample, short freqWeights);

/// The square root of `V_Var`; 0.0 for a variance of 0 of either sign.
/// @formula s = \sqrt{\frac{1}{D} \sum_i w_i (x_i - \bar x)^2}, \quad D = W,\ W - 1 \text{ or } W - W/m
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested
VECMAT_API double V_Stdev(matrix* v, int n, short* mask, matrix* w, short sample, short freqWeights);
VECMAT_API double VB_V_Stdev(double* v, int n, short* mask, double* w, short sample, short freqWeights);

/// Mean and variance as in `V_Var`, with two guards. A single row has variance 0.0.
/// @formula \bar x = \frac{\sum_i w_i x_i}{W}, \quad s^2 = \frac{1}{D} \sum_i w_i (x_i - \bar x)^2, \quad D = W,\ W - 1
///     \text{ or } W - W/m
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; where Q is 0 the variance is 0.0 whatever the
///     divisor
/// @empty both 0.0
VECMAT_API void V_MeanVar(matrix* v, int n, double* mean, double* var, short* mask, matrix* w, short sample,
                          short freqWeights);
VECMAT_API void VB_V_MeanVar(double* v, int n, double* mean, double* var, short* mask, double* w, short sample,
                             short freqWeights);

/// `V_MeanVar` with the square root of the variance in its place.
/// @formula \bar x = \frac{\sum_i w_i x_i}{W}, \quad s = \sqrt{\frac{1}{D} \sum_i w_i (x_i - \bar x)^2}, \quad D = W,\;
///     W - 1 \text{ or } W - W/m
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; where Q is 0 the variance is 0.0 whatever the
///     divisor
/// @empty both 0.0
VECMAT_API void V_MeanStdev(matrix* v, int n, double* mean, double* stdev, short* mask, matrix* w, short sample,
                            short freqWeights);
VECMAT_API void VB_V_MeanStdev(double* v, int n, double* mean, double* stdev, short* mask, double* w, short sample,
                               short freqWeights);

// ---- columns and rows of a table ------------------------------------------------------------------------------------
//
// Results are prepared with `matCheck`, p by 1 unless a comment says otherwise. A null `stdev` stays null and is not
// computed. A missing variance gives a missing standard deviation; the mean is written all the same. The `SPV` forms
// read an array of column tables. All return 0. In the flat forms each result has p cells and `stdev` may be null.

/// Mean and standard deviation of each column.
/// @formula \bar x_j = \frac{\sum_i w_i x_{ij}}{W_j}, \quad s_j = \sqrt{\frac{1}{D_j} \sum_i w_i (x_{ij} - \bar x_j)^2}
/// @mask `ignoreMask` 0: a nonzero entry excludes its row; -1: not read; any other: every row is excluded; may be null
/// @weights a row of weight 0 does not enter and does not count in m; null means 1 each
/// @empty a column without rows has a missing mean and standard deviation
VECMAT_API int M_MeanStDev(matrix* X, int n, int p, matrix*& mean, matrix*& stdev, short* mask, matrix* w, short sample,
                           short freqWeights, short ignoreMask);
VECMAT_API int M_MeanStDevSPV(matrix** X, int n, int p, matrix*& mean, matrix*& stdev, short* mask, matrix* w,
                              short sample, short freqWeights, short ignoreMask);
VECMAT_API int VB_M_MeanStDev(double* X, int n, int p, double* mean, double* stdev, short* mask, double* w,
                              short sample, short freqWeights, short ignoreMask);

/// Mean, standard deviation and variance of each column. Rows of weight 0 count in m, unlike above.
/// @formula \bar x_j = \frac{\sum_i w_i x_{ij}}{W_j}, \quad s_j^2 = \frac{1}{D_j} \sum_i w_i (x_{ij} - \bar x_j)^2
/// @empty a column without rows has mean 0.0 and a missing variance
VECMAT_API int M_MeanStDevVar(matrix* X, int n, int p, matrix*& mean, matrix*& stdev, matrix*& var, short* mask,
                              matrix* w, short sample, short freqWeights);
VECMAT_API int M_MeanStDevVarSPV(matrix** X, int n, int p, matrix*& mean, matrix*& stdev, matrix*& var, short* mask,
                                 matrix* w, short sample, short freqWeights);
VECMAT_API int VB_M_MeanStDevVar(double* X, int n, int p, double* mean, double* stdev, double* var, short* mask,
                                 double* w, short sample, short freqWeights);

/// Mean and standard deviation of each row over its p columns, which are weighted by the p cells of w.
///
/// `mean` is prepared with n rows, `stdev` with p rows, and n results are written to each: with n above p those that do
/// not fit into `stdev` are dropped; with p above n a table of n rows is replaced. In the flat form, where both arrays
/// have n cells, the caller's `stdev` is then left unchanged.
/// @weights of the columns; null means 1 each. The test for 0 reads the cell of the row's own number: row i loses all
///     its columns where cell i of w is 0, and none where i is beyond w. Cell j, the weight of column j, is not tested:
///     while the weights still sum to 0 it divides 0 by 0
/// @empty a row without columns has a missing mean and standard deviation
VECMAT_API int M_MeanStDevByRow(matrix* X, int n, int p, matrix*& mean, matrix*& stdev, matrix* w, short sample,
                                short freqWeights);
VECMAT_API int VB_M_MeanStDevByRow(double* X, int n, int p, double* mean, double* stdev, double* w, short sample,
                                   short freqWeights);

} // extern "C"
