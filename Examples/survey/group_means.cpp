#include "group_means.h"

#include "groups.h"
#include "number_format.h"

#include <algorithm>

namespace survey {

namespace {

/// The same as `meansByCategory` has, with weights: what the library has for groups takes those of other rows.
FlatTable weightedMeans(const Table& table, const Column& by, const std::vector<const Column*>& columns)
{
    const std::vector<Group> groups = groupsBy(by);
    FlatTable means(static_cast<int>(groups.size()), static_cast<int>(columns.size()));
    for (int i = 0; i < means.rows; ++i)
        for (int j = 0; j < means.columns; ++j) {
            const Group& group = groups[static_cast<std::size_t>(i)];
            std::vector<double> cells = cellsOf(*columns[static_cast<std::size_t>(j)], group);
            std::vector<double> weights = weightsOf(table, group);
            means.at(i, j) = VB_V_Mean(cells.data(), static_cast<int>(cells.size()), noMask, weights.data());
        }
    return means;
}

/// A line for each category with the means of the columns.
void addMeans(TextTable& text, const Table& table, const Column& by, const std::vector<const Column*>& columns,
              const std::vector<NumberFormat>& formats)
{
    const Categories categories = categoriesOf(by);
    if (categories.names.size() > mostListed)
        return;
    text.addGap();
    const FlatTable means = table.isWeighted() ? weightedMeans(table, by, columns)
                                               : meansByCategory(numbersOf(columns, table.rows), categories);
    for (int i = 0; i < means.rows; ++i) {
        const auto place = static_cast<std::size_t>(i);
        std::vector<std::string> cells = {by.name, place < categories.names.size() ? categories.names[place] : noText};
        for (int j = 0; j < means.columns; ++j)
            cells.push_back(formats[static_cast<std::size_t>(j)].statistic(means.at(i, j)));
        text.addRow(std::move(cells));
    }
}

} // namespace

FlatTable meansByCategory(const FlatTable& numbers, const Categories& categories)
{
    constexpr int mean = 1; // among the aggregates of the library
    FlatTable data(numbers.rows, numbers.columns + 1);
    std::copy(categories.codes.begin(), categories.codes.end(), data.cells.begin());
    std::copy(numbers.cells.begin(), numbers.cells.end(), data.cells.begin() + numbers.rows);
    std::vector<int> allNumeric(static_cast<std::size_t>(data.columns), 0);
    FlatTable grouped(data.rows, data.columns);
    int groups;
    VB_M_GroupBy(data.data(), data.rows, data.columns, allNumeric.data(), 1, mean, &groups, grouped.data());

    // Groups come by their codes, so that the missing one stands first.
    const int first = categories.missing > 0 ? 1 : 0;
    FlatTable means(groups, numbers.columns);
    for (int i = 0; i < groups; ++i)
        for (int j = 0; j < means.columns; ++j)
            means.at(i, j) = grouped.at((i + first) % groups, j + 1);
    return means;
}

void addGroupMeans(Document& document, const Table& table)
{
    const std::vector<const Column*> columns = table.ofKind(Kind::numeric);
    std::vector<TextTable::Column> headings = {{"column", Align::left}, {"category", Align::left}};
    for (const Column* column : columns)
        headings.push_back({column->name, Align::point});
    TextTable text(std::move(headings), 2);
    std::vector<NumberFormat> formats;
    for (const Column* column : columns)
        formats.emplace_back(*column);
    for (const Column* by : table.ofKind(Kind::text))
        addMeans(text, table, *by, columns, formats);
    if (text.empty())
        return;
    document
        .add("means", "Means by category",
             "The mean of each numeric column over the rows of each category, of the cells that aren't missing.")
        .addTable(std::move(text));
}

} // namespace survey
