// Counting the true elements of Boolean arrays, and finding an integer.
//
// @missing Booleans are never missing; only exactly -1 counts as true
// @empty 0
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrixInt.h"

extern "C" {

/// Number of elements that are exactly -1. The two names are one function.
VECMAT_API int V_NbTrue(short* x, int n);
VECMAT_API int VB_V_NbTrue(short* x, int n);

/// The same over the 1-based elements `from` to `to`. A `from` below 1 starts at the first element. `n` is not used:
/// the caller provides `to` elements.
/// @empty 0, also where `from` is above `to`
VECMAT_API int V_NbTrueFromTo(short* x, int from, int to);
VECMAT_API int VB_V_NbTrueFromTo(short* x, int n, int from, int to);

/// -1 where one of the first `n` cells, in linear order, equals `val`, else 0. A cell beyond the table reads as -1, so
/// -1 is found there.
/// @missing ints are never missing
/// @empty 0 (not found)
VECMAT_API short V_FindLng(matrixInt* x, int n, int val);

/// The same over an array of n elements.
VECMAT_API short Cpp_V_FindLng(int* x, int n, int val);

} // extern "C"
