#include "packed_products.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../access/packed_cells.h"
#include "../access/product.h"
#include "../access/tiled_product.h"
#include "../base/detail/companions.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"

#include <cmath>

using namespace vecmat;

namespace {

/// The 1-based row that contains the 1-based packed position k.
int packedRow(long long k)
{
    return truncated(std::floor(squareRoot(2.0 * static_cast<double>(k) + 0.25) + 0.5 - zeroTolerance));
}

} // namespace

void M_ProductASymV(matrix* s, int n, matrix* v, matrix* out)
{
    multiply(packed(s), cells(v), {n, n, 1}, cells(out));
}

void M_ProductVASym(matrix* v, int n, matrix* s, matrix* out)
{
    multiply(transposed(cells(v)), packed(s), {1, n, n}, transposed(cells(out)));
}

void MV_ProductAsymBsym(matrix* a, int len, matrix* b, matrix* out)
{
    const int order = truncated(std::floor(squareRoot(2.0 * len)));
    for (long long k = 1; k <= len; ++k) {
        const long long row = packedRow(k);
        const long long col = k - row * (row - 1) / 2;
        // b is symmetric: its column serves as its row.
        const double sum =
            sumOfProducts(packed(a), static_cast<int>(row - 1), packed(b), static_cast<int>(col - 1), order);
        linear(out).set(static_cast<int>(k - 1), sum);
    }
}
