// Arrays and vectors filled with one value, or with 1, 2, ..., n.
//
// The forms that take a `matrix*&` (`matrixInt*&`) prepare it as an n by 1 table: a larger table is kept, and the first
// n cells of its block are filled.
//
// @missing overwritten
// @empty nothing is filled
// @cost one pass over the cells
#pragma once

#include "../Smatrix.h"
#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

#include <string>

extern "C" {

/// Sets the first `n` cells to `value`.
VECMAT_API void SetVectorToValue(matrix*& v, int n, double value);

/// Sets the first `n` cells of the table as it is.
VECMAT_API void V_SetToValueStr(Smatrix* v, int n, std::wstring value);

} // extern "C"

/// False is 0.0 in a table and 0 in an array of Booleans.
VECMAT_API void InitVectorToFalse(matrix*& v, int n);
VECMAT_API void InitVectorToFalse(short* v, int n);

/// Cell i, from 0, becomes i + 1.
VECMAT_API void V_Set1toN(matrix*& v, int n);
VECMAT_API void V_Set1toN(matrixInt*& v, int n);

// ---- flat forms -----------------------------------------------------------------------------------------------------

extern "C" {

VECMAT_API void VB_InitVectorToFalse(short* v, int n);
/// True is -1.
VECMAT_API void VB_InitVectorToTrue(short* v, int n);
VECMAT_API void VB_V_SetToValue(double* v, int n, double value);
VECMAT_API void VB_V_SetToValueLng(int* v, int n, int value);
/// `value` is one string of 32-bit characters, used as given; each element of `v` becomes a new BSTR.
VECMAT_API void VB_V_SetToValueStr(wchar_t** v, int n, const wchar_t* value);
VECMAT_API void VB_V_Set1toNDbl(double* v, int n);
VECMAT_API void VB_V_Set1toNLng(int* v, int n);

} // extern "C"
