// Ranks of few and many values against the rules written out again.
#include "sorting/ranks.h"

#include "sorting/many_keys.h"
#include "support/bits.h"

#include <gtest/gtest.h>

using namespace vecmat::test;

namespace {

struct Ranked
{
    std::vector<double> ranks;
    std::vector<double> tieSizes;
    int nTies = 0;
};

/// Ranks by place; `settle(first, end, ranks, records)` then gives each run of ties its ranks.
template <class Tied, class Settle>
Ranked rankedByRecords(const std::vector<double>& x, Tied tied, Settle settle)
{
    const auto records = recordsInOrder(x, 1, static_cast<int>(x.size()), false);
    Ranked result{std::vector<double>(x.size()), std::vector<double>(x.size(), 0.0), 0};
    std::vector<double> ranks(x.size(), M);
    std::size_t missing = 0;
    while (missing < x.size() && records[missing].key == M)
        ++missing;
    for (std::size_t k = missing; k < x.size(); ++k)
        ranks[k] = static_cast<double>(k - missing + 1);
    for (std::size_t k = missing + 1; k < x.size();) {
        const std::size_t first = k - 1;
        if (!tied(records[k].key, records[first].key)) {
            ++k;
            continue;
        }
        while (k < x.size() && tied(records[k].key, records[first].key))
            ++k;
        settle(first, k, ranks, records);
        result.tieSizes[static_cast<std::size_t>(result.nTies++)] = static_cast<double>(k - first);
    }
    for (std::size_t k = 0; k < x.size(); ++k)
        result.ranks[static_cast<std::size_t>(records[k].position) - 1] = ranks[k];
    return result;
}

class RanksOfManyValues : public testing::TestWithParam<int>
{
protected:
    const int n = GetParam();
    const std::size_t count = static_cast<std::size_t>(n);
    RandomData random{static_cast<std::uint64_t>(99 + n)};
    testing::ScopedTrace trace{__FILE__, __LINE__, random.seed()};
    const std::vector<Keys> kinds = keysOfManyKinds(random, n);
    std::vector<double> weights = random.weights(count, 0.1);

    /// Expects what `rank` writes, over tie sizes that are all `tieSize`, to be the ranks and ties by the records.
    template <class Rank, class Tied, class Settle>
    void expectRanks(Rank rank, double tieSize, Tied tied, Settle settle)
    {
        for (Keys keys : kinds) {
            SCOPED_TRACE(testing::Message() << keys);
            const Ranked expected = rankedByRecords(keys.cells, tied, settle);
            Ranked actual{std::vector<double>(count, 0.5), std::vector<double>(count, tieSize), -7};
            rank(keys.cells.data(), n, weights.data(), actual.ranks.data(), &actual.nTies, actual.tieSizes.data());
            EXPECT_THAT(actual.ranks, SameBits(expected.ranks));
            EXPECT_THAT(actual.tieSizes, SameBits(expected.tieSizes));
            EXPECT_EQ(actual.nTies, expected.nTies);
        }
    }
};

TEST_P(RanksOfManyValues, weightedMeansOfPlaces)
{
    expectRanks(
        VB_V_GetRanksTiesDbl, 0.5, [](double value, double other) { return std::fabs(value - other) < 1e-15; },
        [&](std::size_t first, std::size_t end, std::vector<double>& ranks, const auto& records) {
            const auto weight = [&](std::size_t k) {
                return weights[static_cast<std::size_t>(records[k].position) - 1];
            };
            double weightSum = weight(0);
            double rankSum = ranks[first] * weight(0);
            for (std::size_t k = first + 1; k < end; ++k) {
                weightSum += weight(k);
                rankSum += ranks[k] * weight(k);
            }
            std::fill(ranks.begin() + static_cast<std::ptrdiff_t>(first),
                      ranks.begin() + static_cast<std::ptrdiff_t>(end), rankSum / weightSum);
        });
}

TEST_P(RanksOfManyValues, lowestPlaces)
{
    expectRanks(
        VB_V_GetRanksTiesIntDbl, 0.0, [](double value, double other) { return value == other; },
        [](std::size_t first, std::size_t end, std::vector<double>& ranks, const auto&) {
            for (std::size_t k = first; k < end; ++k)
                ranks[k] = ranks[first];
        });
}

TEST_P(RanksOfManyValues, sharedRanks)
{
    for (Keys keys : kinds) {
        SCOPED_TRACE(testing::Message() << keys);
        const auto records = recordsInOrder(keys.cells, 1, n, false);
        std::vector<double> expected(count);
        double rank = 1;
        for (std::size_t k = 0; k < count; ++k) {
            if (k > 0 && records[k].key != records[k - 1].key)
                ++rank;
            expected[static_cast<std::size_t>(records[k].position) - 1] = rank;
        }
        std::vector<double> actual(count, 0.5);
        VB_V_GetRanksDbl(keys.cells.data(), n, actual.data());
        EXPECT_THAT(actual, SameBits(expected));
    }
}

TEST(RanksOverTheirOperands, areWrittenOnceEverythingIsRead)
{
    RandomData random{8};
    constexpr int n = 400;
    const std::vector<double> x = random.wholes(n, 0, 60);
    const std::vector<double> weights = random.weights(n);
    std::vector<double> ranks(n, 0.5);
    std::vector<double> sizes(n, 0.5);
    int nTies = 0;
    std::vector<double> values = x;
    std::vector<double> weight = weights;
    VB_V_GetRanksTiesDbl(values.data(), n, weight.data(), ranks.data(), &nTies, sizes.data());
    VB_V_GetRanksTiesDbl(values.data(), n, weight.data(), values.data(), &nTies, weight.data());
    EXPECT_THAT(values, SameBits(ranks));
    EXPECT_THAT(weight, SameBits(sizes));
}

INSTANTIATE_TEST_SUITE_P(Sizes, RanksOfManyValues, testing::ValuesIn(sizesAroundThresholds()));

} // namespace
