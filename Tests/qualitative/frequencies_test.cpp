#include "qualitative/frequencies.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include <cmath>
#include <limits>

namespace vecmat::test {

namespace {

using Doubles = std::vector<double>;
using Ints = std::vector<int>;
using Texts = std::vector<std::wstring>;

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double infinity = std::numeric_limits<double>::infinity();

/// The frequency where the function and the flat form agree; NaN where they don't.
double frequency(const Doubles& x, const Doubles& weights, double value, double tolerance)
{
    const int n = static_cast<int>(x.size());
    Guarded<double> flat(x);
    Guarded<double> flatWeights(weights);
    const double sum = V_Freq(column(x), n, column(weights), value, tolerance);
    EXPECT_THAT(VB_V_Freq(flat, n, flatWeights, value, tolerance), SameBits(sum));
    EXPECT_TRUE(flat.untouched() && flatWeights.untouched());
    return sum;
}

TEST(VFreq, SumsTheWeightsOfWhatLiesWithinTheTolerance)
{
    EXPECT_THAT(frequency({1, 2, 1.25, 0.75, 1}, {1, 2, 4, 8, 16}, 1, 0.5), SameBits(29));
    EXPECT_THAT(frequency({1, 2}, {-3, 5}, 1, 0.5), SameBits(-3));
}

TEST(VFreq, DistanceEqualToTheToleranceDoesNotCount)
{
    EXPECT_THAT(frequency({1, 1.5, 0.5, std::nextafter(1.5, 0.0)}, {1, 2, 4, 8}, 1, 0.5), SameBits(9));
    EXPECT_THAT(frequency({1, 1}, {1, 1}, 1, 0), SameBits(0)) << "not even an equal value with a tolerance of 0";
}

TEST(VFreq, MissingValueIsAValue)
{
    EXPECT_THAT(frequency({M, 1, M}, {1, 2, 4}, M, 0.5), SameBits(5));
    EXPECT_THAT(frequency({M, 1}, {M, 2}, 1, 0.5), SameBits(2));
    EXPECT_THAT(frequency({M, 1}, {1, M}, 1, 0.5), SameBits(M)) << "weights are not tested either";
}

TEST(VFreq, NaNMatchesNothing)
{
    EXPECT_THAT(frequency({NaN, 1}, {1, 2}, 1, infinity), SameBits(2));
    EXPECT_THAT(frequency({NaN, 1}, {1, 2}, NaN, 1), SameBits(0));
    EXPECT_THAT(frequency({1}, {1}, 1, NaN), SameBits(0));
}

TEST(VFreq, StartsFromPositiveZero)
{
    EXPECT_THAT(frequency({1}, {-0.0}, 1, 1), SameBits(0.0));
    for (int n : {0, -1}) {
        EXPECT_THAT(V_Freq(column({1}), n, column({1}), 1, 1), SameBits(0.0));
        EXPECT_THAT(V_Freq(intColumn({1}), n, column({1}), 1, 1), SameBits(0.0));
        EXPECT_THAT(V_FreqStr(stringColumn({L"a"}), n, column({1}), L"a"), SameBits(0.0));
    }
}

TEST(VFreq, SumsInOrder)
{
    EXPECT_THAT(frequency({1, 1, 1}, {1e17, 1, -1e17}, 1, 0.5), SameBits((1e17 + 1) - 1e17));
}

TEST(VFreq, CellsBeyondTheTablesAreMinusOne)
{
    EXPECT_THAT(V_Freq(column({5}), 3, column({1, 2, 4}), -1, 0.5), SameBits(6));
    EXPECT_THAT(V_Freq(column({5, 5}), 2, column({4}), 5, 0.5), SameBits(3));
    EXPECT_THAT(V_Freq(intColumn({5}), 2, column({1, 2}), -1, 0.5), SameBits(2));
    EXPECT_THAT(V_FreqStr(stringColumn({L"a"}), 2, column({1, 2}), L""), SameBits(2)) << "an empty string";
}

TEST(VFreq, WalksATableInLinearOrder)
{
    EXPECT_THAT(V_Freq(byColumns({{1, 2}, {1, 1}}), 3, column({1, 2, 4, 8}), 1, 0.5), SameBits(5));
}

TEST(VFreq, IntsAreWidened)
{
    EXPECT_THAT(V_Freq(intColumn({1, 2, 3}), 3, column({1, 2, 4}), 1.75, 0.5), SameBits(2));
    const int lowest = std::numeric_limits<int>::min();
    EXPECT_THAT(V_Freq(intColumn({lowest, 2}), 2, column({1, 2}), 2147483647.0, 1), SameBits(0.0));
}

TEST(VBFreqLng, TruncatesTheSum)
{
    Guarded<int> x({7, 3, 7});
    Guarded<double> weights({0.5, 10, 0.6});
    EXPECT_EQ(VB_V_FreqLng(x, 3, weights, 7), 1);
    Guarded<double> negative({-0.9, 10, -0.6});
    EXPECT_EQ(VB_V_FreqLng(x, 3, negative, 7), -1) << "towards zero";
    Guarded<double> huge({3e9, 0, 0});
    EXPECT_EQ(VB_V_FreqLng(x, 3, huge, 7), std::numeric_limits<int>::min());
    EXPECT_EQ(VB_V_FreqLng(x, 3, weights, 8), 0);
    EXPECT_EQ(VB_V_FreqLng(x, 0, weights, 7), 0);
    EXPECT_TRUE(x.untouched() && weights.untouched());
}

TEST(VFreqStr, ComparesPlainStrings)
{
    const Texts x{L"a", L"A", L"", L"a", L"a "};
    const Doubles weights{1, 2, 4, 8, 16};
    BstrArray flat(x);
    Guarded<double> flatWeights(weights);
    const struct
    {
        const wchar_t* value;
        double sum;
    } cases[] = {{L"a", 9}, {L"A", 2}, {L"", 4}, {L"b", 0}};
    for (const auto& one : cases) {
        EXPECT_THAT(V_FreqStr(stringColumn(x), 5, column(weights), one.value), SameBits(one.sum));
        EXPECT_THAT(VB_V_FreqStr(flat, 5, flatWeights, one.value), SameBits(one.sum));
    }
    EXPECT_TRUE(flatWeights.untouched());
    EXPECT_EQ(flat.countNew(), 0u);
}

TEST(VFreq, IsThePlainSumOverRandomVectors)
{
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const std::size_t n = static_cast<std::size_t>(data.integer(0, 30));
        const Doubles x = data.withSpecials(data.wholes(n, -2, 2), 0.1);
        const Doubles weights = data.weights(n, 0.1);
        const Ints ints = data.integers(n, -2, 2);
        const double value = data.chance(0.2) ? M : data.integer(-2, 2);
        const double tolerance = data.integer(0, 4) / 2.0;
        double sum = 0.0;
        double intSum = 0.0;
        double equal = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            if (std::fabs(x[i] - value) < tolerance)
                sum = sum + weights[i];
            if (std::fabs(ints[i] - value) < tolerance)
                intSum = intSum + weights[i];
            if (ints[i] == 1)
                equal = equal + weights[i];
        }
        EXPECT_THAT(frequency(x, weights, value, tolerance), SameBits(sum));
        EXPECT_THAT(V_Freq(intColumn(ints), static_cast<int>(n), column(weights), value, tolerance), SameBits(intSum));
        Guarded<int> flat(ints);
        Guarded<double> flatWeights(weights);
        EXPECT_EQ(VB_V_FreqLng(flat, static_cast<int>(n), flatWeights, 1), static_cast<int>(equal));
    }
}

} // namespace

} // namespace vecmat::test
