#include "complete_rows.h"

#include "../access/block_copy.h"
#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/caller_text.h"
#include "detail/borrowed_rows.h"

#include <limits>
#include <string>

using vecmat::block;
using vecmat::cells;
using vecmat::isMissing;
using vecmat::linear;
using vecmat::Mask;
using vecmat::missingValue;
using vecmat::onBlocks;

namespace {

constexpr int missingInt = std::numeric_limits<int>::min();

bool isAbsent(double x)
{
    return vecmat::isMissingOrBelow(x);
}

bool isAbsent(const std::wstring& text)
{
    return text.empty();
}

bool isAbsent(wchar_t* borrowed)
{
    return vecmat::Bstr(borrowed).empty();
}

template <class From, class To>
void copyRow(From from, int row, To to, int target, int cols)
{
    for (int j = 0; j < cols; ++j)
        to.set(target, j, from.get(row, j));
}

/// Row by row: a row never overwrites one still to be read.
template <class Table>
void removeRows(Table* a, int rows, int cols, Mask mask)
{
    const bool isVector = cols < 2;
    const int width = isVector ? 1 : cols;
    onBlocks(
        [=](auto x) {
            int kept = 0;
            for (int i = 0; i < rows; ++i) {
                // Only a plain vector also loses missing cells that the mask keeps.
                if (!mask.keeps(i) || (isVector && isAbsent(x.get(i, 0))))
                    continue;
                if (kept != i)
                    copyRow(x, i, x, kept, width);
                ++kept;
            }
        },
        block(cells(a), rows, width));
}

int rowsKept(Mask mask, int rows)
{
    int kept = 0;
    for (int i = 0; i < rows; ++i)
        kept += mask.keeps(i) ? 1 : 0;
    return kept;
}

template <class Table, class Value>
void insertRows(Table* data, int rows, int cols, Mask mask, Table* out, Value missing)
{
    onBlocks(
        [=](auto from, auto to) {
            int next = 0;
            for (int i = 0; i < rows; ++i) {
                if (mask.keeps(i))
                    copyRow(from, next++, to, i, cols);
                else
                    for (int j = 0; j < cols; ++j)
                        to.set(i, j, missing);
            }
        },
        block(cells(data), rowsKept(mask, rows), cols), block(cells(out), rows, cols));
}

} // namespace

void RemoveRowsWithMissing(matrix*& a, int nRows, int nCols, short* mask)
{
    removeRows(a, nRows, nCols, Mask(mask));
}

void RemoveRowsWithMissing(Smatrix*& a, int nRows, int nCols, short* mask)
{
    removeRows(a, nRows, nCols, Mask(mask));
}

void M_InsertMissing(matrix* data, int nRows, int nCols, short* mask, int nInsert, matrix* out)
{
    insertRows(data, vecmat::sumOfCounts(nRows, nInsert), nCols, Mask(mask), out, missingValue);
}

void M_InsertMissingLng(matrixInt* data, int nRows, int nCols, short* mask, int nInsert, matrixInt* out)
{
    insertRows(data, vecmat::sumOfCounts(nRows, nInsert), nCols, Mask(mask), out, missingInt);
}

void MatToVect_NoMissing(matrix* data, int nRows, int nCols, matrix* counts, double* emptyCols, matrix* out)
{
    unsigned stacked = 0;
    onBlocks(
        [&](auto x, auto count) {
            for (int j = 0; j < nCols; ++j) {
                for (int i = 0; i < nRows; ++i) {
                    const double value = x.get(i, j);
                    if (isMissing(value))
                        continue;
                    linear(out).set(static_cast<int>(stacked++), value);
                    count.set(j, count.get(j) + 1.0);
                }
                if (count.get(j) == 0.0)
                    *emptyCols += 1.0;
            }
        },
        block(cells(data), nRows, nCols), block(linear(counts), nCols));
}

void vecmat::RemoveRowsWithMissing(BorrowedTexts*& a, int nRows, int nCols, short* mask)
{
    removeRows(a, nRows, nCols, Mask(mask));
}
