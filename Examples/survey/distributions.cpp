#include "distributions.h"

#include "number_format.h"
#include "statistics.h"

#include <functional>
#include <string>
#include <utility>

namespace survey {

namespace {

std::string groupingHeading(const Subject& subject)
{
    return subject.grouping == nullptr ? "rows" : subject.grouping->name;
}

std::string byGroup(const Subject& subject)
{
    return subject.grouping == nullptr ? "" : ", by " + onOneLine(subject.grouping->name);
}

/// A table of one line for each numeric column and group. The cells of a line come from the format of the column and
/// the cells of the group.
TextTable tableByGroup(const Subject& subject, const std::vector<TextTable::Column>& headings,
                       const std::function<std::vector<std::string>(const NumberFormat&, std::vector<double>)>& line)
{
    std::vector<TextTable::Column> columns = {{"column", Align::left}, {groupingHeading(subject), Align::left}};
    columns.insert(columns.end(), headings.begin(), headings.end());
    TextTable text(std::move(columns), 2);
    for (const Column* column : subject.table.ofKind(Kind::numeric)) {
        text.addGap();
        const NumberFormat format(*column);
        for (const Group& group : subject.groups) {
            std::vector<std::string> cells = {column->name, group.name};
            for (std::string& cell : line(format, cellsOf(*column, group)))
                cells.push_back(std::move(cell));
            text.addRow(std::move(cells));
        }
    }
    return text;
}

} // namespace

void addMoments(Document& document, const Subject& subject)
{
    constexpr int shapeDecimals = 3; // skewness and kurtosis have no unit
    Section& section = document.add("moments", "Moments",
                                    "Location, spread and shape of each numeric column" + byGroup(subject) + ".");
    section.addTable(tableByGroup(subject,
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
                                  }));
    section.note = "The standard deviation has the divisor n - 1. Skewness and excess kurtosis are the sample forms G1 "
                   "and G2, 0 for a normal distribution. A dash stands where the cells are too few or all equal.";
}

void addQuartiles(Document& document, const Subject& subject)
{
    Section& section =
        document.add("quartiles", "Median and quartiles",
                     "Half of the cells lie between the quartiles, and half on either side of the median.");
    section.addTable(tableByGroup(
        subject, {{"lower quartile", Align::point}, {"median", Align::point}, {"upper quartile", Align::point}},
        [](const NumberFormat& format, std::vector<double> cells) {
            const Quartiles quartiles = quartilesOf(std::move(cells));
            return std::vector<std::string>{format.statistic(quartiles.lower), format.statistic(quartiles.median),
                                            format.statistic(quartiles.upper)};
        }));
    section.note = "Interpolated between the sorted cells at position 1 + (n - 1)p; n is the number of cells that "
                   "aren't missing.";
}

void addThirteenQuantiles(Document& document, const Subject& subject)
{
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
            std::vector<std::string> cells = {column->name, std::to_string(thirteenPercentages[k]) + " %"};
            for (const auto& ofGroup : quantiles)
                cells.push_back(format.statistic(ofGroup[k]));
            text.addRow(std::move(cells));
        }
    }
    Section& section = document.add("quantiles", "Thirteen quantiles",
                                    "The whole distribution at a glance: p of the cells lie below the quantile.");
    section.addTable(std::move(text));
    section.note = "Interpolated at position 1/2 + (n - 1)p up to the median and 1 + (n - 1)p above it, so that the "
                   "lower ones lie up to half a place below those of the other rule.";
}

} // namespace survey
