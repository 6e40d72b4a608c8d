// Keys that agree in some of their digits, whichever these are: a sort by digits has nothing to do for those.
#include "sorting/sort.h"

#include "sorting/sort_reference.h"
#include "support/bits.h"
#include "support/random_data.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

namespace vecmat::test {
namespace {

/// Keys from 1 to below 2 that differ in few bits of their significands: two from `low`, and two from `high`.
std::vector<double> keysThatDifferAt(int low, int high, std::size_t n, RandomData& random)
{
    std::vector<double> keys(n);
    for (double& key : keys) {
        const auto bits = [&](int from) { return static_cast<std::uint64_t>(random.integer(0, 3)) << from; };
        key = std::bit_cast<double>(std::bit_cast<std::uint64_t>(1.0) | bits(low) | bits(high));
    }
    return keys;
}

class SortOfConstantDigits : public testing::TestWithParam<int>
{
protected:
    const int n = GetParam();
    const std::size_t rows = static_cast<std::size_t>(n);

    /// Calls `check` with keys for every pair of places.
    template <class Check>
    void forEachPair(Check check) const
    {
        for (int high = 2; high <= 50; ++high)
            for (int low = 0; low <= high - 2; low += 1 + high % 3) {
                RandomData random(static_cast<std::uint64_t>(100 * high + low));
                SCOPED_TRACE(testing::Message() << n << " keys that differ from bits " << low << " and " << high);
                check(keysThatDifferAt(low, high, rows, random));
            }
    }
};

TEST_P(SortOfConstantDigits, vectors)
{
    forEachPair([&](std::vector<double> keys) {
        for (const short descending : {short{0}, short{-1}}) {
            std::vector<double> actual = keys;
            VB_SortQVectorDbl(actual.data(), n, 1, n, descending);
            EXPECT_THAT(actual, SameBits(withRows(keys, sortedSources(keys, {1, n, descending}))));
        }
    });
}

TEST_P(SortOfConstantDigits, rows)
{
    const std::vector<double> cells = countedCells(2 * rows);
    forEachPair([&](const std::vector<double>& keys) {
        for (const short descending : {short{0}, short{-1}}) {
            std::vector<double> data = cells;
            std::vector<double> key = keys;
            std::vector<double> companion(rows);
            VB_SortQDbl(data.data(), n, 2, 1, n, key.data(), companion.data(), 1, descending, -1);
            const auto sources = sortedSources(keys, {1, n, descending});
            EXPECT_THAT(data, SameBits(withRows(cells, sources)));
            EXPECT_THAT(key, SameBits(withRows(keys, sources)));
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Sizes, SortOfConstantDigits, testing::Values(50, 299, 300, 1100));

} // namespace
} // namespace vecmat::test
