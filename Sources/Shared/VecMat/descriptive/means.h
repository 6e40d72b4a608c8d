// Means: arithmetic, absolute, harmonic and geometric, of a vector and of the columns of a table.
//
// Only the first n rows (and p columns) are read. A mask holds n entries: 0 keeps the row, anything else drops it; a
// null mask keeps every row. The weights w have one cell for each row and are used as they are, without normalisation;
// they must be given where they stand among the arguments. "Missing" is the test for exactly the missing value, so that
// a NaN enters; the two functions that let in only what is above the missing value, and thus leave out a NaN, say so.
// Nothing reports an error but the missing value in a result.
//
// @missing left out (equality)
// @mask a nonzero entry excludes its row; may be null
// @weights required; a row of weight 0 is left out
// @empty the missing value
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Sum of w x over the sum of w, each summed in row order. Masked rows, missing cells and weights of 0 are left out.
/// The missing value where no row enters or the weights sum to 0.
/// @divisor the sum of the weights; missing where it is 0
VECMAT_API double V_Mean(matrix* v, int n, short* mask, matrix* w);
VECMAT_API double VB_V_Mean(double* v, int n, short* mask, double* w);

/// Sum of the present cells over their count; the missing value where there is none.
/// @divisor the count of the present cells
VECMAT_API double V_Mean2(matrix* v, int n);
VECMAT_API double VB_V_Mean2(double* v, int n);

/// `V_Mean` of the absolute values.
/// @divisor the sum of the weights; missing where it is 0
VECMAT_API double V_MeanAbs(matrix* v, int n, short* mask, matrix* w);
VECMAT_API double VB_V_MeanAbs(double* v, int n, short* mask, double* w);

/// Sum of w over the sum of w / x. Masked rows and missing cells are left out; a kept cell of exactly 0, also one of
/// weight 0, makes the result the missing value. So does n below 1, or a sum of w / x of 0.
/// @missing left out (equality); a kept 0 makes the result missing, also with weight 0
/// @weights required, used as given
/// @divisor the sum of w / x; missing where it is 0
VECMAT_API double V_HarmonicMean(matrix* v, int n, short* mask, matrix* w);
VECMAT_API double Cpp_V_HarmonicMean(double* v, int n, short* mask, double* w);

/// Geometric mean and geometric standard deviation: the exponentials of the mean and of the standard deviation of the
/// logarithms. Masked rows and missing cells are left out; a kept cell at or below 0 makes both results the missing
/// value, also after good rows. A weight of 0 moves nothing, but its row counts in m. The divisor is W - W/m, W the sum
/// of weights; where it is 0, `gsd` is the missing value. Both are missing where no row enters.
/// @missing left out (equality); a kept cell at or below 0 makes both results missing
/// @weights required; a row of weight 0 changes no sum but counts in m
/// @divisor W - W/m; `gsd` is missing where it is 0
/// @empty both missing
VECMAT_API void V_GMeanGSD(matrix* v, int n, short* mask, matrix* w, double* gmean, double* gsd);
VECMAT_API void Cpp_V_GMeanGSD(double* v, int n, short* mask, double* w, double* gmean, double* gsd);

/// Weighted mean of each column, by the running update mean += d w / W, into p cells. `mean` is prepared with
/// `matCheck` (p by 1). Missing cells are left out; a weight of 0 moves nothing. A column without rows has mean 0.0,
/// not the missing value. `M_MeanSPV` reads an array of column tables. Returns 0.
/// @weights required; a weight of 0 changes nothing
/// @divisor the running sum of weights
/// @empty a column without rows has mean 0.0
VECMAT_API int M_Mean(matrix* X, int n, int p, matrix*& mean, matrix* w);
VECMAT_API int M_MeanSPV(matrix** X, int n, int p, matrix*& mean, matrix* w);
/// `mean` has p cells; `ignored` is not looked at.
VECMAT_API int VB_M_Mean(double* X, int n, int p, double* mean, int ignored, double* w);

/// As `M_Mean`, but a cell enters only where it is above the missing value, a column without rows gives the missing
/// value, and a weight of 0 is not looked for: one ahead of all others divides 0 by 0, and the mean stays NaN. `mean`
/// must exist; it is not cleared. Returns 0.
/// @missing a cell enters only where it is above the missing value (order)
/// @weights required; a weight of 0 ahead of all others divides 0 by 0, and the mean stays NaN
/// @divisor the running sum of weights
/// @empty a column without rows has a missing mean
VECMAT_API int M_Mean2(matrix* X, int n, int p, matrix* w, matrix* mean);
VECMAT_API int Cpp_M_Mean2(double* X, int n, int p, double* w, double* mean);

/// The plain mean of each column, by the running update mean += d / m, over the cells above the missing value; the
/// missing value where there is none. `mean` must exist; it is not cleared. Returns 0.
/// @missing a cell enters only where it is above the missing value (order)
/// @divisor the count of the cells that enter
/// @empty a column without rows has a missing mean
VECMAT_API int M_Mean3(matrix* X, int n, int p, matrix* mean);
VECMAT_API int Cpp_M_Mean3(double* X, int n, int p, double* mean);

/// Sum of the present cells of the 1-based column `col`; 0.0 for n below 1.
/// @empty 0.0
VECMAT_API double M_ColSum2(matrix* X, int n, int col);

} // extern "C"
