// Means, variances and standard deviations of a vector, and of the columns or rows of a table.
//
// Only the first n rows (and p columns) are read. A mask holds n entries: 0 keeps the row, anything else drops it; a
// null mask keeps every row. The weights w are used as they are, without normalisation; they must be given, except
// where a function says what a null table means. A missing cell is left out; the test is for exactly the missing value,
// so that a NaN enters.
//
// Variances come from one pass of running updates: W += w, d = x - mean, Q += d d (w - w w / W), mean += d w / W
// (Welford 1962; West 1979). With W the sum of weights and m the count of rows, the divisor of Q is
//     W            for `sample` other than -1
//     W - 1        for `sample` -1 and `freqWeights` -1: the weights are frequencies
//     W - W/m      for `sample` -1 and any other `freqWeights`
// The functions differ in whether a row of weight 0 counts in m, in what they do without rows, and in whether they test
// the divisor. Nothing reports an error but the missing value in a result.
//
// @missing left out (equality)
// @mask a nonzero entry excludes its row; may be null
// @weights required; a row of weight 0 changes no sum but counts in m
// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not above 0: missing
// @empty 0/0, a NaN
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

// ---- vectors --------------------------------------------------------------------------------------------------------

/// Variance. A row of weight 0 counts in m and moves nothing. The division is not tested: no rows give 0/0, a NaN.
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested
VECMAT_API double V_Var(matrix* v, int n, short* mask, matrix* w, short sample, short freqWeights);
VECMAT_API double VB_V_Var(double* v, int n, short* mask, double* w, short sample, short freqWeights);

/// The same without mask and weights: Q += d d (1 - 1/m), mean += d / m. The flat form is `V_Var` with unit weights and
/// a mask that keeps every row.
/// @divisor m - 1 for `sample` -1, else m; not tested
VECMAT_API double V_Var2(matrix* v, int n, short sample, short freqWeights);
VECMAT_API double Cpp_V_Var2(double* v, int n, short sample, short freqWeights);

/// The square root of `V_Var`; 0.0 for a variance of 0 of either sign.
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; not tested
VECMAT_API double V_Stdev(matrix* v, int n, short* mask, matrix* w, short sample, short freqWeights);
VECMAT_API double VB_V_Stdev(double* v, int n, short* mask, double* w, short sample, short freqWeights);

/// Mean and variance as `V_Var` has them, with these guards: without rows both are 0.0, and where Q is 0 the variance
/// is 0.0 whatever the divisor, so that a single row has variance 0.0.
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; where Q is 0 the variance is 0.0 whatever the
///     divisor
/// @empty both 0.0
VECMAT_API void V_MeanVar(matrix* v, int n, double* mean, double* var, short* mask, matrix* w, short sample,
                          short freqWeights);
VECMAT_API void VB_V_MeanVar(double* v, int n, double* mean, double* var, short* mask, double* w, short sample,
                             short freqWeights);

/// `V_MeanVar` with the square root of the variance in its place.
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; where Q is 0 the variance is 0.0 whatever the
///     divisor
/// @empty both 0.0
VECMAT_API void V_MeanStdev(matrix* v, int n, double* mean, double* stdev, short* mask, matrix* w, short sample,
                            short freqWeights);
VECMAT_API void VB_V_MeanStdev(double* v, int n, double* mean, double* stdev, short* mask, double* w, short sample,
                               short freqWeights);

// ---- columns and rows of a table ------------------------------------------------------------------------------------
//
// Results are prepared with `matCheck`, p by 1 unless told otherwise. A null `stdev` stays null and is not computed.
// Where the divisor is not above 0 (a NaN is not) the variance is the missing value, and a missing variance gives a
// missing standard deviation; the mean is written all the same. The `SPV` forms read an array of column tables. All
// return 0. In the flat forms each result has p cells and `stdev` may be null.

/// A row of weight 0 does not enter and is not counted in m. `ignoreMask` 0 applies the mask; -1 keeps every row
/// whatever the mask; any other value drops every row. A null w is a weight of 1 for each row. A column without rows
/// has a missing mean and standard deviation.
/// @mask `ignoreMask` 0: a nonzero entry excludes its row; -1: not read; any other: every row is dropped; may be null
/// @weights a row of weight 0 does not enter and is not counted in m; null is 1 each
/// @empty a column without rows has a missing mean and deviation
VECMAT_API int M_MeanStDev(matrix* X, int n, int p, matrix*& mean, matrix*& stdev, short* mask, matrix* w, short sample,
                           short freqWeights, short ignoreMask);
VECMAT_API int M_MeanStDevSPV(matrix** X, int n, int p, matrix*& mean, matrix*& stdev, short* mask, matrix* w,
                              short sample, short freqWeights, short ignoreMask);
VECMAT_API int VB_M_MeanStDev(double* X, int n, int p, double* mean, double* stdev, short* mask, double* w,
                              short sample, short freqWeights, short ignoreMask);

/// A row of weight 0 counts in m and moves nothing, unlike above, and w must be given. A column without rows has mean
/// 0.0 and a missing variance.
/// @empty a column without rows has mean 0.0 and a missing variance
VECMAT_API int M_MeanStDevVar(matrix* X, int n, int p, matrix*& mean, matrix*& stdev, matrix*& var, short* mask,
                              matrix* w, short sample, short freqWeights);
VECMAT_API int M_MeanStDevVarSPV(matrix** X, int n, int p, matrix*& mean, matrix*& stdev, matrix*& var, short* mask,
                                 matrix* w, short sample, short freqWeights);
VECMAT_API int VB_M_MeanStDevVar(double* X, int n, int p, double* mean, double* stdev, double* var, short* mask,
                                 double* w, short sample, short freqWeights);

/// Mean and standard deviation of each row over its p columns, which are weighted by the p cells of w (null: 1 each).
/// The test for a weight of 0 looks at the row's own number: row i loses all its columns where cell i of w is 0, and
/// none where i is beyond w. What enters the sums for column j is cell j, which is not tested: while the weights still
/// sum to 0 it divides 0 by 0. A row without columns has a missing mean and standard deviation.
///
/// `mean` is prepared with n rows, `stdev` with p rows, and n results are written to each: with n above p those that do
/// not fit into `stdev` are dropped; with p above n a table of n rows is replaced. In the flat form, where both arrays
/// have n cells, the caller's `stdev` is then left as it was.
/// @weights of the columns, null is 1 each; the test for 0 looks at the row's own number: row i loses all columns where
///     cell i of w is 0; a zero of a column is not tested
/// @empty a row without columns has a missing mean and deviation
VECMAT_API int M_MeanStDevByRow(matrix* X, int n, int p, matrix*& mean, matrix*& stdev, matrix* w, short sample,
                                short freqWeights);
VECMAT_API int VB_M_MeanStDevByRow(double* X, int n, int p, double* mean, double* stdev, double* w, short sample,
                                   short freqWeights);

} // extern "C"
