// Absolute deviations, winsorising and z-scores of a vector.
//
// Only the first n cells are read; a cell beyond the table reads -1.0 and takes part, and a write beyond it is dropped.
// Quantiles are those of `quantiles.h`. Errors show only as the missing value.
//
// @missing left out (equality)
// @mask a nonzero entry excludes its row; may be null
// @empty the missing value
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Median of |v - centre|.
/// @formula \operatorname{med}_i |x_i - c|
/// @weights all equal: the median by interpolation, else the step rule of `V_QuantileMW`
/// @empty the missing value, also where nothing is left
VECMAT_API double V_MedianAbsDev(matrix* v, int n, double centre, short* mask, matrix* w);
VECMAT_API double Cpp_V_MedianAbsDev(double* v, int n, double centre, short* mask, double* w);

/// Sum of w |v - centre| over the sum of w, over the same rows.
/// @formula \frac{\sum_i w_i |x_i - c|}{\sum_i w_i}
/// @weights not tested
/// @divisor the sum of the weights; missing where it is 0
VECMAT_API double V_MeanAbsDev(matrix* v, int n, double centre, short* mask, matrix* w);
VECMAT_API double Cpp_V_MeanAbsDev(double* v, int n, double centre, short* mask, double* w);

/// Median of |v - centre|, without mask and weights.
/// @formula \operatorname{med}_i |x_i - c|
/// @missing counted, unlike above, as the lowest value and the lowest deviation: it draws both medians down. A missing
///     centre is first set to the median of v
/// @empty -1.0
VECMAT_API double V_MedianAbsDev2(matrix* v, int n, double* centre);
VECMAT_API double Cpp_V_MedianAbsDev2(double* v, int n, double* centre);

/// Mean and standard deviation by the running update mean += d / m, Q += d d (1 - 1/m).
/// @formula \bar x = \frac{1}{m} \sum_i x_i, \quad s = \sqrt{\frac{1}{D} \sum_i (x_i - \bar x)^2}, \quad D = m \text{
///     or } m - 1
/// @missing a cell enters where it is above the missing value (order), which a NaN is not
/// @divisor m - 1 for `sample` exactly -1, else m; not tested: a single cell with `sample` -1 has a NaN deviation
/// @empty mean 0.0, also without cells that enter; the deviation is a NaN, or -0.0 for `sample` -1
VECMAT_API void V_MeanStdev2(matrix* v, int n, short sample, double* mean, double* stdev);
VECMAT_API void Cpp_V_MeanStdev2(double* v, int n, short sample, double* mean, double* stdev);

/// Clips the vector in place to its own quantiles at `pLow` and `pHigh`.
/// @formula x_i \leftarrow \min(\max(x_i,\, q_{\mathrm{low}}),\, q_{\mathrm{high}})
/// @missing left unchanged, but counts in both quantiles
/// @empty nothing happens
VECMAT_API void V_Winsorize2(matrix* v, int n, double pLow, double pHigh);
VECMAT_API void Cpp_V_Winsorize2(double* v, int n, double pLow, double pHigh);

/// z-scores into the first n cells of `out`, which must exist.
///
/// `kind` 0: (v - mean) / stdev. Where `*mean` is the missing value, both are first computed by `V_MeanStdev2` with the
/// divisor m - 1, and returned. Any other `kind`: (v - median) 0.6745 / D, D the median absolute deviation by
/// `V_MedianAbsDev2`; `mean` and `stdev` are neither read nor written.
/// @formula z_i = \frac{x_i - \bar x}{s} \quad \text{or} \quad z_i = 0.6745\, \frac{x_i - \operatorname{med}
///     x}{\operatorname{MAD} x}
/// @missing computed like an ordinary number
/// @divisor stdev or D; where it is not above 2.220446049250313e-16 every score is missing
/// @empty nothing is written
/// @source the scores by D: Iglewicz and Hoaglin (1993), How to Detect and Handle Outliers
VECMAT_API void V_ZScores(matrix* v, int n, int kind, double* mean, double* stdev, matrix* out);
VECMAT_API void Cpp_V_ZScores(double* v, int n, int kind, double* mean, double* stdev, double* out);

} // extern "C"
