// The weighted scatter of observations about the centres of their groups.
//
// @missing an ordinary number
// @weights multiply each term, not tested: zero adds 0.0
// @empty nothing is added
// @cost of the order n p^2
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// For each of n rows of X whose group g[i] equals `group` (any row for `group` -1) adds (x(i, a) - c(a)) w[i]
/// (x(i, b) - c(b)) to T(a, b), for all pairs of the p columns, where c is row g[i] of `centres`. Groups count from 0:
/// that is the first row. T is p by p, prepared with `matCheck`. g and w have n cells.
///
/// A group without a row in `centres` reads what the checked access finds there, -1.0 at the end. In the form over
/// doubles g[i] is compared as it is and truncated for the row. Nothing is added where the row count of T differs from
/// the column count of X: in a T kept larger than p, or from an X with more than p columns. Returns 0.
/// @formula t_{ab} \leftarrow t_{ab} + \sum_i w_i (x_{ia} - c_a)(x_{ib} - c_b)
VECMAT_API int M_Inertie_W(matrix* X, int n, int p, matrix* w, int group, matrix* g, matrix* centres, matrix*& T);
VECMAT_API int M_Inertie_W(matrix* X, int n, int p, matrix* w, int group, matrixInt* g, matrix* centres, matrix*& T);

/// The same from an array of columns, the first p of which are read; T may be larger than p by p.
extern "C" VECMAT_API int M_Inertie_WSPV(matrix** X, int n, int p, matrix* w, int group, matrixInt* g, matrix* centres,
                                         matrix*& T);
