// Section: which group means lie apart.
#pragma once

#include "document.h"
#include "subject.h"

#include <string>
#include <vector>

namespace survey {

struct LetterGroup
{
    double mean; ///< the missing value where every cell is
    std::string
        letters; ///< a place for each letter in use, blank where the group doesn't have it; empty without a mean
};

/// The means of some groups of cells, and letters for them, from A at the lowest: means that share one do not lie apart.
/// Two lie apart where their difference is above twice its standard error, from the variance within all the groups. No
/// letters where fewer than two groups have a mean, or no variance within them can be told.
std::vector<LetterGroup> letterGroupsOf(const std::vector<std::vector<double>>& groups);

void addLetterGroups(Document& document, const Subject& subject);

} // namespace survey
