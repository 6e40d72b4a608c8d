#include "kronecker_product.h"

#include "../frame/detail/handles.h"

using vecmat::viewed;

void Cpp_KroneckerTensorProduct(double* A, int m, int n, double* B, int p, int q, double* C, int rowsC, int colsC)
{
    KroneckerTensorProduct(viewed(A, m, n), m, n, viewed(B, p, q), p, q, viewed(C, rowsC, colsC));
}
