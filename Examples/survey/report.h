// What the survey prints.
#pragma once

#include "groups.h"
#include "table.h"

#include <iosfwd>
#include <vector>

namespace survey {

/// What is described: the numeric columns of a table, by groups of rows. The last group is all rows; where that is the
/// only one there is no grouping column.
struct Subject
{
    const Table& table;
    const Column* grouping;
    std::vector<Group> groups;
};

Subject subjectOf(const Table& table, const Column* grouping);

/// All sections, in the order in which they stand here.
void printSurvey(std::ostream& out, const Subject& subject);

void printOverview(std::ostream& out, const Subject& subject);
void printMoments(std::ostream& out, const Subject& subject);
void printQuartiles(std::ostream& out, const Subject& subject);
void printThirteenQuantiles(std::ostream& out, const Subject& subject);

} // namespace survey
