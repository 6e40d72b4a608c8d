// Ordinary least squares with weights: the correlations of the model's columns and the response are swept on the
// columns that enter.
//
// n observations of p explanatory columns X and a response y; w holds their n weights, and W is their sum without
// missing ones. With `degree` 1 the columns of the model are those of X, whatever `interactions` says. Otherwise they
// are the powers 1 to `degree` of all columns, power by power, followed with `interactions` -1 by the products of
// columns a and b, a below b, ordered by a: m columns in all. A `degree` below 1 makes no powers.
//
// The line has an intercept unless `noIntercept` is nonzero: it then passes through the origin, and the cross products
// are raw ones. A column enters where its tolerance, one minus its squared multiple correlation with the columns before
// it that are in, is above `tol`; a NaN is not. So their order decides, and of two equal columns the first enters. A
// column that stays out has coefficient and standard error 0.0, and still counts in the degrees of freedom.
//
// Results, prepared with `matCheck` and cleared at the start:
//     beta     m + 1 coefficients, the intercept last (0.0 through the origin)
//     se       their standard errors, in the same order; that of the intercept is 0.0 through the origin
//     fitted   n values
// X, y and w are left unchanged.
//
// @missing left out of the correlations pair by pair (equality); multiplied like an ordinary number where columns are
//     widened and in the raw cross products; a term with a missing cell is left out of a fitted value
// @weights not normalised; a row of weight 0 changes no coefficient but counts in n
// @divisor degrees of freedom n - m - 1 for the slopes, whatever the weights (0.0 where that is 0), W - m - 1 for the
//     intercept; not guarded: where W is at most m + 1 they are 0 or negative
// @empty without columns the fit is the weighted mean of y
// @failure not reported
// @source Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
// @weak the sweeps set what is below 1e-12 to 0: where 1 - R2 is below that the standard errors are 0, and a column
//     with a standard deviation below that is dropped without notice. Through the origin the degrees of freedom still
//     count an intercept
// @cost of the order n m^2 for the correlations, and m^2 for each column that is swept
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The coefficients and the fitted values; `OLSBasic2` gives standard errors, too.
/// @formula \hat\beta = \arg \min_\beta \sum_i w_i (y_i - \beta_0 - \sum_j \beta_j x_{ij})^2
VECMAT_API void OLSBasic(int n, int p, matrix* X, matrix* y, matrix* w, int degree, short interactions,
                         short noIntercept, double tol, matrix*& beta, matrix*& fitted);
VECMAT_API void OLSBasic2(int n, int p, matrix* X, matrix* y, matrix* w, int degree, short interactions,
                          short noIntercept, double tol, matrix*& beta, matrix*& se, matrix*& fitted);

/// Also gives, into tables that exist and keep their strides, `swept`, the table of order m + 1 with the response last
/// after the sweeps, and `mean` and `sd` of its m + 1 variables. An sd of 0.0 marks a column that stayed out.
VECMAT_API void OLSBasic3(int n, int p, matrix* X, matrix* y, matrix* w, int degree, short interactions,
                          short noIntercept, double tol, matrix*& beta, matrix*& se, matrix*& fitted, matrix* swept,
                          matrix* mean, matrix* sd);

// Flat forms. With c the size reserved for coefficients, degree p + 1, and p(p - 1)/2 more for `interactions` -1 at
// every degree, beta, se, mean and sd have c cells, swept is c by c, fitted has n cells. All are written whole, with
// 0.0 in the cells that are not used. Return 0.

VECMAT_API int RunOLSBasic(int n, int p, double* X, double* y, double* w, int degree, short interactions,
                           short noIntercept, double tol, double* beta, double* fitted);
VECMAT_API int RunOLSBasic2(int n, int p, double* X, double* y, double* w, int degree, short interactions,
                            short noIntercept, double tol, double* beta, double* se, double* fitted);
VECMAT_API int RunOLSBasic3(int n, int p, double* X, double* y, double* w, int degree, short interactions,
                            short noIntercept, double tol, double* beta, double* se, double* fitted, double* swept,
                            double* mean, double* sd);

} // extern "C"
