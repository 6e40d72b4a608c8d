#include "randomisation/letter_groups.h"

#include "support/bits.h"
#include "support/tables.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

using testing::ElementsAre;
using Lines = std::vector<std::wstring>;
using Pair = std::pair<int, int>;

const std::wstring untouched = L"-";
constexpr int labelColumns = 256;

/// All pairs of n items, 2-1, 3-1, 3-2, ..., and what the comparison says of each.
struct Comparisons
{
    Owned<matrix> pairs;
    Owned<matrixInt> diff;

    /// `value` for the pairs given, the larger item first, and 0 for all others.
    Comparisons(int n, const std::set<Pair>& differing, int value = 1)
        : pairs(filled(n * (n - 1) / 2, 2, 0.0)), diff(new matrixInt(n * (n - 1) / 2, 1, 0))
    {
        int row = 0;
        for (int a = 2; a <= n; ++a)
            for (int b = 1; b < a; ++b) {
                ++row;
                pairs->vbset(row, 1, a);
                pairs->vbset(row, 2, b);
                if (differing.contains({a, b}))
                    diff->vbset(row, 1, value);
            }
    }
};

std::set<Pair> allPairs(int n)
{
    std::set<Pair> all;
    for (int a = 2; a <= n; ++a)
        for (int b = 1; b < a; ++b)
            all.emplace(a, b);
    return all;
}

std::vector<double> firstNumbers(int n)
{
    std::vector<double> numbers;
    for (int i = 1; i <= n; ++i)
        numbers.push_back(i);
    return numbers;
}

/// One call over tables: labels start as "-".
struct Grouped
{
    short clean = 7;
    int nGroups = -5;
    short sorted;
    Owned<matrix> means;
    Owned<matrix> perm;
    Owned<Smatrix> labels;

    Grouped(const std::vector<double>& meansGiven, const Comparisons& comparisons, short sortedBefore = 0,
            short descending = 0)
        : sorted(sortedBefore), means(column(meansGiven)), perm(column(firstNumbers(count()))),
          labels(stringTable(count(), labelColumns, std::vector<std::wstring>(meansGiven.size() * 256, untouched)))
    {
        clean = BuildGroupingForDiffs(means, 1, comparisons.pairs, count(), comparisons.diff, labels, &nGroups, perm, 1,
                                      2, &sorted, descending);
    }

    int count() const { return means->nRows; }

    /// The cells of each place up to the last group: "." where a cell is empty, "-" where it was not written.
    Lines lines() const
    {
        Lines all;
        for (int i = 1; i <= count(); ++i) {
            std::wstring line;
            for (int g = 1; g <= nGroups; ++g)
                line += labels->vbget(i, g).empty() ? L"." : labels->vbget(i, g);
            all.push_back(line);
        }
        return all;
    }
};

Grouped grouped(const std::vector<double>& means, const std::set<Pair>& differing, int value = 1)
{
    return Grouped(means, Comparisons(static_cast<int>(means.size()), differing, value));
}

// ---- letters --------------------------------------------------------------------------------------------------------

TEST(BuildGroupingForDiffs, ItemsWithoutDifferencesShareOneLetter)
{
    const Grouped g = grouped({10, 20, 30}, {});
    EXPECT_EQ(g.clean, -1);
    EXPECT_EQ(g.nGroups, 1);
    EXPECT_EQ(g.lines(), (Lines{L"A", L"A", L"A"}));
    EXPECT_EQ(g.labels->vbget(1, 2), untouched);
}

TEST(BuildGroupingForDiffs, ANewLetterGoesBackOverThePlacesThatDoNotDiffer)
{
    const Grouped g = grouped({10, 20, 30}, {{3, 1}});
    EXPECT_EQ(g.clean, -1);
    EXPECT_EQ(g.nGroups, 2);
    EXPECT_EQ(g.lines(), (Lines{L"A-", L"AB", L"-B"}));
}

TEST(BuildGroupingForDiffs, WarnsWhereAPlaceAfterTheBreakDoesNotDiffer)
{
    const Grouped g = grouped({10, 20, 30}, {{2, 1}});
    EXPECT_EQ(g.clean, 0);
    EXPECT_EQ(g.nGroups, 2);
    EXPECT_EQ(g.lines(), (Lines{L"A-", L"-B", L"-B"}));
}

TEST(BuildGroupingForDiffs, ItemsThatAllDifferHaveALetterEach)
{
    const Grouped g = grouped({1, 2, 3}, allPairs(3));
    EXPECT_EQ(g.clean, -1);
    EXPECT_EQ(g.nGroups, 3);
    EXPECT_EQ(g.lines(), (Lines{L"A--", L"-B-", L"--C"}));
}

