// Positions in packed symmetric storage. All numbers are 1-based; they are not tested.
//
// The triangle with diagonal stores element (i, j), j at most i, at position i(i-1)/2 + j: the lower triangle by rows,
// n(n+1)/2 cells for an order of n. The strict upper triangle, without diagonal, is numbered by rows as well: (1, 2),
// (1, 3), ..., (2, 3), and so on.
#pragma once

#include "../base/api.h"

extern "C" {

/// Row and column, j at most i, of position `k` in the triangle with diagonal.
/// @weak the row comes from a square root: from row 16384 on, the last cell of a row may come out as column 0 of the
///     next
VECMAT_API void GetIJForSymMat(int k, int& i, int& j);

/// The position of (i, j) in that triangle, in either order.
VECMAT_API void GetKForVectFromIJSymMat(int i, int j, int& k);

/// Row and column of position `k` in the strict upper triangle of order `n`. Neither is written where `k` is beyond its
/// last cell; a `k` below 1 counts back from (1, 2).
/// @cost of the order n at most
/// @empty nothing is written
VECMAT_API void V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j);
VECMAT_API void VB_V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j);

/// Row and column of position `k` in a table with `n` columns laid out by rows.
/// @empty nothing is written
VECMAT_API void VB_V_GetPositionInMatNN(int k, int n, int* i, int* j);

} // extern "C"
