#include "components.h"

#include "number_format.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <utility>

namespace survey {

namespace {

/// Brings the columns to mean 0 and variance 1, and gives their correlations.
FlatTable standardised(FlatTable& numbers, std::vector<double> weights)
{
    const int p = numbers.columns;
    FlatTable correlations(p, p);
    FlatTable means(p, 1), deviations(p, 1), variances(p, 1);
    VB_M_CovCorrAndMeanStDevVar(numbers.data(), numbers.rows, p, correlations.data(), means.data(), deviations.data(),
                                variances.data(), yes, noMask, weights.data(), yes, areFrequencies, yes, yes);
    return correlations;
}

/// An eigenvector has one of two signs.
void makeLargestPositive(FlatTable& vectors)
{
    for (int k = 0; k < vectors.columns; ++k) {
        double* const vector = vectors.data() + k * vectors.rows;
        const auto isSmaller = [](double a, double b) { return std::fabs(a) < std::fabs(b); };
        if (*std::max_element(vector, vector + vectors.rows, isSmaller) < 0.0)
            for (int j = 0; j < vectors.rows; ++j)
                vector[j] = -vector[j];
    }
}

std::string component(int number)
{
    return "component " + std::to_string(number);
}

TextTable variancesOf(const Components& components)
{
    TextTable text({{"component", Align::right},
                    {"variance", Align::point},
                    {"share", Align::right},
                    {"cumulative", Align::right}},
                   1);
    double cumulative = 0.0;
    for (std::size_t k = 0; k < components.variances.size() && k < mostListed; ++k) {
        cumulative += components.percent[k];
        text.addRow({std::to_string(k + 1), withDecimals(components.variances[k], 3),
                     percentage(components.percent[k], 100.0), percentage(cumulative, 100.0)});
    }
    return text;
}

TextTable coefficientsOf(const Components& components)
{
    std::vector<TextTable::Column> headings = {{"column", Align::left}};
    for (int k = 1; k <= components.telling; ++k)
        headings.push_back({component(k), Align::point});
    TextTable text(std::move(headings), 1);
    for (int j = 0; j < components.vectors.rows; ++j) {
        std::vector<std::string> cells = {components.columns[static_cast<std::size_t>(j)]->name};
        for (int k = 0; k < components.telling; ++k)
            cells.push_back(withDecimals(components.vectors.at(j, k), 3));
        text.addRow(std::move(cells));
    }
    return text;
}

DataTable dataOf(const Components& components)
{
    DataTable data{"scree", {{"component", "variance", "percent"}}};
    for (std::size_t k = 0; k < components.variances.size(); ++k)
        data.records.push_back(
            {std::to_string(k + 1), withAllDigits(components.variances[k]), withAllDigits(components.percent[k])});
    return data;
}

std::string inShort(const Components& components)
{
    const auto last = components.percent.begin() + components.telling;
    const double together = std::accumulate(components.percent.begin(), last, 0.0);
    return "The first " + (components.telling == 1 ? "" : std::to_string(components.telling) + ' ') + "of " +
           counted(components.variances.size(), "component") + (components.telling == 1 ? " has " : " have ") +
           percentage(together, 100.0) + " of the variance of the numeric columns.";
}

} // namespace

std::optional<Components> componentsOf(const Table& complete)
{
    const std::vector<const Column*> columns = varyingColumns(complete);
    const int p = static_cast<int>(columns.size());
    if (p < 2 || complete.rows < 3)
        return std::nullopt;
    FlatTable numbers = numbersOf(columns, complete.rows);
    FlatTable correlations = standardised(numbers, weightsOf(complete));
    std::vector<double> variances(columns.size());
    FlatTable vectors(p, p);
    if (VB_M_Eigen(correlations.data(), variances.data(), vectors.data(), p, yes) != 0)
        return std::nullopt;

    constexpr double vanishing = 1e-10; // rounding leaves so little of a component without variance
    constexpr double tellingPercent = 80.0;
    constexpr int mostTelling = 5;
    constexpr double noLeast = 0.0;
    std::vector<double> percent(columns.size());
    int kept, telling;
    VB_FilterEigen(variances.data(), p, yes, vanishing, tellingPercent, mostTelling, noLeast, &kept, &telling,
                   percent.data());
    variances.resize(static_cast<std::size_t>(kept));
    percent.resize(static_cast<std::size_t>(kept));
    vectors.keepColumns(kept);
    makeLargestPositive(vectors);
    FlatTable scores(complete.rows, kept);
    VB_M_ProductAB(numbers.data(), complete.rows, p, vectors.data(), kept, scores.data());
    return Components{columns, std::move(variances), std::move(percent),
                      telling, std::move(vectors),   std::move(scores)};
}

void addComponents(Document& document, const Components& components)
{
    Section& section = document.add("components", "Principal components", inShort(components));
    section.addTable("component_variances", variancesOf(components));
    section.addTable("component_coefficients", coefficientsOf(components));
    if (components.count() > 1)
        section.pictures.push_back({"scree", {dataOf(components)}});
    section.note = "The gaps of the columns were filled, and the columns brought to mean 0 and variance 1. The "
                   "coefficients are those of the first components, as many as make up 80 % of the variance, but no "
                   "more than five.";
}

} // namespace survey
