// Minima and maxima of vectors.
//
// A vector is a table walked in linear order from its first cell, whatever its shape; `n` cells are visited and one
// beyond the table reads as -1.0. A search starts at the first cell that qualifies and moves on to a later one only
// where that is strictly better, so a NaN that comes first stays.
//
// @missing left out (equality); ints are never missing
// @mask a nonzero entry excludes its cell; required
// @empty -1.0; where no cell qualifies the missing value
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

/// The extreme of the cells that qualify.
VECMAT_API double V_Min(matrix* x, int n, short* mask);
VECMAT_API double V_Min(matrixInt* x, int n, short* mask);
/// @mask a nonzero entry excludes its cell; may be null, unlike in `V_Min`
VECMAT_API double V_Max(matrix* x, int n, short* mask);
VECMAT_API double V_Max(matrixInt* x, int n, short* mask);

/// Both extremes of the same cells in one call.
/// @empty the missing value in both, not -1.0; also where no cell qualifies
VECMAT_API void V_MinMax(matrix* x, int n, double* min, double* max, short* mask);
VECMAT_API void V_MinMax(matrixInt* x, int n, double* min, double* max, short* mask);

/// The same without a mask. The maximum of ints is an int, unlike its twins.
/// @empty -1.0 (-1); where no cell qualifies the missing value
VECMAT_API double V_Min2(matrix* x, int n);
VECMAT_API double V_Min2(matrixInt* x, int n);
VECMAT_API double V_Max2(matrix* x, int n);
VECMAT_API int V_Max2(matrixInt* x, int n);

extern "C" {

/// Extreme with its 1-based position, the first of equal cells.
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

/// `V_Max` over ints, truncated.
/// @missing ints are never missing
/// @mask a nonzero entry excludes its cell
/// @empty -1; where every cell is excluded the lowest int
VECMAT_API int VB_V_MaxInt(int* x, int n, short* mask);

} // extern "C"
