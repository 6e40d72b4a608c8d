// Standardisation by statistics of its own, by known ones, of companion tables, and column by column.
//
// Only the first n rows and p columns of a table are read. A mask has n entries: 0 keeps the row, any other value drops
// it; where it may be null, nothing is dropped unless told otherwise. "Missing" is the equality test. Nothing is
// reported.
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
VECMAT_API void M_Standardize(matrix* X, int n, int p, matrix*& Z, matrix*& mean, matrix*& stdev, matrix*& var,
                              short* mask, matrix* w, short sample, short freqWeights);

/// The same idea without a mask, without a missing test and without the early end, into the existing Z:
/// Q += d d w (1 - w/W), and W less 1.0 (`freqWeights` -1) or W/n for `sample` -1, n being the argument. A deviation of
/// 0 divides as 1.0.
VECMAT_API void M_StandardizeW(matrix* X, int n, int p, matrix* w, short sample, short freqWeights, matrix* Z);

/// (x - mean) / divisor into Z (`matCheck`, n by p), the divisor being stdev, or the root of var where stdev is null,
/// or 1.0 where that is 0. The cells of a dropped row come out missing, those of a kept row are not tested. A null mask
/// drops every row with a missing cell: this form is listwise.
VECMAT_API void M_StandardizeKnownMeansStDev(matrix*& X, int n, int p, matrix* mean, matrix*& Z, matrix* stdev,
                                             matrix* var, short* mask);

/// Standardises X in place (`M_Standardize` with unit weights, no mask, the plain divisor), and divides the first `nY`
/// cells of each column of Y and `nV` of V by that column's deviation: they are not centred, and not tested.
VECMAT_API void M_StandardizeMatrix(matrix*& X, int n, int p, matrix*& Y, int nY, matrix*& V, int nV);

/// Subtracts from every cell of a row the row's first cell, read afresh each time: the first column becomes 0.0 (a NaN
/// or an infinity in it spreads), the others stay.
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
VECMAT_API void VB_V_Standardize(double* x, int n, short* mask, double* w, short sample, double* z);
VECMAT_API void VB_V_Standardize2(double* x, int n, short* mask, double* w, short sample);

/// Each column by itself, with a mask of its own: rows where `a` is exactly -1 or the cell is missing by the order test
/// are dropped. The form with a 2 writes over X.
VECMAT_API void VB_M_StandardizeByVect(double* X, int n, int p, short* a, double* w, short sample, double* Z);
VECMAT_API void VB_M_StandardizeByVect2(double* X, int n, int p, short* a, double* w, short sample);

} // extern "C"
