#include "report.h"

#include "biplot.h"
#include "categories.h"
#include "completion.h"
#include "components.h"
#include "correlations.h"
#include "group_means.h"
#include "letter_groups.h"
#include "missing_cells.h"
#include "number_format.h"
#include "page.h"
#include "regression.h"
#include "sample.h"
#include "statistics.h"
#include "text_table.h"

#include <filesystem>
#include <functional>
#include <ostream>
#include <span>
#include <string>
#include <utility>

namespace survey {

namespace {

std::string groupingHeading(const Subject& subject)
{
    return subject.grouping == nullptr ? "rows" : subject.grouping->name;
}

/// A table of one line for each numeric column and group. The cells of a line come from the format of the column and
/// the cells of the group.
void printByGroup(std::ostream& out, const Subject& subject, const std::vector<TextTable::Column>& headings,
                  const std::function<std::vector<std::string>(const NumberFormat&, std::vector<double>)>& line)
{
    std::vector<TextTable::Column> columns = {{"column", Align::left}, {groupingHeading(subject), Align::left}};
    columns.insert(columns.end(), headings.begin(), headings.end());
    TextTable text(std::move(columns), 2);
    for (const Column* column : subject.table.ofKind(Kind::numeric)) {
        text.addGap();
        const NumberFormat format(*column);
        std::string name = column->name; // told once, on the first line
        for (const Group& group : subject.groups) {
            std::vector<std::string> cells = {std::exchange(name, ""), group.name};
            for (std::string& cell : line(format, cellsOf(*column, group)))
                cells.push_back(std::move(cell));
            text.addRow(std::move(cells));
        }
    }
    text.print(out, lineWidth);
}

std::vector<std::string> namesOf(const std::vector<const Column*>& columns)
{
    std::vector<std::string> names;
    names.reserve(columns.size());
    for (const Column* column : columns)
        names.push_back(listed(column->name));
    return names;
}

std::vector<std::string> namesAndSizesOf(std::span<const Group> groups)
{
    if (groups.size() > mostListed)
        return {std::to_string(groups.size()) + " groups"};
    std::vector<std::string> names;
    for (const Group& group : groups)
        names.push_back(listed(group.name) + " (" + std::to_string(group.rows.size()) + ")");
    return names;
}

} // namespace

void printSurvey(std::ostream& out, const Subject& subject)
{
    const Table& table = subject.table;
    const MissingCells missing = missingCellsOf(table);
    const Completion completion = completed(table, missing);
    printOverview(out, subject);
    printMissingCells(out, table, missing);
    printMoments(out, subject);
    printQuartiles(out, subject);
    printThirteenQuantiles(out, subject);
    printCategories(out, table);
    printGroupMeans(out, table);
    printCorrelations(out, table);
    printCompletion(out, table, completion);
    if (const auto components = componentsOf(completion.table)) {
        printComponents(out, *components);
        printBiplot(out, *components, subject);
    }
    if (const auto regression = regressionOf(completion.table))
        printRegression(out, *regression);
    printLetterGroups(out, subject);
    printSample(out, subject);
}

void printOverview(std::ostream& out, const Subject& subject)
{
    const Table& table = subject.table;
    const std::string file = std::filesystem::path(table.file).filename().string();
    out << file << ": " << counted(static_cast<std::size_t>(table.rows), "row") << ", "
        << counted(table.columns.size(), "column") << "\n\n";
    printList(out, "  numeric     ", namesOf(table.ofKind(Kind::numeric)));
    printList(out, "  text        ", namesOf(table.ofKind(Kind::text)));
    printList(out, "  empty       ", namesOf(table.ofKind(Kind::empty)));
    if (subject.grouping != nullptr)
        printList(out, "  grouped by  " + onOneLine(subject.grouping->name) + ": ",
                  namesAndSizesOf(subject.groupsOfColumn()));
    out << "\n\n";
}

void printMoments(std::ostream& out, const Subject& subject)
{
    constexpr int shapeDecimals = 3; // skewness and kurtosis have no unit
    printTitle(out, "Moments");
    printByGroup(out, subject,
                 {{"count", Align::right},
                  {"missing", Align::right},
                  {"minimum", Align::point},
                  {"maximum", Align::point},
                  {"mean", Align::point},
                  {"std dev", Align::point},
                  {"skewness", Align::point},
                  {"kurtosis", Align::point}},
                 [](const NumberFormat& format, std::vector<double> cells) {
                     const Moments moments = momentsOf(std::move(cells));
                     return std::vector<std::string>{std::to_string(moments.count),
                                                     std::to_string(moments.missing),
                                                     format.cell(moments.minimum),
                                                     format.cell(moments.maximum),
                                                     format.statistic(moments.mean),
                                                     format.statistic(moments.standardDeviation),
                                                     withDecimals(moments.skewness, shapeDecimals),
                                                     withDecimals(moments.kurtosis, shapeDecimals)};
                 });
    printNote(out, "Standard deviation with divisor n - 1. Skewness and excess kurtosis in the sample forms G1 and G2, "
                   "0 for a normal distribution. A dash stands where the cells are too few or all equal.");
}

void printQuartiles(std::ostream& out, const Subject& subject)
{
    printTitle(out, "Median and quartiles");
    printByGroup(
        out, subject, {{"lower quartile", Align::point}, {"median", Align::point}, {"upper quartile", Align::point}},
        [](const NumberFormat& format, std::vector<double> cells) {
            const Quartiles quartiles = quartilesOf(std::move(cells));
            return std::vector<std::string>{format.statistic(quartiles.lower), format.statistic(quartiles.median),
                                            format.statistic(quartiles.upper)};
        });
    printNote(out, "Of the n cells that aren't missing, interpolated at position 1 + (n - 1)p.");
}

void printThirteenQuantiles(std::ostream& out, const Subject& subject)
{
    printTitle(out, "Thirteen quantiles");
    std::vector<TextTable::Column> columns = {{"column", Align::left}, {"p", Align::right}};
    for (const Group& group : subject.groups)
        columns.push_back({group.name, Align::point});
    TextTable text(std::move(columns), 2);
    for (const Column* column : subject.table.ofKind(Kind::numeric)) {
        text.addGap();
        const NumberFormat format(*column);
        std::vector<std::array<double, 13>> quantiles;
        for (const Group& group : subject.groups)
            quantiles.push_back(thirteenQuantilesOf(cellsOf(*column, group)));
        for (std::size_t k = 0; k < thirteenPercentages.size(); ++k) {
            std::vector<std::string> cells = {k == 0 ? column->name : "",
                                              std::to_string(thirteenPercentages[k]) + " %"};
            for (const auto& ofGroup : quantiles)
                cells.push_back(format.statistic(ofGroup[k]));
            text.addRow(std::move(cells));
        }
    }
    text.print(out, lineWidth);
    printNote(out, "Interpolated at position 1/2 + (n - 1)p up to the median and 1 + (n - 1)p above it, so that the "
                   "lower ones lie up to half a place below those of the other rule.");
}

} // namespace survey
