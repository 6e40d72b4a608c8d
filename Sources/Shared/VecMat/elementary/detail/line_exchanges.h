// Exchanges of two rows or columns of a block, over accessors.
#pragma once

#include "../../access/adaptors.h"

namespace vecmat {

template <class Cells>
void exchangeRows(Cells a, int row, int other, int cols)
{
    for (int j = 0; j < cols; ++j) {
        const double kept = a.get(other, j);
        a.set(other, j, a.get(row, j));
        a.set(row, j, kept);
    }
}

template <class Cells>
void exchangeColumns(Cells a, int col, int other, int rows)
{
    exchangeRows(transposed(a), col, other, rows);
}

} // namespace vecmat
