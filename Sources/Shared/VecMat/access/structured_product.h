// Products that detect structure in their operands, to skip work.
#pragma once

#include "cells.h"
#include "product.h"

#include <memory>

class matrix;

namespace vecmat {

/// Which rows and columns of a block are all zero, and, in a square block, which are zero off the diagonal.
struct Structure
{
    std::unique_ptr<bool[]> columnIsZero;
    std::unique_ptr<bool[]> rowIsZero;
    std::unique_ptr<bool[]> isDiagonal; ///< nowhere true in a block that is not square
};

/// The structure of the block of `rows` by `cols` cells that starts at (row0, col0), from 0. Cells outside the table
/// count as -1.0.
Structure structureOf(matrix* table, int rows, int cols, int row0 = 0, int col0 = 0);

/// One cell of a product. A row or column of zeros gives +0.0 and a diagonal one a single product, whatever the skipped
/// cells hold: an infinity or a NaN among them does not reach the result, as it would in the plain sum.
template <class Left, class Right>
double structuredCell(const Left& left, const Structure& ofLeft, int i, const Right& right, const Structure& ofRight,
                      int j, int inner)
{
    if (ofLeft.rowIsZero[i] || ofRight.columnIsZero[j])
        return 0.0;
    if (ofLeft.isDiagonal[i])
        return left.get(i, i) * right.get(i, j);
    if (ofRight.isDiagonal[j])
        return left.get(i, j) * right.get(j, j);
    return sumOfProducts(left, i, right, j, inner);
}

/// out = left right by the rule above.
template <class Left, class Right, class Out>
void multiplyByStructure(Left left, const Structure& ofLeft, Right right, const Structure& ofRight,
                         const ProductShape& shape, Out out)
{
    onBlocks(
        [&](auto x, auto y, auto result) {
            for (int i = 0; i < shape.rows; ++i)
                for (int j = 0; j < shape.cols; ++j)
                    result.set(i, j, structuredCell(x, ofLeft, i, y, ofRight, j, shape.inner));
        },
        block(left, shape.rows, shape.inner), block(right, shape.inner, shape.cols),
        block(out, shape.rows, shape.cols));
}

} // namespace vecmat
