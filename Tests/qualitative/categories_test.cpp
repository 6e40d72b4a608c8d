#include "qualitative/summary_tables.h"

#include <limits>

namespace vecmat::test {

namespace {

const double NaN = std::numeric_limits<double>::quiet_NaN();

SummaryTables columnSummary(const Texts& texts, const Doubles& weights, short sortCats = 0)
{
    return summaryOf(stringColumn(texts), static_cast<int>(texts.size()), 1, column(weights), sortCats);
}

// ---- lists and modes ------------------------------------------------------------------------------------------------

TEST(InfoQuali, ListsCategoriesInTheOrderOfFirstAppearance)
{
    const SummaryTables summary = columnSummary({L"b", L"a", L"b"}, {1, 1, 1});
    EXPECT_EQ(cellsOf(summary.nCats), Ints{2});
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"b", L"a", L""}));
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({2, 1, 0}));
    EXPECT_EQ(cellsOf(summary.modes), Texts{L"b"});
    EXPECT_THAT(cellsOf(summary.modeWeights), SameBits({2}));
    EXPECT_EQ(summary.total, 2);
}

TEST(InfoQuali, ShapesOfTheTablesMade)
{
    const SummaryTables summary =
        summaryOf(stringsByRows({{L"a", L"x"}, {L"b", L"x"}, {L"a", L"y"}}), 3, 2, unitWeights(3));
    EXPECT_EQ(summary.modes->nRows, 2);
    EXPECT_EQ(summary.modes->nCols, 1);
    EXPECT_EQ(summary.modeWeights->nRows, 2);
    EXPECT_EQ(summary.nCats->nRows, 2);
    EXPECT_EQ(summary.categories->nRows, 2);
    EXPECT_EQ(summary.categories->nCols, 3);
    EXPECT_EQ(summary.catWeights->nRows, 2);
    EXPECT_EQ(summary.catWeights->nCols, 3);
    EXPECT_EQ(categoriesOf(summary, 1, 3), (Texts{L"a", L"b", L""}));
    EXPECT_EQ(categoriesOf(summary, 2, 3), (Texts{L"x", L"y", L""}));
    EXPECT_EQ(summary.total, 4);
}

TEST(InfoQuali, TiedWeightsGiveTheCategoryMetFirst)
{
    EXPECT_EQ(cellsOf(columnSummary({L"b", L"a"}, {1, 1}).modes), Texts{L"b"});
    const SummaryTables sorted = columnSummary({L"b", L"a"}, {1, 1}, -1);
    EXPECT_EQ(cellsOf(sorted.modes), Texts{L"b"}) << "the mode stays as found";
    EXPECT_EQ(cellsOf(sorted.categories), (Texts{L"a", L"b"}));
    EXPECT_EQ(cellsOf(columnSummary({L"b", L"a", L"a", L"b"}, {1, 1, 2, 2}).modes), Texts{L"b"});
    EXPECT_EQ(cellsOf(columnSummary({L"b", L"a", L"a", L"b"}, {1, 1, 3, 2}).modes), Texts{L"a"});
}

TEST(InfoQuali, ComparesPlainStrings)
{
    const SummaryTables summary = columnSummary({L"1", L"1.0", L"a", L"A", L"a ", L"1"}, {1, 1, 1, 1, 1, 1});
    EXPECT_EQ(cellsOf(summary.nCats), Ints{5});
    EXPECT_EQ(categoriesOf(summary, 1, 5), (Texts{L"1", L"1.0", L"a", L"A", L"a "}));
}

TEST(InfoQuali, SkipsEmptyCellsWhereverTheyAre)
{
    const SummaryTables summary = columnSummary({L"", L"a", L"", L"b", L"b", L""}, {1, 2, 4, 8, 16, 32});
    EXPECT_EQ(cellsOf(summary.nCats), Ints{2});
    EXPECT_EQ(categoriesOf(summary, 1, 2), (Texts{L"a", L"b"}));
    EXPECT_THAT(weightsOf(summary, 1, 3), SameBits({2, 24, 0}));
}

TEST(InfoQuali, WeightsOfZeroAndBelowOpenACategoryAndAddToIt)
{
    const SummaryTables summary = columnSummary({L"a", L"b", L"c", L"c", L"d"}, {0, -2, 5, -1, -0.0});
    EXPECT_EQ(cellsOf(summary.nCats), Ints{4});
    EXPECT_THAT(weightsOf(summary, 1, 4), SameBits({0, -2, 4, -0.0})) << "the first weight is stored, not added to 0";
    EXPECT_EQ(cellsOf(columnSummary({L"a", L"b"}, {-2, -1}).modes), Texts{L"b"});
}

