#include "removal.h"

#include "../access/block_copy.h"
#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "../sorting/copy_block.h"
#include "../sorting/sort.h"
#include "detail/borrowed_moves.h"
#include "detail/line_exchanges.h"
#include "transposition.h"
#include "vector_sums.h"

#include <limits>

using vecmat::copyCells;
using vecmat::countFromTo;
using vecmat::differenceOfCounts;
using vecmat::fresh;
using vecmat::TableHandle;
using vecmat::window;
using vecmat::wrappingSum;
using vecmat::zeroBased;

namespace {

/// No row or column is skipped: all numbers precede it.
constexpr int noPlace = std::numeric_limits<int>::max();

/// The cells of a window without one of its rows or columns.
template <class Cells>
class Skipping
{
public:
    using Value = typename Cells::Value;

    Skipping(Cells cells, int row, int col) : cells_(cells), row_(row), col_(col) {}

    decltype(auto) get(int i, int j) const { return cells_.get(i < row_ ? i : i + 1, j < col_ ? j : j + 1); }
    bool covers(int rows, int cols) const
    {
        return cells_.covers(row_ == noPlace ? rows : wrappingSum(rows, 1),
                             col_ == noPlace ? cols : wrappingSum(cols, 1));
    }
    auto plain() const { return Skipping<decltype(cells_.plain())>(cells_.plain(), row_, col_); }
    const void* storage() const { return cells_.storage(); }

private:
    Cells cells_;
    int row_;
    int col_;
};

/// `number`, from 1, as the place to skip among `count`.
int placeToSkip(int number, int count)
{
    return number >= 1 && number <= count ? number - 1 : noPlace;
}

template <class Table>
void moveRowsUp(Table* a, int rows, int cols, int from, int to)
{
    const int next = wrappingSum(to, 1);
    copyCells(window(a, to, 0), window(a, zeroBased(from), 0), countFromTo(next, rows), cols);
}

/// Sorts the rows of a table by their flags, so that those to keep come first. A flag outside its table is -1.0.
template <class Flags>
void sortByFlags(matrix*& table, int rows, int cols, Flags* flags)
{
    TableHandle key = fresh(rows, 1);
    copyCells(window(flags, 0, 0), window<matrix>(key, 0, 0), rows, 1);
    TableHandle companion = fresh(rows, 1);
    SortQ(table, rows, cols, 1, rows, key.reference(), companion.reference(), 1, 0, 0);
}

template <class Flags>
int removeRows(matrix* a, int rows, int cols, Flags* flags, matrix* out)
{
    const int removed = vecmat::truncated(V_Sum2(flags, rows));
    TableHandle sorted = fresh(rows, cols);
    M_CopyBlock(a, 1, rows, 1, cols, sorted.reference());
    sortByFlags(sorted.reference(), rows, cols, flags);
    if (removed < rows)
        M_CopyBlock(sorted, 1, differenceOfCounts(rows, removed), 1, cols, out);
    return removed;
}

template <class Flags>
int removeColumns(matrix* a, int rows, int cols, Flags* flags, matrix* out)
{
    const int removed = vecmat::truncated(V_Sum2(flags, cols));
    TableHandle transposed = fresh(cols, rows);
    M_Transpose(a, rows, cols, transposed.reference());
    sortByFlags(transposed.reference(), cols, rows, flags);
    TableHandle sorted = fresh(rows, cols);
    M_Transpose(transposed.reference(), cols, rows, sorted.reference());
    if (removed < cols)
        M_CopyBlock(sorted, 1, rows, 1, differenceOfCounts(cols, removed), out);
    return removed;
}

} // namespace

void M_RemoveCol(matrix* a, int rows, int cols, int col, matrix* out)
{
    const int skipped = placeToSkip(col, cols);
    const Skipping kept(window(a, 0, 0), noPlace, skipped);
    copyCells(kept, window(out, 0, 0), rows, skipped == noPlace ? cols : cols - 1);
}

void M_RemoveRow(matrix* a, int rows, int cols, int row, matrix* out)
{
    const int skipped = placeToSkip(row, rows);
    const Skipping kept(window(a, 0, 0), skipped, noPlace);
    copyCells(kept, window(out, 0, 0), skipped == noPlace ? rows : rows - 1, cols);
}

void M_MoveRow(matrix*& a, int cols, int r1, int r2)
{
    vecmat::exchangeRows(vecmat::cells(a), zeroBased(r1), zeroBased(r2), cols);
}

void M_RemoveCols2(matrix*& a, int rows, int cols, int from, int to)
{
    const int next = wrappingSum(to, 1);
    copyCells(window(a, 0, to), window(a, 0, zeroBased(from)), rows, countFromTo(next, cols));
}

void M_RemoveRows2(matrix*& a, int rows, int cols, int from, int to)
{
    moveRowsUp(a, rows, cols, from, to);
}

void M_RemoveRows2(Smatrix*& a, int rows, int cols, int from, int to)
{
    moveRowsUp(a, rows, cols, from, to);
}

int M_RemoveRowsInList(matrix* a, int rows, int cols, matrixInt* flags, matrix* out)
{
    return removeRows(a, rows, cols, flags, out);
}

int M_RemoveRowsInList(matrix* a, int rows, int cols, matrix* flags, matrix* out)
{
    return removeRows(a, rows, cols, flags, out);
}

int M_RemoveColsInList(matrix* a, int rows, int cols, matrixInt* flags, matrix* out)
{
    return removeColumns(a, rows, cols, flags, out);
}

int M_RemoveColsInList(matrix* a, int rows, int cols, matrix* flags, matrix* out)
{
    return removeColumns(a, rows, cols, flags, out);
}

void vecmat::M_RemoveRows2(BorrowedTexts*& a, int rows, int cols, int from, int to)
{
    moveRowsUp(a, rows, cols, from, to);
}
