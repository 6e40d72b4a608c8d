#include "qualitative/modes.h"

#include "qualitative/summary_tables.h"

#include <limits>
#include <map>

namespace vecmat::test {

namespace {

const double NaN = std::numeric_limits<double>::quiet_NaN();

/// The mode where the function and the flat form agree.
std::wstring mode(const Texts& x, const Doubles& weights)
{
    const int n = static_cast<int>(x.size());
    BstrArray flat(x);
    Guarded<double> flatWeights(weights);
    const std::wstring answer = V_Mode(stringColumn(x), n, column(weights));
    EXPECT_EQ(takenText(VB_V_Mode(flat, n, 99, flatWeights)), answer);
    EXPECT_TRUE(flatWeights.untouched());
    EXPECT_EQ(flat.countNew(), 0u);
    return answer;
}

TEST(VMode, LargestSumOfWeights)
{
    EXPECT_EQ(mode({L"a", L"b"}, {1, 2}), L"b");
    EXPECT_EQ(mode({L"a", L"b"}, {1, 1}), L"a") << "a tie goes to the one met first";
    EXPECT_EQ(mode({L"b", L"a", L"a", L"b"}, {1, 1, 1, 1}), L"b");
    EXPECT_EQ(mode({L"b", L"a", L"a", L"b"}, {1, 1, 1.5, 1}), L"a");
    EXPECT_EQ(mode({L"a", L"b", L"c", L"b"}, {3, 2, 1, 2}), L"b");
}

TEST(VMode, EmptyStringsAreLeftOut)
{
    EXPECT_EQ(mode({L"", L"", L"a", L"", L"b"}, {9, 9, 1, 9, 2}), L"b");
    EXPECT_EQ(mode({L"", L""}, {1, 1}), L"") << "unlike the category lists, which read on";
    EXPECT_EQ(V_Mode(stringsByColumns({{L"", L""}, {L"x", L"y"}}), 2, column({1, 1})), L"");
}

TEST(VMode, NoCells)
{
    for (int n : {0, -1})
        EXPECT_EQ(V_Mode(stringColumn({L"a"}), n, column({1})), L"");
    BstrArray flat(Texts{L"a"});
    Guarded<double> weights({1});
    EXPECT_EQ(takenText(VB_V_Mode(flat, 0, 0, weights)), L"") << "a valid empty string";
}

TEST(VMode, WeightsOfZeroAndBelowCount)
{
    EXPECT_EQ(mode({L"a", L"b"}, {-2, -1}), L"b");
    EXPECT_EQ(mode({L"a", L"b", L"a"}, {1, 0.5, -1}), L"b");
    EXPECT_EQ(mode({L"a", L"b"}, {0, 0}), L"a");
    EXPECT_EQ(mode({L"a", L"b"}, {NaN, 5}), L"a") << "nothing exceeds a NaN that comes first";
}

TEST(VMode, CellsBeyondTheTables)
{
    EXPECT_EQ(V_Mode(stringColumn({L"a", L"b"}), 4, column({1, 2, 9, 9})), L"b") << "empty ones are left out";
    EXPECT_EQ(V_Mode(stringColumn({L"a", L"b", L"b"}), 3, column({2, 2.5})), L"a") << "a weight of -1";
}

TEST(VMode, LongVectorsOfManyCategories)
{
    const int n = 200000;
    Texts x;
    for (int i = 0; i < n; ++i)
        x.push_back(std::to_wstring(i));
    x.push_back(L"77777");
    EXPECT_EQ(V_Mode(stringColumn(x), n + 1, unitWeights(n + 1)), L"77777");
}

TEST(VMode, IsThePlainWalk)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const std::size_t n = static_cast<std::size_t>(data.integer(0, 15));
        const Texts x = randomTexts(data, n, 0.3);
        const Doubles weights = randomWeights(data, n);
        Texts list;
        Doubles sums;
        for (std::size_t i = 0; i < n; ++i) {
            if (x[i].empty())
                continue;
            std::size_t c = list.size();
            while (c > 0 && list[c - 1] != x[i])
                --c;
            if (c > 0) {
                sums[c - 1] = sums[c - 1] + weights[i];
            } else {
                list.push_back(x[i]);
                sums.push_back(weights[i]);
            }
        }
        std::size_t best = 0;
        for (std::size_t c = 1; c < list.size(); ++c)
            if (sums[c] > sums[best])
                best = c;
        EXPECT_EQ(mode(x, weights), list.empty() ? L"" : list[best]);
    }
}

