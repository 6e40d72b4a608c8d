// Standardisation by statistics of its own, by known ones, of companion tables, and column by column.
//
// Only the first n rows and p columns of a table are read. A mask has n entries. No error is reported.
//
// @missing left out of the statistics (equality) and comes out missing
// @mask a nonzero entry excludes its row: the cells come out missing; may be null
// @weights required; a row of weight 0 changes no sum but counts in m
// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; exactly 0 (not NaN) ends the call. A deviation
//     of 0 divides as 1.0
// @empty nothing is written
// @cost two passes over the cells at most
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Standardises the columns of X into Z, and returns their means, standard deviations and variances (all `matCheck`: n
/// by p, and p by 1). The statistics are the running update of `M_MeanStDevVar`. A divisor of 0 makes the three
/// statistics of its column missing; the cells of that column and all later columns are left as `matCheck` made them.
/// @empty the divisor is 0, which ends the call, except for frequencies
VECMAT_API void M_Standardize(matrix* X, int n, int p, matrix*& Z, matrix*& mean, matrix*& stdev, matrix*& var,
                              short* mask, matrix* w, short sample, short freqWeights);

/// The same idea without a mask, into the existing Z: Q += d d w (1 - w/W).
/// @missing an ordinary number: no test
/// @weights required, not tested
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/n, n being the argument; not tested. A deviation
///     of 0 divides as 1.0
VECMAT_API void M_StandardizeW(matrix* X, int n, int p, matrix* w, short sample, short freqWeights, matrix* Z);

/// (x - mean) / divisor into Z (`matCheck`, n by p).
/// @missing in a kept row not tested; with a null mask excludes its whole row: this form is listwise
/// @mask a nonzero entry excludes its row: the cells come out missing; null excludes the rows with a missing cell
/// @divisor `stdev`, or the root of `var` where that is null; 0 divides as 1.0
VECMAT_API void M_StandardizeKnownMeansStDev(matrix*& X, int n, int p, matrix* mean, matrix*& Z, matrix* stdev,
                                             matrix* var, short* mask);

/// Standardises X in place (`M_Standardize` with unit weights, no mask, divisor W), and divides the first `nY` cells of
/// each column of Y and `nV` of V by that column's deviation: they are not centred.
/// @missing of X stays missing (equality); of Y and V it is divided like an ordinary number
/// @divisor W; Y and V are divided by the deviations of X
VECMAT_API void M_StandardizeMatrix(matrix*& X, int n, int p, matrix*& Y, int nY, matrix*& V, int nV);

/// Subtracts from every cell of a row the row's first cell, read again each time: the first column becomes 0.0 (a NaN
/// or an infinity in it spreads), the others are left unchanged.
/// @missing an ordinary number
/// @divisor -
/// @empty nothing happens
VECMAT_API void M_SubstractFirstCol2(matrix* X, int n, int p);

// ---- flat forms: X and Z have n by p elements, w, mask and a n, the statistics p ------------------------------------

/// The functions of the same names.
VECMAT_API void VB_M_Standardize(double* X, int n, int p, double* Z, double* mean, double* stdev, double* var,
                                 short* mask, double* w, short sample, short freqWeights);
VECMAT_API void VB_M_StandardizeW(double* X, int n, int p, double* w, short sample, short freqWeights, double* Z);
VECMAT_API void VB_M_StandardizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV);
VECMAT_API void Cpp_M_SubstractFirstCol2(double* X, int n, int p);
/// `stdev`, `var` and `mask` may be null, but not both `stdev` and `var`.
VECMAT_API void VB_M_StandardizeKnownMeansStDev(double* X, int n, int p, double* mean, double* Z, double* stdev,
                                                double* var, short* mask);

/// `VB_M_Standardize` of one column, with `freqWeights` 0; the form with a 2 writes over x.
/// @empty the divisor is 0, which ends the call
VECMAT_API void VB_V_Standardize(double* x, int n, short* mask, double* w, short sample, double* z);
VECMAT_API void VB_V_Standardize2(double* x, int n, short* mask, double* w, short sample);

/// Each column by itself, with a mask of its own and `freqWeights` 0. The form with a 2 writes over X.
/// @missing excludes its cell (order), which comes out missing
/// @mask exactly -1 in `a` excludes the row: its cells come out missing
/// @empty a divisor of 0 ends the column
VECMAT_API void VB_M_StandardizeByVect(double* X, int n, int p, short* a, double* w, short sample, double* Z);
VECMAT_API void VB_M_StandardizeByVect2(double* X, int n, int p, short* a, double* w, short sample);

} // extern "C"
