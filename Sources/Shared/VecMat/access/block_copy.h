// Copying a block of cells from any storage to any other.
//
// A window is an accessor moved to a corner of its storage, so that every copy is one call that names two windows:
//
//     copyCells(window(src, zeroBased(r1), zeroBased(c1)), window(dst, 0, 0), rows, cols);
//
// Cells are copied as they are, including missing ones. A read outside a table gives the value of a checked read, which
// is stored; a write outside is dropped.
#pragma once

#include "../Smatrix.h"
#include "../base/detail/numbers.h"
#include "adaptors.h"
#include "cells.h"

#include <algorithm>
#include <limits>
#include <type_traits>

namespace vecmat {

// ---- windows --------------------------------------------------------------------------------------------------------

/// Cells relative to the corner (row, col) of their storage, both from 0. It knows the storage, so that a copy can tell
/// whether source and target overlap.
template <class Cells>
class Window : public Shifted<Cells>
{
public:
    using Read = typename Cells::Read;

    /// `height` is the row number at which a column of the storage ends and the next one begins in memory.
    Window(Cells cells, int row, int col, const void* storage, int height)
        : Shifted<Cells>(cells, row, col), storage_(storage), height_(height)
    {
    }

    /// Can two cells of a block of `rows` rows be the same cell of the storage?
    bool foldsRows(int rows) const { return this->row() < 0 || static_cast<long long>(this->row()) + rows > height_; }
    /// The table, or the array of columns, that contains the cells.
    const void* storage() const { return storage_; }

private:
    const void* storage_;
    int height_;
};

template <class Table>
Window<TableCells<Table>> window(Table* table, int row, int col)
{
    return {cells(table), row, col, table, table != nullptr ? table->nRows : 0};
}

/// An array of columns: a row never runs into the next column.
template <class Table>
Window<ColumnCells<Table>> window(Table** columns, int row, int col)
{
    return {cells(columns), row, col, columns, std::numeric_limits<int>::max()};
}

/// A symmetric table held as a triangle of columns: (i, j) and (j, i) are the same cell, so any block may fold.
template <class Table>
Window<TriangleCells<Table>> triangleWindow(Table** columns, int row, int col)
{
    return {triangle(columns), row, col, columns, -1};
}

// ---- copying --------------------------------------------------------------------------------------------------------

/// A cell being copied to a table of another type: ints are widened, doubles truncated.
template <class Value, class Read>
decltype(auto) converted(const Read& x)
{
    if constexpr (std::is_same_v<Value, Read>)
        return (x);
    else if constexpr (std::is_same_v<Value, int>)
        return truncated(x);
    else
        return static_cast<Value>(x);
}

/// May the copy run down the columns? The defined order is rows outside, columns inside. That is observable if two
/// cells of the target coincide, or if a copy within one table reads what it has written; otherwise the faster order is
/// used.
template <class Source, class Target>
bool mayRunDownColumns(const Source& source, const Target& target, int rows, int cols)
{
    if (cols == 1)
        return true;
    if (target.foldsRows(rows))
        return false;
    if (source.storage() != target.storage())
        return true;
    if constexpr (std::is_same_v<Source, Target>)
        // Along one axis only, each line of the other axis is independent.
        return !source.foldsRows(rows) && (source.row() == target.row() || source.col() == target.col());
    else
        return false;
}

/// Copies a block of `rows` by `cols` cells, converted to the target's type. Does nothing if either storage is absent.
template <class Source, class Target>
void copyCells(Source source, Target target, int rows, int cols)
{
    if (rows < 1 || cols < 1 || source.storage() == nullptr || target.storage() == nullptr)
        return;
    const bool downColumns = mayRunDownColumns(source, target, rows, cols);
    const bool apart = source.storage() != target.storage();
    onBlocks(
        [=](auto from, auto to) {
            using To = decltype(to);
            const auto copyCell = [&](int i, int j) { to.set(i, j, converted<typename To::Value>(from.get(i, j))); };
            if (!downColumns) {
                for (int i = 0; i < rows; ++i)
                    for (int j = 0; j < cols; ++j)
                        copyCell(i, j);
                return;
            }
            for (int j = 0; j < cols; ++j) {
                if constexpr (std::is_same_v<typename decltype(from)::Value, typename To::Value> && requires {
                                  from.column(0);
                                  to.column(0);
                              })
                {
                    if (apart) {
                        std::copy_n(from.column(j), countOf(rows), to.column(j));
                        continue;
                    }
                }
                for (int i = 0; i < rows; ++i)
                    copyCell(i, j);
            }
        },
        block(source, rows, cols), block(target, rows, cols));
}

/// Copies the cell of `source` at i + j*r to cell (i, j) of `result`: the result's own shape with the source's stride.
template <class Table>
void copyResized(Table* source, int r, Table* result)
{
    const auto from = linear(source);
    const auto to = cells(result);
    for (int j = 0; j < result->nCols; ++j)
        for (int i = 0; i < result->nRows; ++i)
            to.set(i, j, from.get(static_cast<int>(linearIndex(i, j, r))));
}

/// Prepares a result table of any type: a numeric table is cleared; one of texts is kept as it is if it has the exact
/// shape.
template <class Table>
void prepareResult(Table*& out, int rows, int cols)
{
    if constexpr (std::is_arithmetic_v<typename CellOf<Table>::Value>)
        Table::matCheck(out, rows, cols, 0.0);
    else
        Table::matCheck(out, rows, cols);
}

} // namespace vecmat
