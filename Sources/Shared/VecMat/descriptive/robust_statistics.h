// Absolute deviations, winsorising and z-scores of a vector.
//
// Only the first n cells are read; a cell beyond the table reads -1.0 and takes part as that number, and a write beyond
// it is dropped. "Missing" is the test for exactly the missing value, except where "above the missing value" is said:
// that leaves out a NaN as well. Quantiles are those of `quantiles.h`. Nothing reports an error but the missing value.
//
// @missing left out (equality)
// @mask a nonzero entry excludes its row; may be null
// @empty the missing value
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Median of |v - centre| over the rows that the mask keeps (0; a null mask keeps all) and that are not missing: by
/// interpolation where the weights are all equal, else by the step rule of `V_QuantileMW`. The missing value where
/// nothing is left.
/// @weights all equal: the median by interpolation, else the step rule of `V_QuantileMW`
VECMAT_API double V_MedianAbsDev(matrix* v, int n, double centre, short* mask, matrix* w);
VECMAT_API double Cpp_V_MedianAbsDev(double* v, int n, double centre, short* mask, double* w);

/// Sum of w |v - centre| over the sum of w, over the same rows. The missing value where the weights sum to 0.
/// @weights used as given
/// @divisor the sum of the weights; missing where it is 0
VECMAT_API double V_MeanAbsDev(matrix* v, int n, double centre, short* mask, matrix* w);
VECMAT_API double Cpp_V_MeanAbsDev(double* v, int n, double centre, short* mask, double* w);

/// Median of |v - centre|, where a centre that is the missing value is first set to the median of v. Missing values are
/// not removed, unlike above: they count as the lowest of the values and of the deviations, and draw both medians down.
/// @missing counted, as the lowest value and the lowest deviation; a missing centre is first set to the median
/// @empty -1.0
VECMAT_API double V_MedianAbsDev2(matrix* v, int n, double* centre);
VECMAT_API double Cpp_V_MedianAbsDev2(double* v, int n, double* centre);

/// Mean and standard deviation of the m cells above the missing value, by the running update mean += d / m,
/// Q += d d (1 - 1/m). The divisor is m - 1 for `sample` exactly -1 and m otherwise, and is not tested: a single cell
/// with `sample` -1 has a NaN for its deviation. Without cells the mean is 0.0.
/// @missing a cell enters where it is above the missing value (order)
/// @divisor m - 1 for `sample` exactly -1, else m; not tested
/// @empty mean 0.0; the deviation is a NaN, or -0.0 for `sample` -1
VECMAT_API void V_MeanStdev2(matrix* v, int n, short sample, double* mean, double* stdev);
VECMAT_API void Cpp_V_MeanStdev2(double* v, int n, short sample, double* mean, double* stdev);

/// Clips the vector in place to its own quantiles at `pLow` and `pHigh`. Missing cells stay as they are, but count in
/// both quantiles.
/// @missing stays, but counts in both quantiles
/// @empty nothing happens
VECMAT_API void V_Winsorize2(matrix* v, int n, double pLow, double pHigh);
VECMAT_API void Cpp_V_Winsorize2(double* v, int n, double pLow, double pHigh);

/// z-scores into the first n cells of `out`, which must exist. A missing cell enters the arithmetic as the number it
/// is.
///
/// `kind` 0: (v - mean) / stdev. Where `*mean` is the missing value, both are first computed by `V_MeanStdev2` with the
/// divisor m - 1, and handed back. Any other `kind`: (v - median) 0.6745 / D, D the median absolute deviation by
/// `V_MedianAbsDev2` (Iglewicz and Hoaglin 1993); `mean` and `stdev` are neither read nor written. Every score is the
/// missing value where the divisor is not above 2.220446049250313e-16.
/// @missing computed like an ordinary number; a missing `*mean` asks for mean and deviation to be computed
/// @divisor the deviation, or the median absolute deviation; not above 2.220446049250313e-16: every score is missing
/// @empty nothing is written
VECMAT_API void V_ZScores(matrix* v, int n, int kind, double* mean, double* stdev, matrix* out);
VECMAT_API void Cpp_V_ZScores(double* v, int n, int kind, double* mean, double* stdev, double* out);

} // extern "C"