TEST(BuildGroupingForDiffs, GoesBackToThePlaceAfterTheLastThatDiffers)
{
    // The fourth differs from the first and the second, the fifth from all but the fourth.
    const Grouped g = grouped({1, 2, 3, 4, 5}, {{4, 1}, {4, 2}, {5, 1}, {5, 2}, {5, 3}});
    EXPECT_EQ(g.clean, -1);
    EXPECT_EQ(g.lines(), (Lines{L"A--", L"A--", L"AB-", L"-BC", L"--C"}));
}

TEST(BuildGroupingForDiffs, GoesBackNoFurtherThanAPlaceThatDiffers)
{
    // The second does not differ from the fourth, but the third does.
    const Grouped g = grouped({1, 2, 3, 4}, {{4, 1}, {4, 3}});
    EXPECT_EQ(g.lines(), (Lines{L"A-", L"A-", L"A-", L"-B"}));
    EXPECT_EQ(g.clean, -1);
}

TEST(BuildGroupingForDiffs, ANegativeDifferenceDiffers)
{
    const Grouped g = grouped({10, 20, 30}, {{3, 1}}, -1);
    EXPECT_EQ(g.clean, -1);
    EXPECT_EQ(g.lines(), (Lines{L"A-", L"AB", L"-B"}));
    // The magnitude of the lowest int is above the range of int.
    const Grouped lowest = grouped({10, 20, 30}, {{3, 1}, {3, 2}}, std::numeric_limits<int>::min());
    EXPECT_EQ(lowest.lines(), (Lines{L"A-", L"A-", L"-B"}));
}

TEST(BuildGroupingForDiffs, ADifferingPairInAGroupWarnsButInTheLastGroupOnlyAPositiveOne)
{
    EXPECT_EQ(grouped({1, 2, 3}, {{3, 2}}, 1).clean, 0);
    EXPECT_EQ(grouped({1, 2, 3}, {{3, 2}}, -1).clean, -1);
    // The same pair in a group that a fourth place ends.
    const std::set<Pair> ended = {{3, 2}, {4, 1}, {4, 2}, {4, 3}};
    EXPECT_EQ(grouped({1, 2, 3, 4}, ended, 1).clean, 0);
    EXPECT_EQ(grouped({1, 2, 3, 4}, ended, -1).clean, 0);
    EXPECT_EQ(grouped({1, 2, 3, 4}, ended, 1).lines(), (Lines{L"A-", L"A-", L"A-", L"-B"}));
}

TEST(BuildGroupingForDiffs, TheTwentySeventhLetterIsAA)
{
    const Grouped g = grouped(firstNumbers(28), allPairs(28));
    EXPECT_EQ(g.nGroups, 28);
    EXPECT_EQ(g.labels->vbget(26, 26), L"Z");
    EXPECT_EQ(g.labels->vbget(27, 27), L"AA");
    EXPECT_EQ(g.labels->vbget(28, 28), L"AB");
}

TEST(BuildGroupingForDiffs, EndsAtTheGroupAfterTheLastPossibleOne)
{
    const Grouped full = grouped(firstNumbers(256), allPairs(256));
    EXPECT_EQ(full.nGroups, 256);
    EXPECT_EQ(full.clean, -1);
    EXPECT_EQ(full.labels->vbget(256, 256), L"IV");

    const Grouped over = grouped(firstNumbers(258), allPairs(258));
    EXPECT_EQ(over.nGroups, 257);
    EXPECT_EQ(over.clean, -1);
    EXPECT_EQ(over.labels->vbget(256, 256), L"IV");
    for (int group = 1; group <= labelColumns; ++group)
        ASSERT_EQ(over.labels->vbget(257, group), untouched) << group;

    // What was found until then is reported: place 2 breaks the first group, place 4 does not differ from the first.
    auto contradicting = allPairs(258);
    contradicting.erase({4, 1});
    EXPECT_EQ(grouped(firstNumbers(258), contradicting).clean, 0);
}

TEST(BuildGroupingForDiffs, OneItemIsOneGroup)
{
    const Grouped one = grouped({5}, {});
    EXPECT_EQ(one.clean, -1);
    EXPECT_EQ(one.nGroups, 1);
    EXPECT_EQ(one.sorted, -1);
    EXPECT_EQ(one.lines(), Lines{L"A"});
    EXPECT_EQ(grouped({M}, {}).lines(), Lines{L"."});
}

