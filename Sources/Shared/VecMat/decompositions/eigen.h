// Eigenvalues and eigenvectors of real symmetric tables, a power iteration, and the 2-norm built on them.
//
// @missing any in the square: -1 with nothing touched (equality)
// @empty 0
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Eigenvalues and eigenvectors of the symmetric table `a` of order `n`, by Householder reduction and QL iteration with
/// implicit shifts (tred2 and tqli of Press, Flannery, Teukolsky, Vetterling: Numerical Recipes, 1st edition).
///
/// Only the lower triangle enters the computation; symmetry is neither tested nor enforced. `values` receives n
/// eigenvalues, `vectors` n columns of unit length, column j belonging to value j, with the sign that the iteration
/// leaves. With `sort` exactly -1 the values come in descending order (by signed value; equal ones in the order found),
/// otherwise in the order in which the iteration leaves them. Both results go through `matCheck`; in a kept larger
/// table the top left corner is used. The input survives.
///
/// Returns 0, or -1: where any cell of the square is missing (equality test), with nothing touched; where an eigenvalue
/// needs more than 28 passes, with the results in the state of the interruption; where an exception such as exhausted
/// memory struck, which goes no further. An off-diagonal element is negligible below 2.220446049250313e-16 in absolute
/// terms. Scratch: n doubles, a table of n by n while sorting, and from order 20 on two such tables and about 50 n
/// doubles; where memory for these is short, the work is done without them, more slowly and with the same result.
VECMAT_API int M_Eigen(matrix* a, matrix*& values, matrix*& vectors, int n, short sort);

/// The same over an array of columns; `vectors` are `n` columns of at least n cells that the caller supplies.
VECMAT_API int M_EigenSPV(matrix** a, matrix*& values, matrix** vectors, int n, short sort);

/// The same with the eigenvectors in place of the input.
VECMAT_API int M_EigenDestroySPV(matrix** a, matrix*& values, int n, short sort);

/// The same from a triangular array of columns into full columns. An exception is not caught here.
VECMAT_API int M_EigenSPV_T(matrix** a, matrix*& values, matrix** vectors, int n, short sort);

/// Flat form: `a` and `vectors` n by n, `values` n. Where `M_Eigen` made no result, the arrays stay as they are.
VECMAT_API int VB_M_Eigen(double* a, double* values, double* vectors, int n, short sort);

/// Power iteration from a vector of ones, whatever `v` held (`matCheck`, n by 1): v becomes a v / (v' a v) until the
/// norm of a v - (v' a v) v is at most 1e-6 of that of (v' a v) v, or not a number, at most 1000 times. The vector is
/// not brought to unit length: it is divided by the Rayleigh product. No eigenvalue is given, and the limit is not
/// reported. Returns 0.
/// @missing no test is told: an ordinary number
/// @divisor the Rayleigh product v' a v, untested
VECMAT_API int M_VonMises(matrix* a, matrix*& v, int n);

/// 2-norm of a table: for one column the root of its sum of squares, otherwise the root of the largest eigenvalue of a
/// a'. The missing value where the eigenvalues cannot be had.
/// @missing in a table of several columns the missing value, as its eigenvalues cannot be had
/// @empty 0.0
VECMAT_API double getNorm2(matrix* a);

/// 2-norm of a square flat table; 0.0 unless `rows` equals `cols`.
/// @missing in a table of several columns the missing value, as its eigenvalues cannot be had
/// @empty 0.0
VECMAT_API double Cpp_M_Norm2(double* a, int rows, int cols);

} // extern "C"
