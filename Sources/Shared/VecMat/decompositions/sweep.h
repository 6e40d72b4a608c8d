// The sweep operator on a packed symmetric table.
//
// @missing an ordinary number
// @divisor the pivot, not tested: 0 gives infinities
// @empty 0
// @source Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
// @cost of the order n^2
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Sweeps the packed symmetric table `a` of order `n` on pivot `k`, 1-based, in place: element (i, j), j at most i, is
/// the cell at position i(i-1)/2 + j. Always returns 0.
///
/// This is the reversible form of the operator with the sign kept in the diagonal: a pivot d becomes -1/d, so a
/// positive one turns negative, and a negative one is taken as already swept: a second sweep undoes the first. The row
/// of the pivot is scaled by the magnitude of 1/d. All access is checked: outside the table a read gives -1.0, which
/// takes part, and a write is dropped; a pivot outside counts as not yet swept.
/// @memory n doubles from an order of 33 on
/// @weak every other element that is below 1e-12 in absolute terms after its update becomes exactly 0, whatever the
///     size of the others; a second sweep does not bring it back
VECMAT_API int M_Sweep(matrix* a, int n, int k);

/// Flat form: `a` has n(n+1)/2 cells.
VECMAT_API int VB_M_Sweep(double* a, int n, int k);

} // extern "C"
