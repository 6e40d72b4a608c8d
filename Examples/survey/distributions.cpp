#include "distributions.h"

#include "histogram.h"
#include "number_format.h"

#include <functional>
#include <string>
#include <utility>

namespace survey {

namespace {

using Cells = std::vector<std::string>;

std::string groupingHeading(const Subject& subject)
{
    return subject.grouping == nullptr ? "rows" : subject.grouping->name;
}

std::string byGroup(const Subject& subject)
{
    return subject.grouping == nullptr ? "" : ", by " + onOneLine(subject.grouping->name);
}

bool isCut(const Subject& subject)
{
    return subject.groupsOfColumn().size() > mostListed;
}

Cells headingsOf(const TextTable& text)
{
    Cells headings;
    for (const TextTable::Column& column : text.columns())
        headings.push_back(column.heading);
    return headings;
}

/// Adds a table of one line for each numeric column and group. `line` gives the cells of a line from the format of the
/// column, its number and that of the group.
void addTableByGroup(Section& section, const Subject& subject, const std::vector<TextTable::Column>& headings,
                     const std::function<Cells(const NumberFormat&, std::size_t, std::size_t)>& line)
{
    std::vector<TextTable::Column> columns = {{"column", Align::left}, {groupingHeading(subject), Align::left}};
    columns.insert(columns.end(), headings.begin(), headings.end());
    TextTable text(std::move(columns), 2);
    std::vector<Cells> all = {headingsOf(text)};
    const std::vector<const Column*> numeric = subject.table.ofKind(Kind::numeric);
    for (std::size_t j = 0; j < numeric.size(); ++j) {
        text.addGap();
        const NumberFormat format(*numeric[j]);
        for (std::size_t k = 0; k < subject.groups.size(); ++k) {
            Cells cells = {numeric[j]->name, subject.groups[k].name};
            for (std::string& cell : line(format, j, k))
                cells.push_back(std::move(cell));
            if (isCut(subject))
                all.push_back(cells);
            if (isListed(subject, k))
                text.addRow(std::move(cells));
        }
    }
    if (isCut(subject))
        section.addTable(section.name, std::move(text), std::move(all));
    else
        section.addTable(std::move(text));
}

/// What stands below the tables of quantiles: one rule for all of them.
std::string quantileRule(const Subject& subject)
{
    return subject.table.isWeighted()
               ? "The cell at which the weights of the sorted cells come to be above p of their total."
               : "Interpolated between the sorted cells at position 1 + (n - 1)p; n is the number of cells that aren't "
                 "missing.";
}

} // namespace

bool isListed(const Subject& subject, std::size_t group)
{
    return !isCut(subject) || group < listedOfMany || group + 1 == subject.groups.size();
}

std::string groupsLeftOut(const Subject& subject)
{
    return isCut(subject) ? " Listed are the first " + std::to_string(listedOfMany) + " of " +
                                counted(subject.groupsOfColumn().size(), "group") + " and all rows."
                          : "";
}

QuantileTable quantilesOf(const Subject& subject)
{
    QuantileTable quantiles;
    for (const Column* column : subject.table.ofKind(Kind::numeric)) {
        quantiles.emplace_back();
        for (const Group& group : subject.groups)
            quantiles.back().push_back(quantilesOf(cellsOf(*column, group), weightsOf(subject.table, group)));
    }
    return quantiles;
}

void addMoments(Document& document, const Subject& subject)
{
    constexpr int shapeDecimals = 3; // skewness and kurtosis have no unit
    Section& section = document.add("moments", "Moments",
                                    "Location, spread and shape of each numeric column" + byGroup(subject) + ".");
    const std::vector<const Column*> numeric = subject.table.ofKind(Kind::numeric);
    addTableByGroup(section, subject,
                    {{"count", Align::right},
                     {"missing", Align::right},
                     {"minimum", Align::point},
                     {"maximum", Align::point},
                     {"mean", Align::point},
                     {"std dev", Align::point},
                     {"skewness", Align::point},
                     {"kurtosis", Align::point}},
                    [&](const NumberFormat& format, std::size_t j, std::size_t k) {
                        const Group& group = subject.groups[k];
                        const Moments moments = momentsOf(cellsOf(*numeric[j], group), weightsOf(subject.table, group));
                        return Cells{std::to_string(moments.count),
                                     std::to_string(moments.missing),
                                     format.cell(moments.minimum),
                                     format.cell(moments.maximum),
                                     format.statistic(moments.mean),
                                     format.statistic(moments.standardDeviation),
                                     withDecimals(moments.skewness, shapeDecimals),
                                     withDecimals(moments.kurtosis, shapeDecimals)};
                    });
    section.note = std::string("The standard deviation has the divisor ") +
                   (subject.table.isWeighted() ? "W - W/n, W being the sum of the weights" : "n - 1") +
                   ". Skewness and excess kurtosis are the sample forms G1 and G2, 0 for a normal distribution. A dash "
                   "stands where the cells are too few or all equal." +
                   groupsLeftOut(subject);
}

void addQuartiles(Document& document, const Subject& subject, const QuantileTable& quantiles)
{
    Section& section =
        document.add("quartiles", "Median and quartiles",
                     "Half of the cells lie between the quartiles, and half on either side of the median.");
    addTableByGroup(section, subject,
                    {{"lower quartile", Align::point}, {"median", Align::point}, {"upper quartile", Align::point}},
                    [&](const NumberFormat& format, std::size_t j, std::size_t k) {
                        const Quantiles& q = quantiles[j][k];
                        return Cells{format.statistic(q.lowerQuartile()), format.statistic(q.median()),
                                     format.statistic(q.upperQuartile())};
                    });
    section.pictures = picturesOf(subject, quantiles);
    section.note = quantileRule(subject) + groupsLeftOut(subject);
}

void addThirteenQuantiles(Document& document, const Subject& subject, const QuantileTable& quantiles)
{
    std::vector<TextTable::Column> columns = {{"column", Align::left}, {"p", Align::right}};
    std::vector<std::size_t> listedGroups;
    Cells allHeadings = {"column", "p"};
    for (std::size_t k = 0; k < subject.groups.size(); ++k) {
        allHeadings.push_back(subject.groups[k].name);
        if (isListed(subject, k)) {
            columns.push_back({subject.groups[k].name, Align::point});
            listedGroups.push_back(k);
        }
    }
    TextTable text(std::move(columns), 2);
    std::vector<Cells> all = {std::move(allHeadings)};
    const std::vector<const Column*> numeric = subject.table.ofKind(Kind::numeric);
    for (std::size_t j = 0; j < numeric.size(); ++j) {
        text.addGap();
        const NumberFormat format(*numeric[j]);
        for (std::size_t i = 0; i < thirteenPercentages.size(); ++i) {
            const Cells names = {numeric[j]->name, std::to_string(thirteenPercentages[i]) + " %"};
            Cells shown = names;
            for (const std::size_t k : listedGroups)
                shown.push_back(format.statistic(quantiles[j][k].thirteen[i]));
            text.addRow(std::move(shown));
            if (!isCut(subject))
                continue;
            all.push_back(names);
            for (const Quantiles& ofGroup : quantiles[j])
                all.back().push_back(format.statistic(ofGroup.thirteen[i]));
        }
    }
    Section& section = document.add("quantiles", "Thirteen quantiles",
                                    "The whole distribution at a glance: p of the cells lie below the quantile.");
    if (isCut(subject))
        section.addTable("quantiles", std::move(text), std::move(all));
    else
        section.addTable(std::move(text));
    section.note = "By the rule of the median and the quartiles." + groupsLeftOut(subject);
}

} // namespace survey
