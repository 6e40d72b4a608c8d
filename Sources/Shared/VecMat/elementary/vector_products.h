// Products and comparisons of vectors.
//
// A vector is the first `n` cells of a table in linear order. A read outside a table yields -1.0, which takes part; a
// write outside is dropped. Sums start at +0.0 and run from the first cell to the last. Results are written in place.
//
// @missing an ordinary number
// @empty nothing is written
#pragma once

#include "../base/api.h"
#include "../matrix.h"
#include "../matrixInt.h"

extern "C" {

/// The sum of a(i) b(i).
/// @empty 0.0
VECMAT_API double V_ProductTrV1V2(matrix* a, int n, matrix* b);

/// The weighted mean product: the sum of a(i) b(i) w(i) divided by the sum of the weights.
/// @missing left out, in either vector (equality); its weight still counts in the divisor
/// @weights a zero weight adds nothing; a missing one is left out of the divisor
/// @divisor the sum of the weights that are not missing, those of left-out cells included; not divided where that is
///     not above 0
/// @empty 0.0
VECMAT_API double V_ProductWTrV1V2(matrix* a, int n, matrix* b, matrix* w);

/// out(i) = a(i) b(i); the second form puts the product in a.
VECMAT_API void V_ProductV1V2(matrix* a, int n, matrix* b, matrix* out);
VECMAT_API void V_ProductV1V22(matrix* a, int n, matrix* b);

/// Outer product: out(i, j) = a(i) b(j), `n` by `n`.
VECMAT_API void V_ProductV1TrV2(matrix* a, int n, matrix* b, matrix* out);

/// Every cell of a with every cell of b: cell i*m + j of a, from 0, becomes a(i) b(j), and `*n` becomes `*n` times m.
/// The table a must have room for that many.
VECMAT_API void V_ProductHorizV1V22(matrix* a, int* n, matrix* b, int m);

/// -1 unless some a(i, j) of the `n` by `cols` table is above v(i), then 0.
/// @missing compared like a number; a NaN is not above anything
/// @empty -1
VECMAT_API short V_V1GreaterThanMatCols(matrix* v, int n, matrix* a, int cols);
/// -1 unless some a(i) is above b(i), then 0.
/// @missing compared like a number; a NaN is not above anything
/// @empty -1
VECMAT_API short V_V1inferiorV2(matrix* a, int n, matrix* b);

// Flat forms: views, results in the caller's array. `VB_V_ProductHorizV1V22` needs room for the longer vector in a.
VECMAT_API double VB_V_ProductTrV1V2(double* a, int n, double* b);
VECMAT_API void VB_V_ProductV1V2(double* a, int n, double* b, double* out);
VECMAT_API void VB_V_ProductV1V22(double* a, int n, double* b);
VECMAT_API void VB_V_ProductV1TrV2(double* a, int n, double* b, double* out);
/// out[i*m + j] = a[i] b[j].
VECMAT_API void VB_V_ProductHorizV1V2(double* a, int n, double* b, int m, double* out);
VECMAT_API void VB_V_ProductHorizV1V22(double* a, int* n, double* b, int m);
VECMAT_API double VB_V_Product1toNDbl(double* x, int n);
/// The product in doubles, truncated; outside the range of int it is the lowest int.
VECMAT_API int VB_V_Product1toNLng(int* x, int n);
VECMAT_API short VB_V_V1GreaterThanMatCols(double* v, int n, double* a, int cols);
VECMAT_API short VB_V_V1inferiorV2(double* a, int n, double* b);

} // extern "C"

/// The product of the first `n` cells, starting from 1.0, as a double.
/// @empty 1.0 (1)
VECMAT_API double V_Product1toN(matrix* x, int n);
/// @empty 1.0 (1)
VECMAT_API double V_Product1toN(matrixInt* x, int n);
