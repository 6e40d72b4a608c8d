// The definition of every product: each result is one running sum, from +0.0, over the inner index from first to last,
// one rounded product added at a time. The results are computed row by row; that order is observable if a result is
// also an operand, or its rows run over into the next column.
#pragma once

#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "cells.h"

#include <type_traits>

namespace vecmat {

/// The result has `rows` by `cols` cells, each a sum of `inner` terms. A sum without terms is 0.0. It is passed by
/// reference: a copy would read at once what was just written number by number, and a processor has to wait for that.
struct ProductShape
{
    int rows;
    int inner;
    int cols;
};

/// How a factor that is the missing value (equality test) is treated: it enters the product as the large negative
/// number that it is, or it ends the sum and makes the result missing.
enum class MissingFactor { multiplied, makesResultMissing };

/// Stores a number in a cell; a cell of ints gets it truncated.
template <class Out>
void storeNumber(const Out& out, int i, int j, double value)
{
    if constexpr (std::is_same_v<typename Out::Value, int>)
        out.set(i, j, truncated(value));
    else
        out.set(i, j, value);
}

/// Row i of the left operand times column j of the right one.
template <MissingFactor missing = MissingFactor::multiplied, class Left, class Right>
double sumOfProducts(const Left& left, int i, const Right& right, int j, int inner)
{
    double sum = 0.0;
    for (int k = 0; k < inner; ++k) {
        const double x = left.get(i, k);
        const double y = right.get(k, j);
        if constexpr (missing == MissingFactor::makesResultMissing) {
            if (isMissing(x) || isMissing(y))
                return missingValue;
        }
        sum += x * y;
    }
    return sum;
}

/// out = left right, each result on its own.
template <MissingFactor missing = MissingFactor::multiplied, class Left, class Right, class Out>
void multiplyCellByCell(const Left& left, const Right& right, const ProductShape& shape, const Out& out)
{
    for (int i = 0; i < shape.rows; ++i)
        for (int j = 0; j < shape.cols; ++j)
            storeNumber(out, i, j, sumOfProducts<missing>(left, i, right, j, shape.inner));
}

/// out = left right of order n, a product symmetric but for rounding, each result on its own: the lower triangle is
/// computed, and each of its cells is also stored at its mirror place.
template <class Left, class Right, class Out>
void multiplySymmetricCellByCell(const Left& left, const Right& right, int n, int inner, const Out& out)
{
    for (int i = 0; i < n; ++i)
        for (int j = 0; j <= i; ++j) {
            const double sum = sumOfProducts(left, i, right, j, inner);
            storeNumber(out, i, j, sum);
            storeNumber(out, j, i, sum);
        }
}

/// The product of one row by one column.
template <class Left, class Right>
double scalarProduct(Left left, Right right, int inner)
{
    return onBlocks([inner](auto x, auto y) { return sumOfProducts(x, 0, y, 0, inner); }, block(left, 1, inner),
                    block(right, inner, 1));
}

} // namespace vecmat
