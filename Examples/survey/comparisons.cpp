#include "comparisons.h"

#include "number_format.h"

#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace survey {

namespace {

double squaresAround(const Moments& group)
{
    if (group.count < 2)
        return 0.0;
    const double divisor = group.weight - group.weight / group.count; // that of the standard deviation
    return group.standardDeviation * group.standardDeviation * divisor;
}

double ratio(double part, double whole)
{
    if (whole > 0.0)
        return part / whole;
    return part > 0.0 ? std::numeric_limits<double>::infinity() : 0.0;
}

struct Within
{
    double variance;
    int freedom;
};

Within varianceWithin(const std::vector<Moments>& groups)
{
    double squares = 0.0;
    int freedom = 0;
    for (const Moments& group : groups) {
        if (group.count == 0)
            continue;
        squares += squaresAround(group);
        freedom += group.count - 1;
    }
    return {freedom > 0 ? squares / freedom : 0.0, freedom};
}

/// The variance of the means around the mean of all, each as often as its group weighs.
double varianceBetween(const std::vector<Moments>& groups, int present)
{
    double sum = 0.0;
    double weight = 0.0;
    for (const Moments& group : groups)
        if (group.count > 0) {
            sum += group.weight * group.mean;
            weight += group.weight;
        }
    double squares = 0.0;
    for (const Moments& group : groups)
        if (group.count > 0)
            squares += group.weight * (group.mean - sum / weight) * (group.mean - sum / weight);
    return squares / (present - 1);
}

const char* described(Correction correction)
{
    switch (correction) {
    case Correction::none:
        return "The p values are not corrected for the number of comparisons.";
    case Correction::bonferroni:
        return "The corrected p values are those of Bonferroni: times the number of a column's comparisons.";
    case Correction::holm:
        return "The corrected p values are those of Holm, for the number of a column's comparisons.";
    case Correction::fdr:
        break;
    }
    return "The corrected p values are those of Benjamini and Hochberg, for the false discovery rate among a column's "
           "comparisons.";
}

std::vector<std::string> shown(const Comparison& pair, const Comparisons& comparisons, const NumberFormat& format)
{
    const double reach = intervalReach(comparisons.freedom) * pair.standardError;
    return {format.statistic(pair.difference),
            format.statistic(pair.standardError),
            format.statistic(pair.difference - reach),
            format.statistic(pair.difference + reach),
            shownP(pair.p),
            shownP(pair.correctedP)};
}

} // namespace

std::optional<Comparisons> comparisonsOf(const std::vector<Moments>& groups, Correction correction)
{
    const Within within = varianceWithin(groups);
    Comparisons result{{}, within.freedom, 0, 0.0, 1.0};
    for (const Moments& group : groups)
        result.groups += group.count > 0 ? 1 : 0;
    if (result.groups < 2 || within.freedom == 0 || !std::isfinite(within.variance))
        return std::nullopt;
    result.f = ratio(varianceBetween(groups, result.groups), within.variance);
    result.p = upperP(result.f, result.groups - 1, within.freedom);
    std::vector<double> p;
    for (std::size_t k = 0; k < groups.size(); ++k)
        for (std::size_t i = 0; i < k; ++i) {
            const Moments& a = groups[i];
            const Moments& b = groups[k];
            if (a.count == 0 || b.count == 0)
                continue;
            const double difference = b.mean - a.mean;
            const double standardError = std::sqrt(within.variance * (1.0 / a.weight + 1.0 / b.weight));
            p.push_back(twoSidedP(ratio(std::fabs(difference), standardError), within.freedom));
            result.pairs.push_back({i, k, difference, standardError, p.back(), 0.0});
        }
    const std::vector<double> correctedP = corrected(p, correction);
    for (std::size_t i = 0; i < p.size(); ++i)
        result.pairs[i].correctedP = correctedP[i];
    return result;
}

std::vector<Moments> momentsByGroup(const Subject& subject, const Column& column)
{
    std::vector<Moments> moments;
    for (const Group& group : subject.groupsOfColumn())
        moments.push_back(momentsOf(cellsOf(column, group), weightsOf(subject.table, group)));
    return moments;
}

void addComparisons(Document& document, const Subject& subject, Correction correction)
{
    const auto groups = subject.groupsOfColumn();
    if (groups.size() < 2 || groups.size() > mostListed)
        return;
    TextTable variances({{"column", Align::left},
                         {"F", Align::point},
                         {"between", Align::right},
                         {"within", Align::right},
                         {"p", Align::point}},
                        1);
    const std::vector<TextTable::Column> headings = {{"column", Align::left},      {"groups", Align::left},
                                                     {"difference", Align::point}, {"std error", Align::point},
                                                     {"95 % from", Align::point},  {"to", Align::point},
                                                     {"p", Align::point},          {"corrected", Align::point}};
    TextTable text(headings, 2);
    std::vector<std::vector<std::string>> all(1);
    for (const TextTable::Column& heading : headings)
        all.front().push_back(heading.heading);
    bool isCut = false;
    for (const Column* column : subject.table.ofKind(Kind::numeric)) {
        const auto comparisons = comparisonsOf(momentsByGroup(subject, *column), correction);
        if (!comparisons)
            continue;
        variances.addRow({column->name, withDecimals(comparisons->f, 2), std::to_string(comparisons->groups - 1),
                          std::to_string(comparisons->freedom), shownP(comparisons->p)});
        text.addGap();
        const NumberFormat format(*column);
        for (std::size_t i = 0; i < comparisons->pairs.size(); ++i) {
            const Comparison& pair = comparisons->pairs[i];
            std::vector<std::string> cells = {column->name, groups[pair.second].name + " - " + groups[pair.first].name};
            for (std::string& cell : shown(pair, *comparisons, format))
                cells.push_back(std::move(cell));
            all.push_back(cells);
            if (i < mostListed)
                text.addRow(std::move(cells));
            else
                isCut = true;
        }
    }
    if (variances.empty())
        return;
    Section& section = document.add("comparisons", "Comparisons of the means",
                                    "Do the means of the groups differ by more than chance would have it? By analysis "
                                    "of variance, and each two by a t test.");
    section.addTable("analysis_of_variance", std::move(variances));
    if (isCut)
        section.addTable("comparisons", std::move(text), std::move(all));
    else
        section.addTable(std::move(text));
    section.note = std::string("The standard errors come from the variance within all the groups; between and within "
                               "are its degrees of freedom. The intervals hold one difference each. ") +
                   described(correction);
    if (isCut)
        section.note += " Listed are the first " + std::to_string(mostListed) + " comparisons of each column.";
}

} // namespace survey