TEST(InfoQuali, WeightsAreNeverTestedForTheMissingValue)
{
    const SummaryTables summary = columnSummary({L"a", L"b", L"b"}, {M, 1, 1});
    EXPECT_THAT(weightsOf(summary, 1, 2), SameBits({M, 2}));
    EXPECT_EQ(cellsOf(summary.modes), Texts{L"b"});
}

TEST(InfoQuali, WeightThatIsNotANumberIsNeverExceeded)
{
    EXPECT_EQ(cellsOf(columnSummary({L"a", L"b"}, {NaN, 5}).modes), Texts{L"a"});
    EXPECT_EQ(cellsOf(columnSummary({L"b", L"a"}, {5, NaN}).modes), Texts{L"b"});
}

TEST(InfoQuali, WeightsBeyondTheirTableAreMinusOne)
{
    const SummaryTables summary = summaryOf(stringColumn({L"a", L"b", L"b"}), 3, 1, column({1, 1}));
    EXPECT_THAT(weightsOf(summary, 1, 2), SameBits({1, 0}));
}

// ---- columns without data -------------------------------------------------------------------------------------------

TEST(InfoQuali, ColumnWithoutDataTakesTheFirstCellOfTheNext)
{
    const SummaryTables summary =
        summaryOf(stringsByColumns({{L"", L""}, {L"x", L"y"}, {L"", L""}}), 2, 3, column({3, 4}));
    EXPECT_EQ(cellsOf(summary.nCats), (Ints{1, 2, 1}));
    EXPECT_EQ(categoriesOf(summary, 1, 2), (Texts{L"x", L""}));
    EXPECT_THAT(weightsOf(summary, 1, 2), SameBits({-1, 0}));
    EXPECT_EQ(categoriesOf(summary, 3, 2), (Texts{L"", L""})) << "nothing follows the last column";
    EXPECT_THAT(weightsOf(summary, 3, 2), SameBits({-1, 0}));
    EXPECT_EQ(cellsOf(summary.modes), (Texts{L"x", L"y", L""}));
    EXPECT_THAT(cellsOf(summary.modeWeights), SameBits({-1, 4, -1}));
    EXPECT_EQ(summary.total, 4) << "the column counts one category";
}

TEST(InfoQuali, ColumnWithoutDataBeforeAnEmptyCell)
{
    const SummaryTables summary = summaryOf(stringsByColumns({{L"", L""}, {L"", L"y"}}), 2, 2, column({3, 4}));
    EXPECT_EQ(cellsOf(summary.nCats), (Ints{1, 1}));
    EXPECT_EQ(cellsOf(summary.modes), (Texts{L"", L"y"}));
    EXPECT_THAT(cellsOf(summary.modeWeights), SameBits({-1, 4}));
}

TEST(InfoQuali, OneRowWithAnEmptyCellInTheLastColumn)
{
    const SummaryTables summary = summaryOf(stringsByRows({{L"a", L""}}), 1, 2, column({7}));
    EXPECT_EQ(cellsOf(summary.nCats), (Ints{1, 1}));
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"a", L""}));
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({7, -1}));
}

TEST(InfoQuali, WeightAfterTheLastRowIsReadWhereThereIsOne)
{
    const SummaryTables summary = summaryOf(stringsByColumns({{L"", L""}, {L"x", L"y"}}), 2, 2, column({3, 4, 5}));
    EXPECT_THAT(cellsOf(summary.modeWeights), SameBits({5, 4}));
}

TEST(InfoQuali, CornerOfATable)
{
    // Two rows of three: the cell after the two is the column's own third.
    const SummaryTables summary =
        summaryOf(stringsByColumns({{L"", L"", L"third"}, {L"x", L"x", L"y"}}), 2, 2, column({3, 4}));
    EXPECT_EQ(cellsOf(summary.modes), (Texts{L"third", L"x"}));
    EXPECT_EQ(cellsOf(summary.nCats), (Ints{1, 1}));
    EXPECT_EQ(summary.categories->nCols, 2);
}

TEST(InfoQuali, NoRowsAndNoColumns)
{
    const SummaryTables noRows = summaryOf(stringsByColumns({{L"a", L"b"}}), 0, 1, column({5}));
    EXPECT_EQ(cellsOf(noRows.nCats), Ints{1}) << "the search stops one place past no row";
    EXPECT_EQ(noRows.categories->nElems, 0u);
    EXPECT_EQ(cellsOf(noRows.modes), Texts{L""});
    EXPECT_THAT(cellsOf(noRows.modeWeights), SameBits({-1}));
    EXPECT_EQ(noRows.total, 1);

    const SummaryTables noColumns = summaryOf(stringsByColumns({{L"a", L"b"}}), 2, 0, column({5, 5}), -1);
    EXPECT_EQ(noColumns.total, 0);
    EXPECT_EQ(noColumns.modes->nElems, 0u);
}

