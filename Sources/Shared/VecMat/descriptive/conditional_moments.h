// Mean and variance of the cells of a vector whose group code equals a value.
//
// Of the first n rows those are selected where g equals `value` exactly and neither g nor v holds exactly the missing
// value; selecting for the missing value itself therefore selects nothing. Weights have n cells and are used as they
// are. Where nothing can be computed the result is the missing value.
//
// @missing left out, in the cell or in the code (equality)
// @empty the missing value, also where none is selected
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The sum of the selected cells over their count; the missing value where none is selected.
/// @divisor the count of the selected
VECMAT_API double V_MeanIf(matrix* v, int n, matrix* g, double value);
VECMAT_API double VB_V_MeanIf(double* v, int n, double* g, double value);

/// The sum of w x over the sum of w, over the selected rows with a weight above 0; the missing value where there is
/// none.
/// @weights a weight that is not above 0 excludes its row
/// @divisor the sum of the weights
VECMAT_API double V_MeanIfW(matrix* v, int n, matrix* g, matrix* w, double value);
VECMAT_API double VB_V_MeanIfW(double* v, int n, double* g, double* w, double value);

/// Variance by the running update Q += d d (1 - 1/m), mean += d / m; the divisor is m - 1 for `sample` -1 and m
/// otherwise, and the result is the missing value where that is not above 0.
/// @divisor m - 1 for `sample` -1, else m; missing where that is not above 0
/// @empty the missing value
VECMAT_API double V_VarIf(matrix* v, int n, matrix* g, double value, short sample);
VECMAT_API double VB_V_VarIf(double* v, int n, double* g, double value, short sample);

/// The weighted variance by Q += d d w (1 - w/W), mean += d w / W; the divisor is W - 1 for `sample` -1 and W
/// otherwise, with the same test. Weights at 0 enter here, unlike in `V_MeanIfW` (those below do not): one in the first
/// selected row divides 0 by 0, and the result is NaN.
/// @weights a weight of 0 enters, and makes a NaN in the first selected row; one below 0 does not enter
/// @divisor W - 1 for `sample` -1, else W; missing where that is not above 0
/// @empty the missing value
VECMAT_API double V_VarIfW(matrix* v, int n, matrix* g, matrix* w, double value, short sample);
VECMAT_API double VB_V_VarIfW(double* v, int n, double* g, double* w, double value, short sample);

} // extern "C"
