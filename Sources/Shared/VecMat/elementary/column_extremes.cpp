#include "column_extremes.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/missing_value.h"

#include <functional>

using namespace vecmat;

namespace {

using Smaller = std::less<>;
using Larger = std::greater<>;

/// The best cell from the first one above the missing value on, without further tests.
template <class Better, class Cells>
double bestOfColumn(Cells table, int rows, int j)
{
    int i = 0;
    while (i < rows && !(table.get(i, j) > missingValue))
        ++i;
    if (i >= rows)
        return missingValue;
    double best = table.get(i, j);
    for (++i; i < rows; ++i)
        if (Better()(table.get(i, j), best))
            best = table.get(i, j);
    return best;
}

template <class Better>
void bestByColumn(matrix* a, int rows, int cols, matrix* out)
{
    onBlocks(
        [=](auto table) {
            for (int j = 0; j < cols; ++j)
                linear(out).set(j, bestOfColumn<Better>(table, rows, j));
        },
        block(cells(a), rows, cols));
}

/// The 1-based column of the first largest cell of a row.
template <class Cells>
int positionOfLargest(Cells table, int i, int cols)
{
    int position = 0;
    for (int j = 1; j < cols; ++j)
        if (table.get(i, j) > table.get(i, position))
            position = j;
    return position + 1;
}

/// Which cells of a column count.
enum class Selection { presentCells, keptRows, nothing };

Selection selectionOf(short mode)
{
    switch (mode) {
    case -1:
        return Selection::presentCells;
    case 0:
        return Selection::keptRows;
    default:
        return Selection::nothing;
    }
}

struct Extremes
{
    double min = missingValue;
    double max = missingValue;
};

/// Extremes of those of cell(0) to cell(n - 1) for which `take(x, i)` holds.
template <class Cell, class Take>
Extremes extremesWhere(int n, Cell cell, Take take)
{
    Extremes found;
    for (int i = 0; i < n; ++i) {
        const double x = cell(i);
        if (!take(x, i))
            continue;
        if (x < found.min || isMissing(found.min)) // also replaces a missing cell that was taken
            found.min = x;
        if (x > found.max)
            found.max = x;
    }
    return found;
}

template <class Cell>
Extremes extremesOfColumn(int n, Cell cell, Selection selection, Mask mask)
{
    switch (selection) {
    case Selection::presentCells:
        return extremesWhere(n, cell, [](double x, int /*i*/) { return !isMissing(x); });
    case Selection::keptRows:
        return extremesWhere(n, cell, [mask](double /*x*/, int i) { return mask.keeps(i); });
    default:
        return {};
    }
}

void store(const Extremes& found, int j, matrix* min, matrix* max)
{
    linear(min).set(j, found.min);
    linear(max).set(j, found.max);
}

/// Over an array of columns in which column j has length(j) cells.
template <class Length>
void extremesOfColumns(matrix** a, Length length, int cols, matrix* min, matrix* max, Mask mask, Selection selection)
{
    for (int j = 0; j < cols; ++j) {
        const int n = length(j);
        const Extremes found = onBlocks(
            [=](auto column) {
                return extremesOfColumn(
                    n, [column](int i) { return column.get(i); }, selection, mask);
            },
            block(linear(a[j]), n));
        store(found, j, min, max);
    }
}

} // namespace

void M_Max(matrix* a, int rows, int cols, matrix* out)
{
    bestByColumn<Larger>(a, rows, cols, out);
}

void M_Min(matrix* a, int rows, int cols, matrix* out)
{
    bestByColumn<Smaller>(a, rows, cols, out);
}

double M_MinAll(matrix* a, int rows, int cols)
{
    return onBlocks(
        [=](auto table) {
            double best = positiveTwin;
            for (int j = 0; j < cols; ++j)
                for (int i = 0; i < rows; ++i)
                    if (table.get(i, j) < best)
                        best = table.get(i, j);
            return best;
        },
        block(cells(a), rows, cols));
}

void M_MaxPosByRow(matrix* a, int rows, int cols, matrixInt* out)
{
    onBlocks(
        [=](auto table) {
            for (int i = 0; i < rows; ++i)
                linear(out).set(i, positionOfLargest(table, i, cols));
        },
        block(cells(a), rows, cols));
}

void M_MinMax(matrix* a, int rows, int cols, matrix* min, matrix* max, short* mask, short mode)
{
    onBlocks(
        [=](auto table) {
            for (int j = 0; j < cols; ++j) {
                const auto cell = [=](int i) { return table.get(i, j); };
                store(extremesOfColumn(rows, cell, selectionOf(mode), Mask(mask)), j, min, max);
            }
        },
        block(cells(a), rows, cols));
}

void M_MinMaxSPV(matrix** a, int rows, int cols, matrix* min, matrix* max, short* mask, short mode)
{
    extremesOfColumns(
        a, [rows](int /*j*/) { return rows; }, cols, min, max, Mask(mask), selectionOf(mode));
}

void M_MinMaxSPV_T(matrix** a, int rows, int cols, matrix* min, matrix* max, short* mask, short mode)
{
    const auto length = [rows](int j) { return rows > j ? rows - j : 0; };
    extremesOfColumns(a, length, cols, min, max, Mask(mask), selectionOf(mode));
}
