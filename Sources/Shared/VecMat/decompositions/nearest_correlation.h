// The correlation matrix nearest to a symmetric table, as pairwise estimation leaves it.
//
// @missing any: -1 with the table unchanged (equality)
// @empty 0
// @cost of the order n^3 for each projection
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"

extern "C" {

/// Replaces the symmetric table `a` of order `n` by the nearest correlation matrix: alternating projections on the
/// positive semi-definite tables and on those with unit diagonal, with Dykstra's correction. It ends when the infinity
/// norm of the difference of the two projections is at most 1e-6 of that of `a`, or not a number. The result has a unit
/// diagonal and is within the tolerance of the semi-definite tables, not exactly one of them. The triangular form holds
/// column k from its diagonal cell down. Returns 0.
/// @failure -1 where a cell is missing. The eigenvalues catch a failed allocation and the pass continues with what they
///     left, 0.0 throughout if it struck early; any other exception is passed on, with `a` as the passes so far left it
/// @memory nine tables of n by n
/// @source Higham (2002), Computing the nearest correlation matrix, IMA Journal of Numerical Analysis 22
/// @weak after 100000 passes it gives up and returns 0 all the same, with the table as it is then
VECMAT_API int M_CorrMatFromSymMat(matrix* a, int n);
VECMAT_API int M_CorrMatFromSymMatSPV(matrix** a, int n);
VECMAT_API int M_CorrMatFromSymMatSPV_T(matrix** a, int n);

/// Flat forms: the caller's arrays are worked on in place; a triangular one has column k of n - k cells.
VECMAT_API int Cpp_M_CorrMatFromSymMat(double* a, int n);
VECMAT_API int Cpp_M_CorrMatFromSymMatSPV(SAFEARRAY** a, int n);
VECMAT_API int Cpp_M_CorrMatFromSymMatSPV_T(SAFEARRAY** a, int n);

/// Projects `a` on the positive semi-definite tables in the metric of the positive definite table `w`, both of order
/// `n`, into the existing table `out`: the eigenvalues below 0 of S a S become 0.0, and the inverse of S goes on both
/// sides again. S is what `M_SquareRoot` makes of w: the diagonal roots of its eigenvalues times its eigenvectors
/// transposed; for the identity the identity.
/// @missing tested by the eigenvalues alone (equality)
/// @weights `w` is the metric, a table: none for rows
/// @empty nothing is written
/// @failure not detected: the computation continues with what a failed step left, 0.0 throughout where it left nothing
VECMAT_API void M_SProject(matrix* a, int n, matrix* w, matrix* out);

/// `a` with 1.0 on the diagonal, into the existing `out`: a table, an array of columns, a triangle of columns.
/// @missing copied unchanged off the diagonal
/// @empty nothing is written
VECMAT_API void M_UProject(matrix* a, int n, matrix* out);
VECMAT_API void M_UProjectSPV(matrix* a, int n, matrix** out);
VECMAT_API void M_UProjectSPV_T(matrix* a, int n, matrix** out);

/// Infinity norm: the largest row sum of absolute values. A cell outside the table counts as 1.0. In the triangular
/// form a row runs over the whole symmetric row.
/// @formula \|A\|_\infty = \max_i \sum_j |a_{ij}|
/// @missing a cell not above it is left out (order); so are NaN and minus infinity
/// @empty 0.0
VECMAT_API double M_RowSumNorm(matrix* a, int rows, int cols);
VECMAT_API double M_RowSumNormSPV(matrix** a, int rows, int cols);
VECMAT_API double M_RowSumNormSPV_T(matrix** a, int rows, int cols);
VECMAT_API double Cpp_M_RowSumNorm(double* a, int rows, int cols);

} // extern "C"
