// Eigenvalues and eigenvectors of real symmetric tables, a power iteration, and the 2-norm built on them.
//
// @missing any in the square: -1 with nothing changed (equality)
// @empty 0
// @cost of the order n^3
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

// ---- eigenvalues and eigenvectors -----------------------------------------------------------------------------------
// @failure -1: where a cell of the square is missing; where an eigenvalue needs more than 28 passes, with the results
//     in the state of the interruption; after an exception such as exhausted memory, which is caught. Otherwise 0
// @memory n doubles, a table of n by n while sorting, and from order 20 on two such tables and about 50 n doubles;
//     where that is short it does without, more slowly and with the same result
// @source tred2 and tqli of Press, Flannery, Teukolsky and Vetterling, Numerical Recipes, 1st edition
// @weak an off-diagonal element is negligible below 2.220446049250313e-16 in absolute terms. So accuracy is lost with
//     code 0 where the cells are below about 1e-12, and at 1e-16 the diagonal itself comes back: of the covariances of
//     the irises, times 1e-16, the largest value is 13 % too small. For huge cells the passes may run out: the Hilbert
//     table of order 20, times 1e40, ends in -1. Scale the table to the order of 1

/// Eigenvalues and eigenvectors of the symmetric table `a` of order `n`, by Householder reduction and QL iteration with
/// implicit shifts.
///
/// Only the lower triangle enters the computation; symmetry is neither tested nor enforced. `values` receives n
/// eigenvalues, `vectors` n columns of unit length, column j belonging to value j, with the sign that the iteration
/// leaves. With `sort` exactly -1 the values come in descending order (by signed value; equal ones in the order found),
/// otherwise in the order in which the iteration leaves them. Both results go through `matCheck`; in a kept larger
/// table the top left corner is used. The input is left unchanged.
/// @formula A V = V \operatorname{diag}(\lambda), \quad V^{\top} V = I
VECMAT_API int M_Eigen(matrix* a, matrix*& values, matrix*& vectors, int n, short sort);

/// The same over an array of columns; `vectors` are `n` columns of at least n cells that the caller supplies.
VECMAT_API int M_EigenSPV(matrix** a, matrix*& values, matrix** vectors, int n, short sort);

/// The same with the eigenvectors in place of the input.
VECMAT_API int M_EigenDestroySPV(matrix** a, matrix*& values, int n, short sort);

/// The same from a triangular array of columns into full columns.
/// @failure -1 as above, but an exception is passed on. Otherwise 0
VECMAT_API int M_EigenSPV_T(matrix** a, matrix*& values, matrix** vectors, int n, short sort);

/// Flat form: `a` and `vectors` n by n, `values` n. Where `M_Eigen` made no result, the arrays are left unchanged.
VECMAT_API int VB_M_Eigen(double* a, double* values, double* vectors, int n, short sort);

// ---- power iteration and norm ---------------------------------------------------------------------------------------

/// Power iteration from a vector of ones, whatever `v` held (`matCheck`, n by 1): v becomes a v / (v' a v) until the
/// norm of a v - (v' a v) v is at most 1e-6 of that of (v' a v) v, or not a number, at most 1000 times. No eigenvalue
/// is returned. Returns 0.
/// @missing an ordinary number
/// @cost of the order n^2 for each pass, at most 1000
/// @divisor the Rayleigh product v' a v, not tested: the vector is not of unit length
/// @failure reaching the limit of 1000 is not reported
VECMAT_API int M_VonMises(matrix* a, matrix*& v, int n);

/// 2-norm of a table: for one column the root of its sum of squares, otherwise the root of the largest eigenvalue of a
/// a'.
/// @formula \|A\|_2 = \sqrt{\lambda_{\max}(A A^{\top})}
/// @missing an ordinary number: with several columns mostly NaN or infinite, as a a' overflows, and missing where a
///     cell of a a' is
/// @empty 0.0
/// @failure NaN where the eigenvalues are NaN; missing only where there are none
/// @weak wrong below about 1e-8, where the eigenvalues of a a' come down to the absolute tolerance of `M_Eigen`; NaN
///     from about 1e154 on, where a a' overflows
VECMAT_API double getNorm2(matrix* a);

/// `getNorm2` of a square flat table; 0.0 unless `rows` equals `cols`.
/// @missing an ordinary number: with several columns mostly NaN or infinite, as a a' overflows, and missing where a
///     cell of a a' is
/// @empty 0.0
/// @failure NaN where the eigenvalues are NaN; missing only where there are none
/// @weak wrong below about 1e-8, where the eigenvalues of a a' come down to the absolute tolerance of `M_Eigen`; NaN
///     from about 1e154 on, where a a' overflows
VECMAT_API double Cpp_M_Norm2(double* a, int rows, int cols);

} // extern "C"
