#include "missing/replacement.h"

#include "missing/special_numbers.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/strings.h"
#include "support/tables.h"

namespace vecmat::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

// ---- by a value -----------------------------------------------------------------------------------------------------

TEST(ReplaceMissingByVal, ReplacesByTheOrderTest)
{
    auto a = byRows({{M, 1, notANumber}, {-inf, belowMissing, inf}});
    M_ReplaceMissingByVal(a, 2, 3, 9.5);
    EXPECT_THAT(cellsOf(a), SameBits({9.5, 9.5, 1.0, 9.5, notANumber, inf}));
}

TEST(ReplaceMissingByVal, AllStoragesAgree)
{
    RandomData data(431);
    SCOPED_TRACE(data);
    const auto cells = data.withSpecials(data.normals(30), 0.6);
    std::vector<double> expected = cells;
    for (double& x : expected)
        if (M >= x)
            x = -0.25;
    ASSERT_NE(expected, cells);

    auto ofTable = table(6, 5, cells);
    M_ReplaceMissingByVal(ofTable, 6, 5, -0.25);
    EXPECT_THAT(cellsOf(ofTable), SameBits(expected));
    TableColumns ofColumns(6, 5, cells);
    M_ReplaceMissingByValSPV(ofColumns, 6, 5, -0.25);
    EXPECT_THAT(ofColumns.cells(), SameBits(expected));
    Guarded<double> flat(cells);
    VB_M_ReplaceMissingByVal(flat, 6, 5, -0.25);
    EXPECT_THAT(flat.values(), SameBits(expected));
    ArrayOfColumns arrays = numberColumns(6, 5, cells);
    VB_M_ReplaceMissingByValSPV(arrays, 6, 5, -0.25);
    EXPECT_THAT(arrays.numbers(), SameBits(expected));
}

TEST(ReplaceMissingByVal, WorksOnTheCornerThatIsNamed)
{
    auto a = byRows({{M, M, M}, {M, M, M}, {M, M, M}});
    M_ReplaceMissingByVal(a, 2, 2, 1.0);
    EXPECT_THAT(cellsOf(a), SameBits({1.0, 1.0, M, 1.0, 1.0, M, M, M, M}));
    TableColumns columns({{M, M}, {M, M}});
    M_ReplaceMissingByValSPV(columns, 1, 2, 1.0);
    EXPECT_THAT(columns.cells(), SameBits({1.0, M, 1.0, M}));
}

TEST(ReplaceMissingByVal, BlockBeyondTheTable)
{
    auto a = byColumns({{1, 2}, {M, M}});
    M_ReplaceMissingByVal(a, 3, 1, 7.0); // the third row of the first column is cell (1, 2)
    EXPECT_THAT(cellsOf(a), SameBits({1.0, 2.0, 7.0, M}));
    M_ReplaceMissingByVal(a, 5, 9, 8.0);
    EXPECT_THAT(cellsOf(a), SameBits({1.0, 2.0, 7.0, 8.0}));
    TableColumns columns({{M}, {M, M}});
    M_ReplaceMissingByValSPV(columns, 3, 2, 7.0);
    EXPECT_THAT(columns.cells(), SameBits({7.0, 7.0, 7.0}));
}

TEST(ReplaceMissingByVal, NothingToVisit)
{
    auto a = column({M});
    M_ReplaceMissingByVal(a, 0, 1, 1.0);
    M_ReplaceMissingByVal(a, 1, 0, 1.0);
    M_ReplaceMissingByVal(a, -1, -1, 1.0);
    EXPECT_THAT(cellsOf(a), SameBits({M}));
    matrix* none[] = {nullptr};
    M_ReplaceMissingByValSPV(none, 0, 1, 1.0);
    M_ReplaceMissingByValSPV_T(none, 1, 0, 1.0);
}

TEST(ReplaceMissingByValSPVT, CellsAboveAndBelowTheDiagonalAreOne)
{
    const std::vector<std::vector<double>> cells = {{M, 1, -inf}, {belowMissing, notANumber}, {M}};
    TableColumns a(cells);
    M_ReplaceMissingByValSPV_T(a, 3, 3, 5.0);
    EXPECT_THAT(a.cells(), SameBits({5.0, 1.0, 5.0, 5.0, notANumber, 5.0}));
    // A block of one row reaches the first column through its cells above the diagonal, and so does one of one column.
    TableColumns oneRow(cells);
    M_ReplaceMissingByValSPV_T(oneRow, 1, 3, 5.0);
    EXPECT_THAT(oneRow.cells(), SameBits({5.0, 1.0, 5.0, belowMissing, notANumber, M}));
    TableColumns oneColumn(cells);
    M_ReplaceMissingByValSPV_T(oneColumn, 3, 1, 5.0);
    EXPECT_THAT(oneColumn.cells(), SameBits({5.0, 1.0, 5.0, belowMissing, notANumber, M}));
}

