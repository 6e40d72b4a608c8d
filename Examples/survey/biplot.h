// Section: a map of columns and rows on the first two principal components.
#pragma once

#include "components.h"
#include "document.h"
#include "subject.h"

#include <span>

namespace survey {

/// Coordinates on the first two components, or on the only one. The product of a row's and a column's coordinates,
/// summed, is the standardised cell as far as these components tell it. Those of a column are its correlations with the
/// components, those of the rows have variance 1.
struct Biplot
{
    FlatTable columns;
    FlatTable rows;
    FlatTable groups; ///< the means of the rows in each group
};

/// `groups` without that of all rows.
Biplot biplotOf(const Components& components, std::span<const Group> groups, const Table& table);

void addBiplot(Document& document, const Components& components, const Subject& subject);

} // namespace survey
