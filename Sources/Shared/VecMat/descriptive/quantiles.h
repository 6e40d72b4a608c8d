// Quantiles of a vector, by two rules that differ on purpose.
//
// `V_Quantile` and its relatives interpolate at position (n-1)p, counted from 0; `V_Quantiles13` at a position counted
// from 1 whose shift changes behind p = 0.5. Neither is expressed through the other.
//
// Only the first n cells of a vector are read; a cell beyond the table reads -1.0 and takes part as that number. A mask
// holds n entries: 0 keeps the row, anything else drops it; a null mask keeps every row. Weights have n cells, at or
// above 0, and are used as they are. p is a fraction and is not checked: beyond 0 and 1 the position lies outside the
// data and the reads give -1.0. Where no one sees the sorted vector, the elements asked for are selected from a copy;
// the step rule takes an order, and the weights in it. "Missing" is the test for exactly the missing value. Where NaN
// are among the values the result is one of them or lies between two, and nothing more is promised.
//
// @missing counted: it sorts to the front
// @mask a nonzero entry excludes its row; may be null
// @weights the step rule of `V_QuantileW` on the rows left; a missing weight stays
// @empty the missing value, also where no row is left
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The element at position (n-1)p of the sorted values, or between its neighbours a and b the value (1-g) a + g b, g
/// being the fraction of the position; neighbours that are equal give themselves. (Rule 7 of Hyndman and Fan 1996.)
/// Missing values are not removed: they sort to the front and count. Exactly 0 and 1 give the smallest and the largest
/// element. -1.0 for n below 1.
/// @divisor position (n - 1) p
/// @empty -1.0
VECMAT_API double V_Quantile(matrix* v, int n, double p);
VECMAT_API double VB_V_Quantile(double* x, int n, double p);

/// With weights: a step rule. With T the sum of the weights that are not missing, and C the sum of the weights of the
/// elements before the i-th in sorted order, the first i where C equals p T gives the mean of elements i-1 and i, or
/// where C is above p T element i-1; the last element if there is none. Ties keep the order of the input. Weights that
/// are all equal (missing ones left out) give `V_Quantile`, not the step rule. p of exactly 0 gives the smallest
/// element also where its weight is 0, p of 1 the largest. The missing value for n below 1 and where no value that is
/// not missing has a weight above 0; missing values are not removed otherwise, nor are missing weights from C.
/// @weights a step rule, p times the sum of the weights that are not missing; weights all equal give `V_Quantile`; an
///     element of weight 0 can still be the smallest or largest
/// @empty the missing value, also where no present value has a weight above 0
VECMAT_API double V_QuantileW(matrix* v, int n, matrix* w, double p);
VECMAT_API double VB_V_QuantileW(double* v, int n, double* w, double p);

/// `V_Quantile` and `V_QuantileW` of the rows that the mask keeps and whose value is not missing. A missing weight
/// stays. The missing value where no row is left.
/// @missing left out (equality)
/// @divisor position (n - 1) p among those left
VECMAT_API double V_QuantileM(matrix* v, int n, short* mask, double p);
/// @divisor -
VECMAT_API double V_QuantileMW(matrix* v, int n, short* mask, matrix* w, double p);
/// @divisor position (n - 1) p among those left
VECMAT_API double VB_V_QuantileM(double* v, int n, short* mask, double p);
/// @divisor -
VECMAT_API double VB_V_QuantileMW(double* v, int n, short* mask, double* w, double p);

/// `V_QuantileMW` of the 1-based column `col` of a table.
/// @missing left out (equality)
VECMAT_API double M_QuantileMW(matrix* m, int n, int col, short* mask, matrix* w, double p);

/// The quantiles 0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95, in that order, into the first 13
/// cells of `out`, which must exist. The position, counted from 1, is (n-1)p + 0.5 up to p = 0.5 and (n-1)p + 1
/// above; between neighbours a and b the result is a + g (b-a), and before the first element that element. No mask, and
/// missing values count. The vector is left sorted; in the flat form the caller's array is not.
/// @divisor position (n - 1) p + 0.5, or + 1 above p = 0.5
/// @empty reads -1.0 throughout
VECMAT_API void V_Quantiles13(matrix* v, int n, matrix* out);
VECMAT_API void Cpp_V_Quantiles13(double* x, int n, double* out);

} // extern "C"
