#include "sort.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/detail/scratch.h"
#include "../frame/detail/borrowed_texts.h"
#include "detail/borrowed_rows.h"
#include "detail/column_moves.h"
#include "detail/digit_passes.h"
#include "detail/key_order.h"
#include "detail/sort_by_key.h"
#include "detail/stable_order.h"
#include "detail/text_keys.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>

namespace {

using namespace vecmat;

/// In the string forms no columns means one: the strings in linear order.
constexpr int stringColumnCount(int nCols)
{
    return nCols == 0 ? 1 : nCols;
}

template <class Data, class Key, class Companion>
int sortRows(Data data, int nCols, const RowRange& range, Key* key, Companion companion, int nCompanionCols,
             short descending, short writeKeys)
{
    sortByKey(range, directionOf(descending), linear(key), sortedKeysOf(writeKeys), Following{data, nCols},
              Following{companion, nCompanionCols});
    return 0;
}

template <class Data>
int sortByIndicator(Data data, int n, int nCols, matrix* key)
{
    sortByKey({1, n}, Direction::ascending, linear(key), SortedKeys::written, Following{data, nCols});
    return 0;
}

/// A column compares as doubles, as strings or as a caller's texts.
template <class Table>
struct ColumnKeyOf
{
    using Key = double;
};
template <>
struct ColumnKeyOf<Smatrix>
{
    using Key = std::wstring;
};
template <>
struct ColumnKeyOf<BorrowedTexts>
{
    using Key = TextKey;
};

/// Sorts numbers by one of their columns, column by column. Returns false if that has to be done row by row.
template <class Table>
bool sortedByOwnColumn(Table* table, int nCols, int col, const RowRange& range, Direction direction)
{
    if constexpr (!std::is_same_v<typename ColumnKeyOf<Table>::Key, double>)
        return false;
    else {
        const auto rows = cells(table);
        if (col < 1 || range.first < 1 || range.count() < 2 || !rows.covers(range.last, std::max(nCols, col)))
            return false;
        // A key column outside the columns that move is sorted by itself.
        return sortInColumns(range, direction, rows.plain().column(col - 1),
                             col > nCols ? SortedKeys::written : SortedKeys::discarded, Following{rows.plain(), nCols});
    }
}

template <class Table>
int sortByOwnColumn(Table* table, int nCols, int col, const RowRange& range, short descending)
{
    if (sortedByOwnColumn(table, nCols, col, range, directionOf(descending)))
        return 0;
    using Key = typename ColumnKeyOf<Table>::Key;
    using Record = KeyedPosition<Key>;
    const auto rows = cells(table);
    MovedRows moved(rows, range, nCols);
    // The key column is written from the record: it may not be among the columns that move.
    placeInStableOrder(
        range, directionOf(descending),
        [&](int row) {
            return Record{row, Key(rows.get(zeroBased(row), zeroBased(col)))};
        },
        [&](int row, Record& record) {
            using Value = typename CellOf<Table>::Value;
            rows.set(zeroBased(row), zeroBased(col), static_cast<Value>(std::move(record.key)));
            moved.place(row, record.position);
        });
    return 0;
}

/// The order of the rows of plain columns after a stable sort by each of the columns colAt(0) to colAt(count - 1) in
/// turn, none of which is sorted yet. Nothing if a sort has to be done row by row. `key` and `spare` have room for a
/// column.
template <class Number, class Plain, class ColAt>
RowOrder orderByColumnsInTurn(Plain columns, std::size_t rows, long long count, ColAt colAt, Number* key, void* spare)
{
    RowOrder order = stableOrder(columns.column(colAt(0)), rows, Direction::ascending, spare);
    for (long long k = 1; k < count && order; ++k) {
        const Number* const column = columns.column(colAt(k));
        for (std::size_t i = 0; i < rows; ++i)
            key[i] = column[order[i]];
        RowOrder next = stableOrder(key, rows, Direction::ascending, spare);
        if (next)
            for (std::size_t i = 0; i < rows; ++i)
                next.words()[i] = order[next[i]];
        order = std::move(next);
    }
    return order;
}

/// Sorts numbers by several of the columns that move: these are rearranged once, by the order that the sorts lead to.
/// Returns false, having done nothing, if that has to be done column by column or row by row.
template <class Table, class ColAt>
bool sortedByColumnsTogether(Table* table, int nRows, int nCols, long long count, ColAt colAt)
{
    const auto rows = cells(table);
    if (count < 2 || nRows < 2 || !rows.covers(nRows, nCols) || rows.plain().folds(nRows, nCols))
        return false;
    for (long long k = 0; k < count; ++k)
        if (colAt(k) < 0 || colAt(k) >= nCols)
            return false;
    using Number = typename CellOf<Table>::Value;
    Scratch column(countOf(nRows));
    const Scratch spare(countOf(nRows));
    if (!column || !spare)
        return false;
    auto* const key = reinterpret_cast<Number*>(column.data());
    RowOrder order = orderByColumnsInTurn(rows.plain(), countOf(nRows), count, colAt, key, spare.data());
    const ColumnMoves moves({1, nRows}, std::move(order), std::move(column));
    if (!moves.hasMemory())
        return false;
    moves.rearrange(Following{rows.plain(), nCols});
    return true;
}

/// Each sort is stable, so the whole is lexicographic: the column sorted last is the major key.
template <class Table>
int sortByColumnsInTurn(Table* table, int nRows, int nCols, const RowRange& cols, short lastToFirst)
{
    const bool backwards = lastToFirst == -1;
    const long long count = cols.count();
    const auto colAt = [&](long long k) { return cols.at(backwards ? count - 1 - k : k); };
    if (sortedByColumnsTogether(table, nRows, nCols, count, [&](long long k) { return zeroBased(colAt(k)); }))
        return 0;
    for (long long k = 0; k < count; ++k)
        sortByOwnColumn(table, nCols, colAt(k), {1, nRows}, 0);
    return 0;
}

template <class Table>
int sortVector(Table* x, const RowRange& range, Direction direction)
{
    sortElements(range, direction, linear(x));
    return 0;
}

} // namespace

