// The one order behind every sort of the library: records of (key, position) over a range of rows are loaded, sorted
// ascending by a stable sort, and placed row by row from a working copy.
//
// Descending is no second comparison: the records are loaded backwards and placed backwards, so that rows with equal
// keys keep the order of the input in both directions. Everything that sorts in steps, groups, ranks or removes
// duplicates relies on that.
//
// Keys are compared with the plain less-than. Zeros of both signs tie; the missing value is below every other number,
// the empty string below every other string. A NaN is unordered: with such keys the rows of the range end up in an
// unspecified order, each of them still exactly once, and nothing outside is changed.
//
// Many numbers are sorted by the bits of their keys, everything else by a merge. Both allocate their scratch memory
// without throwing: if allocation fails the merge takes over, in the last resort without a buffer, with the same
// result.
#pragma once

#include "../../access/cells.h"
#include "../../base/detail/numbers.h"
#include "digit_passes.h"
#include "key_order.h"
#include "stable_merge.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

namespace vecmat {

/// How an option of the sorts is read: exactly -1 is descending, everything else ascending, even 1.
constexpr Direction directionOf(short descending)
{
    return descending == -1 ? Direction::descending : Direction::ascending;
}

/// What happens to the vector of keys: rearranged like the rows, or left unchanged, out of step with them.
enum class SortedKeys { written, discarded };

/// Exactly -1 writes the keys back.
constexpr SortedKeys sortedKeysOf(short writeKeys)
{
    return writeKeys == -1 ? SortedKeys::written : SortedKeys::discarded;
}

/// Rows from `first` to `last`, 1-based, both included. A `last` below `first` is an empty range. Passed by reference,
/// like the shape of a product.
struct RowRange
{
    int first;
    int last;

    long long count() const { return last < first ? 0 : static_cast<long long>(last) - first + 1; }
    int at(long long k) const { return static_cast<int>(first + k); }
};

/// The record of a sort, ordered by its key alone: the 1-based position never takes part in the comparison.
template <class Key>
struct KeyedPosition
{
    int position;
    Key key;

    friend bool operator<(const KeyedPosition& left, const KeyedPosition& right) { return left.key < right.key; }
};

/// Integer keys are widened to double, which is exact.
using pairToSort = KeyedPosition<double>;

/// Sorts records by their keys, or plain elements, keeping the order of ties.
template <class Record>
void sortStably(std::vector<Record>& records)
{
    mergeStably(records);
}

/// The same for records of numbers.
void sortStably(std::vector<pairToSort>& records);

/// Calls `place(row, record)` for the rows of the range from first to last, with the records that `load(row)` makes of
/// these rows in sorted order. All records are loaded before the first is placed.
template <class Load, class Place>
void placeInStableOrder(const RowRange& range, Direction direction, Load load, Place place)
{
    const bool backwards = direction == Direction::descending;
    const long long count = range.count();
    std::vector<std::decay_t<std::invoke_result_t<Load&, int>>> records;
    records.reserve(static_cast<std::size_t>(count));
    for (long long k = 0; k < count; ++k)
        records.push_back(load(range.at(backwards ? count - 1 - k : k)));
    sortStably(records);
    for (long long k = 0; k < count; ++k)
        place(range.at(k), records[static_cast<std::size_t>(backwards ? count - 1 - k : k)]);
}

/// The rows of a vector of n in ascending order of its elements. An element beyond the table is -1.0.
RowOrder ascendingRows(matrix* x, int n);

/// The rows of one table rearranged by a sort. Keeps a working copy of the range, row by row, so that fetching a row
/// from anywhere costs one contiguous read however many columns there are. Reads and writes are those of the accessor:
/// beyond a table a cell is -1.0 (-1, empty), and is not written. With no columns the table is never read and may be
/// absent.
template <class Cells>
class MovedRows
{
public:
    MovedRows(Cells cells, const RowRange& range, int nCols)
        : cells_(cells), first_(range.first), nCols_(std::max(nCols, 0)), before_(cellCount(range.count(), nCols_))
    {
        for (int j = 0; j < nCols_; ++j)
            for (long long k = 0; k < range.count(); ++k)
                before_[position(k) + static_cast<std::size_t>(j)] = cells_.get(zeroBased(range.at(k)), j);
    }

    /// Gives row `target` the original contents of row `source`. Each source may be fetched once: strings are moved.
    void place(int target, int source)
    {
        auto* const row = before_.data() + position(static_cast<long long>(source) - first_);
        for (int j = 0; j < nCols_; ++j)
            cells_.set(zeroBased(target), j, std::move(row[j]));
    }

private:
    static std::size_t cellCount(long long rows, int cols)
    {
        const unsigned long long count = static_cast<unsigned long long>(rows) * static_cast<unsigned>(cols);
        if (count > static_cast<std::size_t>(-1))
            throw std::bad_array_new_length();
        return static_cast<std::size_t>(count);
    }
    std::size_t position(long long k) const { return static_cast<std::size_t>(k) * static_cast<std::size_t>(nCols_); }

    Cells cells_;
    int first_;
    int nCols_;
    std::vector<typename Cells::Value> before_;
};

/// Places the rows of the range in the order of the elements of `key` with the same numbers. Row by row, the key is
/// written, then the row's cells in each table of `moved` in turn.
template <class KeyCells, class... Moved>
void placeByKey(const RowRange& range, Direction direction, KeyCells key, SortedKeys keys, Moved... moved)
{
    using KeyValue = typename KeyCells::Value;
    placeInStableOrder(
        range, direction,
        [&](int row) {
            return pairToSort{row, static_cast<double>(key.get(zeroBased(row)))};
        },
        [&](int row, const pairToSort& record) {
            if (keys == SortedKeys::written)
                key.set(zeroBased(row), static_cast<KeyValue>(record.key));
            (moved.place(row, record.position), ...);
        });
}

} // namespace vecmat
