#include "missing_cells.h"

#include "bstr_array.h"
#include "flat_call.h"
#include "number_format.h"

#include <algorithm>
#include <map>
#include <numeric>
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

TextTable tableByColumn(const Table& table, const MissingCells& missing)
{
    TextTable text({{"column", Align::left}, {"kind", Align::left}, {"missing", Align::right}, {"share", Align::right}},
                   1);
    for (std::size_t j = 0; j < table.columns.size(); ++j)
        text.addRow({table.columns[j].name, described(table.columns[j].kind), std::to_string(missing.byColumn[j]),
                     percentage(missing.byColumn[j], table.rows)});
    return text;
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

TextTable tableByRow(const Table& table, const MissingCells& missing)
{
    std::map<int, std::vector<int>> rowsByCount;
    for (int i = 0; i < table.rows; ++i)
        rowsByCount[missing.byRow[static_cast<std::size_t>(i)]].push_back(i);
    TextTable text({{"missing in a row", Align::right}, {"rows", Align::right}, {"row numbers", Align::left}}, 1);
    for (const auto& [count, rows] : rowsByCount)
        text.addRow({std::to_string(count), std::to_string(rows.size()), count > 0 ? numbered(rows) : ""});
    return text;
}

long long sumOf(const std::vector<int>& counts)
{
    return std::accumulate(counts.begin(), counts.end(), 0LL);
}

/// How many cells are missing in how many rows; the columns that are empty altogether don't count.
std::string inShort(const Table& table, const MissingCells& missing)
{
    const std::size_t empty = table.ofKind(Kind::empty).size();
    const long long count = sumOf(missing.byRow);
    if (count == 0)
        return empty == 0 ? "No cell is missing." : "But for the empty columns, no cell is missing.";
    const long long cells =
        static_cast<long long>(missing.byRow.size()) * static_cast<long long>(table.columns.size() - empty);
    const auto rows = std::count_if(missing.byRow.begin(), missing.byRow.end(), [](int inRow) { return inRow > 0; });
    return std::to_string(count) + " of " + std::to_string(cells) + " cells are missing (" +
           percentage(static_cast<double>(count), static_cast<double>(cells)) + "), in " + std::to_string(rows) +
           " of " + counted(missing.byRow.size(), "row") + ".";
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

void addMissingCells(Document& document, const Table& table, const MissingCells& missing)
{
    Section& section = document.add("missing", "Missing cells", inShort(table, missing));
    if (sumOf(missing.byColumn) == 0)
        return;
    section.addTable("missing_by_column", tableByColumn(table, missing));
    if (sumOf(missing.byRow) == 0)
        return;
    section.addTable("missing_by_row", tableByRow(table, missing));
    section.note = "Rows are numbered from 1, below the heading.";
    if (!table.ofKind(Kind::empty).empty())
        section.note += " The empty columns don't count in the rows.";
}

} // namespace survey
