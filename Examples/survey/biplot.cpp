#include "biplot.h"

#include "number_format.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace survey {

namespace {

/// The vectors of the components as long as the components' standard deviations: correlations with the columns.
FlatTable correlationsWithColumns(const Components& components, int axes)
{
    FlatTable result = components.vectors;
    result.keepColumns(axes);
    for (int k = 0; k < axes; ++k)
        for (int j = 0; j < result.rows; ++j)
            result.at(j, k) *= std::sqrt(components.variances[static_cast<std::size_t>(k)]);
    return result;
}

FlatTable meanScores(FlatTable& scores, std::span<const Group> groups, const Table& table)
{
    FlatTable means(static_cast<int>(groups.size()), scores.columns);
    for (int i = 0; i < means.rows; ++i)
        for (int k = 0; k < means.columns; ++k) {
            const Group& group = groups[static_cast<std::size_t>(i)];
            std::vector<double> ofGroup;
            for (const int row : group.rows)
                ofGroup.push_back(scores.at(row, k));
            std::vector<double> weights = weightsOf(table, group);
            const int n = static_cast<int>(ofGroup.size());
            means.at(i, k) =
                weights.empty() ? VB_V_Mean2(ofGroup.data(), n) : VB_V_Mean(ofGroup.data(), n, noMask, weights.data());
        }
    return means;
}

/// Rows `first` to `first + count - 1` of a table.
FlatTable part(const FlatTable& table, int first, int count)
{
    FlatTable result(count, table.columns);
    for (int k = 0; k < table.columns; ++k)
        for (int i = 0; i < count; ++i)
            result.at(i, k) = table.at(first + i, k);
    return result;
}

void addPoint(TextTable& text, const std::string& kind, const std::string& name, const FlatTable& points, int place)
{
    std::vector<std::string> cells = {kind, name};
    for (int k = 0; k < points.columns; ++k)
        cells.push_back(withDecimals(points.at(place, k), 3));
    text.addRow(std::move(cells));
}

bool areListed(const FlatTable& rows)
{
    return static_cast<std::size_t>(rows.rows) <= mostListed;
}

void addRows(TextTable& text, FlatTable rows)
{
    text.addGap();
    if (areListed(rows)) {
        for (int i = 0; i < rows.rows; ++i)
            addPoint(text, "row", std::to_string(i + 1), rows, i);
        return;
    }
    double distance;
    int farthest;
    Cpp_M_GetMaxDistToOrigin(rows.data(), rows.rows, rows.columns, &distance, &farthest);
    addPoint(text, "row farthest out", std::to_string(farthest), rows, farthest - 1);
}

std::string inShort(const Components& components, const Biplot& biplot)
{
    if (biplot.rows.columns == 1)
        return "The columns and the rows along the only component.";
    return "The columns and the rows on a map of the first two components, with " +
           percentage(components.percent[0] + components.percent[1], 100.0) + " of the variance.";
}

DataTable pointsOf(const std::string& name, const FlatTable& points, const std::vector<std::string>& names)
{
    DataTable data{name, {{"name", "component_1", "component_2"}}};
    for (int i = 0; i < points.rows; ++i)
        data.records.push_back(
            {names[static_cast<std::size_t>(i)], withAllDigits(points.at(i, 0)), withAllDigits(points.at(i, 1))});
    return data;
}

/// The rows, the columns and the means of the groups as points on the first two components.
Picture pictureOf(const Biplot& biplot, const Components& components, std::span<const Group> groups)
{
    std::vector<std::string> columnNames;
    for (const Column* column : components.columns)
        columnNames.push_back(column->name);
    std::vector<std::string> groupNames;
    std::vector<const std::string*> groupOfRow(static_cast<std::size_t>(biplot.rows.rows));
    for (const Group& group : groups) {
        groupNames.push_back(group.name);
        for (const int row : group.rows)
            groupOfRow[static_cast<std::size_t>(row)] = &group.name;
    }
    DataTable rows{"biplot_rows", {{"name", "component_1", "component_2"}}};
    if (!groups.empty())
        rows.records.front().emplace_back("group");
    for (int i = 0; i < biplot.rows.rows; i += thinning(biplot.rows.rows)) {
        rows.records.push_back(
            {std::to_string(i + 1), withAllDigits(biplot.rows.at(i, 0)), withAllDigits(biplot.rows.at(i, 1))});
        if (!groups.empty())
            rows.records.back().push_back(*groupOfRow[static_cast<std::size_t>(i)]);
    }
    return {"biplot",
            {pointsOf("biplot_columns", biplot.columns, columnNames),
             pointsOf("biplot_groups", biplot.groups, groupNames), std::move(rows)}};
}

} // namespace

Biplot biplotOf(const Components& components, std::span<const Group> groups, const Table& table)
{
    const int axes = std::min(2, components.count());
    FlatTable scores = components.scores;
    scores.keepColumns(axes);
    FlatTable centres = meanScores(scores, groups, table);
    FlatTable vectors = correlationsWithColumns(components, axes);
    std::vector<double> variances = components.variances;

    constexpr double unscaled = 1.0;
    constexpr double columnsAsTheyAre = 0.0; // and the rows brought to variance 1
    FlatTable points(scores.rows + centres.rows, axes);
    FlatTable columns(vectors.rows, axes);
    VB_BiplotTransData(scores.data(), centres.data(), vectors.data(), scores.rows, centres.rows, vectors.rows, axes,
                       variances.data(), unscaled, columnsAsTheyAre, points.data(), columns.data());
    return {std::move(columns), part(points, 0, scores.rows), part(points, scores.rows, centres.rows)};
}

void addBiplot(Document& document, const Components& components, const Subject& subject)
{
    std::span<const Group> groups = subject.groupsOfColumn();
    if (groups.size() > mostListed)
        groups = {};
    const Biplot biplot = biplotOf(components, groups, subject.table);
    std::vector<TextTable::Column> headings = {{"kind", Align::left}, {"point", Align::left}};
    for (int k = 1; k <= biplot.rows.columns; ++k)
        headings.push_back({"component " + std::to_string(k), Align::point});
    TextTable text(std::move(headings), 2);
    for (int j = 0; j < biplot.columns.rows; ++j)
        addPoint(text, "column", components.columns[static_cast<std::size_t>(j)]->name, biplot.columns, j);
    if (!groups.empty())
        text.addGap();
    for (int i = 0; i < biplot.groups.rows; ++i)
        addPoint(text, "mean of " + subject.grouping->name, groups[static_cast<std::size_t>(i)].name, biplot.groups, i);
    addRows(text, biplot.rows);
    Section& section = document.add("biplot", "Biplot", inShort(components, biplot));
    section.addTable(std::move(text));
    if (biplot.rows.columns > 1)
        section.pictures.push_back(pictureOf(biplot, components, groups));
    section.note = "The coordinates of a column are its correlations with the components; those of the rows are scores "
                   "of variance 1.";
    if (!areListed(biplot.rows))
        section.note += " The row farthest out gives the size of the map.";
}

} // namespace survey
