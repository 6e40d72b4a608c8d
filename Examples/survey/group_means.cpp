#include "group_means.h"

#include "groups.h"
#include "number_format.h"

#include <algorithm>

namespace survey {

namespace {

/// A line for each category with the means of the columns.
void addMeans(TextTable& text, const Column& by, const std::vector<const Column*>& columns)
{
    const Categories categories = categoriesOf(by);
    if (categories.names.size() > mostListed)
        return;
    text.addGap();
    const FlatTable means = meansByCategory(numbersOf(columns, static_cast<int>(by.texts.size())), categories);
    for (int i = 0; i < means.rows; ++i) {
        const auto place = static_cast<std::size_t>(i);
        std::vector<std::string> cells = {by.name, place < categories.names.size() ? categories.names[place] : noText};
        for (int j = 0; j < means.columns; ++j)
            cells.push_back(NumberFormat(*columns[static_cast<std::size_t>(j)]).statistic(means.at(i, j)));
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
    for (const Column* by : table.ofKind(Kind::text))
        addMeans(text, *by, columns);
    if (text.empty())
        return;
    document
        .add("means", "Means by category",
             "The mean of each numeric column over the rows of each category, of the cells that aren't missing.")
        .addTable(std::move(text));
}

} // namespace survey
