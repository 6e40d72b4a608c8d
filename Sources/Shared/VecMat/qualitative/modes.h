// The mode of a vector of strings or of codes.
//
// @missing an empty string is left out
// @weights required; one of zero or below is added like any other
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"

#include <string>

extern "C" {

/// The string with the largest sum of weights among the first n cells, in linear order; the first met of equals. A
/// weight beyond its table is -1.0.
/// @empty the empty string, also where all strings are empty
VECMAT_API std::wstring V_Mode(Smatrix* x, int n, matrix* weights);

/// The same as a new BSTR, which the caller owns. x and weights have n elements and are never written.
VECMAT_API wchar_t* VB_V_Mode(wchar_t** x, int n, int ignored, double* weights);

/// The most frequent of the codes 0 to n - 1 among n cells, the lowest of equals. A cell counts for the code x
/// truncated towards zero, so 2.7 is code 2. Codes outside 0 to n - 1 are left out: where nothing is left every count
/// is 0 and the result 0.0.
/// @missing left out (equality)
/// @empty 0.0, also for an `n` of 1
VECMAT_API double V_ModeCat(matrix* x, int n);

/// The same over an array of n elements, which is never written.
VECMAT_API double VB_V_ModeCatDbl(double* x, int n);

} // extern "C"
