#include "missing/neighbour_cases.h"

#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

using testing::ElementsAre;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

NeighbourCase primaryNumbers(std::vector<short> mask, int cols, Numbers cells)
{
    NeighbourCase c = neighbourCase(std::move(mask));
    c.colsX = cols;
    c.target.x = std::move(cells);
    return c;
}

void addY(NeighbourCase& c, int cols, Numbers cells)
{
    c.colsY = cols;
    c.target.y = std::move(cells);
}

void addS(NeighbourCase& c, int cols, Texts cells)
{
    c.colsS = cols;
    c.target.s = std::move(cells);
}

// ---- the neighbour --------------------------------------------------------------------------------------------------

TEST(NearestNeighbour, CopiesTheValueOfTheNearestRow)
{
    NeighbourCase c = primaryNumbers({0, -1, 0, 0}, 2, {10, M, 30, 40, /**/ 9, 5, 1, 6});
    EXPECT_THAT(filledNumbers(c).x, SameBits({10, 40, 30, 40, 9, 5, 1, 6}));
}

TEST(NearestNeighbour, ScalesEachColumnByItsVariance)
{
    // Row 1 is 1 off in a column of variance 4/3, row 2 is 100 off in one of variance 40000.
    NeighbourCase c = primaryNumbers({0, 0, -1, 0}, 3, {10, 20, M, 30, /**/ 1, 2, 2, 4, /**/ 0, 100, 0, 400});
    EXPECT_THAT(filledNumbers(c).x, SameBits({10, 20, 20, 30, 1, 2, 2, 4, 0, 100, 0, 400}));
}

TEST(NearestNeighbour, CountsMismatchesOfStrings)
{
    NeighbourCase c = primaryNumbers({-1, 0, 0, 0}, 1, {M, 20, 30, 40});
    addS(c, 3, {L"a", L"a", L"a", L"z", /**/ L"b", L"z", L"b", L"b", /**/ L"c", L"z", L"z", L"z"});
    EXPECT_THAT(filledNumbers(c).x, SameBits({30, 20, 30, 40})); // 2, 1 and 2 mismatches
}

TEST(NearestNeighbour, MismatchCostsOneVariance)
{
    // Y has the variance 4: row 2 is 1.0 away by its string, row 3 by 1.9 squared over 4, row 4 by 2.1 squared over 4.
    NeighbourCase c = primaryNumbers({-1, 0, 0}, 1, {M, 20, 30});
    addY(c, 1, {0, 0, 1.9});
    addS(c, 1, {L"a", L"z", L"a"});
    NeighbourTable statistics = c.target;
    statistics.y = {0, 2, 4};
    EXPECT_THAT(filledByTables(c, statistics).x, SameBits({30, 20, 30}));
    c.target.y[2] = 2.1;
    EXPECT_THAT(filledByTables(c, statistics).x, SameBits({20, 20, 30}));
}

TEST(NearestNeighbour, OfEqualDistancesTheLowestRowWins)
{
    NeighbourCase c = primaryNumbers({0, -1, 0, 0}, 2, {10, M, 30, 40, /**/ 9, 6, 3, 6.5});
    c.mask[3] = 1;
    EXPECT_THAT(filledNumbers(c).x, SameBits({10, 10, 30, 40, 9, 6, 3, 6.5}));
    NeighbourCase later = primaryNumbers({-1, 0, 0, 0}, 2, {M, 30, 20, 40, /**/ 6, 9, 3, 9});
    EXPECT_THAT(filledNumbers(later).x, SameBits({30, 30, 20, 40, 6, 9, 3, 9}));
}

TEST(NearestNeighbour, AnyFlagButZeroMarksARow)
{
    NeighbourCase c = primaryNumbers({1, -1, 256, 0, 0}, 2, {M, M, M, 10, M, /**/ 0, 9, 1, 0, 0});
    // The row without a flag keeps its missing cell.
    c.target.x[4] = M;
    c.target.x[9] = 99;
    EXPECT_THAT(filledNumbers(c).x, SameBits({10, 10, 10, 10, M, 0, 9, 1, 0, 99}));
}

TEST(NearestNeighbour, FlagOnACompleteRowOnlyKeepsItFromBeingANeighbour)
{
    NeighbourCase c = primaryNumbers({-1, -1, 0}, 2, {M, 10, 20, /**/ 5, 5, 9});
    EXPECT_THAT(filledNumbers(c).x, SameBits({20, 10, 20, 5, 5, 9}));
    c.mask[1] = 0;
    EXPECT_THAT(filledNumbers(c).x, SameBits({10, 10, 20, 5, 5, 9}));
}

