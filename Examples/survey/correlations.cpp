#include "correlations.h"

#include "flat_call.h"
#include "number_format.h"

#include <cmath>
#include <string>
#include <utility>

namespace survey {

namespace {

/// Flags the rows in which a cell of one of the columns is missing.
std::vector<short> rowsToLeaveOut(FlatTable& columns)
{
    const int n = columns.rows;
    std::vector<short> mask(static_cast<std::size_t>(n), no);
    for (int j = 0; j < columns.columns; ++j)
        VB_V_GetMissingDbl(columns.data() + j * n, n, mask.data(), mask.data());
    return mask;
}

} // namespace

Correlation correlationOf(const Column& x, const Column& y, const std::vector<double>& rowWeights)
{
    const int n = static_cast<int>(x.numbers.size());
    FlatTable pair = numbersOf({&x, &y}, n);
    std::vector<short> mask = rowsToLeaveOut(pair);
    const int count = n - VB_V_NbTrue(mask.data(), n);
    if (count == 0)
        return {vecmat::missingValue, 0};
    // In a table of all columns the variances would come from other rows than the covariance, and coefficients could
    // lie beyond 1. The mask gives a pair its rows.
    FlatTable correlations(2, 2);
    std::vector<double> weights = rowWeights.empty() ? unitWeights(n) : rowWeights;
    VB_M_CovCorr(pair.data(), n, 2, correlations.data(), yes, mask.data(), weights.data(), no, no);
    return {correlations.at(0, 1), count};
}

namespace {

/// Of each two columns, in a square table.
using Square = std::vector<std::vector<Correlation>>;

Square allOf(const std::vector<const Column*>& columns, const std::vector<double>& weights)
{
    Square all(columns.size(), std::vector<Correlation>(columns.size()));
    for (std::size_t i = 0; i < columns.size(); ++i)
        for (std::size_t j = 0; j <= i; ++j)
            all[i][j] = all[j][i] = correlationOf(*columns[i], *columns[j], weights);
    return all;
}

/// The coefficients of all pairs below each other.
std::vector<std::vector<std::string>> recordsOf(const std::vector<const Column*>& columns, const Square& all)
{
    std::vector<std::vector<std::string>> records = {{"column", "with", "coefficient", "rows"}};
    for (std::size_t i = 0; i < columns.size(); ++i)
        for (std::size_t j = 0; j < columns.size(); ++j)
            records.push_back({columns[i]->name, columns[j]->name, withAllDigits(all[i][j].coefficient),
                               std::to_string(all[i][j].count)});
    return records;
}

/// The pair of columns with the coefficient farthest from 0.
std::string inShort(const std::vector<const Column*>& columns, const Square& all)
{
    std::string strongest;
    double farthest = 0.0;
    for (std::size_t i = 0; i < columns.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) {
            const double coefficient = all[i][j].coefficient;
            if (coefficient == vecmat::missingValue || std::fabs(coefficient) <= farthest)
                continue;
            farthest = std::fabs(coefficient);
            strongest = " The strongest correlation, " + withDecimals(coefficient, 3) + ", is that of " +
                        listed(columns[j]->name) + " and " + listed(columns[i]->name) + '.';
        }
    return "How the numeric columns go together." + strongest;
}

} // namespace

void addCorrelations(Document& document, const Table& table)
{
    const std::vector<const Column*> columns = table.ofKind(Kind::numeric);
    if (columns.size() < 2)
        return;
    const Square all = allOf(columns, table.weights);
    const std::size_t shown = columns.size() > mostListed ? listedOfMany : columns.size();
    std::vector<TextTable::Column> headings = {{"column", Align::left}};
    for (std::size_t j = 0; j < shown; ++j)
        headings.push_back({columns[j]->name, Align::point});
    TextTable text(std::move(headings), 1);
    for (std::size_t i = 0; i < shown; ++i) {
        std::vector<std::string> cells = {columns[i]->name};
        for (std::size_t j = 0; j < shown; ++j)
            cells.push_back(i < j ? std::to_string(all[i][j].count) : withDecimals(all[i][j].coefficient, 3));
        text.addRow(std::move(cells));
    }
    Section& section = document.add("correlations", "Correlations", inShort(columns, all));
    section.note = "Pearson's coefficients, and above the diagonal the number of rows from which they come: those in "
                   "which neither cell is missing. A dash stands where a column doesn't vary in them.";
    if (shown < columns.size()) {
        section.addTable("correlations", std::move(text), recordsOf(columns, all));
        section.note +=
            " Shown are the first " + std::to_string(shown) + " of " + counted(columns.size(), "column") + '.';
    } else {
        section.addTable(std::move(text));
        section.pictures.push_back({"correlation_map", {{"correlation_map", recordsOf(columns, all)}}});
    }
}

} // namespace survey
