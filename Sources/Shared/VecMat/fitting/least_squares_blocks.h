// The least squares fit of `least_squares.h` with the explanatory columns in up to five tables, so that no single table
// of all columns is ever built.
//
// @missing as in `least_squares.h`, but across blocks the correlations take the variances of the pair's own rows, and
//     are missing without variance
// @weights not normalised; a row of weight 0 changes no coefficient but counts in n
// @divisor degrees of freedom n - m - 1 for the slopes, whatever the weights (0.0 where that is 0), W - m - 1 for the
//     intercept; not guarded
// @empty a block without columns is not read; without any nothing is written
// @weak as in `least_squares.h`
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The columns of the model are the `p1` columns of X1, then those of X2, and so on; a block of width 0 (or below) is
/// skipped. For any `degree` but 1 nothing is written.
///
/// Everything else is as in `least_squares.h`, with m the sum of the widths, except where cells are missing or a column
/// does not vary. Correlations within a block, the response being in the last, are those of
/// `M_CovCorrVAndMeanStDevVar`: each variance over all rows of its column, and 0.0 without variance. Across blocks they
/// are those of `M_CorrMatMat`. With columns outside the last block a response that does not vary therefore leaves no
/// numbers for the standard errors, and may leave none for coefficients and fitted values. Through the origin a missing
/// standard deviation is multiplied like an ordinary number.
VECMAT_API void OLSBasic2Lg(int n, int p1, matrix* X1, int p2, matrix* X2, int p3, matrix* X3, int p4, matrix* X4,
                            int p5, matrix* X5, matrix* y, matrix* w, int degree, short noIntercept, double tol,
                            matrix*& beta, matrix*& se, matrix*& fitted);

/// Flat form: each block n by its width. beta and se have the size reserved in `least_squares.h`, with p the sum of the
/// widths; `interactions` has no other effect. They and fitted, n cells, are written whole: with 0.0 for a `degree`
/// other than 1. Returns 0.
VECMAT_API int RunOLSBasic2Lg(int n, int p1, double* X1, int p2, double* X2, int p3, double* X3, int p4, double* X4,
                              int p5, double* X5, double* y, double* w, int degree, short interactions,
                              short noIntercept, double tol, double* beta, double* se, double* fitted);

} // extern "C"