TEST(NearestNeighbour, FilledRowIsNeverANeighbour)
{
    NeighbourCase c = primaryNumbers({-1, -1, 0}, 2, {M, M, 20, /**/ 5, 5, 9});
    addY(c, 1, {1, 2, 3});
    c.target.x[0] = 7; // complete, the nearest, and flagged
    EXPECT_THAT(filledNumbers(c).x, SameBits({7, 20, 20, 5, 5, 9}));
}

TEST(NearestNeighbour, FilledCellEntersTheDistancesThatFollow)
{
    NeighbourCase c = neighbourCase({0, 0, -1, 0});
    // Column 2 of row 3 is filled from row 4 (row 2 is skipped there). By that row 2 is four away; without it, next
    // to nothing.
    addY(c, 2, {1000, 9, 5, 5, /**/ 4, 8, M, 0});
    addS(c, 2, {L"x", L"row 2", L"", L"row 4", /**/ L"k", L"k", L"k", L"z"});
    const NeighbourTable result = filledNumbers(c);
    EXPECT_THAT(result.y, SameBits({1000, 9, 5, 5, 4, 8, 0, 0}));
    EXPECT_THAT(result.s, ElementsAre(L"x", L"row 2", L"row 4", L"row 4", L"k", L"k", L"k", L"z"));
}

TEST(NearestNeighbour, ColumnWithoutVarianceInTheStatisticsIsLeftOut)
{
    NeighbourCase c = primaryNumbers({-1, 0, 0}, 3, {M, 20, 30, /**/ 0, 1000, 0, /**/ 5, 5, 6});
    NeighbourTable statistics = c.target;
    statistics.x = {1, 2, 3, /**/ 7, 7, 7, /**/ 1, 2, 3};
    EXPECT_THAT(filledByTables(c, statistics).x, SameBits({20, 20, 30, 0, 1000, 0, 5, 5, 6}));
    expectPrediction(c, statistics, filledByTables(c, statistics), false);
    // A column without any number has no variance either; with one, the second column decides.
    statistics.x = {1, 2, 3, /**/ M, M, M, /**/ 1, 2, 3};
    EXPECT_THAT(filledByTables(c, statistics).x, SameBits({20, 20, 30, 0, 1000, 0, 5, 5, 6}));
    statistics.x = {1, 2, 3, /**/ 6, 7, 8, /**/ 1, 2, 3};
    EXPECT_THAT(filledByTables(c, statistics).x, SameBits({30, 20, 30, 0, 1000, 0, 5, 5, 6}));
}

// ---- without a neighbour --------------------------------------------------------------------------------------------

TEST(NearestNeighbour, WithAllRowsFlaggedCellsTakeTheStatistics)
{
    NeighbourCase c = primaryNumbers({-1, 1, 2}, 1, {1, M, 5});
    addY(c, 1, {M, 2, 4});
    addS(c, 1, {L"b", L"", L"b"});
    c.weights = {1, 1, 3};
    const NeighbourTable result = filledNumbers(c);
    EXPECT_THAT(result.x, SameBits({1, 4, 5}));
    EXPECT_THAT(result.y, SameBits({3.5, 2, 4}));
    EXPECT_THAT(result.s, ElementsAre(L"b", L"b", L"b"));

    NeighbourCase texts = neighbourCase({-1, -1, -1, -1});
    texts.colsX = 1;
    texts.target.p = {L"a", L"", L"c", L"c"};
    EXPECT_THAT(filledTexts(texts).p, ElementsAre(L"a", L"c", L"c", L"c"));
}

TEST(NearestNeighbour, OneFlaggedRowTakesTheMeanOrZero)
{
    NeighbourCase c = primaryNumbers({-1}, 2, {M, 7});
    addY(c, 1, {M});
    addS(c, 2, {L"", L"q"});
    const NeighbourTable alone = filledNumbers(c);
    EXPECT_THAT(alone.x, SameBits({0.0, 7}));
    EXPECT_THAT(alone.y, SameBits({0.0}));
    EXPECT_THAT(alone.s, ElementsAre(L"q", L"q")); // the text that follows the empty column in storage

    const NeighbourTable statistics = {2, {1, 3, M, 9}, {}, {M, 6}, {L"u", L"", L"", L""}};
    c.weights = {1, 1};
    NeighbourTable expected = {1, {2, 7}, {}, {6}, {L"u", L"q"}};
    expectSame(filledByTables(c, statistics), expected, "EstimateRowsWithMissingNN");
    expectPrediction(c, statistics, expected, false);
}

