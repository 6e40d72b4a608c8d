// Minima and maxima of vectors.
//
// A vector is a table walked in linear order from its first cell, whatever its shape; `n` cells are visited and one
// beyond the table counts as -1. A search starts at the first cell that qualifies and goes on to a later one only where
// that is strictly better, so a NaN that comes first stays. For `n` below 1 the answer is -1.0, but for `V_MinMax`,
// which stores the missing value. "Missing" is the equality test; cells of ints are never missing. A mask has `n`
// entries, of which any but 0 drops the cell.
//
// @missing left out (equality); ints are never missing
// @mask a nonzero entry excludes its row; required
// @empty -1.0; where nothing qualifies the missing value
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// Extreme of the cells that the mask keeps and that are not missing; the missing value where there are none. `V_Min`
/// requires a mask, `V_Max` takes none as null.
VECMAT_API double V_Min(matrix* x, int n, short* mask);
VECMAT_API double V_Min(matrixInt* x, int n, short* mask);
/// @mask a nonzero entry excludes its row; may be null
VECMAT_API double V_Max(matrix* x, int n, short* mask);
VECMAT_API double V_Max(matrixInt* x, int n, short* mask);

/// Both extremes of the same cells in one call; the mask is required. The missing value in both where no cell
/// qualifies, also for `n` below 1.
/// @empty the missing value in both, also where nothing qualifies
VECMAT_API void V_MinMax(matrix* x, int n, double* min, double* max, short* mask);
VECMAT_API void V_MinMax(matrixInt* x, int n, double* min, double* max, short* mask);

/// The same without a mask. The maximum of ints is an int, unlike its twins.
/// @empty -1.0 (-1); where nothing qualifies the missing value
VECMAT_API double V_Min2(matrix* x, int n);
VECMAT_API double V_Min2(matrixInt* x, int n);
VECMAT_API double V_Max2(matrix* x, int n);
VECMAT_API int V_Max2(matrixInt* x, int n);

extern "C" {

/// Extreme with its 1-based position, the first of equal cells. There is no missing test: a missing cell wins the
/// minimum. `*pos` is 1 for `n` below 2.
/// @missing an ordinary number: it wins the minimum
/// @empty -1.0, position 1
VECMAT_API double V_MinAndMinPos(matrix* x, int n, int* pos);

} // extern "C"

VECMAT_API double V_MaxAndMaxPos(matrix* x, int n, int* pos);
VECMAT_API double V_MaxAndMaxPos(matrixInt* x, int n, int* pos);

// ---- flat forms: x has n elements and is never written --------------------------------------------------------------

extern "C" {

/// The functions of the same names.
VECMAT_API double VB_V_Min(double* x, int n, short* mask);
VECMAT_API double VB_V_Max(double* x, int n, short* mask);
VECMAT_API void VB_V_MinMax(double* x, int n, double* min, double* max, short* mask);
VECMAT_API void VB_V_MinMaxLng(int* x, int n, double* min, double* max, short* mask);
VECMAT_API double VB_V_MinAndMinPos(double* x, int n, int* pos);
VECMAT_API double VB_V_MaxAndMaxPos(double* x, int n, int* pos);

/// `V_Min` and `V_Max` with a mask that keeps everything; the forms over ints truncate the result.
VECMAT_API double VB_V_Min2(double* x, int n);
VECMAT_API double VB_V_Max2(double* x, int n);
/// @missing ints are never missing
/// @empty -1
VECMAT_API int VB_V_Min2Lng(int* x, int n);
VECMAT_API int VB_V_Max2Lng(int* x, int n);

/// `V_Max` over ints, truncated: the lowest int where everything is masked.
/// @missing ints are never missing
/// @mask a nonzero entry excludes its row
/// @empty -1; where all is dropped the lowest int
VECMAT_API int VB_V_MaxInt(int* x, int n, short* mask);

} // extern "C"
