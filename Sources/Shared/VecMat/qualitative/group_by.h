// One row for each group of rows with the same key.
//
// `out`, nRows by nCols, must exist: it receives the data sorted ascending by the 1-based column `keyCol`, rows of a
// group in the order of the input, and then in rows 1 to `*nGroups` the groups: the key, and an aggregate of each other
// column. Below, it keeps what the sort left there. `data` is not written. A row whose key is a NaN is a group of its
// own, in an unspecified place.
//
// A column whose entry of `colTypes` (nCols of them) is nonzero, or is beyond that table, gets the mode of its codes
// (`V_ModeCat`), whatever `aggregate` says: there a code counts where it lies below the number of rows of its group,
// and a group of one row gives 0. The others, by `aggregate`:
//
//     0  sum         V_Sum2         with weights V_Sum
//     1  mean        V_Mean2        with weights V_Mean
//     2  median      V_Quantile     with weights V_QuantileW
//     3  first row of the group
//     4  row after the group: the value with which the next group starts. For the last group it is the cell that
//        follows in the storage of `out`, which is the top of the next column as it then stands, and behind the last
//        column -1.0
//     5  minimum     V_Min2
//     6  maximum     V_Max2
//     7  maximum less minimum; the missing value where the maximum is not above it
//
// Any other code leaves these columns of the rows as sorted. No error is reported.
//
// @missing a missing key makes a group like any other, the first; in the other columns as in the function named
// @weights required; a zero counts as in the function named
// @empty no groups
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// @divisor of the mean: the count of present cells
VECMAT_API void M_GroupBy(matrix* data, int nRows, int nCols, matrixInt* colTypes, int keyCol, int aggregate,
                          int* nGroups, matrix*& out);

/// `weights` (nRows cells) comes back in the order of the sorted rows.
/// @divisor of the mean: the sum of weights
/// @weak the sum, mean and median of every group, not of the first alone, take the first entries of the sorted weights:
///     row k of any group has the weight of row k of the sorted table, not its own
VECMAT_API void M_GroupByW(matrix* data, int nRows, int nCols, matrixInt* colTypes, int keyCol, int aggregate,
                           int* nGroups, matrix*& out, matrix* weights);

// Flat forms: `out` has nRows by nCols elements and is written as a whole, `weights` nRows.
VECMAT_API void VB_M_GroupBy(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate, int* nGroups,
                             double* out);
VECMAT_API void VB_M_GroupByW(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate,
                              int* nGroups, double* out, double* weights);

} // extern "C"
