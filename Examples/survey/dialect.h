// Which characters stand between fields and ahead of decimals.
#pragma once

#include <optional>
#include <string_view>

namespace survey {

struct Dialect
{
    char delimiter;
    char decimal;
};

/// From the first records, where they aren't told: the delimiter, of comma, semicolon, tab and bar, that gives them all
/// the most fields, the comma where all have one. Decimals stand behind a comma where that is not the delimiter, and
/// more of the cells are numbers so.
Dialect dialectOf(std::string_view text, std::optional<char> delimiter, std::optional<char> decimal);

} // namespace survey
