#include "flat_call.h"

#include <algorithm>
#include <cmath>

namespace survey {

FlatTable numbersOf(const std::vector<const Column*>& columns, int rows)
{
    return numbersOf(columns, RowRange{0, rows});
}

FlatTable numbersOf(const std::vector<const Column*>& columns, RowRange range)
{
    FlatTable table(range.count, static_cast<int>(columns.size()));
    auto place = table.cells.begin();
    for (const Column* column : columns)
        place = std::copy_n(column->numbers.begin() + range.first, range.count, place);
    return table;
}

FlatTable numbersOf(const std::vector<const Column*>& columns, const std::vector<int>& rows)
{
    FlatTable table(static_cast<int>(rows.size()), static_cast<int>(columns.size()));
    auto place = table.cells.begin();
    for (const Column* column : columns)
        for (const int row : rows)
            *place++ = column->numbers[static_cast<std::size_t>(row)];
    return table;
}

std::vector<const Column*> varyingColumns(const Table& complete)
{
    std::vector<const Column*> columns = complete.ofKind(Kind::numeric);
    std::vector<double> weights = weightsOf(complete);
    std::erase_if(columns, [&](const Column* column) {
        std::vector<double> cells = column->numbers;
        const double variance = VB_V_Var(cells.data(), complete.rows, noMask, weights.data(), no, no);
        return !(variance > 0.0 && std::isfinite(variance));
    });
    return columns;
}

std::vector<double> weightsOf(const Table& table)
{
    return table.isWeighted() ? table.weights : unitWeights(table.rows);
}

std::vector<double> unitWeights(int rows)
{
    return std::vector<double>(static_cast<std::size_t>(rows), 1.0);
}

} // namespace survey
