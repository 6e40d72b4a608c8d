#include "groups.h"

#include <numeric>
#include <unordered_map>
#include <utility>

namespace survey {

namespace {

std::vector<double> ofRows(const std::vector<double>& numbers, const Group& group)
{
    std::vector<double> chosen;
    chosen.reserve(group.rows.size());
    for (const int row : group.rows)
        chosen.push_back(numbers[static_cast<std::size_t>(row)]);
    return chosen;
}

} // namespace

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
    return ofRows(column.numbers, group);
}

std::vector<double> weightsOf(const Table& table, const Group& group)
{
    return table.isWeighted() ? ofRows(table.weights, group) : std::vector<double>();
}

} // namespace survey
