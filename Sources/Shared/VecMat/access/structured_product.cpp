#include "structured_product.h"

#include "../base/detail/numbers.h"
#include "../matrix.h"
#include "adaptors.h"
#include "cells.h"
#include "cellwise.h"

#include <algorithm>
#include <functional>

namespace vecmat {

Structure structureOf(matrix* table, int rows, int cols, int row0, int col0)
{
    const unsigned larger = std::max(countOf(rows), countOf(cols));
    Structure structure{std::make_unique<bool[]>(countOf(cols)), std::make_unique<bool[]>(countOf(rows)),
                        std::make_unique<bool[]>(larger)};
    const auto describe = [&](matrix& source, int row, int col) {
        source.calcStrucInfo(rows, cols, structure.columnIsZero.get(), structure.rowIsZero.get(),
                             structure.isDiagonal.get(), row, col);
    };
    const auto part = shifted(cells(table), row0, col0);
    if (part.covers(rows, cols)) {
        describe(*table, row0, col0);
    } else {
        // Reads there are unchecked: it gets a block of what checked reads give.
        matrix readable(rows, cols, 0.0);
        mapCells(rows, cols, cells(&readable), std::identity(), part);
        describe(readable, 0, 0);
    }
    return structure;
}

} // namespace vecmat
