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

Correlation correlationOf(const Column& x, const Column& y)
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
    std::vector<double> weights = unitWeights(n);
    VB_M_CovCorr(pair.data(), n, 2, correlations.data(), yes, mask.data(), weights.data(), no, no);
    return {correlations.at(0, 1), count};
}

namespace {

/// The coefficients of all pairs below each other.
DataTable dataOf(const std::vector<const Column*>& columns)
{
    DataTable data{"correlation_map", {{"column", "with", "coefficient", "rows"}}};
    for (const Column* x : columns)
        for (const Column* y : columns) {
            const Correlation correlation = correlationOf(*x, *y);
            data.records.push_back(
                {x->name, y->name, withAllDigits(correlation.coefficient), std::to_string(correlation.count)});
        }
    return data;
}

/// The pair of columns with the coefficient farthest from 0.
std::string inShort(const std::vector<const Column*>& columns)
{
    std::string strongest;
    double farthest = 0.0;
    for (std::size_t i = 0; i < columns.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) {
            const double coefficient = correlationOf(*columns[i], *columns[j]).coefficient;
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
    std::vector<TextTable::Column> headings = {{"column", Align::left}};
    for (const Column* column : columns)
        headings.push_back({column->name, Align::point});
    TextTable text(std::move(headings), 1);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        std::vector<std::string> cells = {columns[i]->name};
        for (std::size_t j = 0; j < columns.size(); ++j) {
            const Correlation correlation = correlationOf(*columns[i], *columns[j]);
            cells.push_back(i < j ? std::to_string(correlation.count) : withDecimals(correlation.coefficient, 3));
        }
        text.addRow(std::move(cells));
    }
    Section& section = document.add("correlations", "Correlations", inShort(columns));
    section.addTable(std::move(text));
    if (columns.size() <= mostListed)
        section.picture = {"correlation_map", {dataOf(columns)}};
    section.note = "Pearson's coefficients, and above the diagonal the number of rows from which they come: those in "
                   "which neither cell is missing. A dash stands where a column doesn't vary in them.";
}

} // namespace survey
