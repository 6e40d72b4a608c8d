// Centring, reduction and standardisation of the columns of a table.
//
// The members differ in three ways, on purpose: where the result goes, what happens to a missing cell, and what becomes
// of a column without spread, whose standard deviation s is not above 0 (a missing or NaN one is not). m is the
// column's mean.
//
//     name          cell                                             column without spread
//     Center        x - m for every cell, missing ones too           shifted like any other
//     Reduce        x / s for every cell, missing ones too           0.0 throughout
//     Standardize   (x - m) / s; a missing cell stays missing        0.0 throughout, missing cells too
//     Apply         (x - m) / s for every cell, missing ones too     the missing value throughout
//
// m and s come from `M_MeanStDev` over the first n rows, without a mask: missing cells and rows of weight 0 do not
// enter. `sample` and `freqWeights` are its divisor options: -1 and -1 for `freqWeights` unless it is an argument; 0
// and 0 in the members that only centre. A plain name gives its result in a table Z (`matCheck`, n by p), one with a
// trailing digit changes X in place; 3 also returns the statistics (`matCheck`, p by 1). W takes row weights. The SPV
// forms take an array of column tables. No error is reported.
//
// @cost two passes over the cells
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

// ---- centring -------------------------------------------------------------------------------------------------------

/// Each column less its mean.
/// @formula z_{ij} = x_{ij} - \bar x_j
/// @missing left out of the mean (equality); then shifted like an ordinary number
/// @weights in the W forms a row of weight 0 does not enter the mean
/// @divisor the sum of weights (`sample` 0)
/// @empty a column without rows has a missing mean, which is subtracted like an ordinary number
VECMAT_API void M_Center(matrix* X, int n, int p, matrix*& Z);
VECMAT_API void M_CenterW(matrix* X, int n, int p, matrix* w, matrix*& Z);
VECMAT_API void M_Center2(matrix*& X, int n, int p);
VECMAT_API void M_Center2SPV(matrix** X, int n, int p);
VECMAT_API void M_CenterW2(matrix*& X, int n, int p, matrix* w);
VECMAT_API void M_CenterW2SPV(matrix** X, int n, int p, matrix* w);

// ---- reduction ------------------------------------------------------------------------------------------------------

/// Each column over its standard deviation.
/// @formula z_{ij} = \frac{x_{ij}}{s_j}
/// @missing left out of the statistics (equality); then divided like an ordinary number
/// @weights in the W forms a row of weight 0 does not enter
/// @divisor s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
///     throughout
/// @empty a column without rows has no spread
VECMAT_API void M_Reduce(matrix* X, int n, int p, matrix*& Z, short sample, short freqWeights);
VECMAT_API void M_ReduceW(matrix* X, int n, int p, matrix* w, matrix*& Z, short sample, short freqWeights);
VECMAT_API void M_Reduce2(matrix*& X, int n, int p, short sample);
VECMAT_API void M_ReduceW2(matrix*& X, int n, int p, matrix* w, short sample, short freqWeights);

// ---- standardisation ------------------------------------------------------------------------------------------------

/// Each column less its mean, over its standard deviation.
/// @formula z_{ij} = \frac{x_{ij} - \bar x_j}{s_j}
/// @missing left out of the statistics (equality) and stays missing
/// @weights in the W forms a row of weight 0 does not enter
/// @divisor s, by `sample` and `freqWeights` (-1 where it is no argument); a column without spread becomes 0.0
///     throughout, missing cells too
/// @empty a column without rows has no spread and missing statistics
VECMAT_API void M_Standardize2(matrix*& X, int n, int p, short sample);
VECMAT_API void M_Standardize2SPV(matrix** X, int n, int p, short sample);
VECMAT_API void M_Standardize3(matrix*& X, int n, int p, matrix*& mean, matrix*& stdev, short sample,
                               short freqWeights);
VECMAT_API void M_StandardizeW2(matrix*& X, int n, int p, matrix* w, short sample, short freqWeights);
VECMAT_API void M_StandardizeW3(matrix*& X, int n, int p, matrix* w, matrix*& mean, matrix*& stdev, short sample,
                                short freqWeights);
VECMAT_API void M_StandardizeW3SPV(matrix** X, int n, int p, matrix* w, matrix*& mean, matrix*& stdev, short sample,
                                   short freqWeights);

/// Applies the given means and deviations, p cells each, in place.
/// @formula x_{ij}' = \frac{x_{ij} - \mathrm{mean}_j}{\mathrm{stdev}_j}
/// @missing computed like an ordinary number
/// @divisor the given deviation; where that is not above 0 the whole column becomes missing
/// @empty nothing is written
VECMAT_API void M_StandardizeApply2(matrix* X, int n, int p, matrix* mean, matrix* stdev);

/// Centres (`M_Center2`) or, with `reduce` exactly -1, standardises (`M_Standardize2`) the rows of each group
/// separately, in place. A row belongs to group k, from 1 to `nGroups`, where its cell of `g` equals k exactly; other
/// rows are left unchanged.
/// @missing left out of the statistics (equality); shifted when centring, stays missing when standardising
/// @divisor s of the group, by `sample`, with `freqWeights` -1; without spread 0.0 throughout
/// @empty a group without rows changes nothing
VECMAT_API void M_StandardizeByGroup(matrix* X, int n, int p, matrix* g, int nGroups, short reduce, short sample);

// ---- flat forms: X and Z have n by p elements, w n, mean and stdev p ------------------------------------------------

VECMAT_API void VB_M_Center(double* X, int n, int p, double* Z);
VECMAT_API void VB_M_CenterW(double* X, int n, int p, double* w, double* Z);
VECMAT_API void VB_M_Center2(double* X, int n, int p);
VECMAT_API void VB_M_Center2SPV(SAFEARRAY** X, int n, int p);
VECMAT_API void VB_M_CenterW2(double* X, int n, int p, double* w);
VECMAT_API void VB_M_Reduce(double* X, int n, int p, double* Z, short sample, short freqWeights);
VECMAT_API void VB_M_ReduceW(double* X, int n, int p, double* w, double* Z, short sample, short freqWeights);
VECMAT_API void VB_M_Reduce2(double* X, int n, int p, short sample);
VECMAT_API void VB_M_ReduceW2(double* X, int n, int p, double* w, short sample, short freqWeights);
VECMAT_API void VB_M_Standardize2(double* X, int n, int p, short sample);
VECMAT_API void VB_M_Standardize2SPV(SAFEARRAY** X, int n, int p, short sample);
VECMAT_API void VB_M_Standardize3(double* X, int n, int p, double* mean, double* stdev, short sample,
                                  short freqWeights);
VECMAT_API void VB_M_StandardizeW2(double* X, int n, int p, double* w, short sample, short freqWeights);
VECMAT_API void VB_M_StandardizeW3(double* X, int n, int p, double* w, double* mean, double* stdev, short sample,
                                   short freqWeights);
VECMAT_API void Cpp_M_StandardizeApply2(double* X, int n, int p, double* mean, double* stdev);
VECMAT_API void Cpp_M_StandardizeByGroup(double* X, int n, int p, double* g, int nGroups, short reduce, short sample);

} // extern "C"
