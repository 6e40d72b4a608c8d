// Determinants, as sums of logarithms of the magnitudes of pivots.
//
// A pivot outside the table reads -1.0: a negative one of magnitude 1. The determinant of order 0 is 1. No test for the
// missing value. The table survives.
//
// @missing an ordinary number
// @divisor a row of zeros: 0.0, status -1; a pivot of 0 counts as 1e-20
// @empty 1.0
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Determinant of order `n` from the factors of `M_LUDecomp`. `*status` is that of the factorisation; where it is not 0
/// the result is 0.0. A singular table without a row of zeros has status 0 and, from its replaced pivots, a tiny
/// determinant or 0.0.
///
/// With S the sum of logarithms: 0.0 for S below -708; the determinant for S up to 709; beyond, `*status` is -1 and the
/// result the positive twin of the missing value, but with `logOnOverflow` exactly -1 it is S with the sign of the
/// determinant and `*status` stays 0. A NaN passes through. An exception, such as exhausted memory, ends here:
/// `*status` is -1 and the result the positive twin.
VECMAT_API double M_Determinant(matrix* a, int n, short* status, short logOnOverflow);

/// Logarithm of a determinant above 0; the missing value for a negative one and for a table with a row of zeros. Unlike
/// `M_Determinant` it goes on where no pivot could be chosen, with whatever the table holds, and it has no limits. A
/// pivot of exactly 0, which no finished factorisation has, gives 0.0. An exception is not caught.
/// @divisor missing for a negative determinant or a row of zeros
/// @empty 0.0
VECMAT_API double M_LogDeterminant(matrix* a, int n);

/// Determinant of a triangular table: the product of its diagonal, 0.0 where a cell of it is exactly 0. There are no
/// limits: it overflows to infinity. `*status` is 0; -1, with the positive twin as the result, only where the companion
/// that finds the parity fails with an exception.
/// @divisor a diagonal cell of exactly 0: 0.0
VECMAT_API double M_DeterminantTriang(matrix* a, int n, short* status);

// ---- flat forms: n by n arrays, which are not written ---------------------------------------------------------------

/// With `logOnOverflow` 0.
VECMAT_API double VB_M_Determinant(double* a, int n, short* status);
VECMAT_API double Cpp_M_LogDeterminant(double* a, int n);
VECMAT_API double VB_M_DeterminantTriang(double* a, int n, short* status);

} // extern "C"
