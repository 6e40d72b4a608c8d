// Section: which group means lie apart.
#pragma once

#include "comparisons.h"
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

/// The means of some groups, and letters for them, from A at the lowest: means that share one do not lie apart. Two lie
/// apart where the corrected p of their comparison is below `significance`. No letters where the groups can't be
/// compared.
std::vector<LetterGroup> letterGroupsOf(const std::vector<Moments>& groups, Correction correction);

void addLetterGroups(Document& document, const Subject& subject, Correction correction = Correction::holm);

} // namespace survey
