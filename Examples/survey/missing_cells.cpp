#include "missing_cells.h"

#include "bstr_array.h"
#include "flat_call.h"
#include "number_format.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <string>
#include <utility>

namespace survey {

namespace {

struct Counts
{
    std::vector<int> byColumn;
    std::vector<int> byRow;

    Counts(int rows, std::size_t columns) : byColumn(columns), byRow(static_cast<std::size_t>(rows)) {}
};

// The library counts by column; the rows of a table are the columns of the transposed one.

Counts missingNumbers(const std::vector<const Column*>& columns, RowRange range)
{
    Counts counts(range.count, columns.size());
    FlatTable table = numbersOf(columns, range);
    FlatTable transposed(table.columns, range.count);
    VB_M_Transpose(table.data(), table.rows, table.columns, transposed.data());
    VB_M_NbMissing(table.data(), table.rows, table.columns, counts.byColumn.data());
    VB_M_NbMissing(transposed.data(), transposed.rows, transposed.columns, counts.byRow.data());
    return counts;
}

Counts missingTexts(const std::vector<const Column*>& columns, RowRange range)
{
    Counts counts(range.count, columns.size());
    const int columnCount = static_cast<int>(columns.size());
    BstrArray table = textsOf(columns, range);
    BstrArray transposed(columns.size() * static_cast<std::size_t>(range.count));
    VB_M_TransposeStr(table.data(), range.count, columnCount, transposed.data());
    VB_M_NbMissingStr(table.data(), range.count, columnCount, counts.byColumn.data());
    VB_M_NbMissingStr(transposed.data(), columnCount, range.count, counts.byRow.data());
    return counts;
}

/// Counts block by block of rows, so that a large table isn't held three times.
template <class CountsOf>
Counts inBlocks(int rows, const std::vector<const Column*>& columns, const CountsOf& countsOf)
{
    constexpr int blockRows = 20000;
    Counts all(rows, columns.size());
    for (int first = 0; first < rows; first += blockRows) {
        const Counts counts = countsOf(columns, RowRange{first, std::min(blockRows, rows - first)});
        for (std::size_t j = 0; j < columns.size(); ++j)
            all.byColumn[j] += counts.byColumn[j];
        std::copy(counts.byRow.begin(), counts.byRow.end(), all.byRow.begin() + first);
    }
    return all;
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

constexpr std::size_t mostNumbered = 12;

/// Row numbers in a list, from 1; the first ones of many.
std::string numbered(const std::vector<int>& rows)
{
    std::string text;
    for (std::size_t i = 0; i < rows.size() && i < mostNumbered; ++i)
        text += (i > 0 ? ", " : "") + std::to_string(rows[i] + 1);
    if (rows.size() > mostNumbered)
        text += " and " + std::to_string(rows.size() - mostNumbered) + " more";
    return text;
}

/// Some row numbers for each number of missing cells; where there are more, all of them are in a file.
void addTableByRow(Section& section, const Table& table, const MissingCells& missing)
{
    std::map<int, std::vector<int>> rowsByCount;
    for (int i = 0; i < table.rows; ++i)
        rowsByCount[missing.byRow[static_cast<std::size_t>(i)]].push_back(i);
    TextTable text({{"missing in a row", Align::right}, {"rows", Align::right}, {"row numbers", Align::left}}, 1);
    bool isCut = false;
    for (const auto& [count, rows] : rowsByCount) {
        text.addRow({std::to_string(count), std::to_string(rows.size()), count > 0 ? numbered(rows) : ""});
        isCut = isCut || (count > 0 && rows.size() > mostNumbered);
    }
    if (!isCut) {
        section.addTable("missing_by_row", std::move(text));
        return;
    }
    std::vector<std::vector<std::string>> all = {{"row", "missing"}};
    for (std::size_t i = 0; i < missing.byRow.size(); ++i)
        if (missing.byRow[i] > 0)
            all.push_back({std::to_string(i + 1), std::to_string(missing.byRow[i])});
    section.addTable("missing_by_row", std::move(text), std::move(all));
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
    const Counts numbers = inBlocks(table.rows, table.ofKind(Kind::numeric), missingNumbers);
    const Counts texts = inBlocks(table.rows, table.ofKind(Kind::text), missingTexts);
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
    addTableByRow(section, table, missing);
    section.note = "Rows are numbered from 1, below the heading.";
    if (!table.ofKind(Kind::empty).empty())
        section.note += " The empty columns don't count in the rows.";
}

} // namespace survey
