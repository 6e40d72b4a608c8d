// Section: the means of the groups compared with each other.
#pragma once

#include "document.h"
#include "inference.h"
#include "statistics.h"
#include "subject.h"

#include <optional>
#include <vector>

namespace survey {

/// Of two groups, by their places. The variance is that within all groups.
struct Comparison
{
    std::size_t first;
    std::size_t second;
    double difference; ///< of the second mean less the first
    double standardError;
    double p;
    double correctedP;
};

struct Comparisons
{
    std::vector<Comparison> pairs; ///< by the second group, then by the first
    int freedom;                   ///< of the variance within the groups
    int groups;                    ///< with a mean
    double f;                      ///< the variance between the groups over that within them
    double p;                      ///< of f
};

/// None where fewer than two groups have a mean, or no variance within them can be told. Groups without a mean are in no
/// pair. A group weighs as much as its rows together.
std::optional<Comparisons> comparisonsOf(const std::vector<Moments>& groups, Correction correction);

/// Of a column's groups.
std::vector<Moments> momentsByGroup(const Subject& subject, const Column& column);

/// Nothing where there are fewer than two groups, or too many to compare each with each.
void addComparisons(Document& document, const Subject& subject, Correction correction = Correction::holm);

} // namespace survey