TEST(ReplaceMissingByValSPVT, BlockBeyondTheColumns)
{
    TableColumns a({{M, M}, {M}});
    M_ReplaceMissingByValSPV_T(a, 4, 2, 5.0);
    EXPECT_THAT(a.cells(), SameBits({5.0, 5.0, 5.0}));
}

// ---- by a string ----------------------------------------------------------------------------------------------------

TEST(ReplaceMissingByStr, ReplacesEmptyStrings)
{
    auto a = stringsByRows({{L"", L"x"}, {L" ", L""}});
    M_ReplaceMissingByStr(a, 2, 2, L"none");
    EXPECT_THAT(cellsOf(a), ElementsAre(L"none", L" ", L"x", L"none"));
    auto corner = stringsByRows({{L"", L""}, {L"", L""}});
    M_ReplaceMissingByStr(corner, 1, 2, L"none");
    EXPECT_THAT(cellsOf(corner), ElementsAre(L"none", L"", L"none", L""));
    M_ReplaceMissingByStr(corner, 7, 7, L"z");
    EXPECT_THAT(cellsOf(corner), ElementsAre(L"none", L"z", L"none", L"z"));
    M_ReplaceMissingByStr(corner, 0, 2, L"z");
    EXPECT_THAT(cellsOf(corner), ElementsAre(L"none", L"z", L"none", L"z"));
}

TEST(ReplaceMissingByStr, FlatFormMakesEveryStringAnew)
{
    BstrArray a({L"", L"x", L"y", L""});
    a.setNull(3);
    VB_M_ReplaceMissingByStr(a, 2, 2, L"\x20ac n/a"); // characters of 32 bits
    EXPECT_EQ(a.countNew(), 4u);
    EXPECT_THAT(a.takeTexts(), ElementsAre(L"\x20ac n/a", L"x", L"y", L"\x20ac n/a"));
}

// ---- by the missing value -------------------------------------------------------------------------------------------

TEST(ReplaceByMissing, CellOrWholeRow)
{
    const auto mask = intsByRows({{1, 0}, {0, 2}, {-1, 0}, {0, 1}});
    auto byCell = byRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12}});
    M_ReplaceByMissing(byCell, 4, 3, mask, 2, 0);
    EXPECT_THAT(cellsOf(byCell), SameBits({M, 4.0, 7.0, 10.0, 2.0, 5.0, 8.0, M, 3.0, 6.0, 9.0, 12.0}));
    auto byRow = byRows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12}});
    M_ReplaceByMissing(byRow, 4, 3, mask, 2, -1);
    EXPECT_THAT(cellsOf(byRow), SameBits({M, 4.0, 7.0, M, M, 5.0, 8.0, M, M, 6.0, 9.0, M}));
}

TEST(ReplaceByMissing, WholeRowsOnlyForExactlyMinusOne)
{
    for (const short option : {short(1), short(2), short(-2)}) {
        auto a = byRows({{1, 2}});
        M_ReplaceByMissing(a, 1, 2, intColumn({1}), 1, option);
        EXPECT_THAT(cellsOf(a), SameBits({M, 2.0})) << option;
    }
}

TEST(ReplaceByMissing, WholeRowEndsAtTheColumnsThatAreNamed)
{
    auto a = byRows({{1, 2, 3}, {4, 5, 6}});
    M_ReplaceByMissing(a, 2, 2, intColumn({0, 1}), 1, -1);
    EXPECT_THAT(cellsOf(a), SameBits({1.0, M, 2.0, M, 3.0, 6.0}));
}

TEST(ReplaceByMissing, MaskMayBeWiderOrLongerThanTheTable)
{
    auto a = byRows({{1, 2}, {3, 4}});
    M_ReplaceByMissing(a, 2, 2, intsByRows({{0, 0, 1}, {0, 1, 1}}), 3, 0);
    EXPECT_THAT(cellsOf(a), SameBits({1.0, 3.0, 2.0, M}));
    // A mask cell beyond its table reads as -1, which is not 1.
    auto b = byRows({{1, 2}, {3, 4}});
    M_ReplaceByMissing(b, 2, 2, intColumn({1}), 2, 0);
    EXPECT_THAT(cellsOf(b), SameBits({M, 3.0, 2.0, 4.0}));
    M_ReplaceByMissing(b, 0, 2, intColumn({1}), 1, -1);
    M_ReplaceByMissing(b, 2, 2, intColumn({1}), 0, -1);
    EXPECT_THAT(cellsOf(b), SameBits({M, 3.0, 2.0, 4.0}));
}

