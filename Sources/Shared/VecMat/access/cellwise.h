// Results that depend on one cell of each operand.
#pragma once

#include "../base/missing_value.h"
#include "cells.h"
#include "product.h"

#include <functional>

namespace vecmat {

/// out(i, j) = f(operand(i, j), ...), row by row: the result may be one of the operands.
template <class Out, class Function, class... Operands>
void mapCells(int rows, int cols, Out out, Function f, Operands... operands)
{
    onBlocks(
        [&](auto result, auto... from) {
            for (int i = 0; i < rows; ++i)
                for (int j = 0; j < cols; ++j)
                    storeNumber(result, i, j, f(from.get(i, j)...));
        },
        block(out, rows, cols), block(operands, rows, cols)...);
}

/// The product of two cells, missing if either is (equality test).
inline double productUnlessMissing(double x, double y)
{
    return isMissing(x) || isMissing(y) ? missingValue : x * y;
}

/// Squares cells in linear order; missing ones stay missing (equality test).
inline void squareCells(double* x, unsigned count)
{
    for (unsigned k = 0; k < count; ++k)
        if (!isMissing(x[k]))
            x[k] = x[k] * x[k];
}

} // namespace vecmat
