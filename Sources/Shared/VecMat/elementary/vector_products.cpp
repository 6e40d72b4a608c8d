#include "vector_products.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../access/cellwise.h"
#include "../access/prepared_result.h"
#include "../access/product.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "vector_sums.h"

#include <functional>

using namespace vecmat;

namespace {

template <class Table>
double productOfCells(Table* x, int n)
{
    return onBlocks(
        [n](auto cell) {
            double product = 1.0;
            for (int i = 0; i < n; ++i)
                product *= cell.get(i);
            return product;
        },
        block(linear(x), n));
}

} // namespace

double V_ProductTrV1V2(matrix* a, int n, matrix* b)
{
    return scalarProduct(transposed(cells(a)), cells(b), n);
}

double V_ProductWTrV1V2(matrix* a, int n, matrix* b, matrix* w)
{
    const double sum = onBlocks(
        [n](auto x, auto y, auto weight) {
            double total = 0.0;
            for (int i = 0; i < n; ++i)
                if (!isMissing(x.get(i)) && !isMissing(y.get(i)))
                    total += x.get(i) * y.get(i) * weight.get(i);
            return total;
        },
        block(linear(a), n), block(linear(b), n), block(linear(w), n));
    const double totalWeight = V_Sum2(w, n);
    return totalWeight > 0.0 ? sum / totalWeight : sum;
}

void V_ProductV1V2(matrix* a, int n, matrix* b, matrix* out)
{
    mapCells(n, 1, cells(out), std::multiplies<double>(), cells(a), cells(b));
}

void V_ProductV1V22(matrix* a, int n, matrix* b)
{
    V_ProductV1V2(a, n, b, a);
}

void V_ProductV1TrV2(matrix* a, int n, matrix* b, matrix* out)
{
    mapCells(n, n, cells(out), std::multiplies<double>(), inEachColumn(linear(a)), transposed(inEachColumn(linear(b))));
}

void V_ProductHorizV1V22(matrix* a, int* n, matrix* b, int m)
{
    const int length = wrappingProduct(*n, m);
    matrix products(length, 1, 0.0);
    unsigned next = 0;
    for (int i = 0; i < *n; ++i)
        for (int j = 0; j < m; ++j)
            linear(&products).set(static_cast<int>(next++), linear(a).get(i) * linear(b).get(j));
    mapCells(length, 1, cells(a), std::identity(), cells(&products));
    *n = length;
}

double V_Product1toN(matrix* x, int n)
{
    return productOfCells(x, n);
}

double V_Product1toN(matrixInt* x, int n)
{
    return productOfCells(x, n);
}

short V_V1GreaterThanMatCols(matrix* v, int n, matrix* a, int cols)
{
    return onBlocks(
        [n, cols](auto bound, auto cell) {
            for (int i = 0; i < n; ++i)
                for (int j = 0; j < cols; ++j)
                    if (cell.get(i, j) > bound.get(i))
                        return booleanOf(false);
            return booleanOf(true);
        },
        block(linear(v), n), block(cells(a), n, cols));
}

short V_V1inferiorV2(matrix* a, int n, matrix* b)
{
    return V_V1GreaterThanMatCols(b, n, a, 1);
}
