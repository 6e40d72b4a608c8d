// Whole arrays copied, converted, resized and reversed.
//
// String forms store a new BSTR in each element of the target.
//
// @missing copied unchanged
// @empty nothing is copied
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

// ---- copied ---------------------------------------------------------------------------------------------------------

VECMAT_API void VB_V_DuplicateDbl(double* src, int n, double* dst);
VECMAT_API void VB_V_DuplicateLng(int* src, int n, int* dst);
VECMAT_API void Cpp_V_DuplicateBool(short* src, int n, short* dst);
VECMAT_API void VB_V_DuplicateStr(wchar_t** src, int n, wchar_t** dst);
VECMAT_API void VB_M_DuplicateDbl(double* src, int r, int c, double* dst);
VECMAT_API void VB_M_DuplicateLng(int* src, int r, int c, int* dst);
VECMAT_API void VB_M_DuplicateStr(wchar_t** src, int r, int c, wchar_t** dst);

/// Truncates towards zero. Numbers outside the range of int become the lowest int.
/// @missing becomes the lowest int
VECMAT_API void VB_V_DuplicateDblToLng(double* src, int n, int* dst);
VECMAT_API void VB_V_DuplicateLngToDbl(int* src, int n, double* dst);

// ---- resized --------------------------------------------------------------------------------------------------------

/// Reads `src` as `r` by `c` and writes newR by newC cells: cell (i, j), from 0, is element i + j*r of `src`. Rows
/// beyond `r` therefore run into the next column, and past the end of `src` -1.0 (an empty string) is stored.
/// @empty a `c` of 0 means one column on both sides, whatever newC is
VECMAT_API void VB_M_CopyResize(double* src, int r, int c, double* dst, int newR, int newC);
VECMAT_API void VB_M_CopyResizeStr(wchar_t** src, int r, int c, wchar_t** dst, int newR, int newC);

// ---- reversed -------------------------------------------------------------------------------------------------------

/// Cell k, from 0, of `out` becomes cell n-1-k of `x`, each table in linear order: a read outside `x` stores -1.0, a
/// write outside `out` is dropped. `out` is not prepared.
VECMAT_API void V_Reverse(matrix* x, int n, matrix* out);
VECMAT_API void VB_V_ReverseDbl(double* x, int n, double* out);

/// out[k] = x[n + 1 - k] for k from 0 to n-1. This reverses not `x` but its elements 2 to n + 1, counted from 0: `x`
/// must have n + 2 elements.
/// @missing Booleans are never missing
VECMAT_API void V_ReverseBool(short* x, int n, short* out);
VECMAT_API void VB_V_ReverseBool(short* x, int n, short* out);

} // extern "C"
