// Tables of text for a terminal.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace survey {

/// Characters of a text in UTF-8, each taken to fill one place.
std::size_t widthOf(std::string_view text);

/// The text with control characters, line breaks among them, as blanks.
std::string onOneLine(std::string_view text);

/// The text, or its beginning and "..." where it is wider than `width`.
std::string shortened(const std::string& text, std::size_t width);

/// The parts of a text between its blanks.
std::vector<std::string> words(const std::string& text);

/// Words side by side, in lines of at most `width` places. The first line begins where `indent` places are used up; the
/// others are indented so far. A word is never broken.
std::string wrapped(const std::vector<std::string>& words, std::size_t width, std::size_t indent);

enum class Align { left, right, point };

/// Rows of cells below headings. With `Align::point` the decimal points stand below each other. A table wider than the
/// line is printed in parts, one below the other, each beginning with the columns that name the rows. Where two columns
/// name the rows, the first is printed once for all the rows of a run that have it in common.
class TextTable
{
public:
    struct Column
    {
        std::string heading;
        Align align;
    };

    /// The first `keyColumns` columns name the rows.
    TextTable(std::vector<Column> columns, std::size_t keyColumns);

    void addRow(std::vector<std::string> cells); ///< one for each column
    void addGap();                               ///< an empty line, except ahead of the first row

    bool empty() const { return rows_.empty(); }
    const std::vector<Column>& columns() const { return columns_; }
    std::size_t keyColumns() const { return keyColumns_; }
    const std::vector<std::vector<std::string>>& rows() const { return rows_; } ///< one without cells is a gap
    void print(std::ostream& out, std::size_t width) const;

private:
    bool isToldAbove(std::size_t i, std::size_t j) const;
    std::vector<std::string> paddedColumn(std::size_t j) const;

    std::vector<Column> columns_;
    std::size_t keyColumns_;
    std::vector<std::vector<std::string>> rows_;
};

} // namespace survey
