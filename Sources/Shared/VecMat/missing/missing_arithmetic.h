// Arithmetic that respects missing cells. "Missing" is the equality test: what lies below the missing value, minus
// infinity and a NaN are numbers. A cell outside a table reads as -1.0 and takes part.
//
// @missing left out (equality)
// @empty the missing value
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The smallest of the first `n` cells that are not missing; the missing value where there is none. The search starts
/// at the first of them, and a NaN is never smaller nor is anything smaller than a NaN.
VECMAT_API double V_MinIgnoreMissing(matrix* x, int n);

/// Sum of x(i), in order, over the rows where neither x(i) nor y(i) is missing; the missing value, and not 0.0, where
/// no row qualifies.
/// @missing left out, in either vector (equality)
/// @empty the missing value, not 0.0
VECMAT_API double V_SumIfNotMissing(matrix* x, int n, matrix* y);

/// a b; b has `nInner` rows and `nCols` columns. c is prepared with `matCheck`, `nRows` by `nCols`. Each result is one
/// sum over the inner index in order; at the first factor that is missing it ends, and the result is missing, also
/// where the other factor is 0. Without terms it is 0.0. Returns 0.
/// @missing the first one, in either factor, ends the sum and makes it missing (equality)
/// @empty an empty sum is 0.0
VECMAT_API int M_ProductABMissing(matrix* a, int nRows, int nInner, matrix* b, int nCols, matrix*& c);

// Flat forms: the operands are not changed, c is written in place.
VECMAT_API double Cpp_V_MinIgnoreMissing(double* x, int n);
VECMAT_API double VB_V_SumIfNotMissing(double* x, int n, double* y);
VECMAT_API int VB_M_ProductABMissing(double* a, int nRows, int nInner, double* b, int nCols, double* c);

} // extern "C"
