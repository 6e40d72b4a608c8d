// Weighted frequency of one value in a vector.
//
// The sum of the weights of the cells that match, in order from +0.0. Vectors are walked in linear order; `weights` has
// n cells. A cell beyond a table of numbers is -1.0, one beyond a table of strings empty.
//
// @missing a value like any other; so is the empty string
// @weights required, not tested
// @empty 0.0 (0)
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

#include <string>

/// A cell matches where |x[i] - value| is strictly below `tolerance`, so never for a tolerance of 0, nor for a NaN.
/// Ints are widened.
VECMAT_API double V_Freq(matrix* x, int n, matrix* weights, double value, double tolerance);
VECMAT_API double V_Freq(matrixInt* x, int n, matrix* weights, double value, double tolerance);

extern "C" {

/// A cell matches where it is the same string.
VECMAT_API double V_FreqStr(Smatrix* x, int n, matrix* weights, std::wstring value);

// ---- flat forms: x and weights have n elements and are never written ------------------------------------------------

VECMAT_API double VB_V_Freq(double* x, int n, double* weights, double value, double tolerance);

/// With a tolerance of 0.01, and the sum truncated towards zero.
VECMAT_API int VB_V_FreqLng(int* x, int n, double* weights, int value);

/// `value` is read as 32-bit characters up to a NUL, unlike the strings of the array.
VECMAT_API double VB_V_FreqStr(wchar_t** x, int n, double* weights, const wchar_t* value);

} // extern "C"
