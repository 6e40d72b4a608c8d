#include "input_error.h"

#include "text_table.h"

namespace survey {

namespace {

std::string described(const Place& place)
{
    std::string text = place.file;
    if (place.line > 0)
        text += ", line " + std::to_string(place.line);
    if (place.lastColumn > place.column)
        text += ", columns " + std::to_string(place.column) + " to " + std::to_string(place.lastColumn);
    else if (place.column > 0)
        text += ", column " + std::to_string(place.column);
    if (!place.columnName.empty())
        text += " (" + onOneLine(place.columnName) + ")";
    return text;
}

} // namespace

InputError::InputError(const Place& place, const std::string& message)
    : std::runtime_error(described(place) + ": " + message)
{
}

std::string quoted(const std::string& text)
{
    std::string result = "'";
    result += shortened(onOneLine(text), 40);
    result += "'";
    return result;
}

} // namespace survey
