#include "flat_call.h"

#include <algorithm>
#include <cmath>

namespace survey {

FlatTable numbersOf(const std::vector<const Column*>& columns, int rows)
{
    FlatTable table(rows, static_cast<int>(columns.size()));
    auto place = table.cells.begin();
    for (const Column* column : columns)
        place = std::copy(column->numbers.begin(), column->numbers.end(), place);
    return table;
}

std::vector<const Column*> varyingColumns(const Table& complete)
{
    std::vector<const Column*> columns = complete.ofKind(Kind::numeric);
    std::vector<double> weights = unitWeights(complete.rows);
    std::erase_if(columns, [&](const Column* column) {
        std::vector<double> cells = column->numbers;
        const double variance = VB_V_Var(cells.data(), complete.rows, noMask, weights.data(), no, no);
        return !(variance > 0.0 && std::isfinite(variance));
    });
    return columns;
}

std::vector<double> unitWeights(int rows)
{
    return std::vector<double>(static_cast<std::size_t>(rows), 1.0);
}

} // namespace survey
