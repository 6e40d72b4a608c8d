// What is described: a table, by groups of its rows.
#pragma once

#include "groups.h"
#include "table.h"

#include <span>
#include <vector>

namespace survey {

/// The last group is all rows; where that is the only one there is no grouping column.
struct Subject
{
    const Table& table;
    const Column* grouping;
    std::vector<Group> groups;

    std::span<const Group> groupsOfColumn() const { return std::span(groups).first(groups.size() - 1); }
};

Subject subjectOf(const Table& table, const Column* grouping);

} // namespace survey
