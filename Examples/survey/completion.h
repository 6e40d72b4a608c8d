// Section: the missing cells filled from the most similar rows.
#pragma once

#include "document.h"
#include "missing_cells.h"
#include "progress.h"
#include "subject.h"

#include <vector>

namespace survey {

/// Where a cell stands, both from 0.
struct CellPlace
{
    int row;
    int column;
};

/// Up to so many rows of a table each complete row may be the nearest; of more, some are drawn.
inline constexpr int mostRowsSearched = 10000;
inline constexpr int donorsDrawn = 1000;

struct Completion
{
    Table table; ///< without missing cells, but for columns that are empty altogether
    std::vector<CellPlace> filled;
    int donors = 0; ///< the complete rows that were drawn to be searched; 0 where all were
};

/// Each missing cell takes the value of the nearest complete row; of equally near ones the first. As the library has it,
/// row number j is never taken for column number j of its kind. Where there is no such row it takes the mean of the
/// column, or its most frequent text.
///
/// Searching all rows for each takes time by the square of their number. Of a table with more rows than
/// `mostRowsSearched`, `donorsDrawn` complete rows are drawn, from each group in proportion to its size, and these alone
/// are searched; the variances by which differences are divided, the means and the most frequent texts are theirs. Where
/// no row is complete, all rows give the means and texts.
Completion completed(const Subject& subject, const MissingCells& missing, int seed = 1, const Progress& progress = {});

/// A line for each of the first cells that were filled; nothing where none was missing.
void addCompletion(Document& document, const Table& table, const Completion& completion);

} // namespace survey
