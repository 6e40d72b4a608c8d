#include "missing/observation_labels.h"

#include "support/guarded.h"
#include "support/random_data.h"
#include "support/strings.h"
#include "support/tables.h"

#include <chrono>
#include <gmock/gmock.h>

namespace vecmat::test {
namespace {

using testing::Each;
using testing::ElementsAre;

using Flags = Guarded<short>;

/// The plain walk: number by number, against every other row.
void walk(std::vector<std::wstring>& labels, std::vector<short>& mask, const std::wstring& prefix)
{
    int number = 0;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (mask[i] == -1) {
            bool repeated = true;
            while (repeated) {
                labels[i] = prefix + std::to_wstring(++number);
                repeated = false;
                for (std::size_t m = 0; m < labels.size(); ++m)
                    repeated = repeated || (m != i && labels[m] == labels[i]);
            }
        }
        mask[i] = 0;
    }
}

TEST(ReplaceMissingObsLabels, PassesOverANumberThatIsTaken)
{
    auto labels = stringColumn({L"P1", L"", L""});
    Flags mask = {0, -1, -1};
    ReplaceMissingObsLabels(labels, 3, mask, L"P");
    EXPECT_THAT(cellsOf(labels), ElementsAre(L"P1", L"P2", L"P3"));
    EXPECT_THAT(mask.values(), Each(0));
}

TEST(ReplaceMissingObsLabels, RowsAfterCountAsWellAsRowsBefore)
{
    auto labels = stringColumn({L"", L"", L"P1", L"P3"});
    Flags mask = {-1, -1, 0, 0};
    ReplaceMissingObsLabels(labels, 4, mask, L"P");
    EXPECT_THAT(cellsOf(labels), ElementsAre(L"P2", L"P4", L"P1", L"P3"));
}

TEST(ReplaceMissingObsLabels, CounterIsNotResetForEachRow)
{
    auto labels = stringColumn({L"", L"a", L"", L"b", L""});
    Flags mask = {-1, 0, -1, 0, -1};
    ReplaceMissingObsLabels(labels, 5, mask, L"Obs");
    EXPECT_THAT(cellsOf(labels), ElementsAre(L"Obs1", L"a", L"Obs2", L"b", L"Obs3"));
}

TEST(ReplaceMissingObsLabels, OnlyExactlyMinusOneIsFlaggedAndEveryFlagIsCleared)
{
    auto labels = stringColumn({L"", L"x", L"", L"y"});
    Flags mask = {1, -1, 2, 0};
    ReplaceMissingObsLabels(labels, 4, mask, L"P");
    EXPECT_THAT(cellsOf(labels), ElementsAre(L"", L"P1", L"", L"y"));
    EXPECT_THAT(mask.values(), Each(0));
}

TEST(ReplaceMissingObsLabels, OwnOldLabelDoesNotCount)
{
    auto labels = stringColumn({L"P1", L"P2"});
    Flags mask = {-1, -1};
    ReplaceMissingObsLabels(labels, 2, mask, L"P");
    EXPECT_THAT(cellsOf(labels), ElementsAre(L"P1", L"P2"));
}

TEST(ReplaceMissingObsLabels, LabelOfAFlaggedRowCountsUntilItIsReplaced)
{
    // Row 1 passes over P1, which row 3 still bears; row 3 goes on from there, though P1 is free by then.
    auto later = stringColumn({L"", L"", L"P1"});
    Flags mask = {-1, 0, -1};
    ReplaceMissingObsLabels(later, 3, mask, L"P");
    EXPECT_THAT(cellsOf(later), ElementsAre(L"P2", L"", L"P3"));
    // Row 1 gives P2 up before row 2 needs it.
    auto earlier = stringColumn({L"P2", L""});
    Flags both = {-1, -1};
    ReplaceMissingObsLabels(earlier, 2, both, L"P");
    EXPECT_THAT(cellsOf(earlier), ElementsAre(L"P1", L"P2"));
    // Two rows bear P2: one of them gives it up, the other keeps it.
    auto shared = stringColumn({L"P2", L"P2", L""});
    Flags twoOfThree = {-1, 0, -1};
    ReplaceMissingObsLabels(shared, 3, twoOfThree, L"P");
    EXPECT_THAT(cellsOf(shared), ElementsAre(L"P1", L"P2", L"P3"));
}

TEST(ReplaceMissingObsLabels, ComparesWholeTexts)
{
    auto labels = stringColumn({L"", L"p1", L"P01", L"P1 ", L"P"});
    Flags mask = {-1, 0, 0, 0, 0};
    ReplaceMissingObsLabels(labels, 5, mask, L"P");
    EXPECT_EQ(labels->X[0], L"P1");
}

TEST(ReplaceMissingObsLabels, PrefixMayBeEmpty)
{
    auto labels = stringColumn({L"", L"2", L""});
    Flags mask = {-1, 0, -1};
    ReplaceMissingObsLabels(labels, 3, mask, L"");
    EXPECT_THAT(cellsOf(labels), ElementsAre(L"1", L"2", L"3"));
}

TEST(ReplaceMissingObsLabels, AgreesWithTheWalk)
{
    RandomData data(441);
    SCOPED_TRACE(data);
    int passedOver = 0;
    for (int trial = 0; trial < 300; ++trial) {
        const auto n = static_cast<std::size_t>(data.integer(0, 14));
        const std::wstring prefix = data.chance(0.2) ? L"1" : L"P"; // 1, 11, 111 follow from each other
        std::vector<std::wstring> texts;
        std::vector<short> flags;
        for (std::size_t i = 0; i < n; ++i) {
            texts.push_back(
                data.chance(0.2) ? L"" : (data.chance(0.8) ? prefix : L"Q") + std::to_wstring(data.integer(1, 12)));
            flags.push_back(data.chance(0.6) ? -1 : static_cast<short>(data.integer(0, 1)));
        }
        auto labels = stringColumn(texts);
        Flags mask(flags);
        ReplaceMissingObsLabels(labels, static_cast<int>(n), mask, prefix);
        std::vector<std::wstring> expected = texts;
        walk(expected, flags, prefix);
        EXPECT_EQ(cellsOf(labels), expected);
        EXPECT_EQ(mask.values(), flags);
        for (std::size_t i = 0; i < n; ++i)
            passedOver += expected[i] == prefix + L"14" ? 1 : 0;
    }
    EXPECT_GT(passedOver, 0);
}

TEST(ReplaceMissingObsLabels, RowOutsideTheTableUsesUpANumber)
{
    auto labels = stringColumn({L"", L"a"});
    Flags mask = {0, 0, -1, -1};
    ReplaceMissingObsLabels(labels, 4, mask, L"P");
    EXPECT_THAT(cellsOf(labels), ElementsAre(L"", L"a"));
    EXPECT_THAT(mask.values(), Each(0));
    // A row below the first column is one of the next.
    auto wide = stringsByColumns({{L"", L"a"}, {L"", L"P1"}});
    Flags flags = {-1, 0, -1};
    ReplaceMissingObsLabels(wide, 3, flags, L"P");
    EXPECT_THAT(cellsOf(wide), ElementsAre(L"P1", L"a", L"P2", L"P1")); // the fourth is none of the three rows
}

TEST(ReplaceMissingObsLabels, NoRows)
{
    auto labels = stringColumn({L""});
    Flags mask = {-1};
    ReplaceMissingObsLabels(labels, 0, mask, L"P");
    ReplaceMissingObsLabels(labels, -2, mask, L"P");
    EXPECT_THAT(cellsOf(labels), ElementsAre(L""));
    EXPECT_TRUE(mask.untouched());
}

// Half of the rows bear the numbers that the other half would take: compared one by one that is 10^10 comparisons.
TEST(ReplaceMissingObsLabels, CostDoesNotGrowWithTheSquareOfTheRows)
{
    constexpr int n = 200'000;
    auto labels = Owned<Smatrix>(new Smatrix(n, 1));
    Flags mask(std::vector<short>(n, 0));
    for (int i = 0; i < n; ++i)
        if (i % 2 == 0)
            labels->X[i] = L"P" + std::to_wstring(i / 2 + 1);
        else
            mask.data()[i] = -1;
    const auto start = std::chrono::steady_clock::now();
    ReplaceMissingObsLabels(labels, n, mask, L"P");
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(labels->X[1], L"P100001");
    EXPECT_EQ(labels->X[n - 1], L"P200000");
    EXPECT_LT(elapsed.count(), 30.0); // a fraction of a second; a comparison with each row would take minutes
}

TEST(ReplaceMissingObsLabels, FlatFormMakesEveryStringAnew)
{
    BstrArray labels({L"Row\x00e9"
                      L"1",
                      L"", L"x", L""});
    labels.setNull(3);
    Flags mask = {0, -1, 0, -1};
    VB_ReplaceMissingObsLabels(labels, 4, mask, L"Row\x00e9");
    EXPECT_EQ(labels.countNew(), 4u);
    EXPECT_THAT(labels.takeTexts(), ElementsAre(L"Row\x00e9"
                                                L"1",
                                                L"Row\x00e9"
                                                L"2",
                                                L"x",
                                                L"Row\x00e9"
                                                L"3"));
    EXPECT_THAT(mask.values(), Each(0));
}

} // namespace
} // namespace vecmat::test
