#include "qualitative/summary_tables.h"

namespace vecmat::test {

namespace {

SummaryTables summaryWithCounts(Smatrix* data, int nRows, int nCols, int maxCats, const Ints& counts, matrix* weights,
                                short sortCats = 0)
{
    SummaryTables result;
    auto nCats = intColumn(counts);
    M_InfoQuali2(data, nRows, nCols, maxCats, nCats, result.modes, result.modeWeights, result.categories,
                 result.catWeights, weights, &result.total, sortCats);
    EXPECT_EQ(cellsOf(nCats), counts) << "the counts are read, not written";
    return result;
}

TEST(InfoQuali2, ListsLikeInfoQualiInTablesOfTheSizeGiven)
{
    const auto data = stringsByColumns({{L"b", L"a", L"b"}, {L"x", L"", L"x"}});
    const SummaryTables summary = summaryWithCounts(data, 3, 2, 2, {2, 1}, unitWeights(3));
    EXPECT_EQ(summary.categories->nRows, 2);
    EXPECT_EQ(summary.categories->nCols, 2);
    EXPECT_EQ(summary.catWeights->nRows, 2);
    EXPECT_EQ(summary.catWeights->nCols, 2);
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"b", L"x", L"a", L""}));
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({2, 2, 1, 0}));
    EXPECT_EQ(cellsOf(summary.modes), (Texts{L"b", L"x"}));
    EXPECT_THAT(cellsOf(summary.modeWeights), SameBits({2, 2}));
    EXPECT_EQ(summary.total, 3);
}

TEST(InfoQuali2, CountsTooHighByOneWithGetMaxCat)
{
    // The empty string counts as a value there and is no category here.
    const auto data = stringColumn({L"10", L"", L"9"});
    auto counts = intColumn({77});
    ASSERT_EQ(GetMaxCat(data, 3, 1, counts), 3);
    const auto unsorted = summaryWithCounts(data, 3, 1, 3, {3}, column({1, 1, 2}));
    EXPECT_EQ(cellsOf(unsorted.categories), (Texts{L"10", L"9", L""}));
    EXPECT_THAT(cellsOf(unsorted.catWeights), SameBits({1, 2, 0}));
    EXPECT_EQ(unsorted.total, 3) << "the given count";
    const auto numeric = summaryWithCounts(data, 3, 1, 3, {3}, column({1, 1, 2}), -1);
    EXPECT_EQ(cellsOf(numeric.categories), (Texts{L"", L"9", L"10"})) << "the empty place sorts as the number 0";
    EXPECT_THAT(cellsOf(numeric.catWeights), SameBits({0, 2, 1}));
    EXPECT_EQ(cellsOf(numeric.modes), Texts{L"9"});
    const auto words = summaryWithCounts(stringColumn({L"b", L"", L"a"}), 3, 1, 3, {3}, column({1, 1, 2}), -1);
    EXPECT_EQ(cellsOf(words.categories), (Texts{L"", L"a", L"b"}));
}

TEST(InfoQuali2, PlacesBeyondThoseFoundTakePartInTheSearchForTheMode)
{
    const auto summary = summaryWithCounts(stringColumn({L"a", L"b"}), 2, 1, 3, {3}, column({-1, -2}));
    EXPECT_EQ(cellsOf(summary.modes), Texts{L""}) << "weight 0 exceeds weights below 0";
    EXPECT_THAT(cellsOf(summary.modeWeights), SameBits({0}));
}

TEST(InfoQuali2, CountsTooLowHideCategoriesFromModeAndSort)
{
    const auto data = stringColumn({L"c", L"b", L"a", L"a"});
    const auto summary = summaryWithCounts(data, 4, 1, 3, {2}, unitWeights(4), -1);
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"b", L"c", L"a"})) << "listed, but not sorted";
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({1, 1, 2}));
    EXPECT_EQ(cellsOf(summary.modes), Texts{L"c"});
    EXPECT_EQ(summary.total, 2);
}

TEST(InfoQuali2, CountOfNothingLeavesPlaceOneAsTheMode)
{
    for (int count : {0, -3}) {
        const auto summary = summaryWithCounts(stringColumn({L"b", L"a", L"a"}), 3, 1, 2, {count}, unitWeights(3), -1);
        EXPECT_EQ(cellsOf(summary.modes), Texts{L"b"});
        EXPECT_THAT(cellsOf(summary.modeWeights), SameBits({1}));
        EXPECT_EQ(cellsOf(summary.categories), (Texts{L"b", L"a"}));
        EXPECT_EQ(summary.total, count);
    }
}

