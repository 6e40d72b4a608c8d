// A square root of a symmetric table that is positive semidefinite.
//
// @missing -1 with `out` untouched (equality): there are no eigenvalues
// @divisor an eigenvalue above -1e-12 and up to 0 counts as 0; one not above -1e-12 fails
// @empty 0
// @weak the limit is absolute: a table of small scale passes although it has negative eigenvalues, and out' out is then
//     not `a`. Accuracy is that of `M_Eigen`
// @cost of the order n^3
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// With a = V D V' from `M_Eigen`, the eigenvalues in descending order: the table sqrt(D) V' of order `n` into `out`
/// (`matCheck`). It is not the symmetric root: out' out gives `a` back. V enters through V'V, so its columns are
/// brought to unit length once more and what is left off the diagonal of V'V stays in. The input is left unchanged.
/// @formula R = \sqrt{D}\, V^{\top}, \quad A = V D V^{\top}, \quad R^{\top} R = A
/// @failure -1 for such an eigenvalue, -2 for a column of V whose length is not above 0, both with `out` untouched;
///     that the eigenvalues did not converge is not tested. Otherwise 0
VECMAT_API int M_SquareRoot(matrix* a, int n, matrix*& out);

/// Flat form: n by n arrays, the result in place.
VECMAT_API int Cpp_M_SquareRoot(double* a, int n, double* out);

} // extern "C"