TEST(BuildGroupingForDiffs, NoItemsTouchNothing)
{
    for (const int n : {0, -1}) {
        auto perm = column({1});
        auto labels = stringColumn({untouched});
        int nGroups = -5;
        short sorted = 0;
        EXPECT_EQ(BuildGroupingForDiffs(column({3}), 1, filled(0, 2, 0.0), n, intColumn({}), labels, &nGroups, perm, 1,
                                        2, &sorted, 0),
                  -1);
        EXPECT_EQ(nGroups, -5);
        EXPECT_EQ(sorted, 0);
        EXPECT_THAT(cellsOf(labels), ElementsAre(untouched));
    }
}

// ---- order ----------------------------------------------------------------------------------------------------------

TEST(BuildGroupingForDiffs, SortsTheItemsWithTheirMeans)
{
    // In order: items 2, 3, 1; items 1 and 2 differ.
    const Grouped g = grouped({30, 10, 20}, {{2, 1}});
    EXPECT_THAT(cellsOf(g.means), SameBits({10, 20, 30}));
    EXPECT_THAT(cellsOf(g.perm), SameBits({2, 3, 1}));
    EXPECT_EQ(g.sorted, -1);
    EXPECT_EQ(g.lines(), (Lines{L"A-", L"AB", L"-B"}));
}

TEST(BuildGroupingForDiffs, SortsStably)
{
    const Grouped g = grouped({5, 1, 5, 1}, {});
    EXPECT_THAT(cellsOf(g.perm), SameBits({2, 4, 1, 3}));
}

TEST(BuildGroupingForDiffs, MinusOneAloneIsDescending)
{
    const Comparisons comparisons(3, {{2, 1}});
    const Grouped down({30, 10, 20}, comparisons, 0, -1);
    EXPECT_THAT(cellsOf(down.means), SameBits({30, 20, 10}));
    EXPECT_THAT(cellsOf(down.perm), SameBits({1, 3, 2}));
    const Grouped up({30, 10, 20}, comparisons, 0, 1);
    EXPECT_THAT(cellsOf(up.means), SameBits({10, 20, 30}));
}

TEST(BuildGroupingForDiffs, KeepsTheOrderWhereItIsSaidToBeSorted)
{
    for (const short sortedBefore : {short{-1}, short{1}}) {
        const Grouped g({30, 10, 20}, Comparisons(3, {{3, 1}}), sortedBefore);
        EXPECT_THAT(cellsOf(g.means), SameBits({30, 10, 20}));
        EXPECT_THAT(cellsOf(g.perm), SameBits({1, 2, 3}));
        EXPECT_EQ(g.sorted, -1);
        EXPECT_EQ(g.lines(), (Lines{L"A-", L"AB", L"-B"}));
    }
}

TEST(BuildGroupingForDiffs, CarriesTheGivenColumnsOfTheMeans)
{
    const Comparisons comparisons(3, {{2, 1}});
    for (const int carried : {0, 1, 2}) {
        auto means = byColumns({{3, 1, 2}, {33, 11, 22}, {7, 8, 9}});
        auto perm = column({1, 2, 3});
        Owned<Smatrix> labels(new Smatrix(3, 3));
        int nGroups = 0;
        short sorted = 0;
        BuildGroupingForDiffs(means, carried, comparisons.pairs, 3, comparisons.diff, labels, &nGroups, perm, 1, 2,
                              &sorted, 0);
        EXPECT_THAT(cornerOf(means, 3, 1), carried > 0 ? SameBits({1, 2, 3}) : SameBits({3, 1, 2}));
        EXPECT_EQ(means->vbget(1, 2), carried > 1 ? 11.0 : 33.0);
        EXPECT_EQ(means->vbget(1, 3), 7.0);
        EXPECT_THAT(cellsOf(perm), SameBits({2, 3, 1})) << "the items are always sorted";
        EXPECT_EQ(labels->vbget(2, 2), L"B");
    }
}

// ---- missing means --------------------------------------------------------------------------------------------------

TEST(BuildGroupingForDiffs, MissingMeansComeFirstWithoutALetter)
{
    const Grouped g = grouped({2, M, 1, M}, allPairs(4));
    EXPECT_THAT(cellsOf(g.perm), SameBits({2, 4, 3, 1}));
    EXPECT_EQ(g.nGroups, 2);
    EXPECT_EQ(g.clean, -1);
    EXPECT_EQ(g.lines(), (Lines{L".-", L".-", L"A-", L"-B"}));
}

