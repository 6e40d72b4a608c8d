// What is wrong with the input, and where.
#pragma once

#include <stdexcept>
#include <string>

namespace survey {

/// A place in a file. Lines and columns count from 1; what is 0 or empty isn't told.
struct Place
{
    std::string file;
    int line = 0;
    int column = 0;
    int lastColumn = 0; ///< above `column` where a row of columns is meant
    std::string columnName{};
};

/// A file that can't be surveyed: "birds.csv, line 3, column 2 (mass): 'abc' is not a number".
class InputError : public std::runtime_error
{
public:
    InputError(const Place& place, const std::string& message);
};

/// A text of the file, shortened and without line breaks, in quotes.
std::string quoted(const std::string& text);

} // namespace survey
