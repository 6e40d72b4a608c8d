// Products through the inverse of a square table, named by their formula: Tr is a transpose, inv an inverse.
//
// The inverse is that of `matrix::inverse1` with a positive tolerance; its order is the row count of `b`. Access, sums
// and missing cells are as in the products of tables. The operands are left unchanged.
//
// @missing an ordinary number
// @divisor a pivot of `b` up to 1e-8 makes it singular: its inverse then counts as 0.0 throughout
// @empty an empty sum is 0.0
// @failure a singular `b` is not reported
// @weak pivots are tested in absolute terms: a regular `b` of small scale counts as singular, and the result is 0.0
//     throughout. Scale `b` to the order of 1
// @cost of the order n^3 for the inverse, and the products
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// (a' inv(b)) a, `b` of order `rows`; out goes through `matCheck`, `cols` by `cols`.
/// @formula A^{\top} B^{-1} A
VECMAT_API void M_ProductTrAinvBA(matrix* a, int rows, int cols, matrix* b, matrix*& out);

/// (v' inv(b)) v.
/// @formula v^{\top} B^{-1} v
VECMAT_API double M_ProductTrVinvBV(matrix* v, int n, matrix* b);

/// (a inv(b)) a', `b` of order `cols`; out goes through `matCheck`, `rows` by `rows`. The second form writes to columns
/// that exist.
/// @formula A B^{-1} A^{\top}
VECMAT_API void M_ProductAinvBTrA(matrix* a, int rows, int cols, matrix* b, matrix*& out);
VECMAT_API void M_ProductAinvBTrASPV(matrix* a, int rows, int cols, matrix* b, matrix** out);

/// Flat forms: arrays with just the dimensions of their role, the result in place.
VECMAT_API void VB_M_ProductTrAinvBA(double* a, int rows, int cols, double* b, double* out);
VECMAT_API double VB_M_ProductTrVinvBV(double* v, int n, double* b);
VECMAT_API void VB_M_ProductAinvBTrA(double* a, int rows, int cols, double* b, double* out);

} // extern "C"
