#include "missing_cells.h"

#include "bstr_array.h"
#include "flat_call.h"
#include "number_format.h"
#include "page.h"
#include "text_table.h"

#include <map>
#include <numeric>
#include <ostream>
#include <string>

namespace survey {

namespace {

struct Counts
{
    std::vector<int> byColumn;
    std::vector<int> byRow;

    Counts(int rows, std::size_t columns) : byColumn(columns), byRow(static_cast<std::size_t>(rows)) {}
};

// The library counts by column; the rows of a table are the columns of the transposed one.

Counts missingNumbers(const std::vector<const Column*>& columns, int rows)
{
    Counts counts(rows, columns.size());
    FlatTable table = numbersOf(columns, rows);
    FlatTable transposed(table.columns, rows);
    VB_M_Transpose(table.data(), rows, table.columns, transposed.data());
    VB_M_NbMissing(table.data(), rows, table.columns, counts.byColumn.data());
    VB_M_NbMissing(transposed.data(), table.columns, rows, counts.byRow.data());
    return counts;
}

Counts missingTexts(const std::vector<const Column*>& columns, int rows)
{
    Counts counts(rows, columns.size());
    const int columnCount = static_cast<int>(columns.size());
    BstrArray table = textsOf(columns);
    BstrArray transposed(columns.size() * static_cast<std::size_t>(rows));
    VB_M_TransposeStr(table.data(), rows, columnCount, transposed.data());
    VB_M_NbMissingStr(table.data(), rows, columnCount, counts.byColumn.data());
    VB_M_NbMissingStr(transposed.data(), columnCount, rows, counts.byRow.data());
    return counts;
}

std::string percentage(int part, int whole)
{
    return withDecimals(100.0 * part / whole, 1) + " %";
}

std::string described(Kind kind)
{
    switch (kind) {
    case Kind::numeric:
        return "numeric";
    case Kind::text:
        return "text";
    case Kind::empty:
        break;
    }
    return "empty";
}

void printByColumn(std::ostream& out, const Table& table, const MissingCells& missing)
{
    TextTable text(
        {{"column", Align::left}, {"kind", Align::left}, {"missing", Align::right}, {"of the rows", Align::right}}, 1);
    for (std::size_t j = 0; j < table.columns.size(); ++j)
        text.addRow({table.columns[j].name, described(table.columns[j].kind), std::to_string(missing.byColumn[j]),
                     percentage(missing.byColumn[j], table.rows)});
    text.print(out, lineWidth);
}

/// Row numbers in a list, from 1; the first ones of many.
std::string numbered(const std::vector<int>& rows)
{
    constexpr std::size_t most = 12;
    std::string text;
    for (std::size_t i = 0; i < rows.size() && i < most; ++i)
        text += (i > 0 ? ", " : "") + std::to_string(rows[i] + 1);
    if (rows.size() > most)
        text += " and " + std::to_string(rows.size() - most) + " more";
    return text;
}

void printByRow(std::ostream& out, const Table& table, const MissingCells& missing)
{
    std::map<int, std::vector<int>> rowsByCount;
    for (int i = 0; i < table.rows; ++i)
        rowsByCount[missing.byRow[static_cast<std::size_t>(i)]].push_back(i);
    TextTable text({{"missing in a row", Align::right}, {"rows", Align::right}, {"row numbers", Align::left}}, 1);
    for (const auto& [count, rows] : rowsByCount)
        text.addRow({std::to_string(count), std::to_string(rows.size()), count > 0 ? numbered(rows) : ""});
    text.print(out, lineWidth);
}

} // namespace

MissingCells missingCellsOf(const Table& table)
{
    const Counts numbers = missingNumbers(table.ofKind(Kind::numeric), table.rows);
    const Counts texts = missingTexts(table.ofKind(Kind::text), table.rows);
    MissingCells missing;
    auto nextNumeric = numbers.byColumn.begin();
    auto nextText = texts.byColumn.begin();
    for (const Column& column : table.columns)
        missing.byColumn.push_back(column.kind == Kind::numeric ? *nextNumeric++
                                   : column.kind == Kind::text  ? *nextText++
                                                                : table.rows);
    for (std::size_t i = 0; i < numbers.byRow.size(); ++i)
        missing.byRow.push_back(numbers.byRow[i] + texts.byRow[i]);
    return missing;
}

void printMissingCells(std::ostream& out, const Table& table, const MissingCells& missing)
{
    printTitle(out, "Missing cells");
    if (std::accumulate(missing.byColumn.begin(), missing.byColumn.end(), 0LL) == 0) {
        printNote(out, "None.");
        return;
    }
    printByColumn(out, table, missing);
    if (std::accumulate(missing.byRow.begin(), missing.byRow.end(), 0LL) == 0) {
        printNote(out, "But for the empty columns, none.");
        return;
    }
    printByRow(out, table, missing);
    const bool hasEmptyColumn = !table.ofKind(Kind::empty).empty();
    printNote(out, std::string("Rows are numbered from 1, below the heading.") +
                       (hasEmptyColumn ? " The empty columns don't count in the rows." : ""));
}

} // namespace survey
