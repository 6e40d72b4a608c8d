// The end points of a triangular distribution from its mode and two of its quantiles.
//
// @missing an ordinary number
// @empty takes no array
#pragma once

#include "../base/api.h"

extern "C" {

/// Finds the ends `*a` and `*b` of the triangular distribution with mode m, F(x1) = prob1 and F(x2) = prob2, x1 below
/// x2.
///
/// With both quantiles on one side of the mode the solution is in closed form. With m from x1 to x2 (ends included) a
/// Newton search over b starts at 5 x2, and at the next multiple of x2 each time it ends at or below m, which is no
/// upper end; a step below 1e-12 ends it, and so do 500 steps, shared by all starts, after which the last value is
/// returned.
/// @divisor x2 of 0 with the mode between, and prob1 equal to prob2 with the mode outside, are outside the contract
/// @failure a search that failed is not reported
VECMAT_API void TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a, double* b);
VECMAT_API void Cpp_TriangularQFindAB(double x1, double m, double x2, double prob1, double prob2, double* a, double* b);

/// The function of b whose zero the search looks for, with a chosen so that F(x2) = prob2, and its derivative.
VECMAT_API double TriangularFunc(double b, double x1, double m, double x2, double prob1, double prob2);
VECMAT_API double TriangularFuncDeriv(double b, double x1, double m, double x2, double prob1, double prob2);

/// The mirror of `TriangularFunc`, a function of a with b chosen so that F(x1) = prob1. The search does not use it.
/// @weak at the lower end it is not 0
VECMAT_API double TriangularFunc2(double a, double x1, double m, double x2, double prob1, double prob2);

} // extern "C"
