// How many digits of a number are shown.
#pragma once

#include "table.h"

#include <string>

namespace survey {

/// With a number of digits behind the point; "-" for the missing value, and for what is no finite number.
std::string withDecimals(double value, int decimals);

/// With as few digits as tell the number from every other; "NA" for the missing value, and for what is no finite number.
std::string withAllDigits(double value);

/// "12.5 %"; `part` of no more than `whole`, which isn't 0.
std::string percentage(double part, double whole);

/// Digits behind the point with which a number shows so many digits that count; 0 or more.
int decimalsFor(double value, int digits);

/// With a number of digits that count, or of those ahead of the point where these are more; in scientific notation where
/// the number is huge or tiny.
std::string withDigits(double value, int digits);

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