// ---- result tables that exist already -------------------------------------------------------------------------------

TEST(InfoQuali, KeptTablesOfStringsKeepWhatNoCategoryFills)
{
    SummaryTables summary{.modes = stringColumn({L"old"}),
                          .modeWeights = filled(1, 1, 77),
                          .nCats = intColumn({77}),
                          .categories = stringsByRows({{L"old", L"old", L"old"}}),
                          .catWeights = filled(1, 3, 77)};
    const Smatrix* const kept = summary.categories;
    M_InfoQuali(stringColumn({L"b", L"a", L"b"}), 3, 1, summary.modes, summary.modeWeights, summary.nCats,
                summary.categories, summary.catWeights, unitWeights(3), &summary.total, 0);
    EXPECT_EQ(summary.categories.get(), kept);
    EXPECT_EQ(cellsOf(summary.categories), (Texts{L"b", L"a", L"old"})) << "matCheck clears no strings";
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({2, 1, 0})) << "and clears numbers";
    EXPECT_EQ(cellsOf(summary.modes), Texts{L"b"});
    EXPECT_EQ(summary.total, 2);
}

TEST(InfoQuali, LargerTablesOfNumbersKeepTheirStride)
{
    SummaryTables summary{.catWeights = filled(3, 4, 77)};
    const auto data = stringsByColumns({{L"a", L"b"}, {L"x", L"x"}});
    M_InfoQuali(data, 2, 2, summary.modes, summary.modeWeights, summary.nCats, summary.categories, summary.catWeights,
                column({1, 2}), &summary.total, 0);
    // The first four cells of the block were cleared; then (1,1), (1,2) and (2,1) were written with a stride of 3.
    EXPECT_THAT(cellsOf(summary.catWeights), SameBits({1, 3, 0, 2, 77, 77, 77, 77, 77, 77, 77, 77}));
    EXPECT_EQ(cellsOf(summary.modes), (Texts{L"b", L"x"}));
}

// ---- the flat form --------------------------------------------------------------------------------------------------

TEST(VBInfoQuali, WritesEveryElementOfItsResults)
{
    BstrArray data({L"b", L"a", L"b", L"", L"", L""});
    BstrArray modes({L"old", L"old"});
    BstrArray categories(Texts(6, L"old"));
    Guarded<double> weights({1, 2, 4});
    Guarded<double> modeWeights(2, 77.0);
    Guarded<int> nCats(2, 77);
    Guarded<double> catWeights(6, 77.0);
    int total = 77;
    VB_M_InfoQuali(data, 3, 2, modes, modeWeights, &total, nCats, categories, catWeights, 12345, weights, -1);
    EXPECT_EQ(total, 3);
    EXPECT_EQ(modes.takeTexts(), (Texts{L"b", L""}));
    EXPECT_EQ(categories.countNew(), 6u);
    EXPECT_EQ(categories.takeTexts(), (Texts{L"a", L"", L"b", L"", L"", L""})) << "unused places come back empty";
    EXPECT_THAT(catWeights.values(), SameBits({2, -1, 5, 0, 0, 0}));
    EXPECT_THAT(modeWeights.values(), SameBits({5, -1}));
    EXPECT_EQ(nCats.values(), (Ints{2, 1}));
    EXPECT_TRUE(weights.untouched());
    EXPECT_EQ(data.countNew(), 0u) << "the input is never written";
}

TEST(VBInfoQuali, NullPointersAreEmptyCells)
{
    BstrArray data({L"b", L"a", L"a"});
    data.setNull(1);
    BstrArray modes(1);
    BstrArray categories(3);
    Guarded<double> weights({1, 1, 1});
    Guarded<double> modeWeights(1, 77.0);
    Guarded<int> nCats(1, 77);
    Guarded<double> catWeights(3, 77.0);
    int total = 77;
    VB_M_InfoQuali(data, 3, 1, modes, modeWeights, &total, nCats, categories, catWeights, 0, weights, 0);
    EXPECT_EQ(categories.takeTexts(), (Texts{L"b", L"a", L""}));
    EXPECT_EQ(modes.takeTexts(), Texts{L"b"});
    EXPECT_THAT(catWeights.values(), SameBits({1, 1, 0}));
}

} // namespace

} // namespace vecmat::test
