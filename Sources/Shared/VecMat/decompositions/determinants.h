// Determinants, as sums of logarithms of the magnitudes of pivots.
//
// A pivot outside the table reads -1.0: a negative one of magnitude 1. The table is left unchanged.
//
// @missing an ordinary number
// @empty 1.0
// @cost of the order n^3; the diagonal alone for a triangular table
// @memory a copy of the table, and what the factorisation takes; none for a triangular table
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Determinant of order `n` from the factors of `M_LUDecomp`.
///
/// With S the sum of logarithms: 0.0 for S below -708; the determinant for S up to 709; beyond, `*status` is -1 and the
/// result the positive twin of the missing value, but with `logOnOverflow` exactly -1 it is S with the sign of the
/// determinant and `*status` stays 0. A NaN passes through.
/// @formula \det A = \pm \exp \sum_j \ln |u_{jj}|, \quad P A = L U
/// @divisor a pivot of 0 counts as 1e-20: a singular table without a row of zeros has status 0 and a tiny determinant
///     or 0.0
/// @failure 0.0 with the `*status` of the factorisation where that is not 0, so -1 for a row of zeros. An exception,
///     such as exhausted memory, ends here: `*status` is -1 and the result the positive twin
VECMAT_API double M_Determinant(matrix* a, int n, short* status, short logOnOverflow);

/// Logarithm of a positive determinant. Unlike `M_Determinant` it continues where no pivot could be chosen, with
/// whatever the table holds, and it has no limits. A pivot of exactly 0, which no finished factorisation has, gives
/// 0.0. An exception is not caught.
/// @formula \ln \det A = \sum_j \ln |u_{jj}|
/// @divisor the missing value for a negative determinant and for a row of zeros
/// @empty 0.0
VECMAT_API double M_LogDeterminant(matrix* a, int n);

/// Determinant of a triangular table: the product of its diagonal. There are no limits: it overflows to infinity.
/// @formula \det A = \prod_j a_{jj}
/// @divisor a diagonal cell of exactly 0 gives 0.0
/// @failure `*status` is -1, with the positive twin as the result, only where the companion that finds the parity fails
///     with an exception. Otherwise 0
VECMAT_API double M_DeterminantTriang(matrix* a, int n, short* status);

// ---- flat forms: n by n arrays, which are not written ---------------------------------------------------------------

/// With `logOnOverflow` 0.
VECMAT_API double VB_M_Determinant(double* a, int n, short* status);
VECMAT_API double Cpp_M_LogDeterminant(double* a, int n);
VECMAT_API double VB_M_DeterminantTriang(double* a, int n, short* status);

} // extern "C"