TEST(ReplaceByMissing, FlatForm)
{
    Guarded<double> a = {1, 2, 3, 4, 5, 6}; // 2 by 3
    Guarded<int> mask = {0, 1, 1, 0};
    Cpp_M_ReplaceByMissing(a, 2, 3, mask, 2, 0);
    EXPECT_THAT(a.values(), SameBits({1.0, M, M, 4.0, 5.0, 6.0}));
    Cpp_M_ReplaceByMissing(a, 2, 3, mask, 1, -1);
    EXPECT_THAT(a.values(), SameBits({1.0, M, M, M, 5.0, M}));
    EXPECT_TRUE(mask.untouched());
}

// ---- weights --------------------------------------------------------------------------------------------------------

TEST(SetWeightsToZero, OneWeightForARow)
{
    auto weights = column({0.5, 1.5, 2.5, 3.5});
    M_SetWeightsToZeroForMissing(byRows({{1, M}, {-inf, belowMissing}, {notANumber, 1}, {M, M}}), 4, 2, weights, 1);
    EXPECT_THAT(cellsOf(weights), SameBits({0.0, 1.5, 2.5, 0.0}));
}

TEST(SetWeightsToZero, OneWeightForACell)
{
    auto weights = byRows({{1, 2}, {3, 4}, {5, 6}});
    M_SetWeightsToZeroForMissing(byRows({{1, M}, {-inf, 1}, {M, notANumber}}), 3, 2, weights, 2);
    EXPECT_THAT(cellsOf(weights), SameBits({1.0, 3.0, 0.0, 0.0, 4.0, 6.0}));
}

TEST(SetWeightsToZero, OneColumnOfDataWithSeveralOfWeights)
{
    auto weights = byRows({{1, 2}, {3, 4}});
    M_SetWeightsToZeroForMissing(column({1, M}), 2, 1, weights, 2);
    EXPECT_THAT(cellsOf(weights), SameBits({1.0, 0.0, 2.0, 4.0}));
    // More columns of data than of weights: columns without a weight are dropped.
    M_SetWeightsToZeroForMissing(byRows({{M, 1, M}, {1, M, M}}), 2, 3, weights, 2);
    EXPECT_THAT(cellsOf(weights), SameBits({0.0, 0.0, 2.0, 0.0}));
}

TEST(SetWeightsToZero, TableIsKeptAsItIs)
{
    auto weights = byRows({{1, 2}, {3, 4}, {5, 6}});
    const matrix* const before = weights.get();
    M_SetWeightsToZeroForMissing(byRows({{1}, {M}}), 2, 1, weights, 1);
    EXPECT_EQ(weights.get(), before);
    EXPECT_THAT(cellsOf(weights), SameBits({1.0, 0.0, 5.0, 2.0, 4.0, 6.0}));
    auto tooSmall = column({1});
    M_SetWeightsToZeroForMissing(column({1, M}), 2, 1, tooSmall, 1);
    EXPECT_THAT(cellsOf(tooSmall), SameBits({1.0}));
    M_SetWeightsToZeroForMissing(column({M}), 0, 1, tooSmall, 1);
    M_SetWeightsToZeroForMissing(column({M}), 1, 0, tooSmall, 1);
    EXPECT_THAT(cellsOf(tooSmall), SameBits({1.0}));
}

TEST(SetWeightsToZero, FlatForm)
{
    Guarded<double> data = {1, M, 3, M, M, 6}; // 3 by 2
    Guarded<double> byRow = {7, 8, 9};
    VB_M_SetWeightsToZeroForMissing(data, 3, 2, byRow, 1);
    EXPECT_THAT(byRow.values(), SameBits({0.0, 0.0, 9.0}));
    Guarded<double> byCell = {1, 2, 3, 4, 5, 6};
    VB_M_SetWeightsToZeroForMissing(data, 3, 2, byCell, 2);
    EXPECT_THAT(byCell.values(), SameBits({1.0, 0.0, 3.0, 0.0, 0.0, 6.0}));
    Guarded<double> none(std::vector<double>{});
    VB_M_SetWeightsToZeroForMissing(data, 3, 2, none, 0);
    EXPECT_TRUE(data.untouched());
}

} // namespace
} // namespace vecmat::test