TEST(NearestNeighbour, PredictionWithAllRowsFlaggedTakesTheStatisticsOfTheSample)
{
    NeighbourCase c = primaryNumbers({-1, -1}, 1, {M, 100});
    addY(c, 1, {50, M});
    addS(c, 1, {L"z", L""});
    const NeighbourTable statistics = {3, {1, 2, 6}, {}, {4, 4, 7}, {L"a", L"b", L"b"}};
    c.weights = {1, 1, 1};
    const NeighbourTable expected = {2, {3, 100}, {}, {50, 5}, {L"z", L"b"}};
    expectSame(filledByTables(c, statistics), expected, "EstimateRowsWithMissingNN");
    expectPrediction(c, statistics, expected, false);

    NeighbourCase texts = c;
    texts.target.x.clear();
    texts.target.p = {L"", L"z"};
    NeighbourTable sample = statistics;
    sample.x.clear();
    sample.p = {L"u", L"v", L"v"};
    NeighbourTable filled = expected;
    filled.x.clear();
    filled.p = {L"v", L"z"};
    expectSame(filledByStrings(texts, sample), filled, "EstimateRowsWithMissingNNStr");
    expectPrediction(texts, sample, filled, true);
}

TEST(NearestNeighbour, NeighboursAreRowsOfTheTargetOnly)
{
    NeighbourCase c = primaryNumbers({-1, 0}, 2, {M, 20, /**/ 5, 9});
    const NeighbourTable statistics = {3, {1, 2, 3, /**/ 5, 5, 6}, {}, {}, {}}; // its row 1 would be the nearest
    c.weights = {1, 1, 1};
    EXPECT_THAT(filledByTables(c, statistics).x, SameBits({20, 20, 5, 9}));
}

// ---- what is missing ------------------------------------------------------------------------------------------------

TEST(NearestNeighbour, NumbersAtOrBelowTheMissingValueAreMissing)
{
    const double lowest = std::numeric_limits<double>::lowest();
    for (const double missing : {M, lowest, -infinity}) {
        NeighbourCase c = primaryNumbers({-1, 0, 0, 0}, 2, {missing, 20, 30, 40, /**/ 5, 6, missing, 9});
        addY(c, 1, {missing, 200, 300, 400});
        // Statistics of clean numbers: only the exact missing value would be left out of them.
        const NeighbourTable statistics = {4, {1, 2, 3, 4, 1, 2, 3, 4}, {}, {1, 2, 3, 4}, {}};
        const NeighbourTable result = filledByTables(c, statistics);
        EXPECT_THAT(result.x, SameBits({20, 20, 30, 40, 5, 6, missing, 9})) << missing;
        EXPECT_THAT(result.y, SameBits({200, 200, 300, 400})) << missing;
    }
    // Above it every number is present.
    const double above = std::nextafter(M, 0.0);
    NeighbourCase c = primaryNumbers({-1, 0, 0}, 2, {above, 20, 30, /**/ 5, 5, 9});
    EXPECT_THAT(filledByTables(c, {3, {1, 2, 3, 1, 2, 3}, {}, {}, {}}).x, SameBits({above, 20, 30, 5, 5, 9}));
}

TEST(NearestNeighbour, NanIsPresentAndItsDistanceNeverWins)
{
    NeighbourCase c = primaryNumbers({-1, 0, 0, -1}, 2, {M, 20, 30, nan, /**/ 5, nan, 9, 5});
    const NeighbourTable statistics = {4, {1, 2, 3, 4, 1, 2, 3, 4}, {}, {}, {}};
    EXPECT_THAT(filledByTables(c, statistics).x, SameBits({30, 20, 30, nan, 5, nan, 9, 5}));
    c.mask[2] = -1;
    EXPECT_THAT(filledByTables(c, statistics).x, SameBits({2.5, 20, 30, nan, 5, nan, 9, 5}));
}

// ---- shapes ---------------------------------------------------------------------------------------------------------

