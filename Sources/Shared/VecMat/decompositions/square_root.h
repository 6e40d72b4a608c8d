// A square root of a symmetric table that is positive semidefinite.
//
// @missing the eigenvalues cannot be had: -1, `out` untouched
// @divisor an eigenvalue between -1e-12 and 0 counts as 0; not above -1e-12: -1
// @empty 0
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// With a = V D V' from `M_Eigen`, the eigenvalues in descending order: the table sqrt(D) V' of order `n` into `out`
/// (`matCheck`). It is not the symmetric root: out' out gives `a` back. An eigenvalue between -1e-12 and 0 counts as 0.
/// V enters through V'V, so that its columns are brought to unit length once more and what is left off the diagonal of
/// V'V stays in.
///
/// Returns 0; -1 for an eigenvalue not above -1e-12, also where the eigenvalues cannot be had because a cell is
/// missing; -2 for a column of V whose length is not above 0. Then `out` is untouched. That the eigenvalues did not
/// converge is not looked at. The input survives.
VECMAT_API int M_SquareRoot(matrix* a, int n, matrix*& out);

/// Flat form: n by n arrays, the result in place.
VECMAT_API int Cpp_M_SquareRoot(double* a, int n, double* out);

} // extern "C"