TEST(BuildGroupingForDiffs, AfterAMissingFirstMeanTheLetterIsTheOneBeforeA)
{
    const Grouped g = grouped({M, 1, 2}, {});
    EXPECT_EQ(g.nGroups, 1);
    EXPECT_EQ(g.lines(), (Lines{L".", L"@", L"@"}));
    // The place that differs opens A, in the same column: it overwrites the letter where it goes back.
    const Grouped opened = grouped({M, 1, 2, 3}, {{4, 1}, {4, 2}});
    EXPECT_EQ(opened.nGroups, 1);
    EXPECT_EQ(opened.lines(), (Lines{L".", L"@", L"A", L"A"}));
}

TEST(BuildGroupingForDiffs, AMissingMeanAfterOthersOpensNoLetter)
{
    const Grouped differing({3, 2, M}, Comparisons(3, allPairs(3)), 0, -1);
    EXPECT_EQ(differing.nGroups, 2);
    EXPECT_EQ(differing.lines(), (Lines{L"A-", L"-B", L"-."}));

    // The mean after the missing one opens the third letter.
    const Grouped between({3, 2, M, 1}, Comparisons(4, allPairs(4)), -1);
    EXPECT_EQ(between.nGroups, 3);
    EXPECT_EQ(between.lines(), (Lines{L"A--", L"-B-", L"-.-", L"--C"}));

    // Going back from the missing one, its neighbours take the current letter in the last column.
    const Grouped goingBack({3, 2, 1, M}, Comparisons(4, {{3, 1}, {4, 1}, {4, 2}}), 0, -1);
    EXPECT_EQ(goingBack.lines(), (Lines{L"A-", L"AB", L"-B", L"-."}));
    const Grouped takingIn({3, M, 2}, Comparisons(3, {{2, 1}, {3, 1}}), -1);
    EXPECT_EQ(takingIn.nGroups, 1);
    EXPECT_EQ(takingIn.lines(), (Lines{L"A", L".", L"A"}));
}

TEST(BuildGroupingForDiffs, MissingIsWhatIsNotAboveTheMissingValue)
{
    const double below = std::nextafter(M, -std::numeric_limits<double>::infinity());
    const double above = std::nextafter(M, 0.0);
    for (const double mean : {below, -std::numeric_limits<double>::infinity()})
        EXPECT_EQ(grouped({mean, 1}, {{2, 1}}).lines(), (Lines{L".", L"A"}));
    EXPECT_EQ(grouped({above, 1}, {{2, 1}}).lines(), (Lines{L"A-", L"-B"}));

    // A NaN compares neither at or below the missing value nor above it.
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Comparisons differing(2, {{2, 1}});
    EXPECT_EQ(Grouped({nan, 1}, differing, -1).lines(), (Lines{L"A-", L"-B"}));
    EXPECT_EQ(Grouped({1, nan}, differing, -1).lines(), (Lines{L"A", L"."}));
}

// ---- looking up a pair ----------------------------------------------------------------------------------------------

/// Three items in sorted order over a table of pairs; what they share, "A" or "AB", shows what the look-up found.
struct LookedUp
{
    short clean = 7;
    std::vector<std::wstring> labels;

    LookedUp(const Owned<matrix>& pairs, const std::vector<int>& diff, int colA = 1, int colB = 2,
             const std::vector<double>& items = {1, 2, 3})
    {
        const Owned<Smatrix> table(new Smatrix(3, 3));
        int nGroups = 0;
        short sorted = -1;
        clean = BuildGroupingForDiffs(column({1, 2, 3}), 1, pairs, 3, intColumn(diff), table, &nGroups, column(items),
                                      colA, colB, &sorted, 0);
        for (int i = 1; i <= 3; ++i)
            labels.push_back(table->vbget(i, 1) + table->vbget(i, 2) + table->vbget(i, 3));
    }
};

const Lines oneAndThreeDiffer = {L"A", L"AB", L"B"};

TEST(BuildGroupingForDiffs, FindsAPairInEitherOrderAndInAnyRow)
{
    EXPECT_EQ(LookedUp(byRows({{1, 2}, {3, 2}, {1, 3}}), {0, 0, 1}).labels, oneAndThreeDiffer);
    EXPECT_EQ(LookedUp(byRows({{3, 1}, {2, 1}, {2, 3}}), {1, 0, 0}).labels, oneAndThreeDiffer);
}

TEST(BuildGroupingForDiffs, TakesTheGivenColumnsAndAnyItemNumbers)
{
    const auto pairs = byRows({{0, 40, 1, -7}, {0, 9, 1, -7}, {0, 9, 1, 40}});
    // The first two columns mark each row as counting.
    EXPECT_EQ(LookedUp(pairs, {0, 1, 0}, 4, 2, {-7, 40, 9}).labels, oneAndThreeDiffer);
}

