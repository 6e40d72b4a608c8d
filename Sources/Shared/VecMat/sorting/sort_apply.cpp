#include "sort_apply.h"

#include "../access/cells.h"
#include "../base/detail/local_array.h"
#include "../base/detail/memory_ranges.h"
#include "../base/detail/numbers.h"
#include "../base/detail/scratch.h"
#include "../frame/detail/borrowed_texts.h"
#include "copy_block.h"
#include "detail/borrowed_rows.h"
#include "detail/column_moves.h"
#include "detail/key_order.h"

#include <iterator>
#include <string>
#include <utility>

namespace {

using namespace vecmat;

/// 0-based number of the source row; truncated after the subtraction, so that 0.5 is the first row.
int sourceRow(matrix* order, int i)
{
    return truncated(linear(order).get(i) - 1.0);
}

double convertedTo(matrix*, double cell)
{
    return cell;
}

int convertedTo(matrixInt*, double cell)
{
    return truncated(cell);
}

int convertedTo(matrixInt*, int cell)
{
    return cell;
}

const std::wstring& convertedTo(Smatrix*, const std::wstring& cell)
{
    return cell;
}

wchar_t* convertedTo(BorrowedTexts*, wchar_t* cell)
{
    return cell;
}

template <class Source, class Out>
void applyOrderByRows(Source* source, int nRows, int nCols, matrix* order, Out* out)
{
    if (nRows < 1 || nCols < 1) // then there may be no table
        return;
    const auto from = cells(source);
    const auto to = cells(out);
    const auto move = [=](int row, int i, auto readable, auto writable) {
        for (int j = 0; j < nCols; ++j)
            writable.set(i, j, convertedTo(out, readable.get(row, j)));
    };
    const bool allInside = from.covers(source->nRows, nCols) && to.covers(nRows, nCols);
    for (int i = 0; i < nRows; ++i) {
        const int row = sourceRow(order, i);
        if (allInside && row >= 0 && row < source->nRows)
            move(row, i, from.plain(), to.plain());
        else
            move(row, i, from, to);
    }
}

/// Up to this number of rows their numbers need no allocation; below it a rearrangement in place does not pay.
constexpr int fewRows = 32;

/// Stores the source rows of an order, unless one of them does not lie inside its column.
template <class Number>
bool storeRowsInside(matrix* order, int nRows, int height, Number* rows)
{
    const double end = height;
    for (int i = 0; i < nRows; ++i) {
        const double row = linear(order).get(i) - 1.0;
        if (!(row > -1.0 && row < end))
            return false;
        rows[i] = static_cast<unsigned>(static_cast<int>(row)); // truncated: -0.5 is the first
    }
    return true;
}

/// The same; nothing if one does not, or if allocation fails.
RowOrder rowsInside(matrix* order, int nRows, int height)
{
    RowOrder rows(countOf(nRows));
    return rows && storeRowsInside(order, nRows, height, rows.words()) ? std::move(rows) : RowOrder();
}

template <class Source, class Rows, class Out>
void moveColumns(Source* source, int nRows, int nCols, const Rows& rows, Out* out)
{
    for (int j = 0; j < nCols; ++j) {
        const auto* const from = cells(source).plain().column(j);
        auto* const to = cells(out).plain().column(j);
        for (unsigned i = 0; i < countOf(nRows); ++i)
            to[i] = convertedTo(out, from[rows[i]]);
    }
}

/// Column by column, if every source row is inside its column and no write affects cells still to be read. Returns
/// false, having done nothing, otherwise.
template <class Source, class Out>
bool applyOrderByColumns(Source* source, int nRows, int nCols, matrix* order, Out* out)
{
    if (nRows < 1 || nCols < 1 || !cells(source).covers(source->nRows, nCols) || !cells(out).covers(nRows, nCols) ||
        cells(out).plain().folds(nRows, nCols))
        return false;
    const MemoryRange memory[] = {memoryOf(source->X, source->nElems), memoryOf(order->X, order->nElems),
                                  memoryOf(out->X, out->nElems)};
    if (!fewAreApart(memory, std::size(memory)))
        return false;
    if (nRows <= fewRows) {
        LocalArray<unsigned> rows(fewRows);
        if (!storeRowsInside(order, nRows, source->nRows, rows.data()))
            return false;
        moveColumns(source, nRows, nCols, rows, out);
        return true;
    }
    const RowOrder rows = rowsInside(order, nRows, source->nRows);
    if (rows)
        moveColumns(source, nRows, nCols, rows, out);
    return static_cast<bool>(rows);
}

template <class Source, class Out>
void applyOrderToResult(Source* source, int nRows, int nCols, matrix* order, Out*& out)
{
    // In a table of the same height the cells to prepare are exactly those written.
    const bool isPrepared = out != nullptr && out->nRows == nRows && out->nCols >= nCols;
    if (isPrepared && applyOrderByColumns(source, nRows, nCols, order, out))
        return;
    Out::matCheck(out, nRows, nCols, 0.0);
    if (isPrepared || !applyOrderByColumns(source, nRows, nCols, order, out))
        applyOrderByRows(source, nRows, nCols, order, out);
}

template <class Table>
void applyOrderInPlace(Table* table, int nRows, int nCols, matrix* order)
{
    const auto rows = cells(table);
    if (nRows >= fewRows && nCols > 0 && nRows <= table->nRows && rows.covers(table->nRows, nCols))
        if (const ColumnMoves moves({1, nRows}, rowsInside(order, nRows, table->nRows), Scratch(countOf(nRows)));
            moves.hasMemory())
            return moves.rearrange(Following{rows.plain(), nCols});
    Table working(nRows, nCols, 0.0);
    applyOrderByRows(table, nRows, nCols, order, &working);
    M_CopyBlock(&working, 1, nRows, 1, nCols, table);
}

} // namespace

void SortApply(matrix* source, int nRows, int nCols, matrix* order, matrix*& out)
{
    applyOrderToResult(source, nRows, nCols, order, out);
}

void SortApply(matrixInt* source, int nRows, int nCols, matrix* order, matrix*& out)
{
    applyOrderToResult(source, nRows, nCols, order, out);
}

void SortApply(matrix* source, int nRows, int nCols, matrix* order, matrixInt*& out)
{
    applyOrderToResult(source, nRows, nCols, order, out);
}

void SortApply(matrixInt* source, int nRows, int nCols, matrix* order, matrixInt*& out)
{
    applyOrderToResult(source, nRows, nCols, order, out);
}

void SortApply2(matrix* table, int nRows, int nCols, matrix* order)
{
    applyOrderInPlace(table, nRows, nCols, order);
}

void SortApply2(matrixInt* table, int nRows, int nCols, matrix* order)
{
    applyOrderInPlace(table, nRows, nCols, order);
}

void SortApplyStr(Smatrix* source, int nRows, int nCols, matrix* order, Smatrix* out)
{
    applyOrderByRows(source, nRows, nCols, order, out);
}

void vecmat::SortApplyStr(BorrowedTexts* source, int nRows, int nCols, matrix* order, BorrowedTexts* out)
{
    applyOrderByRows(source, nRows, nCols, order, out);
}
