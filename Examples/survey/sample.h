// Section: some rows of each group, drawn at random.
#pragma once

#include "document.h"
#include "subject.h"

#include <span>
#include <vector>

namespace survey {

/// Parts of `total` in proportion to sizes whose sum is not below it: each what is due to it rounded down, and one more
/// for those of which most was cut off, the first of equals.
std::vector<int> shares(int total, const std::vector<int>& sizes);

/// `count` rows (from 0), from each group in proportion to its size; group by group, in the order of the rows. The
/// groups have so many rows at least, and none in common. The seed decides which rows.
std::vector<int> stratifiedSample(std::span<const Group> groups, int count, int seed);

/// Nothing without a grouping column, or where the table is no larger than the sample.
void addSample(Document& document, const Subject& subject, int seed = 1);

} // namespace survey
