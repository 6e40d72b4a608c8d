// How many digits of a number are shown.
#pragma once

#include "table.h"

#include <string>

namespace survey {

/// With a number of digits behind the point; "-" for the missing value.
std::string withDecimals(double value, int decimals);

/// Numbers in the unit of a column, with as many decimals as its cells have in the file, but no more than seven digits
/// of the largest; in scientific notation where the numbers are huge or tiny.
class NumberFormat
{
public:
    explicit NumberFormat(const Column& column);

    std::string cell(double value) const;      ///< for what is a cell, as a minimum
    std::string statistic(double value) const; ///< for what is computed, as a mean: one digit more

private:
    std::string shown(double value, int decimals) const;

    bool scientific_ = false;
    int decimals_ = 0;
};

} // namespace survey
