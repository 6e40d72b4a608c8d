#include "table.h"

#include "input_error.h"

#include "VecMat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <span>
#include <string_view>
#include <system_error>

namespace survey {

namespace {

std::string_view withoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    const auto last = text.find_last_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first, last - first + 1);
}

bool isEmpty(const std::string& cell)
{
    return withoutBlanks(cell).empty();
}

/// The number that a cell holds, and nothing else beside blanks.
std::optional<double> number(const std::string& cell)
{
    std::string_view text = withoutBlanks(cell);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

/// Digits behind the point that a number is written with: 1 for "39.1", 4 for "1.5e-3".
int decimalsOf(const std::string& cell)
{
    const std::string_view text = withoutBlanks(cell);
    const std::size_t mantissaEnd = std::min(text.find_first_of("eE"), text.size());
    const std::size_t point = std::min(text.find('.'), mantissaEnd);
    const int digits = point == mantissaEnd ? 0 : static_cast<int>(mantissaEnd - point - 1);
    int exponent = 0;
    if (mantissaEnd < text.size()) {
        std::string_view power = text.substr(mantissaEnd + 1);
        if (power.starts_with('+'))
            power.remove_prefix(1);
        std::from_chars(power.data(), power.data() + power.size(), exponent);
    }
    return std::max(0, digits - exponent);
}

/// The columns of the heading, without cells. A column without a name gets one by its number.
std::vector<Column> namedColumns(const CsvRecord& heading, const std::string& file)
{
    std::vector<Column> columns;
    for (const CsvField& field : heading) {
        const int number = static_cast<int>(columns.size()) + 1;
        const std::string name = isEmpty(field.text) ? "column " + std::to_string(number) : field.text;
        const auto twin = std::find_if(columns.begin(), columns.end(), [&](const Column& c) { return c.name == name; });
        if (twin != columns.end())
            throw InputError({.file = file, .line = field.line, .column = number, .columnName = name},
                             "column " + std::to_string(twin - columns.begin() + 1) + " has the same name");
        columns.emplace_back().name = name;
    }
    return columns;
}

bool isEmptyLine(const CsvRecord& record)
{
    return record.size() == 1 && record.front().text.empty();
}

/// The records below the heading; all have as many fields.
std::span<const CsvRecord> dataRows(const std::vector<CsvRecord>& records, const std::vector<Column>& columns,
                                    const std::string& file)
{
    std::span<const CsvRecord> rows(records.begin() + 1, records.end());
    while (columns.size() > 1 && !rows.empty() && isEmptyLine(rows.back()))
        rows = rows.first(rows.size() - 1);
    if (rows.empty())
        throw InputError(
            {.file = file, .line = records.front().back().line + 1, .column = 1, .columnName = columns.front().name},
            "no row of data follows the heading");

    for (const CsvRecord& row : rows) {
        if (row.size() == columns.size())
            continue;
        const std::size_t place = std::min(row.size(), columns.size());
        throw InputError({.file = file,
                          .line = row.front().line,
                          .column = static_cast<int>(place) + 1,
                          .columnName = place < columns.size() ? columns[place].name : ""},
                         "the row has " + std::to_string(row.size()) + (row.size() == 1 ? " field" : " fields") +
                             ", the heading has " + std::to_string(columns.size()));
    }
    return rows;
}

/// A column most of whose cells are numbers is meant to be numeric; otherwise it is text.
Kind kindOf(const std::vector<std::string>& cells)
{
    std::size_t numbers = 0;
    std::size_t others = 0;
    for (const std::string& cell : cells)
        if (!isEmpty(cell))
            ++(number(cell) ? numbers : others);
    if (numbers + others == 0)
        return Kind::empty;
    return numbers > others ? Kind::numeric : Kind::text;
}

void fillNumbers(Column& column, int columnNumber, std::span<const CsvRecord> rows, const std::string& file)
{
    for (const CsvRecord& row : rows) {
        const CsvField& cell = row[static_cast<std::size_t>(columnNumber) - 1];
        if (isEmpty(cell.text)) {
            column.numbers.push_back(vecmat::missingValue);
            continue;
        }
        const std::optional<double> value = number(cell.text);
        if (!value)
            throw InputError({.file = file, .line = cell.line, .column = columnNumber, .columnName = column.name},
                             quoted(cell.text) +
                                 " is not a number, as most of the column are (a missing cell is left empty)");
        column.numbers.push_back(*value);
        column.decimals = std::max(column.decimals, decimalsOf(cell.text));
    }
}

Place wholeHeading(const Table& table)
{
    return {.file = table.file, .line = 1, .column = 1, .lastColumn = static_cast<int>(table.columns.size())};
}

std::string namesOf(const Table& table)
{
    std::string names;
    for (const Column& column : table.columns)
        names += (names.empty() ? "" : ", ") + column.name;
    return names;
}

} // namespace

std::vector<const Column*> Table::ofKind(Kind kind) const
{
    std::vector<const Column*> chosen;
    for (const Column& column : columns)
        if (column.kind == kind)
            chosen.push_back(&column);
    return chosen;
}

const Column* Table::named(const std::string& name) const
{
    const auto column = std::find_if(columns.begin(), columns.end(), [&](const Column& c) { return c.name == name; });
    return column == columns.end() ? nullptr : &*column;
}

Table readTable(const std::string& path, const std::optional<std::string>& grouping)
{
    return tableOf(parsedCsv(fileContent(path), path), path, grouping);
}

Table tableOf(const std::vector<CsvRecord>& records, const std::string& file,
              const std::optional<std::string>& grouping)
{
    if (std::all_of(records.begin(), records.end(), isEmptyLine))
        throw InputError({.file = file, .line = 1, .column = 1}, "the file is empty");
    Table table{file, 0, namedColumns(records.front(), file)};
    if (grouping && table.named(*grouping) == nullptr)
        throw InputError(wholeHeading(table),
                         "none is named " + quoted(*grouping) + "; the names are " + namesOf(table));

    const std::span<const CsvRecord> rows = dataRows(records, table.columns, file);
    table.rows = static_cast<int>(rows.size());
    for (std::size_t j = 0; j < table.columns.size(); ++j) {
        Column& column = table.columns[j];
        for (const CsvRecord& row : rows)
            column.texts.push_back(isEmpty(row[j].text) ? "" : row[j].text);
        column.kind = kindOf(column.texts);
        if (column.name == grouping && column.kind == Kind::numeric)
            column.kind = Kind::text;
        if (column.kind == Kind::numeric)
            fillNumbers(column, static_cast<int>(j) + 1, rows, file);
    }
    if (table.ofKind(Kind::numeric).empty())
        throw InputError(wholeHeading(table),
                         grouping ? "none is numeric beside the grouping column" : "none is numeric");
    return table;
}

} // namespace survey
