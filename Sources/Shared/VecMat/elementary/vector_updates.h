// Functions that change a vector: scaling to a norm, adding to it, replacing and removing values.
//
// A vector is a table walked in linear order from its first cell, whatever its shape; `n` cells are visited. A cell
// beyond the table reads as -1.0 and a write there is dropped. Nothing here reports an error.
//
// @missing left out of the sum of squares (equality), but scaled like the others: it is no longer missing
// @empty nothing happens
// @cost one pass over the cells
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Scale in place. `V_Norm` divides each cell by the root of the sum of squares S; `V_NormToVal` multiplies each by the
/// root of val/S, which makes `val` the sum of squares. S is that of `V_SumSq`, in the `W` forms that of `V_SumSqW`.
/// @divisor S (its root), not guarded against 0
VECMAT_API void V_Norm(matrix*& x, int n);
VECMAT_API void V_NormToVal(matrix*& x, int n, double val);
/// @weights not tested; the weight of a cell is the one before its place, -1.0 for the first cell
/// @divisor S (its root), not guarded against 0 or below
VECMAT_API void V_NormW(matrix*& x, int n, matrix* w);
VECMAT_API void V_NormToValW(matrix*& x, int n, double val, matrix* w);

/// Adds `val` to each cell.
/// @missing stays missing (equality)
/// @mask a nonzero entry does not protect its cell: it makes it missing
VECMAT_API void V_PlusVal(matrix* x, int n, double val, short* mask);

/// Adds `val` to each cell.
/// @missing stays missing (equality)
VECMAT_API void V_PlusVal2(matrix* x, int n, double val);

/// Copies `x` to `out`, which may be `x`, with `to` in place of each cell that equals `from` exactly.
/// @missing replaced where it equals `from`, like any value
VECMAT_API void V_ReplaceVal(matrix* x, int n, double from, double to, matrix* out);

// ---- flat forms: arrays have n elements; x is changed, weights and masks are not ------------------------------------

/// The functions of the same names, over the caller's array.
VECMAT_API void VB_V_Norm(double* x, int n);
VECMAT_API void VB_V_NormToVal(double* x, int n, double val);
VECMAT_API void VB_V_NormW(double* x, int n, double* w);
VECMAT_API void VB_V_NormToValW(double* x, int n, double val, double* w);
VECMAT_API void VB_V_PlusVal(double* x, int n, double val, short* mask);
VECMAT_API void VB_V_PlusVal2(double* x, int n, double val);

/// `V_ReplaceVal` to an array of its own, and over the source.
VECMAT_API void VB_V_ReplaceVal(double* x, int n, double from, double to, double* out);
/// @missing replaced where it equals `from`, like any value
VECMAT_API void VB_V_ReplaceVal2(double* x, int n, double from, double to);

/// Copies the n elements of `x` to `out` without the one at the 1-based `pos`, closing the gap: n - 1 elements are
/// written, whatever `pos` is. Beyond the end it removes the last element, before the start the first. `out` may be
/// `x`.
/// @missing copied unchanged
VECMAT_API void VB_V_RemoveVal(double* x, int n, int pos, double* out);

} // extern "C"