// ---- codes ----------------------------------------------------------------------------------------------------------

double modeOfCodes(const Doubles& x)
{
    const int n = static_cast<int>(x.size());
    Guarded<double> flat(x);
    const double answer = V_ModeCat(column(x), n);
    EXPECT_THAT(VB_V_ModeCatDbl(flat, n), SameBits(answer));
    EXPECT_TRUE(flat.untouched());
    return answer;
}

TEST(VModeCat, MostFrequentCode)
{
    EXPECT_THAT(modeOfCodes({1, 1, 0, M}), SameBits(1));
    EXPECT_THAT(modeOfCodes({2, 0, 2}), SameBits(2));
    EXPECT_THAT(modeOfCodes({2, 1, 2, 1}), SameBits(1)) << "the lowest of equals, not the first met";
}

TEST(VModeCat, CodesOutsideTheRangeAreLeftOut)
{
    EXPECT_THAT(modeOfCodes({5, 5}), SameBits(0)) << "all counts stay 0";
    EXPECT_THAT(modeOfCodes({3, 3, 1}), SameBits(1)) << "3 is no code among three cells";
    EXPECT_THAT(modeOfCodes({-1, -1, 1}), SameBits(1));
    EXPECT_THAT(modeOfCodes({-7, -7, 1}), SameBits(1));
    EXPECT_THAT(modeOfCodes({1e300, 1e300, 1}), SameBits(1));
    EXPECT_THAT(modeOfCodes({NaN, NaN, 1}), SameBits(1));
    EXPECT_THAT(modeOfCodes({2147483647, 2147483647, 1}), SameBits(1));
}

TEST(VModeCat, CodesAreTruncated)
{
    EXPECT_THAT(modeOfCodes({2.7, 2.7, 1}), SameBits(2));
    EXPECT_THAT(modeOfCodes({-0.5, -0.5, 1}), SameBits(1)) << "1 is added first: no code 0";
    EXPECT_THAT(modeOfCodes({-1.5, -1.5, 1}), SameBits(1));
    EXPECT_THAT(modeOfCodes({0.5, -0.0, 1}), SameBits(0));
    EXPECT_THAT(modeOfCodes({std::nextafter(1.0, 0.0), 1, 0}), SameBits(1)) << "adding 1 rounds up to 2";
}

TEST(VModeCat, FewerThanTwoCells)
{
    EXPECT_THAT(V_ModeCat(column({1, 1}), 1), SameBits(0.0));
    EXPECT_THAT(V_ModeCat(column({1, 1}), 0), SameBits(0.0));
    EXPECT_THAT(V_ModeCat(column({1, 1}), -3), SameBits(0.0));
}

TEST(VModeCat, OnlyTheExactPatternIsMissing)
{
    const double below = std::nextafter(M, -std::numeric_limits<double>::infinity());
    EXPECT_THAT(modeOfCodes({below, below, 1}), SameBits(1)) << "far outside the codes anyway";
    EXPECT_THAT(modeOfCodes({M, M}), SameBits(0));
}

TEST(VModeCat, CellsBeyondTheTable)
{
    EXPECT_THAT(V_ModeCat(column({3}), 5), SameBits(3)) << "the others are -1, no code";
}

TEST(VModeCat, IsACountOverRandomCodes)
{
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const std::size_t n = static_cast<std::size_t>(data.integer(2, 20));
        const Doubles x = data.withMissing(data.uniforms(n, -1.5, data.uniform(0.5, 12.0)), 0.2);
        std::map<int, int> counts;
        for (const double cell : x)
            if (cell >= 0.0 && cell < static_cast<double>(n))
                ++counts[static_cast<int>(cell)];
        int best = 0;
        for (const auto& [code, count] : counts)
            if (count > counts[best])
                best = code;
        EXPECT_THAT(modeOfCodes(x), SameBits(best));
    }
}

} // namespace

} // namespace vecmat::test