TEST(InfoQuali2, CategoriesBeyondTheTableAreDropped)
{
    const auto data = stringColumn({L"a", L"b", L"c", L"c", L"b", L"d"});
    const auto summary = summaryWithCounts(data, 6, 1, 2, {2}, column({1, 1, 9, 9, 1, 9}));
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"a", L"b"}));
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({1, 2}));
    EXPECT_EQ(cellsOf(summary.modes), Texts{L"b"});

    const auto none = summaryWithCounts(data, 6, 1, 0, {2}, unitWeights(6), -1);
    EXPECT_EQ(none.categories->nElems, 0u);
    EXPECT_EQ(cellsOf(none.modes), Texts{L""});
    EXPECT_THAT(cellsOf(none.modeWeights), SameBits({-1}));
}

TEST(InfoQuali2, WeightsOfDroppedCategoriesReachALargerTableOneByOne)
{
    // Both of the dropped ones are met anew each time, and each time the list grows by a place.
    SummaryTables summary{.catWeights = filled(1, 6, 77)};
    const auto nCats = intColumn({2});
    M_InfoQuali2(stringColumn({L"a", L"b", L"c", L"c", L"a"}), 5, 1, 2, nCats, summary.modes, summary.modeWeights,
                 summary.categories, summary.catWeights, column({1, 2, 4, 8, 16}), &summary.total, 0);
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"a", L"b"}));
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({17, 2, 4, 8, 77, 77}));
}

TEST(InfoQuali2, PlacesBeyondTheTableReadAsMinusOne)
{
    const auto summary = summaryWithCounts(stringColumn({L"a", L"b"}), 2, 1, 2, {1000000000}, column({-3, -2}), 0);
    EXPECT_EQ(cellsOf(summary.modes), Texts{L""});
    EXPECT_THAT(cellsOf(summary.modeWeights), SameBits({-1}));
    EXPECT_EQ(summary.total, 1000000000);
}

TEST(InfoQuali2, CountBeyondItsTableIsMinusOne)
{
    const auto data = stringsByColumns({{L"a", L"b"}, {L"x", L"x"}});
    const auto summary = summaryWithCounts(data, 2, 2, 2, {2}, unitWeights(2), -1);
    EXPECT_EQ(summary.total, 1);
    EXPECT_EQ(cellsOf(summary.modes), (Texts{L"a", L"x"}));
}

TEST(InfoQuali2, KeptTablesShowTheirOldStringsInPlacesNotFilled)
{
    SummaryTables summary{.categories = stringsByRows({{L"old", L"old", L"older"}})};
    const auto nCats = intColumn({3});
    M_InfoQuali2(stringColumn({L"b", L"a"}), 2, 1, 3, nCats, summary.modes, summary.modeWeights, summary.categories,
                 summary.catWeights, column({-1, -1}), &summary.total, 0);
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"b", L"a", L"older"}));
    EXPECT_EQ(cellsOf(summary.modes), Texts{L"older"}) << "its weight of 0 is the largest";
}

TEST(InfoQuali2, ColumnWithoutData)
{
    const auto data = stringsByColumns({{L"", L""}, {L"x", L"y"}});
    const auto summary = summaryWithCounts(data, 2, 2, 2, {1, 2}, unitWeights(2));
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"x", L"x", L"", L"y"}));
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({-1, 1, 0, 1}));
}

TEST(VBInfoQuali2, ReadsTheCountsAndWritesTheOthers)
{
    BstrArray data({L"b", L"a", L"b", L"x", L"", L"y"});
    BstrArray modes({L"old", L"old"});
    BstrArray categories(Texts(6, L"old"));
    Guarded<double> weights({1, 2, 4});
    Guarded<double> modeWeights(2, 77.0);
    Guarded<int> nCats({2, 3});
    Guarded<double> catWeights(6, 77.0);
    int total = 77;
    VB_M_InfoQuali2(data, 3, 2, 3, nCats, modes, modeWeights, &total, categories, catWeights, 999, weights, 1);
    EXPECT_TRUE(nCats.untouched());
    EXPECT_EQ(total, 5);
    EXPECT_EQ(modes.takeTexts(), (Texts{L"b", L"y"}));
    EXPECT_EQ(categories.countNew(), 6u);
    EXPECT_EQ(categories.takeTexts(), (Texts{L"a", L"", L"b", L"x", L"", L"y"}));
    EXPECT_THAT(catWeights.values(), SameBits({2, 0, 5, 1, 0, 4}));
    EXPECT_THAT(modeWeights.values(), SameBits({5, 4}));
    EXPECT_TRUE(weights.untouched());
    EXPECT_EQ(data.countNew(), 0u);
}

} // namespace

} // namespace vecmat::test
