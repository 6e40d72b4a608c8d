// The merge behind the sorts: the standard library's order for ordered keys, and a settled one for unordered keys.
#include "sorting/detail/stable_merge.h"

#include "sorting/detail/stable_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

using vecmat::mergeStably;
using vecmat::pairToSort;

namespace {

std::vector<int> positionsOf(const std::vector<pairToSort>& records)
{
    std::vector<int> positions;
    for (const pairToSort& record : records)
        positions.push_back(record.position);
    return positions;
}

std::vector<pairToSort> recordsOf(const std::vector<double>& keys)
{
    std::vector<pairToSort> records;
    for (const double key : keys)
        records.push_back({static_cast<int>(records.size()), key});
    return records;
}

} // namespace

TEST(MergeStably, GivesTheOrderOfTheStandardSort)
{
    std::mt19937 random(20260101);
    for (unsigned n = 0; n < 300; ++n) {
        std::vector<double> keys(n);
        for (double& key : keys)
            key = random() % (1 + n / 2); // with ties
        std::vector<pairToSort> records = recordsOf(keys);
        std::vector<pairToSort> expected = records;
        mergeStably(records);
        std::stable_sort(expected.begin(), expected.end());
        ASSERT_EQ(positionsOf(records), positionsOf(expected)) << n << " keys";
    }
}

TEST(MergeStably, SettlesWhereKeysThatHaveNoOrderEndUp)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    std::vector<pairToSort> records =
        recordsOf({5, nan, 3, 1, nan, 4, 2, 9, nan, 8, 7, nan, 6, 0, 12, nan, 11, 10, 13, 14, nan});
    mergeStably(records);
    EXPECT_EQ(positionsOf(records),
              std::vector<int>({3, 2, 0, 1, 4, 6, 5, 10, 9, 7, 8, 11, 13, 12, 14, 15, 17, 16, 18, 19, 20}));
}
