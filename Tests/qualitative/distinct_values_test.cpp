// The distinct values of a vector: with a tolerance, and counted without one.
#include "qualitative/distinct.h"

#include "support/bits.h"
#include "support/failing_new.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

namespace vecmat::test {
namespace {

using Doubles = std::vector<double>;
using Ints = std::vector<int>;
using Texts = std::vector<std::wstring>;

const double infinity = std::numeric_limits<double>::infinity();
const double NaN = std::numeric_limits<double>::quiet_NaN();
const double epsilon = std::numeric_limits<double>::epsilon();

/// The distinct values by the function and its flat form, which must agree. Cells after them are left alone.
Doubles distinctOf(const Doubles& x)
{
    const int n = static_cast<int>(x.size());
    const auto vector = column(x);
    const auto distinct = filled(n + 1, 1, 99.0);
    int count = -7;
    V_ExtractDistinct(vector, n, distinct, &count);
    EXPECT_THAT(cellsOf(vector), SameBits(x)) << "the vector is not written";
    Doubles values = cellsOf(distinct);
    EXPECT_EQ(std::count(values.begin() + count, values.end(), 99.0), n + 1 - count) << "the rest is left";

    Guarded<double> flat(x);
    Guarded<double> flatDistinct(x.size(), 99.0);
    int flatCount = -7;
    VB_V_ExtractDistinct(flat, n, flatDistinct, &flatCount);
    EXPECT_EQ(flatCount, count);
    EXPECT_TRUE(flat.untouched());
    Doubles expected(values.begin(), values.begin() + n);
    EXPECT_THAT(flatDistinct.values(), SameBits(expected));
    values.resize(static_cast<std::size_t>(count));
    return values;
}

int countOf(const Doubles& x)
{
    const int n = static_cast<int>(x.size());
    const auto vector = column(x);
    const int count = V_NbDistinct(vector, n);
    EXPECT_THAT(cellsOf(vector), SameBits(x));
    Guarded<double> flat(x);
    EXPECT_EQ(VB_V_NbDistinct(flat, n), count);
    EXPECT_TRUE(flat.untouched());
    return count;
}

int countOf(const Ints& x)
{
    const int n = static_cast<int>(x.size());
    const auto vector = intColumn(x);
    const int count = V_NbDistinct(vector, n);
    EXPECT_EQ(cellsOf(vector), x);
    Guarded<int> flat(x);
    EXPECT_EQ(VB_V_NbDistinctLng(flat, n), count);
    EXPECT_TRUE(flat.untouched());
    return count;
}

int countOf(const Texts& x)
{
    const int n = static_cast<int>(x.size());
    const auto vector = stringColumn(x);
    const int count = V_NbDistinct(vector, n);
    EXPECT_EQ(cellsOf(vector), x);
    BstrArray flat(x);
    EXPECT_EQ(Cpp_V_NbDistinctStr(flat, n), count);
    EXPECT_EQ(flat.countNew(), 0u);
    return count;
}

TEST(ExtractDistinct, AscendingWithTheMissingValueFirst)
{
    EXPECT_THAT(distinctOf({3, 1, 2, 3, 1}), SameBits({1, 2, 3}));
    EXPECT_THAT(distinctOf({3, M, 2, M}), SameBits({M, 2, 3}));
    EXPECT_THAT(distinctOf({M, M}), SameBits({M}));
    EXPECT_THAT(distinctOf({5}), SameBits({5}));
    EXPECT_THAT(distinctOf({infinity, -infinity, 0, infinity, -infinity}), SameBits({-infinity, 0, infinity}));
}

TEST(ExtractDistinct, AGapEqualToTheToleranceIsNoGap)
{
    const double next = std::nextafter(1.0, 2.0);
    ASSERT_EQ(next - 1.0, epsilon);
    EXPECT_THAT(distinctOf({1, next, 2}), SameBits({1, 2}));
    EXPECT_EQ(countOf(Doubles{1, next, 2}), 3) << "the count has no tolerance";
    EXPECT_THAT(distinctOf({2, std::nextafter(2.0, 3.0)}), SameBits({2, std::nextafter(2.0, 3.0)}))
        << "twice the tolerance";
    EXPECT_EQ(countOf(Doubles{0.5, std::nextafter(0.5, 1.0)}), 2);
    EXPECT_THAT(distinctOf({0.5, std::nextafter(0.5, 1.0), 1}), SameBits({0.5, 1}));
}

TEST(ExtractDistinct, IsMeasuredFromTheDirectPredecessor)
{
    Doubles chain = {1};
    while (chain.size() < 20)
        chain.push_back(std::nextafter(chain.back(), 2.0));
    EXPECT_THAT(distinctOf(chain), SameBits({1})) << "the last lies nineteen tolerances above";
    EXPECT_EQ(countOf(chain), 20);
}

TEST(ExtractDistinct, ARangeWithinTheToleranceIsOneValue)
{
    EXPECT_THAT(distinctOf({0, 1e-20}), SameBits({0})) << "the tolerance is the range, and no gap is above it";
    EXPECT_THAT(distinctOf({0, 1e-20, 2e-20}), SameBits({0}));
    EXPECT_THAT(distinctOf({4, 4, 4}), SameBits({4}));
    EXPECT_THAT(distinctOf({0, 1e-20, 1}), SameBits({0, 1}));
}

TEST(ExtractDistinct, ZerosOfBothSignsAreOneValue)
{
    EXPECT_THAT(distinctOf({0.0, -0.0}), SameBits({0.0})) << "the first of the input";
    EXPECT_THAT(distinctOf({-0.0, 0.0}), SameBits({-0.0}));
}

TEST(ExtractDistinct, NothingCountsOne)
{
    for (const int n : {0, -3}) {
        const auto distinct = column({99, 99});
        int count = -7;
        V_ExtractDistinct(column({1, 2}), n, distinct, &count);
        EXPECT_EQ(count, 1);
        EXPECT_THAT(cellsOf(distinct), SameBits({-1.0, 99}));
        Guarded<double> x = {1, 2};
        Guarded<double> nothing(Doubles{});
        VB_V_ExtractDistinct(x, n, nothing, &count);
        EXPECT_EQ(count, 1);
    }
}

TEST(ExtractDistinct, NoArraysWhereThereAreNoCells)
{
    int count = -7;
    VB_V_ExtractDistinct(nullptr, 0, nullptr, &count);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(VB_V_NbDistinct(nullptr, 0), 1);
    EXPECT_EQ(VB_V_NbDistinctLng(nullptr, 0), 1);
    EXPECT_EQ(Cpp_V_NbDistinctStr(nullptr, 0), 1);
}

TEST(ExtractDistinct, CellsBeyondTheTables)
{
    const auto distinct = filled(2, 1, 99.0);
    int count = -7;
    V_ExtractDistinct(column({3, 1}), 4, distinct, &count);
    EXPECT_EQ(count, 3) << "-1 takes part; values that do not fit are dropped";
    EXPECT_THAT(cellsOf(distinct), SameBits({-1, 1}));
    V_ExtractDistinct(table(2, 2, {4, 4, 5, 6}), 3, distinct, &count);
    EXPECT_EQ(count, 2) << "a table in linear order";
    EXPECT_THAT(cellsOf(distinct), SameBits({4, 5}));
}

TEST(ExtractDistinct, AVectorMayBeItsOwnResult)
{
    const auto x = column({3, 1, 3});
    int count = -7;
    V_ExtractDistinct(x, 3, x, &count);
    EXPECT_EQ(count, 2);
    EXPECT_THAT(cellsOf(x), SameBits({1, 3, 3}));
}

TEST(NbDistinct, CountsValues)
{
    EXPECT_EQ(countOf(Doubles{3, 1, 2, 3, 1}), 3);
    EXPECT_EQ(countOf(Doubles{M, 0.0, M, -0.0}), 2);
    EXPECT_EQ(countOf(Doubles{infinity, infinity, -infinity}), 2);
    EXPECT_EQ(countOf(Ints{7, -2147483647 - 1, 2147483647, 7}), 3) << "no difference is taken";
    EXPECT_EQ(countOf(Texts{L"b", L"a", L"b", L"A"}), 3);
    EXPECT_EQ(countOf(Texts{L"", L"a", L""}), 2) << "an empty string is a value";
    EXPECT_EQ(countOf(Texts{L"1", L"1.0"}), 2);
}

TEST(NbDistinct, FewerThanTwoCountOne)
{
    EXPECT_EQ(countOf(Doubles{}), 1);
    EXPECT_EQ(countOf(Ints{}), 1);
    EXPECT_EQ(countOf(Texts{}), 1);
    EXPECT_EQ(countOf(Doubles{M}), 1);
    EXPECT_EQ(countOf(Ints{0}), 1);
    EXPECT_EQ(countOf(Texts{L""}), 1);
    EXPECT_EQ(V_NbDistinct(column({1, 2}), -4), 1);
    EXPECT_EQ(V_NbDistinct(intColumn({1, 2}), 1), 1);
    EXPECT_EQ(V_NbDistinct(stringColumn({L"a", L"b"}), 1), 1);
}

TEST(NbDistinct, ANaNIsGreaterThanNothing)
{
    EXPECT_EQ(countOf(Doubles{NaN, NaN, NaN}), 1);
}

TEST(NbDistinct, CellsBeyondTheTables)
{
    EXPECT_EQ(V_NbDistinct(column({3, 1}), 4), 3) << "-1 is a value";
    EXPECT_EQ(V_NbDistinct(intColumn({-1, 3}), 5), 2);
    EXPECT_EQ(V_NbDistinct(stringColumn({L"a", L"b"}), 4), 3) << "so is the empty string";
    EXPECT_EQ(V_NbDistinct(stringsByColumns({{L"a", L"a"}, {L"b", L"c"}}), 2), 1) << "the first column";
}

TEST(NbDistinct, IsTheSizeOfASet)
{
    for (std::uint64_t seed = 1; seed <= 500; ++seed) {
        RandomData random(seed);
        SCOPED_TRACE(random);
        const auto n = static_cast<std::size_t>(random.integer(1, 40));
        const Ints ints = random.integers(n, -10, random.integer(-9, 30));
        Doubles doubles = random.withMissing(Doubles(ints.begin(), ints.end()), 0.1);
        Texts texts;
        for (const int i : ints)
            texts.push_back(i == 0 ? L"" : std::to_wstring(i));
        EXPECT_EQ(countOf(ints), static_cast<int>(std::set<int>(ints.begin(), ints.end()).size()));
        EXPECT_EQ(countOf(texts), static_cast<int>(std::set<std::wstring>(texts.begin(), texts.end()).size()));
        const std::set<double> values(doubles.begin(), doubles.end());
        EXPECT_EQ(countOf(doubles), static_cast<int>(values.size()));
        EXPECT_THAT(distinctOf(doubles), SameBits(Doubles(values.begin(), values.end())));
    }
}

TEST(DistinctFailure, PassesOutAndLeavesNothingBehind)
{
    Guarded<double> x = {3, 1, 3};
    Guarded<int> ints = {3, 1, 3};
    BstrArray texts({L"a text that does not fit into the string itself", L"b", L"another that does not fit either"});
    double distinct[3] = {99, 99, 99};
    int count = -7;
    bool early = false;
    const int failures = forEachFailingAllocation([&] {
        distinct[0] = count = 99;
        try {
            VB_V_ExtractDistinct(x, 3, distinct, &count);
        } catch (...) {
            early = early || distinct[0] != 99.0 || count != 99;
            throw;
        }
        VB_V_NbDistinct(x, 3);
        VB_V_NbDistinctLng(ints, 3);
        Cpp_V_NbDistinctStr(texts, 3);
    });
    EXPECT_GT(failures, 0);
    EXPECT_FALSE(early);
    EXPECT_TRUE(x.untouched() && ints.untouched());
}

} // namespace
} // namespace vecmat::test
