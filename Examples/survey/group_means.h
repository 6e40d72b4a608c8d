// Section: means of the numeric columns in each category of the text columns.
#pragma once

#include "categories.h"
#include "document.h"
#include "flat_call.h"

namespace survey {

/// The mean of each column in each category, one row for each, and behind them one for the rows without a category, if
/// there are any. Missing cells are left out; a mean of none is the missing value.
FlatTable meansByCategory(const FlatTable& numbers, const Categories& categories);

void addGroupMeans(Document& document, const Table& table);

} // namespace survey
