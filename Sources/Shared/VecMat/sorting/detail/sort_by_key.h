// Sorts of rows by a vector of keys, and of the elements of a vector.
#pragma once

#include "../../access/cells.h"
#include "../../base/detail/numbers.h"
#include "column_moves.h"
#include "digit_passes.h"
#include "key_order.h"
#include "stable_order.h"
#include "text_keys.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace vecmat {

namespace detail {

/// Sorts column by column if the storage and the range allow it. Returns false, having done nothing, otherwise.
template <class KeyCells, class... Cells>
bool sortedInColumns(const RowRange& range, Direction direction, KeyCells key, SortedKeys keys,
                     const Following<Cells>&... tables)
{
    if constexpr (std::is_arithmetic_v<typename KeyCells::Value> && (HasPlainColumns<Cells> && ...))
        return range.first >= 1 && range.count() > 1 &&
               onBlocksOrElse(
                   [&](auto plainKey, auto... plain) {
                       return sortInColumns(range, direction, plainKey.data(), keys, Following{plain, tables.nCols}...);
                   },
                   [](auto...) { return false; }, block(key, range.last),
                   block(tables.cells, range.last, tables.nCols)...);
    else
        return false;
}

} // namespace detail

/// Sorts the rows of the range by the elements of `key` with the same numbers. Row by row, the key is written, then the
/// row's cells in each table in turn: the order of these writes is observable if a row lies beyond its table. Otherwise
/// the columns are rearranged one by one.
template <class KeyCells, class... Cells>
void sortByKey(const RowRange& range, Direction direction, KeyCells key, SortedKeys keys,
               const Following<Cells>&... tables)
{
    if (!detail::sortedInColumns(range, direction, key, keys, tables...))
        placeByKey(range, direction, key, keys, MovedRows(tables.cells, range, tables.nCols)...);
}

/// What the elements of a vector are sorted as: a caller's texts by their order, all others by themselves.
template <class Value>
using ElementKey = std::conditional_t<std::is_same_v<Value, wchar_t*>, TextKey, Value>;

/// Sorts the elements of the range themselves.
template <class Vector>
void sortElements(const RowRange& range, Direction direction, Vector x)
{
    using Value = typename Vector::Value;
    if constexpr (std::is_arithmetic_v<Value>) {
        const auto count = static_cast<std::size_t>(range.count());
        if (range.first >= 1 && x.covers(range.last) &&
            sortNumbers(x.plain().data() + zeroBased(range.first), count, direction))
            return;
        if (detail::sortedInColumns(range, direction, x, SortedKeys::written))
            return;
    }
    placeInStableOrder(
        range, direction, [&](int number) { return ElementKey<Value>(x.get(zeroBased(number))); },
        [&](int number, auto& element) { x.set(zeroBased(number), static_cast<Value>(std::move(element))); });
}

} // namespace vecmat
