// Skewness and kurtosis of a vector.
//
// @missing left out (equality)
// @mask a nonzero entry excludes its row; may be null
// @weights required; a row of weight 0 counts in m, else changes nothing
// @divisor D = W - c for `sample` -1, else W, c being 1 for `freqWeights` -1 and W/m otherwise; where it is 0 the five
//     results but the mean are missing, where the variance is 0 the four shapes
// @empty mean 0.0, the others as the divisor has it
// @source the one-pass updates: Terriberry (2007) and Pebay (2008), here weighted; G1 and G2: Joanes and Gill (1998)
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Mean, variance, skewness and excess kurtosis of the first n cells of v, in the population form (P) and the sample
/// form (S), with the standard errors of the sample forms. m is the number of rows that enter and W the sum of their
/// weights.
///
/// With `wbar` = W/m (0 without rows), c = 1 for `freqWeights` -1 and wbar otherwise, and D = W - c, the variance is
/// divided by D for `sample` -1 and by W otherwise, and both population forms are divided by powers of that variance.
/// They are
///     skewP = (M3 / W) / var^1.5             kurtP = (M4 / W) / var^2 - 3
/// and the sample forms
///     skewS = sqrt(W D) skewP / (W - 2c)     kurtS = D ((W + c)(kurtP + 3) - 3 D) / ((W - 2c)(W - 3c))
/// which for unit weights and a variance divided by W are G1 and G2. For `sample` -1 the powers of the other variance
/// stay in them: skewS is then G1 ((n - 1)/n)^1.5.
///
/// The mean is always written. The missing value is the result for
///     the five others                   where D is 0 with `sample` -1, or W is 0 with `sample` 0
///     the four shape results            where the variance is 0
///     `skewS` and `seSkew`              unless W - 2 wbar is above 0 (wbar also where c is 1)
///     `kurtS` and `seKurt`              unless W - 2c and W - 3c are above 0
/// In the first two cases `seSkew` and `seKurt` are not written.
/// @formula M_k = \sum_i w_i (x_i - \bar x)^k, \quad g_1 = \frac{M_3 / W}{s^3}, \quad g_2 = \frac{M_4 / W}{s^4} - 3
VECMAT_API void V_MeanVarSkewPKurtP(matrix* v, int n, double* mean, double* var, double* skewP, double* kurtP,
                                    double* skewS, double* kurtS, double* seSkew, double* seKurt, short* mask,
                                    matrix* w, short sample, short freqWeights);
VECMAT_API void VB_V_MeanVarSkewPKurtP(double* v, int n, double* mean, double* var, double* skewP, double* kurtP,
                                       double* skewS, double* kurtS, double* seSkew, double* seKurt, short* mask,
                                       double* w, short sample, short freqWeights);

} // extern "C"
