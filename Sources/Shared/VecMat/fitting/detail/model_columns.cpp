#include "model_columns.h"

#include "../../base/detail/numbers.h"

#include <cstddef>

namespace vecmat {

std::optional<PlainModelCells> PlainModelCells::of(const ModelColumns& columns, int n)
{
    std::optional<PlainModelCells> result(PlainModelCells(columns.size()));
    for (std::size_t j = 0; j < columns.size(); ++j) {
        if (!block(columns[j].cells(), n, 1).inside)
            return std::nullopt;
        const matrix* const table = columns[j].table;
        result->columns_[j] = n > 0 ? table->X + std::ptrdiff_t{table->nRows} * columns[j].number : nullptr;
    }
    return result;
}

ModelColumns columnsOf(matrix* table, int count)
{
    ModelColumns columns;
    columns.reserve(countOf(count) + std::size_t{1}); // the response may follow
    for (int j = 0; j < count; ++j)
        columns.push_back({table, j});
    return columns;
}

int ModelShape::products() const
{
    return interactions == -1 && p > 1 ? static_cast<int>(p * (p - 1LL) / 2) : 0;
}

int ModelShape::columns() const
{
    const int powers = static_cast<int>(elementCount(degree, p));
    return isLinear() ? powers : powers + products();
}

int ModelShape::reserved() const
{
    return static_cast<int>(elementCount(degree, p)) + 1 + products();
}

TableHandle widened(matrix* X, int n, const ModelShape& shape)
{
    TableHandle result = fresh(n, shape.columns());
    const int p = shape.p;
    onBlocks(
        [&](auto x, auto z) {
            for (int e = 0; e < shape.degree; ++e)
                for (int j = 0; j < p; ++j)
                    for (int i = 0; i < n; ++i)
                        z.set(i, j + e * p, e == 0 ? x.get(i, j) : z.get(i, j + (e - 1) * p) * x.get(i, j));
            if (shape.interactions != -1)
                return;
            int product = static_cast<int>(elementCount(shape.degree, p));
            for (int a = 0; a < p; ++a)
                for (int b = a + 1; b < p; ++b, ++product)
                    for (int i = 0; i < n; ++i)
                        z.set(i, product, x.get(i, b) * x.get(i, a));
        },
        block(cells(X), n, p), block(cells<matrix>(result), n, shape.columns()));
    return result;
}

} // namespace vecmat
