#include "kronecker_product.h"

#include "../access/cells.h"

using namespace vecmat;

void KroneckerTensorProduct(matrix* A, int m, int n, matrix* B, int p, int q, matrix* C)
{
    const auto isProduct = [](int count, int first, int second) {
        return count == static_cast<long long>(first) * second;
    };
    if (!isProduct(C->nCols, q, n) || !isProduct(C->nRows, p, m))
        return;
    onBlocks(
        [=](auto a, auto b, auto c) {
            for (int j = 0; j < n; ++j)
                for (int l = 0; l < q; ++l)
                    for (int i = 0; i < m; ++i)
                        for (int k = 0; k < p; ++k)
                            c.set(i * p + k, j * q + l, a.get(i, j) * b.get(k, l));
        },
        block(cells(A), m, n), block(cells(B), p, q), block(cells(C), C->nRows, C->nCols));
}
