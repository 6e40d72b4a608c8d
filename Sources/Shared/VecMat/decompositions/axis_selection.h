// How many axes of an analysis to keep, and which points are well represented on a pair of them.
//
// @missing left out of the sum for the percentages (equality)
// @empty none kept, none selected
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Decides from `n` eigenvalues in descending order how many axes to keep.
///
/// From the end, as long as more than one is left: an eigenvalue below `floor` is taken off the list (`drop` nonzero);
/// with `drop` 0 the last one is set to 0.0 in `eig` if it is below `floor`, and no other. `kept` is the length of what
/// remains. `percent` (`matCheck`, n by 1) receives the percentage of each kept eigenvalue in the sum of them all.
/// `selected` is the least of: `kept`; the first count whose running percentage reaches `cumPercent`, if that is above
/// 0; `maxCount`, if at least 1; and, if `minValue` is above 0, the count less one for each kept eigenvalue below
/// `minValue` + 1e-12. Returns 0.
/// @divisor the sum of the present eigenvalues; where it is 0 every percentage is 0.0
VECMAT_API int FilterEigen(matrix*& eig, int n, short drop, double floor, double cumPercent, int maxCount,
                           double minValue, int& kept, int& selected, matrix*& percent);

/// Flat form: `eig` comes back as `FilterEigen` changed it, `percent` has n elements.
VECMAT_API void VB_FilterEigen(double* eig, int n, short drop, double floor, double cumPercent, int maxCount,
                               double minValue, int* kept, int* selected, double* percent);

/// For each of `n` rows: flags 1.0 where cell `colA` is above 0 and its sum with cell `colB` (both 1-based) is above
/// `threshold`, otherwise 0.0. A cell of colA outside the table gives 0.0, one of colB enters as -1.0.
/// @missing an ordinary number
/// @empty nothing is written
VECMAT_API void FilterOnSumOfSquares(matrix* m, int n, int colA, int colB, double threshold, double* flags);

/// Flat form over a `rows` by `cols` table; `flags` has `rows` elements.
VECMAT_API void Cpp_FilterOnSumOfSquares(double* data, int rows, int cols, int colA, int colB, double threshold,
                                         double* flags);

} // extern "C"
