// Arithmetic that respects missing cells. What is below the missing value, minus infinity and a NaN are numbers. A cell
// outside a table reads as -1.0 and takes part.
//
// @missing left out (equality)
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The smallest of the first `n` cells. The search starts at the first present one; a NaN is never smaller, nor is
/// anything smaller than a NaN.
/// @empty the missing value, also where no cell is present
VECMAT_API double V_MinIgnoreMissing(matrix* x, int n);

/// Sum of x(i), in order.
/// @missing left out, in either vector, x or y (equality)
/// @empty the missing value, not 0.0; also where no row is left
VECMAT_API double V_SumIfNotMissing(matrix* x, int n, matrix* y);

/// a b; b has `nInner` rows and `nCols` columns. c is prepared with `matCheck`, `nRows` by `nCols`. Each result is one
/// sum over the inner index in order. Returns 0.
/// @formula (A B)_{ij} = \sum_k a_{ik} b_{kj}
/// @missing the first one, in either factor, ends the sum and makes the result missing, even where the other factor is
///     0 (equality)
/// @empty an empty sum is 0.0
VECMAT_API int M_ProductABMissing(matrix* a, int nRows, int nInner, matrix* b, int nCols, matrix*& c);

// Flat forms: the operands are not changed, c is written in place.
VECMAT_API double Cpp_V_MinIgnoreMissing(double* x, int n);
VECMAT_API double VB_V_SumIfNotMissing(double* x, int n, double* y);
VECMAT_API int VB_M_ProductABMissing(double* a, int nRows, int nInner, double* b, int nCols, double* c);

} // extern "C"