TEST(NearestNeighbour, WithoutRowsNothingHappens)
{
    NeighbourCase c = primaryNumbers({}, 2, {});
    addY(c, 1, {});
    addS(c, 1, {});
    const NeighbourTable result = filledNumbers(c);
    EXPECT_TRUE(result.x.empty() && result.y.empty() && result.s.empty());

    auto X = byColumns({{M, 1}});
    auto Y = byColumns({{M, 2}});
    auto S = stringsByColumns({{L"", L"a"}});
    Guarded<short> mask = {-1, -1};
    EstimateRowsWithMissingNN(X, 2, X, 0, 1, mask, Y, Y, 1, S, S, 1, column({1, 1}));
    EXPECT_THAT(cellsOf(X), SameBits({M, 1}));
    EXPECT_THAT(cellsOf(Y), SameBits({M, 2}));
    EXPECT_THAT(cellsOf(S), ElementsAre(L"", L"a"));
}

TEST(NearestNeighbour, WithoutPrimaryColumnsOnlyTheOtherBlocksAreTreated)
{
    NeighbourCase c = neighbourCase({0, 0, -1});
    addY(c, 2, {10, 20, M, /**/ 9, 5, 6});
    addS(c, 1, {L"a", L"b", L""});
    const NeighbourTable result = filledNumbers(c);
    EXPECT_THAT(result.y, SameBits({10, 20, 20, 9, 5, 6}));
    EXPECT_THAT(result.s, ElementsAre(L"a", L"b", L"b"));
    NeighbourCase texts = c;
    expectSame(filledTexts(texts), result, "string primary block");

    auto X = byColumns({{M, M, M}}); // present, but not counted in
    auto Y = table(3, 2, c.target.y);
    Smatrix* noStrings = nullptr;
    Guarded<short> mask(c.mask);
    EstimateRowsWithMissingNN(X, 3, X, 3, 0, mask, Y, Y, 2, nullptr, noStrings, 0, column({1, 1, 1}));
    EXPECT_THAT(cellsOf(X), SameBits({M, M, M}));
    EXPECT_THAT(cellsOf(Y), SameBits({10, 20, 20, 9, 5, 6}));
}

TEST(NearestNeighbour, NullBlocksTakeNoPart)
{
    const Numbers cells = {M, 20, 30, /**/ 5, 5, 9};
    const Numbers expected = {20, 20, 30, /**/ 5, 5, 9};
    Guarded<short> mask = {-1, 0, 0};
    matrix* noNumbers = nullptr;
    Smatrix* noStrings = nullptr;
    // A count that goes with no table is none.
    for (const int count : {0, 2, -1}) {
        auto X = table(3, 2, cells);
        EstimateRowsWithMissingNN(X, 3, X, 3, 2, mask, nullptr, noNumbers, count, nullptr, noStrings, count,
                                  column({1, 1, 1}));
        EXPECT_THAT(cellsOf(X), SameBits(expected));
        TableColumns columns(3, 2, cells);
        EstimateRowsWithMissingNNSPV(columns, 3, 2, mask, nullptr, noNumbers, count, nullptr, noStrings, count,
                                     column({1, 1, 1}));
        EXPECT_THAT(columns.cells(), SameBits(expected));
        TableColumns columns2(3, 2, cells);
        EstimateRowsWithMissingNNSPV2(columns2, 3, 2, mask, nullptr, nullptr, count, nullptr, noStrings, count,
                                      column({1, 1, 1}));
        EXPECT_THAT(columns2.cells(), SameBits(expected));
    }
    EXPECT_EQ(noNumbers, nullptr);
    EXPECT_EQ(noStrings, nullptr);
}

