#include "completion.h"

#include "bstr_array.h"
#include "flat_call.h"
#include "number_format.h"

#include <algorithm>
#include <span>
#include <string>
#include <utility>

namespace survey {

namespace {

/// Flags the rows to be filled, which are nobody's neighbours.
std::vector<short> incompleteRows(const MissingCells& missing)
{
    std::vector<short> mask;
    for (const int count : missing.byRow)
        mask.push_back(count > 0 ? yes : no);
    return mask;
}

bool isMissing(const Column& column, int row)
{
    const auto place = static_cast<std::size_t>(row);
    return column.kind == Kind::numeric ? column.numbers[place] == vecmat::missingValue : column.texts[place].empty();
}

std::vector<CellPlace> missingPlaces(const Table& table)
{
    std::vector<CellPlace> places;
    for (int i = 0; i < table.rows; ++i)
        for (int j = 0; j < static_cast<int>(table.columns.size()); ++j)
            if (const Column& column = table.columns[static_cast<std::size_t>(j)];
                column.kind != Kind::empty && isMissing(column, i))
                places.push_back({i, j});
    return places;
}

/// A cell of a numeric column as the others of it; a mean that was filled in, with one digit more.
std::string shown(const Column& original, double filled)
{
    const NumberFormat format(original);
    const bool isCopied = std::find(original.numbers.begin(), original.numbers.end(), filled) != original.numbers.end();
    return isCopied ? format.cell(filled) : format.statistic(filled);
}

} // namespace

Completion completed(const Table& table, const MissingCells& missing)
{
    Completion result{table, missingPlaces(table)};
    if (result.filled.empty())
        return result;
    const std::vector<const Column*> numeric = table.ofKind(Kind::numeric);
    const std::vector<const Column*> text = table.ofKind(Kind::text);
    FlatTable numbers = numbersOf(numeric, table.rows);
    BstrArray texts = textsOf(text);
    std::vector<short> mask = incompleteRows(missing);
    std::vector<double> weights = unitWeights(table.rows);
    // The numbers go in as the second block: those of the primary block would not be compared when texts are filled.
    VB_EstimateRowsWithMissingNN(nullptr, table.rows, 0, mask.data(), numbers.data(), numbers.columns, texts.data(),
                                 static_cast<int>(text.size()), weights.data());
    auto nextNumber = numbers.cells.begin();
    std::size_t nextText = 0;
    for (Column& column : result.table.columns) {
        if (column.kind == Kind::numeric)
            for (double& number : column.numbers)
                number = *nextNumber++;
        if (column.kind == Kind::text)
            for (std::string& cell : column.texts)
                cell = texts.text(nextText++);
    }
    return result;
}

void addCompletion(Document& document, const Table& table, const Completion& completion)
{
    if (completion.filled.empty())
        return;
    TextTable text({{"row", Align::right}, {"column", Align::left}, {"filled with", Align::left}}, 2);
    const std::size_t listed = std::min(completion.filled.size(), mostListed);
    for (const CellPlace& cell : std::span(completion.filled).first(listed)) {
        const auto j = static_cast<std::size_t>(cell.column);
        const auto i = static_cast<std::size_t>(cell.row);
        const Column& column = completion.table.columns[j];
        text.addRow({std::to_string(cell.row + 1), column.name,
                     column.kind == Kind::numeric ? shown(table.columns[j], column.numbers[i]) : column.texts[i]});
    }
    Section& section = document.add(
        "filled_cells", "Missing cells filled by nearest neighbours",
        "For what needs complete rows, each missing cell takes the value of the most similar complete row.");
    section.addTable(std::move(text));
    section.note =
        "Rows differ by the sum of squared differences over the variance of each numeric column, and 1 for "
        "each text that isn't the same. A filled cell counts for the next ones of its row. Where nothing can "
        "be compared, a cell takes the mean of its column or the most frequent text.";
    if (const std::size_t rest = completion.filled.size() - listed; rest > 0)
        section.note +=
            " Listed are the first " + counted(listed, "cell") + "; there are " + std::to_string(rest) + " more.";
}

} // namespace survey
