// Numbers of the penguins by R, and the penguins themselves as the survey reads them.
#pragma once

#include "read_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace survey::test {

struct GroupReference
{
    std::string column;
    std::string group;
    int count;
    int missing;
    std::array<double, 6> moments;
    std::array<double, 3> quartiles;
    std::array<double, 13> quantiles;
};

struct CategoryReference
{
    std::string column;
    std::string category;
    int count;
    std::array<double, 4> means;
};

struct FilledReference
{
    int row;
    int column;
    std::string content;
};

#include "penguins_reference.inc"

/// With the species as grouping column.
inline const Table& penguins()
{
    static const Table table = readTable(SURVEY_DATA "/penguins.csv", {.grouping = "species"});
    return table;
}

/// Each within `tolerance` of R's number, relative to it where that is above 1.
inline void expectClose(std::span<const double> actual, std::span<const double> expected, const std::string& what,
                        double tolerance = 1e-12)
{
    ASSERT_EQ(actual.size(), expected.size()) << what;
    for (std::size_t i = 0; i < actual.size(); ++i)
        EXPECT_NEAR(actual[i], expected[i], tolerance * std::max(1.0, std::fabs(expected[i])))
            << what << ", number " << i;
}

} // namespace survey::test
