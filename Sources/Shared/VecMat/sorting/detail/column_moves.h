// Numbers, or pointers, rearranged by a sort, column by column: each column is read in the new order and written back
// on its own, so that the scratch memory is one column however many there are.
//
// The rows of a table can also be placed one after another (`placeInStableOrder`), as is required when the order of the
// writes is observable: when rows lie beyond a table, or two columns share memory.
#pragma once

#include "../../access/overlap.h"
#include "../../base/detail/memory_ranges.h"
#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "digit_passes.h"
#include "key_order.h"
#include "stable_order.h"

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

namespace vecmat {

/// A table whose first columns are rearranged by a sort.
template <class Cells>
struct Following
{
    Cells cells;
    int nCols;
};

template <class Cells>
Following(Cells, int) -> Following<Cells>;

/// Rearranges the rows of a range column by column.
class ColumnMoves
{
public:
    ColumnMoves(const RowRange& range, RowOrder order, Scratch column)
        : first_(range.first - 1), count_(static_cast<std::size_t>(range.count())), order_(std::move(order)),
          moved_(std::move(column))
    {
    }

    bool hasMemory() const { return order_ && moved_; }

    template <class Number>
    void rearrange(Number* column) const
    {
        static_assert(sizeof(Number) <= sizeof(double));
        Number* const rows = column + first_;
        auto* const moved = reinterpret_cast<Number*>(moved_.data());
        for (std::size_t k = 0; k < count_; ++k)
            moved[k] = rows[order_[k]];
        std::memcpy(rows, moved, count_ * sizeof(Number));
    }

    template <class Plain>
    void rearrange(const Following<Plain>& table) const
    {
        for (int j = 0; j < table.nCols; ++j)
            rearrange(table.cells.column(j));
    }

private:
    int first_;
    std::size_t count_;
    RowOrder order_;
    Scratch moved_;
};

/// Sorts the rows of a range, not before the first, by a column of keys in plain storage. Returns false, having done
/// nothing, if that has to be done row by row.
template <class Number, class... Plain>
bool sortInColumns(const RowRange& range, Direction direction, Number* key, SortedKeys keys,
                   const Following<Plain>&... tables)
{
    const int last = range.last;
    if constexpr (sizeof...(Plain) > 0) {
        MemoryRanges written;
        if (keys == SortedKeys::written)
            written.add(memoryOf(key, countOf(last)));
        (addTo(written, storageOf(tables.cells, last, tables.nCols)), ...);
        if ((tables.cells.folds(last, tables.nCols) || ...) || !written.areApart())
            return false;
    }
    Scratch column(static_cast<std::size_t>(range.count()));
    RowOrder order =
        stableOrder(key + (range.first - 1), static_cast<std::size_t>(range.count()), direction, column.data());
    const ColumnMoves moves(range, std::move(order), std::move(column));
    if (!moves.hasMemory())
        return false;
    if (keys == SortedKeys::written)
        moves.rearrange(key);
    (moves.rearrange(tables), ...);
    return true;
}

/// Storage that holds numbers in columns, or pointers to texts.
template <class Cells>
concept HasPlainColumns = std::is_scalar_v<typename Cells::Value> && requires(const Cells& cells)
{
    cells.plain().column(0);
};

} // namespace vecmat
