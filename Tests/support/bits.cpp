#include "support/bits.h"

#include <cmath>
#include <cstdio>

namespace vecmat::test {

namespace {

constexpr std::size_t differencesShown = 5;

std::uint64_t bitsOf(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

} // namespace

bool sameBits(double left, double right)
{
    return bitsOf(left) == bitsOf(right) || (std::isnan(left) && std::isnan(right));
}

std::string shown(double value)
{
    char text[64];
    if (bitsOf(value) == bitsOf(M))
        std::snprintf(text, sizeof text, "M [ffefffffffffffe2]");
    else
        std::snprintf(text, sizeof text, "%.17g [%016llx]", value, static_cast<unsigned long long>(bitsOf(value)));
    return text;
}

std::string shown(std::span<const double> values)
{
    std::string text = "{";
    for (double value : values)
        text += (text.size() > 1 ? ", " : "") + shown(value);
    return text + "}";
}

bool SameBitsAs::MatchAndExplain(double actual, std::ostream* explanation) const
{
    if (explanation != nullptr)
        *explanation << "which is " << shown(actual);
    return sameBits(actual, expected_);
}

void SameBitsAs::DescribeTo(std::ostream* text) const
{
    *text << "has the bits of " << shown(expected_);
}

void SameBitsAs::DescribeNegationTo(std::ostream* text) const
{
    *text << "has other bits than " << shown(expected_);
}

bool SameBitsAsAll::MatchAndExplain(std::span<const double> actual, std::ostream* explanation) const
{
    std::size_t differences = actual.size() == expected_.size() ? 0 : 1;
    if (differences != 0 && explanation != nullptr)
        *explanation << "which has " << actual.size() << " values in place of " << expected_.size();
    for (std::size_t k = 0; k < std::min(actual.size(), expected_.size()); ++k) {
        if (sameBits(actual[k], expected_[k]))
            continue;
        if (explanation != nullptr && differences < differencesShown)
            *explanation << (differences == 0 ? "which" : " and") << " at " << k << " is " << shown(actual[k])
                         << " in place of " << shown(expected_[k]);
        ++differences;
    }
    return differences == 0;
}

void SameBitsAsAll::DescribeTo(std::ostream* text) const
{
    *text << "has the bits of " << shown(expected_);
}

void SameBitsAsAll::DescribeNegationTo(std::ostream* text) const
{
    *text << "has other bits than " << shown(expected_);
}

} // namespace vecmat::test
