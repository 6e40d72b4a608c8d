// Every flat function as a test case of its own, and the plans by which they are called.
#pragma once

#include "support/flat_calls/calls.h"
#include "support/flat_calls/plans.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace vecmat::flat {

inline void PrintTo(const Call& call, std::ostream* out)
{
    *out << call.name;
}

} // namespace vecmat::flat

namespace vecmat::test {

class EveryCall : public testing::TestWithParam<flat::Call>
{
};

inline auto everyCall()
{
    const auto calls = flat::allCalls();
    return testing::ValuesIn(calls.begin(), calls.end());
}

inline std::string nameOf(const testing::TestParamInfo<flat::Call>& info)
{
    return std::string(info.param.name);
}

/// Plans over all sizes and all styles of data, `repeats` of each: the seeds go on from `seed`.
inline std::vector<flat::Plan> plansOver(const std::vector<flat::Size>& sizes, int repeats, std::uint64_t seed)
{
    using flat::Style;
    std::vector<flat::Plan> plans;
    for (const flat::Size& size : sizes)
        for (const Style style : {Style::plain, Style::gaps, Style::ties, Style::constant, Style::special})
            for (int k = 0; k < repeats; ++k)
                plans.push_back({.size = size, .seed = seed++, .style = style});
    return plans;
}

/// One plan for each size, the styles of data by turns.
inline std::vector<flat::Plan> plansByTurns(const std::vector<flat::Size>& sizes, std::uint64_t seed)
{
    std::vector<flat::Plan> plans;
    for (const flat::Size& size : sizes) {
        plans.push_back({.size = size, .seed = seed, .style = static_cast<flat::Style>(seed % 5)});
        ++seed;
    }
    return plans;
}

/// No cells, a few, unequal sides, and senseless numbers.
inline std::vector<flat::Size> smallSizes()
{
    return {{0, 0, 0}, {1, 1, 1},       {2, 2, 2},       {3, 3, 3},    {7, 7, 7},  {7, 7, 3},
            {3, 3, 7}, {6, 6, 6, true}, {9, 9, 9, true}, {-1, -1, -1}, {4, -2, 3}, {4, 3, -2}};
}

/// Around the widths of vectors and panels, and the sizes at which another algorithm takes over; tall and wide.
inline std::vector<flat::Size> largeSizes()
{
    return {{8, 8, 8}, {15, 15, 4}, {16, 16, 16}, {17, 17, 17}, {33, 33, 5}, {5, 5, 33}, {51, 65, 13}, {70, 131, 3}};
}

} // namespace vecmat::test
