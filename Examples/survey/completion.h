// Section: the missing cells filled from the most similar rows.
#pragma once

#include "document.h"
#include "missing_cells.h"
#include "table.h"

#include <vector>

namespace survey {

/// Where a cell stands, both from 0.
struct CellPlace
{
    int row;
    int column;
};

struct Completion
{
    Table table; ///< without missing cells, but for columns that are empty altogether
    std::vector<CellPlace> filled;
};

/// Each missing cell takes the value of the nearest complete row; of equally near ones the first. As the library has it,
/// row number j is never taken for column number j of its kind. Where there is no such row it takes the mean of the
/// column, or its most frequent text.
Completion completed(const Table& table, const MissingCells& missing);

/// A line for each of the first cells that were filled; nothing where none was missing.
void addCompletion(Document& document, const Table& table, const Completion& completion);

} // namespace survey
