// How a result table is prepared.
#pragma once

#include <memory>

namespace vecmat {

/// Would `matCheck` keep this table?
template <class Table>
bool holds(const Table* table, int rows, int cols)
{
    return table->nRows >= rows && table->nCols >= cols;
}

/// `matCheck` with 0.0, which deletes a table that is too small. That table may also be an operand: it is passed to the
/// caller, to be kept for as long as the operands are read.
template <class Table>
[[nodiscard]] std::unique_ptr<Table> prepare(Table*& out, int rows, int cols)
{
    std::unique_ptr<Table> replaced;
    if (out != nullptr && !holds(out, rows, cols)) {
        if (out->inFrame == 0) // which otherwise lives long enough anyway
            replaced.reset(out);
        out = nullptr;
    }
    Table::matCheck(out, rows, cols, 0.0);
    return replaced;
}

} // namespace vecmat
