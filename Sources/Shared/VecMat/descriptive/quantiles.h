// Quantiles of a vector, by two rules that differ on purpose.
//
// `V_Quantile` and its relatives interpolate at position (n-1)p, counted from 0; `V_Quantiles13` at a position counted
// from 1 whose shift changes above p = 0.5. Neither can be expressed through the other.
//
// Only the first n cells of a vector are read; a cell beyond the table reads -1.0 and takes part. A mask has n entries.
// Weights have n cells, at or above 0, and are not normalised. p is a fraction and is not checked: beyond 0 and 1 the
// position lies outside the data and the reads give -1.0. Where the sorted vector is not returned, the elements needed
// are selected from a copy; the step rule takes an order, and the weights in it. With NaN among the values the result
// is one of the values or lies between two, and nothing more is promised.
//
// @missing counted: it sorts to the front
// @mask a nonzero entry excludes its row; may be null
// @empty the missing value, also where no row is left
// @cost a selection, of the order n; a sort, of the order n log n, for the step rule and for `V_Quantiles13`
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The element at position (n-1)p of the sorted values, or between its neighbours a and b the value (1-g) a + g b, g
/// being the fraction of the position; neighbours that are equal give themselves. Exactly 0 and 1 give the smallest and
/// the largest element.
/// @formula q = (1 - g)\, x_{(k)} + g\, x_{(k+1)}, \quad (n - 1)\, p = k + g, \quad x_{(0)} \le x_{(1)} \le \ldots
/// @divisor position (n - 1) p
/// @empty -1.0
/// @source rule 7 of Hyndman and Fan (1996), Sample quantiles in statistical packages
VECMAT_API double V_Quantile(matrix* v, int n, double p);
VECMAT_API double VB_V_Quantile(double* x, int n, double p);

/// With weights: a step rule. With T the sum of the weights that are not missing, and C the sum of the weights of the
/// elements before the i-th in sorted order, the first i where C equals p T gives the mean of elements i-1 and i, or
/// where C is above p T element i-1; the last element if there is none. Ties keep the order of the input. p of exactly
/// 0 gives the smallest element, p of 1 the largest.
/// @formula q = \begin{cases} x_{(i-1)} & C_i > p T \\ \frac{1}{2} (x_{(i-1)} + x_{(i)}) & C_i = p T \end{cases} \quad
///     i = \min \{ i : C_i \ge p T \}, \quad C_i = \sum_{j < i} w_{(j)}
/// @weights T leaves out missing ones, C does not. Weights that are all equal (missing ones left out) give
///     `V_Quantile`, not the step rule; an element of weight 0 can still be the smallest or largest
/// @empty the missing value, also where no present value has a weight above 0
VECMAT_API double V_QuantileW(matrix* v, int n, matrix* w, double p);
VECMAT_API double VB_V_QuantileW(double* v, int n, double* w, double p);

/// `V_Quantile` and `V_QuantileW` of the rows that the mask keeps and whose value is present.
/// @missing left out (equality)
/// @divisor position (n - 1) p among those left
VECMAT_API double V_QuantileM(matrix* v, int n, short* mask, double p);
VECMAT_API double VB_V_QuantileM(double* v, int n, short* mask, double p);
/// @weights as in `V_QuantileW`, on the rows left; a missing weight stays
/// @divisor -
VECMAT_API double V_QuantileMW(matrix* v, int n, short* mask, matrix* w, double p);
VECMAT_API double VB_V_QuantileMW(double* v, int n, short* mask, double* w, double p);

/// `V_QuantileMW` of the 1-based column `col` of a table.
/// @missing left out (equality)
/// @weights as in `V_QuantileMW`
VECMAT_API double M_QuantileMW(matrix* m, int n, int col, short* mask, matrix* w, double p);

/// The quantiles 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95, in that order, into the first 13
/// cells of `out`, which must exist. Between neighbours a and b the result is a + g (b-a), and before the first element
/// that element. The vector is left sorted; in the flat form the caller's array is not.
/// @divisor position, counted from 1, (n - 1) p + 0.5, or + 1 above p = 0.5
/// @empty reads -1.0 throughout
/// @weak the 0.5 quantile is at position n/2 and is not the median, which is at (n + 1)/2
VECMAT_API void V_Quantiles13(matrix* v, int n, matrix* out);
VECMAT_API void Cpp_V_Quantiles13(double* x, int n, double* out);

} // extern "C"
