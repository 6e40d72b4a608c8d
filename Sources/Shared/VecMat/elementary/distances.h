// Euclidean distances.
//
// `rows` and `cols` bound the loops; each table's own row count is its stride. A read outside a table yields -1.0,
// which takes part; a write outside is dropped. Results must exist and are written in place.
//
// @missing an ordinary number
// @weights a zero weight takes its coordinate out, unless the difference is infinite or a NaN
// @empty without coordinates 0.0
// @cost of the order rows cols^2 for all pairs, one pass for a vector
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Weighted distances of all pairs of columns, the root of the sum over the rows of w (a difference squared), `cols` by
/// `cols`, w having `rows` cells; with `betweenRows` exactly -1, of all pairs among the first `nRowsAgain` rows, over
/// the `cols` columns, `nRowsAgain` by `nRowsAgain`, w having `cols` cells. Both triangles are written, 0.0 on the
/// diagonal.
/// @formula d_{jk} = \sqrt{\sum_i w_i (a_{ij} - a_{ik})^2}
VECMAT_API void M_EuclidDist2(matrix* a, int rows, int cols, matrix* out, matrix* w, short betweenRows, int nRowsAgain);

/// Distance of each column to the vector v of `rows` cells, as a root mean square over the coordinates: the root of the
/// sum of squared differences divided by their count. With `byRow` exactly -1, of each row to v of `cols` cells.
/// @formula d_j = \sqrt{\frac{1}{m_j} \sum_i (a_{ij} - v_i)^2}
/// @missing a coordinate enters only where both cells are above the missing value (order), which a NaN is not
/// @divisor the count of the coordinates that enter
/// @empty the missing value, also where no coordinate enters
VECMAT_API void M_EuclidDistToVector(matrix* a, int rows, int cols, matrix* v, short byRow, matrix* out);

// Flat forms: views, results in the caller's array, the shapes following the option.
VECMAT_API void VB_M_EuclidDist2(double* a, int rows, int cols, double* out, double* w, short betweenRows);
VECMAT_API void Cpp_M_EuclidDistToVector(double* a, int rows, int cols, double* v, short byRow, double* out);

} // extern "C"
