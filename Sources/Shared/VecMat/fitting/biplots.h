// Coordinates of factorial maps: biplots, squared cosines of points on the axes, the point farthest from the origin.
//
// Dimensions bound the loops; each table's own row count is its stride. A read outside a table yields -1.0 (-1 of
// ints), which takes part; a write outside is dropped. No error is reported.
//
// @missing stays missing (equality)
// @empty nothing is written
#pragma once

#include "../base/api.h"
#include "../frame/super_matrices.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Moves the weight of the k eigenvalues between the observations and the variables of an analysis by the exponent
/// `alpha`: 1 leaves the observations and shrinks the variables, 0 leaves the variables and shrinks the observations.
///
///     obs    nA + nB by k (`matCheck`): each row of `rows` (nA by k), then each of `sup` (nB by k), times
///            pow(eigen, alpha/2 - 1/2) of its axis.
///     var    m by k (`matCheck`): each row of `cols` (m by k) times pow(eigen, -alpha/2) of its axis. With `alpha`
///            exactly 0 they are the cells themselves. Then, unless `factor` is exactly 1.0, `M_ScalarsA2` by the root
///            of `factor`, which leaves a larger var as m by k.
///
/// In the second form `rows` and `cols` are arrays of k columns.
/// @divisor powers of the eigenvalue; for an eigenvalue of 0 the factor of the observations is infinite with `alpha`
///     below 1, and 1.0 with 1; that of the variables is 0.0
/// @empty nothing is done; with nB below 1 there are no supplementary observations, and `sup` is not read and may be
///     null
/// @source Gabriel, K. R. (1971), The biplot graphic display of matrices with application to principal component
///     analysis, Biometrika 58, 453-467
VECMAT_API void BiplotTransData(matrix* rows, matrix* sup, matrix* cols, int nA, int nB, int m, int k, matrix* eigen,
                                double factor, double alpha, matrix*& obs, matrix*& var);
VECMAT_API void BiplotTransData(matrix** rows, matrix* sup, matrix** cols, int nA, int nB, int m, int k, matrix* eigen,
                                double factor, double alpha, matrix*& obs, matrix*& var);

extern "C" {

/// Squared cosines of n points on k axes, a(i, j)^2 over the sum of squares r of the point's row. `out` exists and is
/// not prepared; it may be a. In the SPV form a is an array of columns.
/// @missing makes its whole row missing (equality)
/// @divisor r; where it is not above 1e-12 the row of `out` keeps its cells
VECMAT_API void cComputeCosines(matrix* a, int n, int k, matrix*& out);
VECMAT_API void cComputeCosinesSPV(matrix** a, int n, int k, matrix*& out);

/// Sets cell (i, best(i)) of `flags` to -1 for each of the n points; column numbers are 1-based. Other cells are left
/// unchanged. The check is on the linear position: a column number out of range is dropped unless it falls on another
/// cell.
/// @missing no cell is tested
VECMAT_API void M_BoldCosines(matrixInt* best, int n, matrixInt* flags);

/// The largest distance to the origin among the n rows of a in k dimensions, and its 1-based row: the first of equal
/// ones.
/// @missing an ordinary number: its distance is infinite and wins
/// @empty 0.0 and row 0, also where no distance is above 0.0
VECMAT_API void M_GetMaxDistToOrigin(matrix* a, int n, int k, double* maxDistance, int* row);

// ---- flat forms: results in place in the caller's arrays ------------------------------------------------------------

/// `obs` has nA + nB by k elements, without nB where it is below 1: then `sup` is not read. The second form takes
/// arrays of `storedAxes` columns and `sup` as nB by `storedAxes`; the first k of these axes are used, and k must not
/// be above `storedAxes`.
VECMAT_API void VB_BiplotTransData(double* rows, double* sup, double* cols, int nA, int nB, int m, int k, double* eigen,
                                   double factor, double alpha, double* obs, double* var);
VECMAT_API void VB_BiplotTransDataSPV(SAFEARRAY** rows, double* sup, SAFEARRAY** cols, int nA, int nB, int m,
                                      int storedAxes, int k, double* eigen, double factor, double alpha, double* obs,
                                      double* var);

/// `a` and `out` n by k; they may be one.
VECMAT_API void ComputeCosines(double* a, int n, int k, double* out);
/// `best` n elements, `flags` n by `cols`.
VECMAT_API void Cpp_M_BoldCosines(int* best, int n, int* flags, int cols);
VECMAT_API void Cpp_M_GetMaxDistToOrigin(double* a, int n, int k, double* maxDistance, int* row);

} // extern "C"
