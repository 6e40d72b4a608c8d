#include "text_table.h"

#include <algorithm>
#include <ostream>
#include <sstream>
#include <utility>

namespace survey {

namespace {

constexpr std::size_t spacing = 2;

bool beginsCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; // the other bytes of a character are 10xxxxxx
}

std::string blanks(std::size_t count)
{
    return std::string(count, ' ');
}

std::string padded(const std::string& text, std::size_t width, Align align)
{
    const std::string padding = blanks(width - std::min(width, widthOf(text)));
    return align == Align::left ? text + padding : padding + text;
}

/// Width of what stands behind the units place of a number: the point, the decimals, a power of ten.
std::size_t widthBehindUnits(const std::string& number)
{
    return number.size() - std::min(number.find_first_of(".e"), number.size());
}

/// Blanks behind each cell, so that those of one width have their points below each other.
void alignPoints(std::vector<std::string>& cells)
{
    std::size_t widest = 0;
    for (const std::string& cell : cells)
        widest = std::max(widest, widthBehindUnits(cell));
    for (std::string& cell : cells)
        cell += blanks(widest - widthBehindUnits(cell));
}

void printLine(std::ostream& out, std::string line)
{
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

} // namespace

std::size_t widthOf(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), beginsCharacter));
}

std::string onOneLine(std::string_view text)
{
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
    return line;
}

std::string shortened(const std::string& text, std::size_t width)
{
    if (widthOf(text) <= width)
        return text;
    std::size_t characters = 0;
    const auto cut =
        std::find_if(text.begin(), text.end(), [&](char c) { return beginsCharacter(c) && ++characters > width - 3; });
    return std::string(text.begin(), cut) + "...";
}

std::vector<std::string> words(const std::string& text)
{
    std::istringstream rest(text);
    std::vector<std::string> all;
    for (std::string word; rest >> word;)
        all.push_back(word);
    return all;
}

std::string wrapped(const std::vector<std::string>& words, std::size_t width, std::size_t indent)
{
    std::string lines;
    std::size_t used = indent;
    for (const std::string& word : words) {
        if (used > indent && used + 1 + widthOf(word) > width) {
            lines += '\n';
            lines += blanks(indent);
            used = indent;
        } else if (used > indent) {
            lines += ' ';
            ++used;
        }
        lines += word;
        used += widthOf(word);
    }
    return lines;
}

TextTable::TextTable(std::vector<Column> columns, std::size_t keyColumns)
    : columns_(std::move(columns)), keyColumns_(keyColumns)
{
}

void TextTable::addRow(std::vector<std::string> cells)
{
    cells.resize(columns_.size());
    for (std::string& cell : cells)
        cell = onOneLine(cell);
    rows_.push_back(std::move(cells));
}

void TextTable::addGap()
{
    if (!rows_.empty())
        rows_.emplace_back();
}

bool TextTable::isToldAbove(std::size_t i, std::size_t j) const
{
    return j == 0 && keyColumns_ == 2 && i > 0 && !rows_[i - 1].empty() && rows_[i - 1][0] == rows_[i][0];
}

std::vector<std::string> TextTable::paddedColumn(std::size_t j) const
{
    const auto& [heading, align] = columns_[j];
    std::vector<std::string> cells;
    for (std::size_t i = 0; i < rows_.size(); ++i)
        cells.push_back(rows_[i].empty() || isToldAbove(i, j) ? "" : rows_[i][j]);
    if (align == Align::point)
        alignPoints(cells);
    cells.insert(cells.begin(), onOneLine(heading));

    std::size_t width = 0;
    for (const std::string& cell : cells)
        width = std::max(width, widthOf(cell));
    for (std::string& cell : cells)
        cell = padded(cell, width, align);
    return cells;
}

void TextTable::print(std::ostream& out, std::size_t width) const
{
    std::vector<std::vector<std::string>> columns;
    for (std::size_t j = 0; j < columns_.size(); ++j)
        columns.push_back(paddedColumn(j));

    std::size_t next = keyColumns_;
    do {
        std::vector<std::string> lines(rows_.size() + 1);
        std::size_t used = 0;
        const auto append = [&](const std::vector<std::string>& cells) {
            const std::string space = blanks(used > 0 ? spacing : 0);
            used += space.size() + widthOf(cells.front());
            for (std::size_t i = 0; i < lines.size(); ++i)
                lines[i] += space + cells[i];
        };
        for (std::size_t j = 0; j < keyColumns_; ++j)
            append(columns[j]);
        do
            append(columns[next++]);
        while (next < columns.size() && used + spacing + widthOf(columns[next].front()) <= width);

        printLine(out, lines.front());
        printLine(out, std::string(used, '-'));
        for (std::size_t i = 1; i < lines.size(); ++i)
            printLine(out, lines[i]);
        out << '\n';
    } while (next < columns.size());
}

} // namespace survey
