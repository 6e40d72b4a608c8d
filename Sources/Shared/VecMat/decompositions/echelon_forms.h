// Echelon forms of symmetric tables: what a set of estimable functions is read from.
//
// The result table exists and is not prepared. All access is checked: outside a table a read gives -1.0, which takes
// part, and a write is dropped. Tolerances are absolute. Nothing fails.
//
// @missing an ordinary number
// @divisor a pivot up to 1e-12 gives a row of zeros
// @empty nothing is written
// @weak the limit of 1e-12 is absolute: a regular table of small scale becomes rows of zeros
// @source Goodnight, J. H. (1979), A tutorial on the SWEEP operator, The American Statistician 33, 149-158
// @cost of the order n^3
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// Forward Doolittle reduction: the upper triangle of `a` becomes an upper echelon form in `out`, with pivots of 1. `a`
/// is read on and above the diagonal.
///
/// It departs from the publication: when a pivot is eliminated, the row right below it is divided at once by what its
/// own diagonal becomes (or zeroed where that is up to 1e-12), while the rows beyond it are reduced without a division.
VECMAT_API void M_ForwardDoolittle(matrix* a, int n, matrix* out);

/// Hermite canonical form: the reduction above, with the cells above each pivot of 1, within 1e-12, brought to 0.
VECMAT_API void M_HermiteCanonical(matrix* a, int n, matrix* h);

/// Flat forms: n by n arrays; the second one is the result, in place.
VECMAT_API void Cpp_M_ForwardDoolittle(double* a, int n, double* out);
VECMAT_API void Cpp_M_HermiteCanonical(double* a, int n, double* h);

} // extern "C"
