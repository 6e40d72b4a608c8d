// What the arguments of the library's flat forms look like.
#pragma once

#include "table.h"

#include "VecMat.h"

#include <cstddef>
#include <vector>

namespace survey {

// Booleans are -1 and 0; an array that isn't needed is null.
inline constexpr short yes = -1;
inline constexpr short no = 0;
inline short* const noMask = nullptr;
inline double* const noWeights = nullptr;

/// A table of numbers, column after column.
struct FlatTable
{
    int rows = 0;
    int columns = 0;
    std::vector<double> cells;

    FlatTable(int rowCount, int columnCount)
        : rows(rowCount), columns(columnCount),
          cells(static_cast<std::size_t>(rowCount) * static_cast<std::size_t>(columnCount))
    {
    }

    double* data() { return cells.data(); }
    /// Both from 0.
    double& at(int row, int column) { return cells[place(row, column)]; }
    double at(int row, int column) const { return cells[place(row, column)]; }

    /// Drops the columns behind the first ones.
    void keepColumns(int count)
    {
        columns = count;
        cells.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(count));
    }

private:
    std::size_t place(int row, int column) const
    {
        return static_cast<std::size_t>(column) * static_cast<std::size_t>(rows) + static_cast<std::size_t>(row);
    }
};

/// So many rows from the first one on, which is counted from 0.
struct RowRange
{
    int first;
    int count;
};

/// The numbers of some columns that have as many rows.
FlatTable numbersOf(const std::vector<const Column*>& columns, int rows);
/// Those of some of the rows.
FlatTable numbersOf(const std::vector<const Column*>& columns, RowRange range);
FlatTable numbersOf(const std::vector<const Column*>& columns, const std::vector<int>& rows);

/// The numeric columns of a table without gaps that have a variance: their cells aren't all equal, nor too far apart to
/// be squared.
std::vector<const Column*> varyingColumns(const Table& complete);

/// The weights of the rows: 1 for each where the table has none.
std::vector<double> weightsOf(const Table& table);

/// The weights of rows that all count alike.
std::vector<double> unitWeights(int rows);

/// Weights that say how much a row counts beside others, not how often it was seen: the divisor of a variance is then
/// W - W/m, with W the sum of m weights, which is n - 1 where there are none.
inline constexpr short areFrequencies = no;

} // namespace survey
