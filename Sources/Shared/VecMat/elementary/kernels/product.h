// The kernels behind all products: every result is one running sum, from +0.0, over the inner index from the first to
// the last, one rounded product added at a time. The results are worked on row by row; a result that is an operand too,
// or whose rows run over into the next column, shows that order.
#pragma once

#include "../../frame/cells.h"
#include "../../frame/missing_value.h"
#include "../../frame/numbers.h"

#include <type_traits>

namespace vecmat {

/// The result has `rows` by `cols` cells, each a sum of `inner` terms. A sum without terms is 0.0.
struct ProductShape
{
    int rows;
    int inner;
    int cols;
};

/// What a factor that is the missing value (equality test) does: it enters the product as the large negative number
/// that it is, or it ends the sum and makes the result missing.
enum class MissingFactor { multiplied, makesResultMissing };

/// Stores a number in a cell; a cell of ints takes it truncated.
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

/// out = left right.
template <MissingFactor missing = MissingFactor::multiplied, class Left, class Right, class Out>
void multiply(Left left, Right right, ProductShape shape, Out out)
{
    onBlocks(
        [shape](auto x, auto y, auto result) {
            for (int i = 0; i < shape.rows; ++i)
                for (int j = 0; j < shape.cols; ++j)
                    storeNumber(result, i, j, sumOfProducts<missing>(x, i, y, j, shape.inner));
        },
        block(left, shape.rows, shape.inner), block(right, shape.inner, shape.cols),
        block(out, shape.rows, shape.cols));
}

/// out = left right of order n, a product that is symmetric but for rounding: the lower triangle is computed, and each
/// of its cells is stored at its mirror place too.
template <class Left, class Right, class Out>
void multiplySymmetric(Left left, Right right, int n, int inner, Out out)
{
    onBlocks(
        [n, inner](auto x, auto y, auto result) {
            for (int i = 0; i < n; ++i)
                for (int j = 0; j <= i; ++j) {
                    const double sum = sumOfProducts(x, i, y, j, inner);
                    storeNumber(result, i, j, sum);
                    storeNumber(result, j, i, sum);
                }
        },
        block(left, n, inner), block(right, inner, n), block(out, n, n));
}

/// The product of one row by one column.
template <class Left, class Right>
double scalarProduct(Left left, Right right, int inner)
{
    return onBlocks([inner](auto x, auto y) { return sumOfProducts(x, 0, y, 0, inner); }, block(left, 1, inner),
                    block(right, inner, 1));
}

} // namespace vecmat
