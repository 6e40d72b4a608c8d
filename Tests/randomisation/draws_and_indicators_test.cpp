#include "randomisation/permutations.h"

#include "randomisation/scripted_draws.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/tables.h"

#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using Cells = std::vector<double>;

/// In ascending order they are those of items 2, 4, 1, 5, 3.
const Cells fiveKeys = {0.4, 0.1, 0.9, 0.2, 0.6};

// ---- draws ----------------------------------------------------------------------------------------------------------

TEST(Draws, OneNumberHasItsOwnSeries)
{
    script.begin({0.625});
    SeedArguments s;
    EXPECT_THAT(GenerateRandom01(&s.seed, s.flag, &s.out), SameBits(0.625));
    s.expectOneSeries(1);
}

TEST(Draws, SeedAndFlagReachTheGeneratorUntouched)
{
    for (const short flag : {short{0}, short{1}, short{-1}, short{-300}, std::numeric_limits<short>::min()}) {
        script.begin({0.5});
        SeedArguments s;
        s.flag = flag;
        GenerateRandom01(&s.seed, s.flag, &s.out);
        s.expectOneSeries(1); // the flag keeps its sign, and the changed seed is the caller's
    }
}

TEST(Draws, OutputIsTheNextSeed)
{
    script.begin({0.5, 0.25});
    int seed = 3;
    GenerateRandom01(&seed, -1, &seed);
    GenerateRandom01(&seed, -1, &seed);
    EXPECT_THAT(script.series(), ElementsAre(Series{3, -1, 1, 1001}, Series{1001, -1, 1, 2001}));
    EXPECT_EQ(seed, 2001);
}

TEST(Draws, RunAcrossTheRows)
{
    script.begin({0.1, 0.2, 0.3, 0.4, 0.5, 0.6});
    SeedArguments s;
    Owned<matrix> t;
    M_GenerateRandom01(t, 2, 3, &s.seed, s.flag, &s.out);
    EXPECT_THAT(cellsOf(t), SameBits({0.1, 0.4, 0.2, 0.5, 0.3, 0.6}));
    s.expectOneSeries(6);
}

TEST(Draws, LargerTableIsKeptAndItsHeadCleared)
{
    script.begin({0.1, 0.2, 0.3, 0.4});
    SeedArguments s;
    auto t = filled(3, 3, 9.0);
    matrix* const opened = t;
    M_GenerateRandom01(t, 2, 2, &s.seed, s.flag, &s.out);
    EXPECT_EQ(t.get(), opened);
    // The first four cells are cleared in linear order, then the corner takes the draws.
    EXPECT_THAT(cellsOf(t), SameBits({0.1, 0.3, 0.0, 0.2, 0.4, 9.0, 9.0, 9.0, 9.0}));
}

TEST(Draws, SmallerTableIsReplaced)
{
    script.begin({0.1, 0.2});
    SeedArguments s;
    auto t = filled(1, 1, 9.0);
    M_GenerateRandom01(t, 2, 1, &s.seed, s.flag, &s.out);
    EXPECT_THAT(cellsOf(t), SameBits({0.1, 0.2}));
}

TEST(Draws, IntsAreTruncated)
{
    const double belowOne = std::nextafter(1.0, 0.0);
    script.begin({0.5, 0.999, belowOne, 1.0, 0.0, 0.1});
    SeedArguments s;
    Owned<matrixInt> t;
    M_GenerateRandom01(t, 3, 2, &s.seed, s.flag, &s.out);
    EXPECT_THAT(cellsOf(t), ElementsAre(0, 0, 0, 0, 1, 0)); // 1.0 is more than a generator may give
    s.expectOneSeries(6);
}

TEST(Draws, NothingDrawnStillOpensAndCloses)
{
    for (const auto& [rows, cols] : {std::pair(0, 3), std::pair(-2, 3), std::pair(3, 0), std::pair(3, -1)}) {
        script.begin({});
        SeedArguments s;
        Owned<matrix> t;
        M_GenerateRandom01(t, rows, cols, &s.seed, s.flag, &s.out);
        s.expectOneSeries(0);
        script.begin({});
        SeedArguments again;
        Owned<matrixInt> ints;
        M_GenerateRandom01(ints, rows, cols, &again.seed, again.flag, &again.out);
        again.expectOneSeries(0);
    }
}

// ---- indicators -----------------------------------------------------------------------------------------------------

Cells randomIndicator(const Cells& keys, int k)
{
    const auto n = static_cast<int>(keys.size());
    script.begin(keys);
    SeedArguments s;
    auto out = column(Cells(keys.size(), M));
    GenerateRandomIndicator(out, n, k, &s.seed, s.flag, &s.out);
    s.expectOneSeries(n);
    script.begin(keys);
    SeedArguments again;
    Guarded<double> flat(keys.size(), M);
    VB_GenerateRandomIndicator(flat, n, k, &again.seed, again.flag, &again.out);
    again.expectOneSeries(n);
    EXPECT_THAT(flat.values(), SameBits(cellsOf(out)));
    return cellsOf(out);
}

