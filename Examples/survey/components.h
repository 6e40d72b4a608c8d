// Section: the principal components of the numeric columns.
#pragma once

#include "document.h"
#include "flat_call.h"

#include <optional>
#include <vector>

namespace survey {

/// Of the correlations of the columns that vary. Components without variance are left out.
struct Components
{
    std::vector<const Column*> columns;
    std::vector<double> variances; ///< of the components, in descending order
    std::vector<double> percent;   ///< of the sum of all
    int telling;                   ///< so many of the first components have 80 % of the variance; five at most
    FlatTable vectors;             ///< a row for each column, unit length; the largest coefficient is positive
    FlatTable scores;              ///< a row for each row of the table

    int count() const { return static_cast<int>(variances.size()); }
};

/// None where fewer than two columns vary or there are fewer than three rows.
std::optional<Components> componentsOf(const Table& complete);

void addComponents(Document& document, const Components& components);

} // namespace survey
