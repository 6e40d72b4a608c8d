// The Kronecker product.
//
// @missing an ordinary number
// @empty nothing happens
// @cost a multiplication for each cell of the result
#pragma once

#include "../base/api.h"
#include "../matrix.h"

extern "C" {

/// The Kronecker product of A (m by n) and B (p by q): cell (k, l) of block (i, j) of C is A(i, j) B(k, l). C must
/// exist with exactly p m rows and q n columns. A cell beyond A or B reads -1.0 and takes part. C must be another table
/// than A and B.
/// @formula C = A \otimes B
/// @failure with any other shape of C nothing happens, and nothing is reported
VECMAT_API void KroneckerTensorProduct(matrix* A, int m, int n, matrix* B, int p, int q, matrix* C);

/// The same over column-major arrays: A of m by n, B of p by q, C of `rowsC` by `colsC`, written in place.
VECMAT_API void Cpp_KroneckerTensorProduct(double* A, int m, int n, double* B, int p, int q, double* C, int rowsC,
                                           int colsC);

} // extern "C"
