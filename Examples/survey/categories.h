// Section: the categories of the text columns, with their counts.
#pragma once

#include "document.h"
#include "table.h"

#include <string>
#include <vector>

namespace survey {

/// What a text column holds, in the order of first appearance.
struct Categories
{
    std::vector<std::string> names;
    std::vector<int> counts;
    std::vector<double> weights; ///< of the rows of each; the counts where rows have none
    int missing;                 ///< rows without a text
    std::vector<double> codes;   ///< of the rows: places in `names`, from 1, and the missing value
};

Categories categoriesOf(const Column& column, const std::vector<double>& weights = {});

void addCategories(Document& document, const Table& table);

} // namespace survey
