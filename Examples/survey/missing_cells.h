// Section: how many cells are missing, by column and by row.
#pragma once

#include "document.h"
#include "table.h"

#include <vector>

namespace survey {

struct MissingCells
{
    std::vector<int> byColumn; ///< one count for each column of the table
    std::vector<int> byRow;    ///< without the cells of columns that are empty altogether
};

MissingCells missingCellsOf(const Table& table);

void addMissingCells(Document& document, const Table& table, const MissingCells& missing);

} // namespace survey
