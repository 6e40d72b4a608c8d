#include "correlations.h"

#include "flat_call.h"
#include "number_format.h"
#include "page.h"
#include "text_table.h"

#include <ostream>
#include <string>

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

void printCorrelations(std::ostream& out, const Table& table)
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
    printTitle(out, "Correlations");
    text.print(out, lineWidth);
    printNote(out,
              "Pearson's coefficients, and above the diagonal the rows from which they come: those in which neither "
              "cell is missing. A dash stands where a column doesn't vary in them.");
}

} // namespace survey
