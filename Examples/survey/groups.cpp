#include "groups.h"

#include <numeric>
#include <unordered_map>
#include <utility>

namespace survey {

std::vector<Group> groupsBy(const Column& column)
{
    std::vector<Group> groups;
    Group without{noText, {}};
    std::unordered_map<std::string, std::size_t> places;
    for (std::size_t i = 0; i < column.texts.size(); ++i) {
        const std::string& text = column.texts[i];
        const int row = static_cast<int>(i);
        if (text.empty()) {
            without.rows.push_back(row);
            continue;
        }
        const auto [place, isNew] = places.emplace(text, groups.size());
        if (isNew)
            groups.push_back({text, {}});
        groups[place->second].rows.push_back(row);
    }
    if (!without.rows.empty())
        groups.push_back(std::move(without));
    return groups;
}

Group allRows(const Table& table)
{
    Group group{"all", std::vector<int>(static_cast<std::size_t>(table.rows))};
    std::iota(group.rows.begin(), group.rows.end(), 0);
    return group;
}

std::vector<double> cellsOf(const Column& column, const Group& group)
{
    std::vector<double> cells;
    cells.reserve(group.rows.size());
    for (const int row : group.rows)
        cells.push_back(column.numbers[static_cast<std::size_t>(row)]);
    return cells;
}

} // namespace survey
