// The rows of a table that belong together.
#pragma once

#include "table.h"

#include <string>
#include <vector>

namespace survey {

struct Group
{
    std::string name;
    std::vector<int> rows; ///< from 0
};

/// What stands for the rows without a text.
inline constexpr const char* noText = "(none)";

/// The rows with the same text in the column, in the order in which the texts first appear; those without a text come
/// last, as `noText`.
std::vector<Group> groupsBy(const Column& column);

/// All rows as one group, "all".
Group allRows(const Table& table);

/// The cells of a group in a numeric column, with the missing ones.
std::vector<double> cellsOf(const Column& column, const Group& group);

/// The weights of a group's rows; empty where the table has none.
std::vector<double> weightsOf(const Table& table, const Group& group);

} // namespace survey
