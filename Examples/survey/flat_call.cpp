#include "flat_call.h"

#include <algorithm>

namespace survey {

FlatTable numbersOf(const std::vector<const Column*>& columns, int rows)
{
    FlatTable table(rows, static_cast<int>(columns.size()));
    auto place = table.cells.begin();
    for (const Column* column : columns)
        place = std::copy(column->numbers.begin(), column->numbers.end(), place);
    return table;
}

std::vector<double> unitWeights(int rows)
{
    return std::vector<double>(static_cast<std::size_t>(rows), 1.0);
}

} // namespace survey
