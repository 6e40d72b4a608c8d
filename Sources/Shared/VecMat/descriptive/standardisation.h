// Standardisation by statistics of its own, by known ones, of companion tables, and column by column.
//
// Only the first n rows and p columns of a table are read. A mask has n entries: 0 keeps the row, any other value drops
// it; where it may be null, nothing is dropped unless told otherwise. "Missing" is the equality test. Nothing is
// reported.
//
// @missing left out of the statistics (equality) and comes out missing
// @mask a nonzero entry excludes its row: the cells come out missing; may be null
// @weights required; a row of weight 0 changes no sum but counts in m
// @empty nothing is written
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Standardises the columns of X into Z, and hands back their means, standard deviations s and variances (all
/// `matCheck`: n by p, and p by 1). The statistics are the running update of `M_MeanStDevVar` over rows that are kept
/// and present, one of weight 0 counting in m; cells of other rows come out missing. A column with s 0 is divided by
/// 1.0.
///
/// A divisor of exactly 0 (not NaN) ends the call: the three statistics of that column are missing, and its cells and
/// all later columns stay as `matCheck` left them. The mask may be null.
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; exactly 0 ends the call with missing
///     statistics of that column. A deviation of 0 divides as 1.0
/// @empty the divisor is 0, which ends the call, but for frequencies
VECMAT_API void M_Standardize(matrix* X, int n, int p, matrix*& Z, matrix*& mean, matrix*& stdev, matrix*& var,
                              short* mask, matrix* w, short sample, short freqWeights);

/// The same idea without a mask, without a missing test and without the early end, into the existing Z:
/// Q += d d w (1 - w/W), and W less 1.0 (`freqWeights` -1) or W/n for `sample` -1, n being the argument. A deviation of
/// 0 divides as 1.0.
/// @missing an ordinary number: no test
/// @weights used as given
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/n, n being the argument; no early end. A
///     deviation of 0 divides as 1.0
VECMAT_API void M_StandardizeW(matrix* X, int n, int p, matrix* w, short sample, short freqWeights, matrix* Z);

/// (x - mean) / divisor into Z (`matCheck`, n by p), the divisor being stdev, or the root of var where stdev is null,
/// or 1.0 where that is 0. The cells of a dropped row come out missing, those of a kept row are not tested. A null mask
/// drops every row with a missing cell: this form is listwise.
/// @missing with a null mask drops its whole row (listwise); in a kept row not tested
/// @mask a nonzero entry excludes its row: the cells come out missing; null excludes the rows with a missing cell
/// @divisor `stdev`, or the root of `var` where that is null, or 1.0 where it is 0
VECMAT_API void M_StandardizeKnownMeansStDev(matrix*& X, int n, int p, matrix* mean, matrix*& Z, matrix* stdev,
                                             matrix* var, short* mask);

/// Standardises X in place (`M_Standardize` with unit weights, no mask, the plain divisor), and divides the first `nY`
/// cells of each column of Y and `nV` of V by that column's deviation: they are not centred, and not tested.
/// @missing of X stays missing (equality); of Y and V is divided like an ordinary number
/// @divisor the plain divisor; Y and V are divided by the deviations of X
VECMAT_API void M_StandardizeMatrix(matrix*& X, int n, int p, matrix*& Y, int nY, matrix*& V, int nV);

/// Subtracts from every cell of a row the row's first cell, read afresh each time: the first column becomes 0.0 (a NaN
/// or an infinity in it spreads), the others stay.
/// @missing an ordinary number
/// @empty nothing happens
VECMAT_API void M_SubstractFirstCol2(matrix* X, int n, int p);

// ---- flat forms: X and Z have n by p elements, w, mask and a n, the statistics p ------------------------------------

VECMAT_API void VB_M_Standardize(double* X, int n, int p, double* Z, double* mean, double* stdev, double* var,
                                 short* mask, double* w, short sample, short freqWeights);
VECMAT_API void VB_M_StandardizeW(double* X, int n, int p, double* w, short sample, short freqWeights, double* Z);
/// `stdev`, `var` and `mask` may be null, one of the first two must be given.
VECMAT_API void VB_M_StandardizeKnownMeansStDev(double* X, int n, int p, double* mean, double* Z, double* stdev,
                                                double* var, short* mask);
VECMAT_API void VB_M_StandardizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV);
VECMAT_API void Cpp_M_SubstractFirstCol2(double* X, int n, int p);

/// `VB_M_Standardize` of one column, with `freqWeights` 0; the form with a 2 writes over x.
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; exactly 0 ends the call with missing
///     statistics of that column. A deviation of 0 divides as 1.0
/// @empty the divisor is 0, which ends the call, but for frequencies
VECMAT_API void VB_V_Standardize(double* x, int n, short* mask, double* w, short sample, double* z);
/// @divisor W; with `sample` -1 W - 1 for `freqWeights` -1, else W - W/m; exactly 0 ends the call with missing
///     statistics of that column. A deviation of 0 divides as 1.0
/// @empty the divisor is 0, which ends the call, but for frequencies
VECMAT_API void VB_V_Standardize2(double* x, int n, short* mask, double* w, short sample);

/// Each column by itself, with a mask of its own: rows where `a` is exactly -1 or the cell is missing by the order test
/// are dropped. The form with a 2 writes over X.
/// @missing excludes its cell (order), which comes out missing
/// @mask exactly -1 in `a` excludes the row: its cells come out missing
/// @weights used as in `VB_M_Standardize`
/// @divisor as `VB_M_Standardize`, `freqWeights` 0
/// @empty a divisor of 0 ends the column
VECMAT_API void VB_M_StandardizeByVect(double* X, int n, int p, short* a, double* w, short sample, double* Z);
/// @missing excludes its cell (order), which comes out missing
/// @mask exactly -1 in `a` excludes the row: its cells come out missing
/// @weights used as in `VB_M_Standardize`
/// @divisor as `VB_M_Standardize`, `freqWeights` 0
/// @empty a divisor of 0 ends the column
VECMAT_API void VB_M_StandardizeByVect2(double* X, int n, int p, short* a, double* w, short sample);

} // extern "C"
