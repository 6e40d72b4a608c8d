// Sections: the distribution of each numeric column, in every group and in all rows.
#pragma once

#include "document.h"
#include "statistics.h"
#include "subject.h"

#include <vector>

namespace survey {

/// Of each numeric column, in each group.
using QuantileTable = std::vector<std::vector<Quantiles>>;
QuantileTable quantilesOf(const Subject& subject);

void addMoments(Document& document, const Subject& subject);
void addQuartiles(Document& document, const Subject& subject, const QuantileTable& quantiles);
void addThirteenQuantiles(Document& document, const Subject& subject, const QuantileTable& quantiles);

/// "Listed are the first 10 of 200 groups.", where they aren't all.
std::string groupsLeftOut(const Subject& subject);

/// Is a group one of those listed? All rows are.
bool isListed(const Subject& subject, std::size_t group);

} // namespace survey