TEST(RandomIndicator, SmallestKeysAreMarked)
{
    EXPECT_THAT(randomIndicator(fiveKeys, 2), SameBits({0.0, 1.0, 0.0, 1.0, 0.0}));
    EXPECT_THAT(randomIndicator(fiveKeys, 4), SameBits({1.0, 1.0, 0.0, 1.0, 1.0}));
    EXPECT_THAT(randomIndicator({0.5, 0.5, 0.5}, 1), SameBits({1.0, 0.0, 0.0}));
}

TEST(RandomIndicator, CountsOutsideTheRange)
{
    constexpr int most = std::numeric_limits<int>::max();
    for (const int k : {5, 6, most})
        EXPECT_THAT(randomIndicator(fiveKeys, k), Each(SameBits(1.0)));
    for (const int k : {0, -1, -most - 1})
        EXPECT_THAT(randomIndicator(fiveKeys, k), Each(SameBits(0.0)));
}

TEST(RandomIndicator, NothingToMark)
{
    EXPECT_TRUE(randomIndicator({}, 2).empty());
    script.begin({});
    SeedArguments s;
    auto out = column({7});
    GenerateRandomIndicator(out, -3, 2, &s.seed, s.flag, &s.out);
    s.expectOneSeries(0);
    EXPECT_THAT(cellsOf(out), SameBits({7.0}));
}

TEST(RandomIndicator, TableIsNotPrepared)
{
    script.begin({0.9, 0.1});
    SeedArguments s;
    auto out = filled(2, 2, 7.0);
    GenerateRandomIndicator(out, 2, 1, &s.seed, s.flag, &s.out);
    EXPECT_THAT(cellsOf(out), SameBits({0.0, 1.0, 7.0, 7.0}));

    // Where it is too small it stays: the key that finds no place reads -1.0 and sorts first.
    script.begin({0.1, 0.2, 0.3});
    auto small = column({7, 7});
    matrix* const opened = small;
    GenerateRandomIndicator(small, 3, 2, &s.seed, s.flag, &s.out);
    EXPECT_EQ(small.get(), opened);
    EXPECT_THAT(cellsOf(small), SameBits({1.0, 0.0}));
}

TEST(RandomIndicator, SeriesClosesAfterTheMarks)
{
    script.begin({0.9, 0.1});
    SeedArguments s;
    auto out = column({7, 7});
    script.watch(&out->X[1]);
    GenerateRandomIndicator(out, 2, 1, &s.seed, s.flag, &s.out);
    EXPECT_THAT(script.seenAtClose(), SameBits(1.0));
}

Cells indicator(int n, int first, int last)
{
    script.begin({});
    Owned<matrix> out;
    GenerateIndicator(out, n, first, last);
    Guarded<double> flat(static_cast<std::size_t>(n), M);
    VB_GenerateIndicator(flat, n, first, last);
    EXPECT_THAT(flat.values(), SameBits(cellsOf(out)));
    EXPECT_TRUE(script.series().empty()); // no draw and no seed
    return cellsOf(out);
}

TEST(Indicator, CellsFromFirstToLast)
{
    EXPECT_THAT(indicator(5, 2, 3), SameBits({0.0, 1.0, 1.0, 0.0, 0.0}));
    EXPECT_THAT(indicator(3, 1, 3), SameBits({1.0, 1.0, 1.0}));
    EXPECT_THAT(indicator(3, 3, 3), SameBits({0.0, 0.0, 1.0}));
    EXPECT_THAT(indicator(3, 3, 2), SameBits({0.0, 0.0, 0.0}));
}

TEST(Indicator, CellsOutsideAreDropped)
{
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_THAT(indicator(3, 2, 9), SameBits({0.0, 1.0, 1.0}));
    EXPECT_THAT(indicator(3, -4, 1), SameBits({1.0, 0.0, 0.0}));
    EXPECT_THAT(indicator(3, -most - 1, most), SameBits({1.0, 1.0, 1.0}));
    EXPECT_THAT(indicator(3, 4, most), SameBits({0.0, 0.0, 0.0}));
    EXPECT_TRUE(indicator(0, 1, 2).empty());
}

TEST(Indicator, TheTableIsTheLimit)
{
    // A larger table is kept, with only its head cleared; cells beyond n are still cells of it.
    auto out = filled(4, 2, 7.0);
    matrix* const opened = out;
    GenerateIndicator(out, 3, 2, 5);
    EXPECT_EQ(out.get(), opened);
    EXPECT_THAT(cellsOf(out), SameBits({0.0, 1.0, 1.0, 1.0, 1.0, 7.0, 7.0, 7.0}));

    auto small = filled(2, 1, 7.0);
    GenerateIndicator(small, 3, 2, 2);
    EXPECT_THAT(cellsOf(small), SameBits({0.0, 1.0, 0.0}));

    GenerateIndicator(small, -1, 1, 2); // large enough, with nothing to clear
    EXPECT_THAT(cellsOf(small), SameBits({1.0, 1.0, 0.0}));
}

} // namespace
} // namespace vecmat::test
