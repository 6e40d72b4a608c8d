// Missing cells filled from principal components: nonlinear iterative partial least squares.
//
// @missing filled with what the components rebuild (equality)
// @weights multiply the cells before the mean is taken off; a row of weight exactly 0 takes part with the mean, and its
//     missing cells become 0.0
// @divisor W - 1 in the test for a constant column: a deviation up to 1e-6 ends it with 1
// @empty 0
// @memory two tables of the size of X
// @source Wold, H. (1966), Estimation of principal components and related models by iterative least squares, in
//     Krishnaiah, P. R. (ed.), Multivariate Analysis, Academic Press, 391-420
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Extracts `components` principal components of X (n by p) past its missing cells, each by alternating regressions of
/// the columns on the scores and of the rows on the loadings, and replaces each missing cell by what they rebuild. The
/// other cells are left unchanged; scores and loadings are not returned.
///
///     0    done; or no cell was missing, and no component is extracted
///     1    a column is constant, its standard deviation with the divisor W - 1 being at most 1e-6 (W: the sum of the
///          weights of its present cells), or a column meets scores whose sum of squares, over the rows where both are
///          present, is below 1e-6. More components than the table carries end so: what is left of it has no length
///     -6   a column has more than n `maxColumnShare` missing cells, or the table more than n `maxTotalShare` p
///
/// X is written only where 0 is returned. Columns are examined in order, before the shares: a constant column gives 1
/// also in a complete table and in one with too many missing cells. A spread that is not a number, as that of a column
/// without any cell, is not constant.
///
/// The components are those of w x - m, m being the weighted mean of the column; the columns are not divided by their
/// standard deviations. A missing cell becomes (rebuilt + m) / w. A row of weight 0 takes part with -m in its present
/// cells. A row without a present cell has no scores and gets m / w, as does every missing cell for `components` below
/// 1.
///
/// The scores start from the first column of what is left of the table; rows where that cell is missing do not enter
/// the first loadings. Loadings are scaled to length 1. From the second pass on a component is settled when the
/// variance, with the divisor p - 1, of the change in its loadings is not above `tol`: 1e-6 is usual. With one column
/// that variance is not a number, and the second pass is the last.
///
/// The dimensions bound the loops; the table's own row count is its stride. A read outside a table yields -1.0, which
/// takes part.
/// @weak the limits for a constant column and for scores without length are absolute: a table in units so large that a
///     deviation is 1e-6 or less ends with 1. A component that does not settle, as with a negative `tol` or one below what the arithmetic can reach, is used
///     as it is after 100000 passes, without notice
VECMAT_API int NIPALS(int n, int p, matrix* X, matrix* w, double tol, int components, double maxColumnShare,
                      double maxTotalShare);

/// Flat form: `X` n by p, filled in place; `w` n elements.
VECMAT_API int Cpp_NIPALS(int n, int p, double* X, double* w, double tol, int components, double maxColumnShare,
                          double maxTotalShare);

} // extern "C"
