#include "number_format.h"

#include "VecMat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace survey {

namespace {

std::string written(double value, std::chars_format format, int decimals)
{
    if (value == vecmat::missingValue || !std::isfinite(value))
        return "-";
    char buffer[64];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value, format, decimals);
    if (error != std::errc()) // too long to be written without a power of ten
        return written(value, std::chars_format::scientific, decimals);
    std::string text(buffer, end);
    const bool roundedToZero = text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos;
    return roundedToZero ? text.substr(1) : text;
}

/// The power of ten of the first digit; 0 for 0, and for what is no finite number.
int magnitudeOf(double value)
{
    return std::isfinite(value) && value != 0.0 ? static_cast<int>(std::floor(std::log10(std::fabs(value)))) : 0;
}

} // namespace

std::string withDecimals(double value, int decimals)
{
    return written(value, std::chars_format::fixed, decimals);
}

std::string withAllDigits(double value)
{
    if (value == vecmat::missingValue || !std::isfinite(value))
        return "NA";
    char buffer[64];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

std::string percentage(double part, double whole)
{
    return withDecimals(100.0 * part / whole, 1) + " %";
}

int decimalsFor(double value, int digits)
{
    return std::max(0, digits - 1 - magnitudeOf(value));
}

std::string withDigits(double value, int digits)
{
    const int magnitude = magnitudeOf(value);
    return magnitude > 9 || magnitude < -5 ? written(value, std::chars_format::scientific, digits - 1)
                                           : withDecimals(value, decimalsFor(value, digits));
}

NumberFormat::NumberFormat(const Column& column) : decimals_(column.decimals)
{
    double largest = 0.0;
    for (const double x : column.numbers)
        if (x != vecmat::missingValue)
            largest = std::max(largest, std::fabs(x));
    const int magnitude = magnitudeOf(largest);
    decimals_ = std::min(decimals_, std::max(0, 6 - magnitude));
    scientific_ = magnitude > 9 || decimals_ > 9;
    if (scientific_)
        decimals_ = 5;
}

std::string NumberFormat::cell(double value) const
{
    return shown(value, decimals_);
}

std::string NumberFormat::statistic(double value) const
{
    return shown(value, decimals_ + 1);
}

std::string NumberFormat::shown(double value, int decimals) const
{
    return written(value, scientific_ ? std::chars_format::scientific : std::chars_format::fixed, decimals);
}

} // namespace survey