TEST(NearestNeighbour, FlatFormsDoNotLookAtArraysWithoutColumns)
{
    Guarded<short> mask = {-1, 0, 0};
    Guarded<double> weights = {1, 1, 1};
    Guarded<double> x = {M, 20, 30, /**/ 5, 5, 9};
    VB_EstimateRowsWithMissingNN(x, 3, 2, mask, nullptr, 0, nullptr, 0, weights);
    EXPECT_THAT(x.values(), SameBits({20, 20, 30, 5, 5, 9}));

    ArrayOfColumns X = numberColumns(3, 2, {M, 20, 30, /**/ 5, 5, 9});
    VB_EstimateRowsWithMissingNNSPV(X, 3, 2, mask, nullptr, 0, nullptr, 0, weights);
    EXPECT_THAT(X.numbers(), SameBits({20, 20, 30, 5, 5, 9}));
    ArrayOfColumns X2 = numberColumns(3, 2, {M, 20, 30, /**/ 5, 5, 9});
    VB_EstimateRowsWithMissingNNSPV2(X2, 3, 2, mask, nullptr, 0, nullptr, 0, weights);
    EXPECT_THAT(X2.numbers(), SameBits({20, 20, 30, 5, 5, 9}));
    // What is passed for an array of no columns is not looked at.
    auto* const nowhere = reinterpret_cast<SAFEARRAY**>(alignof(SAFEARRAY*));
    VB_EstimateRowsWithMissingNNSPV2(X2, 3, 2, mask, nowhere, 0, nullptr, 0, weights);
    EXPECT_THAT(X2.numbers(), SameBits({20, 20, 30, 5, 5, 9}));

    BstrArray p({L"", L"b", L"c", /**/ L"k", L"z", L"y", /**/ L"m", L"m", L"n"});
    VB_EstimateRowsWithMissingNNStr(p, 3, 3, mask, nullptr, 0, nullptr, 0, weights);
    EXPECT_EQ(p.text(0), L"b");

    // Arrays that are there are not written, either.
    Guarded<double> y = {M, 1, 2};
    BstrArray s({L"", L"a", L"b"});
    VB_EstimateRowsWithMissingNN(x, 3, 2, mask, y, 0, s, 0, weights);
    EXPECT_TRUE(y.untouched());
    EXPECT_EQ(s.countNew(), 0u);
}

TEST(NearestNeighbour, DimensionsNameACornerOfTheTables)
{
    auto X = byColumns({{M, 20, 30, 7}, {5, 6, 9, M}, {M, M, M, M}});
    auto Y = byColumns({{1, 2, 3, 4}, {M, M, M, M}});
    auto S = stringsByColumns({{L"", L"b", L"c", L""}, {L"", L"", L"", L""}});
    Guarded<short> mask = {-1, 0, 0};
    EstimateRowsWithMissingNN(X, 3, X, 3, 2, mask, Y, Y, 1, S, S, 1, column({1, 1, 1}));
    EXPECT_THAT(cellsOf(X), SameBits({20, 20, 30, 7, 5, 6, 9, M, M, M, M, M}));
    EXPECT_THAT(cellsOf(Y), SameBits({1, 2, 3, 4, M, M, M, M}));
    EXPECT_THAT(cellsOf(S), ElementsAre(L"b", L"b", L"c", L"", L"", L"", L"", L""));
}

TEST(NearestNeighbour, CellsBeyondATableReadMinusOne)
{
    // Column 3 reads -1.0 throughout and has no variance.
    auto X = byColumns({{M, 20, 30}, {5, 9, 6}});
    Guarded<short> mask = {-1, 0, 0};
    matrix* noNumbers = nullptr;
    Smatrix* noStrings = nullptr;
    EstimateRowsWithMissingNN(X, 3, X, 3, 3, mask, nullptr, noNumbers, 0, nullptr, noStrings, 0, column({1, 1, 1}));
    EXPECT_THAT(cellsOf(X), SameBits({30, 20, 30, 5, 9, 6}));
}

TEST(NearestNeighbour, CellsBeyondTheLengthOfAColumnArePresentAsMinusOne)
{
    Guarded<short> mask = {0, 0, 0, -1};
    Smatrix* noStrings = nullptr;
    const std::vector<Numbers> cells = {{1, 2, 3, M}, {5, -1}}; // column 2 reads -1.0 in rows 3 and 4
    {
        TableColumns X(cells);
        matrix* noNumbers = nullptr;
        EstimateRowsWithMissingNNSPV(X, 4, 2, mask, nullptr, noNumbers, 0, nullptr, noStrings, 0, column({1, 1, 1, 1}));
        EXPECT_THAT(X.column(0), SameBits({1, 2, 3, 2}));
        EXPECT_THAT(X.column(1), SameBits({5, -1}));
    }
    TableColumns Y({{1, 2, 3, M}, {5, 0}});
    EstimateRowsWithMissingNNSPV2(nullptr, 4, 0, mask, Y, Y, 2, nullptr, noStrings, 0, column({1, 1, 1, 1}));
    EXPECT_THAT(Y.column(0), SameBits({1, 2, 3, 3}));
    EXPECT_THAT(Y.column(1), SameBits({5, 0}));
}

} // namespace
} // namespace vecmat::test
