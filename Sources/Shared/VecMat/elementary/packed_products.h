// Products with symmetric tables in packed form (Sym): the lower triangle by rows, element (i, j), 1-based, at position
// i(i-1)/2 + j for j at most i, and at j(j-1)/2 + i otherwise. A read outside the packed table yields -1.0, which takes
// part; a write outside is dropped. Results are written in place.
//
// @missing an ordinary number
// @empty nothing is written
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// s v and v' s, s of order `n`: `n` cells, each a sum from +0.0 over the inner index in order.
VECMAT_API void M_ProductASymV(matrix* s, int n, matrix* v, matrix* out);
VECMAT_API void M_ProductVASym(matrix* v, int n, matrix* s, matrix* out);

/// The lower triangle of a b, packed, for two packed tables of `len` cells. The sums run over the order floor(sqrt(2
/// len)), which is what the formula gives and not always the inverse of n(n+1)/2.
/// @cost of the order n^3 for tables of order n
VECMAT_API void MV_ProductAsymBsym(matrix* a, int len, matrix* b, matrix* out);

// Flat forms: views of arrays of n(n+1)/2, `n` and `len` cells. The last one multiplies the table by itself; its third
// argument is not read.
VECMAT_API void VB_M_ProductASymV(double* s, int n, double* v, double* out);
VECMAT_API void VB_M_ProductVASym(double* v, int n, double* s, double* out);
VECMAT_API void Cpp_MV_ProductAsymBsym(double* a, int len, int ignored, double* out);

} // extern "C"
