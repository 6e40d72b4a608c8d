// Doubles compared by their bits: matchers.
#pragma once

#include "support/constants.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace vecmat::test {

/// Whether two doubles have the same bits, so that 0.0 differs from -0.0. One NaN is as good as another: which payload
/// an operation on two of them hands on is the processor's affair.
bool sameBits(double left, double right);

/// The value with 17 digits and its bits: "0.10000000000000001 [3fb999999999999a]", "M [ffefffffffffffe2]".
std::string shown(double value);
std::string shown(std::span<const double> values);

/// Matches one double by its bits.
class SameBitsAs
{
public:
    using is_gtest_matcher = void;

    explicit SameBitsAs(double expected) : expected_(expected) {}
    bool MatchAndExplain(double actual, std::ostream* explanation) const;
    void DescribeTo(std::ostream* text) const;
    void DescribeNegationTo(std::ostream* text) const;

private:
    double expected_;
};

/// Matches a sequence of doubles by their bits; names the first places that differ.
class SameBitsAsAll
{
public:
    using is_gtest_matcher = void;

    explicit SameBitsAsAll(std::vector<double> expected) : expected_(std::move(expected)) {}
    bool MatchAndExplain(std::span<const double> actual, std::ostream* explanation) const;
    void DescribeTo(std::ostream* text) const;
    void DescribeNegationTo(std::ostream* text) const;

private:
    std::vector<double> expected_;
};

/// `EXPECT_THAT(result, SameBits(1.5))`, `EXPECT_THAT(cells, SameBits({1.0, M, -0.0}))`.
inline SameBitsAs SameBits(double expected)
{
    return SameBitsAs(expected);
}
inline SameBitsAsAll SameBits(std::vector<double> expected)
{
    return SameBitsAsAll(std::move(expected));
}
inline SameBitsAsAll SameBits(std::initializer_list<double> expected)
{
    return SameBitsAsAll(expected);
}

} // namespace vecmat::test
