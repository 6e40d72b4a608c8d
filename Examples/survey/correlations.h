// Section: the correlation of each two numeric columns.
#pragma once

#include "document.h"
#include "table.h"

#include <vector>

namespace survey {

/// Pearson's, over the rows in which neither of two cells is missing: the missing value where one of the columns doesn't
/// vary in them.
struct Correlation
{
    double coefficient;
    int count; ///< of those rows
};

Correlation correlationOf(const Column& x, const Column& y, const std::vector<double>& weights = {});

/// Nothing where there is only one numeric column.
void addCorrelations(Document& document, const Table& table);

} // namespace survey
