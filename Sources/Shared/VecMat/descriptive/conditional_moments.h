// Mean and variance of the cells of a vector whose group code equals a value.
//
// Of the first n rows those are selected where g equals `value` exactly. Weights have n cells and are not normalised.
//
// @missing left out, in the cell or in the code (equality): selecting for the missing value selects nothing
// @empty the missing value, also where no row is selected
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The sum of the selected cells over their count.
/// @formula \frac{1}{m} \sum_{i:\, g_i = \mathrm{value}} x_i
/// @divisor the count of the selected cells
VECMAT_API double V_MeanIf(matrix* v, int n, matrix* g, double value);
VECMAT_API double VB_V_MeanIf(double* v, int n, double* g, double value);

/// The sum of w x over the sum of w.
/// @formula \frac{\sum_{i:\, g_i = \mathrm{value}} w_i x_i}{\sum_{i:\, g_i = \mathrm{value}} w_i}
/// @weights a row whose weight is not above 0 is left out
/// @divisor the sum of the weights
VECMAT_API double V_MeanIfW(matrix* v, int n, matrix* g, matrix* w, double value);
VECMAT_API double VB_V_MeanIfW(double* v, int n, double* g, double* w, double value);

/// Variance by the running update Q += d d (1 - 1/m), mean += d / m.
/// @formula s^2 = \frac{1}{D} \sum_{i:\, g_i = \mathrm{value}} (x_i - \bar x)^2, \quad D = m \text{ or } m - 1
/// @divisor m - 1 for `sample` -1, else m; missing where that is not above 0
VECMAT_API double V_VarIf(matrix* v, int n, matrix* g, double value, short sample);
VECMAT_API double VB_V_VarIf(double* v, int n, double* g, double value, short sample);

/// The weighted variance by Q += d d w (1 - w/W), mean += d w / W.
/// @formula s^2 = \frac{1}{D} \sum_{i:\, g_i = \mathrm{value}} w_i (x_i - \bar x)^2, \quad D = W \text{ or } W - 1
/// @weights one of 0 enters, unlike in `V_MeanIfW`, and in the first selected row divides 0 by 0: the result is NaN;
///     one below 0 does not enter
/// @divisor W - 1 for `sample` -1, else W; missing where that is not above 0
VECMAT_API double V_VarIfW(matrix* v, int n, matrix* g, matrix* w, double value, short sample);
VECMAT_API double VB_V_VarIfW(double* v, int n, double* g, double* w, double value, short sample);

} // extern "C"