TEST(BuildGroupingForDiffs, TruncatesItemsButNotThePairs)
{
    const auto pairs = byRows({{2, 1}, {3, 1}, {3, 2}});
    EXPECT_EQ(LookedUp(pairs, {0, 1, 0}, 1, 2, {1.9, 2.5, 3.999}).labels, oneAndThreeDiffer);
    EXPECT_EQ(LookedUp(byRows({{2, 1}, {3.5, 1}, {3, 2}}), {0, 1, 0}).labels, (Lines{L"A", L"A", L"A"}));
}

TEST(BuildGroupingForDiffs, TheFirstRowOfAPairCounts)
{
    EXPECT_EQ(LookedUp(byRows({{3, 1}, {1, 3}, {2, 1}}), {1, 0, 0}).labels[2], L"B");
    EXPECT_EQ(LookedUp(byRows({{3, 1}, {1, 3}, {2, 1}}), {0, 1, 0}).labels[2], L"A");
}

TEST(BuildGroupingForDiffs, APairInNoRowTakesTheOutcomeOfTheLookUpBefore)
{
    // Nothing was looked up before the first: it does not differ.
    EXPECT_EQ(LookedUp(byRows({{0, 0}, {0, 0}, {0, 0}}), {1, 1, 1}).labels, (Lines{L"A", L"A", L"A"}));
    // Pair (1, 3) takes what was found for (1, 2).
    EXPECT_EQ(LookedUp(byRows({{2, 1}, {3, 2}, {0, 0}}), {0, 0, 1}).labels, (Lines{L"A", L"A", L"A"}));
    EXPECT_EQ(LookedUp(byRows({{2, 1}, {3, 2}, {0, 0}}), {1, 1, 0}).clean, -1) << "taken as differing";
    // No row is read after the last pair that was given.
    EXPECT_EQ(LookedUp(byRows({{0, 0}, {0, 0}, {0, 0}, {2, 1}}), {0, 0, 0, 1}).labels, (Lines{L"A", L"A", L"A"}));
}

TEST(BuildGroupingForDiffs, TheForwardRunAloneAsksTheFirstTwoColumnsWhetherARowCounts)
{
    const auto pairsWith = [](double first, double second) {
        return byRows({{first, second, 2, 1}, {first, second, 3, 1}, {first, second, 3, 2}});
    };
    const std::vector<int> diff = {0, 1, 0};
    EXPECT_EQ(LookedUp(pairsWith(5, 0.5), diff, 3, 4).labels, oneAndThreeDiffer);
    EXPECT_EQ(LookedUp(pairsWith(M, 0), diff, 3, 4).labels, oneAndThreeDiffer);
    EXPECT_EQ(LookedUp(pairsWith(M, M), diff, 3, 4).labels, oneAndThreeDiffer);
    const double belowMissing = std::nextafter(M, -std::numeric_limits<double>::infinity());
    for (const auto& [first, second] : {std::pair{5.0, 0.0}, {5.0, -1.0}, {5.0, M}, {belowMissing, 0.0}}) {
        const LookedUp result(pairsWith(first, second), diff, 3, 4);
        EXPECT_EQ(result.labels, (Lines{L"A", L"A", L"A"}));
        EXPECT_EQ(result.clean, 0) << "the check of the group does not ask";
    }
    // Neither does the walk back: (1, 3) counts and breaks, (2, 3) does not count and yet ends the walk.
    const LookedUp back(byRows({{5, 0, 2, 1}, {5, 1, 3, 1}, {5, 0, 3, 2}}), {0, 1, 1}, 3, 4);
    EXPECT_EQ(back.labels, (Lines{L"A", L"A", L"B"}));
}

TEST(BuildGroupingForDiffs, PlacesBeyondTheTablesReadAsMinusOne)
{
    // Items beyond `perm` are all -1, and so are pairs and differences beyond their tables: they find each other.
    const Owned<Smatrix> labels(new Smatrix(3, 3));
    int nGroups = 0;
    short sorted = -1;
    EXPECT_EQ(BuildGroupingForDiffs(column({1}), 1, filled(0, 2, 0.0), 3, intColumn({}), labels, &nGroups, column({}),
                                    1, 2, &sorted, 0),
              -1);
    // The row without cells does not count in the forward run; in the last group only a number above 0 would matter.
    EXPECT_EQ(nGroups, 1);
    EXPECT_EQ(labels->vbget(3, 1), L"A");
}

} // namespace
} // namespace vecmat::test