int SortQ(matrix*& data, int /*nRows*/, int nCols, int first, int last, matrix*& key, matrix*& companion,
          int nCompanionCols, short descending, short writeKeys)
{
    return sortRows(cells(data), nCols, {first, last}, key, cells(companion), nCompanionCols, descending, writeKeys);
}

int SortQ(matrixInt*& data, int /*nRows*/, int nCols, int first, int last, matrixInt*& key, matrixInt*& companion,
          int nCompanionCols, short descending, short writeKeys)
{
    return sortRows(cells(data), nCols, {first, last}, key, cells(companion), nCompanionCols, descending, writeKeys);
}

int SortQ(matrix*& data, int /*nRows*/, int nCols, int first, int last, matrixInt*& key, matrix*& companion,
          int nCompanionCols, short descending, short writeKeys)
{
    return sortRows(cells(data), nCols, {first, last}, key, cells(companion), nCompanionCols, descending, writeKeys);
}

int SortQ(matrixInt*& data, int /*nRows*/, int nCols, int first, int last, matrix*& key, matrix*& companion,
          int nCompanionCols, short descending, short writeKeys)
{
    return sortRows(cells(data), nCols, {first, last}, key, cells(companion), nCompanionCols, descending, writeKeys);
}

int SortQ(matrix** data, int /*nRows*/, int nCols, int first, int last, matrix*& key, matrix*& companion,
          int nCompanionCols, short descending, short writeKeys)
{
    return sortRows(cells(data), nCols, {first, last}, key, cells(companion), nCompanionCols, descending, writeKeys);
}

int SortQ(Smatrix*& data, int /*nRows*/, int nCols, int first, int last, matrix*& key, matrix*& companion,
          int nCompanionCols, short descending, short writeKeys)
{
    return sortRows(cells(data), stringColumnCount(nCols), {first, last}, key, cells(companion), nCompanionCols,
                    descending, writeKeys);
}

int SortQ(Smatrix** data, int /*nRows*/, int nCols, int first, int last, matrix*& key, matrix*& companion,
          int nCompanionCols, short descending, short writeKeys)
{
    return sortRows(cells(data), stringColumnCount(nCols), {first, last}, key, cells(companion), nCompanionCols,
                    descending, writeKeys);
}

