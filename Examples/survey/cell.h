// What a cell of a file holds.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace survey {

/// How cells are written.
struct CellRules
{
    char decimal = '.';
    std::vector<std::string> missing;   ///< texts that stand for a missing cell, as an empty cell does
    std::vector<double> missingNumbers; ///< those of them that are numbers, however they are written
};

CellRules cellRules(char decimal, const std::vector<std::string>& missing);

enum class Content {
    missing,
    number,
    notFinite,     ///< nan, inf, or a number beyond the range of a double
    missingNumber, ///< the number that the library takes for a missing cell
    text,
};

struct Cell
{
    Content content;
    double number; ///< the missing value where there is none
    int decimals;  ///< digits behind the point that the number is written with: 1 for "39.1", 4 for "1.5e-3"
};

/// Blanks at both ends don't count.
Cell cellOf(std::string_view text, const CellRules& rules);

std::string_view withoutBlanks(std::string_view text);

} // namespace survey
