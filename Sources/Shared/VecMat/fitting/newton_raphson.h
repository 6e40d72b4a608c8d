// One step of a Newton-Raphson iteration. The caller, who knows the function to be minimised, gives its gradient and
// Hessian at the present parameters, and calls again until the step reports convergence.
//
// @missing an ordinary number
// @divisor the inverse of the Hessian, a g2 inverse where that is singular
// @empty converged: 1
// @cost of the order n^3
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Moves the n parameters x by -H^-1 g, in place. A fixed parameter keeps its x and its se, and takes no part in the
/// test for convergence. `Hinv`, n by n, receives the inverse of H without the rows and columns of the fixed
/// parameters, by `cCleanConstraintsAndInvert`; `se`, n cells, the roots of the absolute values of its diagonal. x, se
/// and Hinv exist and are not prepared; rows of Hinv that belong to a fixed parameter keep their values.
///
/// With `limitStep` exactly -1 a step whose largest change is above `maxStep` is shortened to it without a change of
/// direction. The changes are those of all parameters, also what the rows of fixed ones in Hinv make of the gradient.
///
/// Returns 1 where no free parameter changed by more than `tol`, after the shortening: converged; 0 where one did. A
/// NaN step is not above `tol`. The forms differ in the type of `constraints`.
/// @mask `constraints`, n entries: above 0 fixes a parameter, exactly 0 frees it
/// @failure -1, with x and se untouched, where the inversion fails, which it never does at present
VECMAT_API int cNewtonRaphson(matrix*& x, int n, matrixInt* constraints, matrix* g, matrix* H, double tol, matrix*& se,
                              matrix*& Hinv, short limitStep, double maxStep);
VECMAT_API int cNewtonRaphson(matrix*& x, int n, matrix* constraints, matrix* g, matrix* H, double tol, matrix*& se,
                              matrix*& Hinv, short limitStep, double maxStep);

/// Flat form: `H` and `Hinv` n by n, the others n cells. `se` and `Hinv` are written whole, with 0.0 for fixed
/// parameters.
extern "C" VECMAT_API int NewtonRaphson(double* x, int n, int* constraints, double* g, double* H, double tol,
                                        double* se, double* Hinv, short limitStep, double maxStep);
