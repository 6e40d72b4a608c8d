#include "cell.h"

#include "VecMat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace survey {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

int decimalsOf(std::string_view number)
{
    int digits = 0;
    bool isBehindPoint = false;
    for (std::size_t i = 0; i < number.size(); ++i) {
        if (number[i] == 'e' || number[i] == 'E') {
            i += number.substr(i + 1).starts_with('+') ? 2 : 1;
            int exponent = 0;
            std::from_chars(number.data() + i, number.data() + number.size(), exponent);
            return std::max(0, digits - exponent);
        }
        digits += isBehindPoint ? 1 : 0;
        isBehindPoint = isBehindPoint || number[i] == '.';
    }
    return digits;
}

/// A number with a decimal point.
Cell numberOf(std::string_view text)
{
    Cell cell{Content::text, vecmat::missingValue, 0};
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (end != text.data() + text.size() || error == std::errc::invalid_argument)
        return cell;
    if (error == std::errc::result_out_of_range || !std::isfinite(value)) {
        cell.content = Content::notFinite;
    } else {
        cell = {value == vecmat::missingValue ? Content::missingNumber : Content::number, value, decimalsOf(text)};
    }
    return cell;
}

bool hasPlusSign(std::string_view text)
{
    return text.starts_with('+') && !text.starts_with("+-");
}

} // namespace

CellRules cellRules(char decimal, const std::vector<std::string>& missing)
{
    CellRules rules{decimal, missing, {}};
    for (const std::string& text : missing)
        if (const Cell cell = cellOf(text, {decimal, {}, {}}); cell.content == Content::number)
            rules.missingNumbers.push_back(cell.number);
    return rules;
}

Cell cellOf(std::string_view text, const CellRules& rules)
{
    const Cell none{Content::missing, vecmat::missingValue, 0};
    text = withoutBlanks(text);
    if (text.empty())
        return none;
    const std::string_view number = text.substr(hasPlusSign(text) ? 1 : 0);
    Cell cell{Content::text, vecmat::missingValue, 0};
    if (rules.decimal == '.') {
        cell = numberOf(number);
    } else if (number.find('.') == std::string_view::npos) {
        std::string withPoint(number);
        std::replace(withPoint.begin(), withPoint.end(), rules.decimal, '.');
        cell = numberOf(withPoint);
    }
    const bool isMissing = cell.content == Content::number
                               ? std::find(rules.missingNumbers.begin(), rules.missingNumbers.end(), cell.number) !=
                                     rules.missingNumbers.end()
                               : std::find(rules.missing.begin(), rules.missing.end(), text) != rules.missing.end();
    return isMissing ? none : cell;
}

std::string_view withoutBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace survey