int vecmat::SortQ(BorrowedTexts*& data, int /*nRows*/, int nCols, int first, int last, matrix*& key, matrix*& companion,
                  int nCompanionCols, short descending, short writeKeys)
{
    return sortRows(cells(data), stringColumnCount(nCols), {first, last}, key, cells(companion), nCompanionCols,
                    descending, writeKeys);
}

int vecmat::SortQ(BorrowedTexts** data, int /*nRows*/, int nCols, int first, int last, matrix*& key, matrix*& companion,
                  int nCompanionCols, short descending, short writeKeys)
{
    return sortRows(cells(data), stringColumnCount(nCols), {first, last}, key, cells(companion), nCompanionCols,
                    descending, writeKeys);
}

int SortDataBy01(matrix*& data, int n, int nCols, matrix*& key)
{
    return sortByIndicator(cells(data), n, nCols, key);
}

int SortDataBy01(matrix** data, int n, int nCols, matrix*& key)
{
    return sortByIndicator(cells(data), n, nCols, key);
}

int SortDataBy01(Smatrix*& data, int n, int nCols, matrix*& key)
{
    return sortByIndicator(cells(data), n, stringColumnCount(nCols), key);
}

int SortQByCol(matrix*& data, int nRows, int /*nCols*/, int first, int last, matrix*& key, matrix*& companion,
               int nCompanionRows, short descending, short writeKeys)
{
    return sortRows(transposed(cells(data)), nRows, {first, last}, key, transposed(cells(companion)), nCompanionRows,
                    descending, writeKeys);
}

int SortQMatrixCol(matrix*& table, int /*nRows*/, int nCols, int col, int first, int last, short descending)
{
    return sortByOwnColumn(table, nCols, col, {first, last}, descending);
}

int SortQMatrixCol(matrixInt*& table, int /*nRows*/, int nCols, int col, int first, int last, short descending)
{
    return sortByOwnColumn(table, nCols, col, {first, last}, descending);
}

int SortQMatrixCol(Smatrix*& table, int /*nRows*/, int nCols, int col, int first, int last, short descending)
{
    return sortByOwnColumn(table, nCols, col, {first, last}, descending);
}

int vecmat::SortQMatrixCol(BorrowedTexts*& table, int /*nRows*/, int nCols, int col, int first, int last,
                           short descending)
{
    return sortByOwnColumn(table, nCols, col, {first, last}, descending);
}

int SortMatrixSeqQ(matrix*& table, int nRows, int nCols, short lastToFirst)
{
    return sortByColumnsInTurn(table, nRows, nCols, {1, nCols}, lastToFirst);
}

int SortMatrixSeqQ(matrixInt*& table, int nRows, int nCols, short lastToFirst)
{
    return sortByColumnsInTurn(table, nRows, nCols, {1, nCols}, lastToFirst);
}

int SortMatrixSeqQP1toP2(matrix* table, int nRows, int nCols, int firstCol, int lastCol, short lastToFirst)
{
    return sortByColumnsInTurn(table, nRows, nCols, {firstCol, lastCol}, lastToFirst);
}

int SortMatrixSeqQP1toP2(matrixInt* table, int nRows, int nCols, int firstCol, int lastCol, short lastToFirst)
{
    return sortByColumnsInTurn(table, nRows, nCols, {firstCol, lastCol}, lastToFirst);
}

int SortQVector(double*& x, int n, int first, int last, short descending)
{
    matrix view(n, 1, x, true);
    return sortVector(&view, {first, last}, directionOf(descending));
}

int SortQVector(int*& x, int n, int first, int last, short descending)
{
    matrixInt view(n, 1, x, true);
    return sortVector(&view, {first, last}, directionOf(descending));
}

int SortQVector(matrix*& x, int /*n*/, int first, int last, short descending)
{
    return sortVector(x, {first, last}, directionOf(descending));
}

int SortQVector(matrixInt*& x, int /*n*/, int first, int last, short descending)
{
    return sortVector(x, {first, last}, directionOf(descending));
}

int SortQVector(Smatrix* x, int first, int last, short descending)
{
    return sortVector(x, {first, last}, descending != 0 ? Direction::descending : Direction::ascending);
}

int vecmat::SortQVector(BorrowedTexts* x, int first, int last, short descending)
{
    return sortVector(x, {first, last}, descending != 0 ? Direction::descending : Direction::ascending);
}
