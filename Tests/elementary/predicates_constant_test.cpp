#include "elementary/predicates.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/special_values.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

using namespace vecmat::test;

// ---- a vector -------------------------------------------------------------------------------------------------------

short tableForm(const std::vector<double>& cells, short mode)
{
    auto x = column(cells);
    const short answer = V_IsConstant(x, static_cast<int>(cells.size()), mode);
    EXPECT_THAT(cellsOf(x), SameBits(cells));
    return answer;
}

short flatForm(const std::vector<double>& cells, short mode)
{
    Guarded<double> x(cells);
    const short answer = VB_V_IsConstant(x, static_cast<int>(cells.size()), mode);
    EXPECT_TRUE(x.untouched());
    return answer;
}

/// The answer where the two forms agree; 99 where they don't.
short bothForms(const std::vector<double>& cells, short mode)
{
    const short answer = tableForm(cells, mode);
    return flatForm(cells, mode) == answer ? answer : short{99};
}

TEST(VIsConstant, MissingCellsAreLeftOutOrNot)
{
    EXPECT_EQ(bothForms({2, M, 2}, -1), -1);
    EXPECT_EQ(bothForms({2, M, 2}, 0), 0);
    EXPECT_EQ(bothForms({M, 2, 2}, -1), -1);
    EXPECT_EQ(bothForms({M, 2, 3}, -1), 0);
    EXPECT_EQ(bothForms({M, 2, M, 3}, -1), 0);
    EXPECT_EQ(bothForms({2, 2, 2}, 0), -1);
    EXPECT_EQ(bothForms({2, 2, 3}, 0), 0);
    EXPECT_EQ(bothForms({2, 2, 3}, -1), 0);
    EXPECT_EQ(bothForms({0.0, -0.0}, 0), -1);
}

TEST(VIsConstant, NothingPresentIsConstant)
{
    EXPECT_EQ(bothForms({M, M}, -1), -1);
    EXPECT_EQ(bothForms({M, M}, 0), -1);
    EXPECT_EQ(bothForms({M, 1}, 0), 0);
}

TEST(VIsConstant, OnlyMinusOneLeavesOut)
{
    for (const short mode : {short{1}, short{-2}, short{2}})
        EXPECT_EQ(bothForms({2, M, 2}, mode), 0) << mode;
}

TEST(VIsConstant, MissingIsTheEqualityTest)
{
    EXPECT_EQ(bothForms({2, -infinity, 2}, -1), 0);
    EXPECT_EQ(bothForms({-infinity, 2, 2}, -1), 0);
}

TEST(VIsConstant, NoCellsAndOneCell)
{
    for (const short mode : {short{0}, short{-1}}) {
        EXPECT_EQ(bothForms({}, mode), -1);
        EXPECT_EQ(bothForms({7}, mode), -1);
        EXPECT_EQ(bothForms({M}, mode), -1);
        auto x = column({1, 2});
        EXPECT_EQ(V_IsConstant(x, -3, mode), -1);
        EXPECT_EQ(V_IsConstant(x, 1, mode), -1);
        EXPECT_EQ(VB_V_IsConstant(nullptr, 0, mode), -1);
    }
}

TEST(VIsConstant, FormsDifferInANanAsTheFirstCell)
{
    EXPECT_EQ(tableForm({notANumber}, 0), 0) << "all cells are compared with the first, itself included";
    EXPECT_EQ(flatForm({notANumber}, 0), -1) << "compared from the second element on";
    EXPECT_EQ(bothForms({notANumber, notANumber}, 0), 0);
    EXPECT_EQ(bothForms({notANumber}, -1), -1);
    EXPECT_EQ(bothForms({notANumber, M}, -1), -1) << "the first cell is not compared with itself";
    EXPECT_EQ(bothForms({M, notANumber}, -1), 0) << "a later reference is";
}

TEST(VIsConstant, CellsBeyondTheTableAreMinusOne)
{
    auto minusOne = column({-1, -1});
    EXPECT_EQ(V_IsConstant(minusOne, 5, 0), -1);
    EXPECT_EQ(V_IsConstant(minusOne, 5, -1), -1);
    auto two = column({2, 2});
    EXPECT_EQ(V_IsConstant(two, 3, 0), 0);
    EXPECT_EQ(V_IsConstant(two, 3, -1), 0);
    auto missing = column({M, M});
    EXPECT_EQ(V_IsConstant(missing, 4, -1), -1) << "the search ends with -1.0";
    EXPECT_EQ(V_IsConstant(missing, 4, 0), 0);
}

TEST(VIsConstant, TablesAreWalkedInLinearOrder)
{
    auto x = byColumns({{3, 3}, {3, 4}});
    EXPECT_EQ(V_IsConstant(x, 3, 0), -1);
    EXPECT_EQ(V_IsConstant(x, 4, 0), 0);
}

TEST(VIsConstantLng, ModeHasNoEffect)
{
    for (const short mode : {short{0}, short{-1}, short{1}}) {
        EXPECT_EQ(VB_V_IsConstantLng(Guarded<int>{4, 4, 4}, 3, mode), -1);
        EXPECT_EQ(VB_V_IsConstantLng(Guarded<int>{4, 4, 5}, 3, mode), 0);
        EXPECT_EQ(VB_V_IsConstantLng(Guarded<int>{4, lowestInt}, 2, mode), 0);
        EXPECT_EQ(VB_V_IsConstantLng(Guarded<int>{4}, 1, mode), -1);
        EXPECT_EQ(VB_V_IsConstantLng(nullptr, 0, mode), -1);
        EXPECT_EQ(VB_V_IsConstantLng(nullptr, -1, mode), -1);
    }
}

TEST(VIsConstantBool, ElementsEqualTheFirst)
{
    for (const auto form : {V_IsConstantBool, VB_V_IsConstantBool}) {
        EXPECT_EQ(form(Guarded<short>{-1, -1}, 2), -1);
        EXPECT_EQ(form(Guarded<short>{0, 0, 0}, 3), -1);
        EXPECT_EQ(form(Guarded<short>{0, 0, -1}, 3), 0);
        EXPECT_EQ(form(Guarded<short>{-1, 1}, 2), 0) << "elements are compared, not their truth";
        EXPECT_EQ(form(Guarded<short>{1}, 1), -1);
        EXPECT_EQ(form(nullptr, 0), -1);
        EXPECT_EQ(form(nullptr, -2), -1);
    }
}

// ---- a table --------------------------------------------------------------------------------------------------------

TEST(MIsConstant, ComparesTheSquareBlock)
{
    auto a = byRows({{5, 5, 9}, {5, 5, 9}, {9, 9, 9}});
    EXPECT_EQ(M_IsConstant(a, 2, 0), -1);
    EXPECT_EQ(M_IsConstant(a, 3, 0), 0);
    EXPECT_EQ(M_IsConstant(a, 2, -1), -1);
    EXPECT_EQ(M_IsConstant(a, 3, -1), 0);
    EXPECT_EQ(M_IsConstant(a, 0, 0), -1);
    EXPECT_EQ(M_IsConstant(a, -1, -1), -1);
}

TEST(MIsConstant, MissingCellsAreLeftOutOrNot)
{
    auto a = byRows({{5, M}, {M, 5}});
    EXPECT_EQ(M_IsConstant(a, 2, -1), -1);
    EXPECT_EQ(M_IsConstant(a, 2, 0), 0);
    EXPECT_EQ(M_IsConstant(a, 2, 1), 0);
    auto all = filled(2, 2, M);
    EXPECT_EQ(M_IsConstant(all, 2, 0), -1);
}

TEST(MIsConstant, ReferenceIsAmongTheFirstCellsInLinearOrder)
{
    auto none = byColumns({{M, M}, {1, 2}});
    EXPECT_EQ(M_IsConstant(none, 2, -1), -1) << "nothing among the first two: the rest is not read";
    auto second = byColumns({{M, 1}, {1, 2}});
    EXPECT_EQ(M_IsConstant(second, 2, -1), 0);
    // Cells beyond the rows of a flat table: the third of the first three is the top of column 2.
    auto flat = byColumns({{M, M}, {4, 5}});
    EXPECT_EQ(M_IsConstant(flat, 3, -1), 0);
    EXPECT_EQ(M_IsConstant(flat, 2, -1), -1);
}

TEST(MIsConstant, CellsBeyondTheTableAreMinusOne)
{
    auto a = filled(2, 1, -1.0);
    EXPECT_EQ(M_IsConstant(a, 2, 0), -1);
    EXPECT_EQ(M_IsConstant(a, 2, -1), -1);
    auto b = filled(2, 1, 3.0);
    EXPECT_EQ(M_IsConstant(b, 2, 0), 0);
    EXPECT_EQ(M_IsConstant(b, 2, -1), 0);
}

TEST(MIsConstant, NanEqualsNothing)
{
    auto a = filled(1, 1, notANumber);
    EXPECT_EQ(M_IsConstant(a, 1, 0), 0);
    EXPECT_EQ(M_IsConstant(a, 1, -1), 0);
}

TEST(MEachColIsConstant, LastColumnIsTestedOverColumnsOnly)
{
    const std::vector<double> cells{1, 1, 2, 2, 3, 4};
    auto a = table(2, 3, cells);
    Columns<matrix> columns(2, 3, cells);
    EXPECT_EQ(M_EachColIsConstant(a, 2, 3), -1);
    EXPECT_EQ(M_EachColIsConstant(columns.get(), 2, 3), 0);
}

TEST(MEachColIsConstant, EarlierColumnsAreTestedByBoth)
{
    const std::vector<double> cells{1, 1, 2, 3, 4, 4};
    auto a = table(2, 3, cells);
    Columns<matrix> columns(2, 3, cells);
    EXPECT_EQ(M_EachColIsConstant(a, 2, 3), 0);
    EXPECT_EQ(M_EachColIsConstant(columns.get(), 2, 3), 0);
    EXPECT_EQ(M_EachColIsConstant(a, 2, 2), -1) << "of two columns the first is tested";
    EXPECT_EQ(M_EachColIsConstant(columns.get(), 2, 2), 0);
    EXPECT_EQ(M_EachColIsConstant(a, 1, 3), -1);
    EXPECT_EQ(M_EachColIsConstant(columns.get(), 1, 3), -1);
}

TEST(MEachColIsConstant, OneColumnIsFalseAndNoneIsTrue)
{
    auto a = table(2, 1, {1, 1});
    Columns<matrix> columns(2, 1, {1, 1});
    EXPECT_EQ(M_EachColIsConstant(a, 2, 1), 0);
    EXPECT_EQ(M_EachColIsConstant(columns.get(), 2, 1), 0);
    auto differing = table(2, 2, {1, 2, 3, 4});
    for (const int cols : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(M_EachColIsConstant(a, 2, cols), -1);
        EXPECT_EQ(M_EachColIsConstant(differing, 2, cols), -1);
        EXPECT_EQ(M_EachColIsConstant(columns.get(), 2, cols), -1);
    }
}

TEST(MEachColIsConstant, MissingCellsAndShortColumns)
{
    Columns<matrix> columns(2, 2, {M, M, M, 1});
    EXPECT_EQ(M_EachColIsConstant(columns.get(), 2, 2), 0);
    EXPECT_EQ(M_EachColIsConstant(columns.get(), 1, 2), -1);
    EXPECT_EQ(M_EachColIsConstant(columns.get(), 0, 2), -1);
    Columns<matrix> minusOne(2, 2, {-1, -1, -1, -1});
    EXPECT_EQ(M_EachColIsConstant(minusOne.get(), 3, 2), -1);
    Columns<matrix> two(2, 2, {2, 2, 2, 2});
    EXPECT_EQ(M_EachColIsConstant(two.get(), 3, 2), 0);
    Columns<matrix> nan(1, 2, {notANumber, 1});
    EXPECT_EQ(M_EachColIsConstant(nan.get(), 1, 2), 0);
}

// ---- the first constant column --------------------------------------------------------------------------------------

int flatColumn(int rows, int cols, const std::vector<double>& cells)
{
    Guarded<double> a(cells);
    const int answer = VB_M_IsColConstant(a, rows, cols);
    EXPECT_TRUE(a.untouched());
    return answer;
}

int arrayColumn(int rows, int cols, const std::vector<double>& cells)
{
    ArrayOfColumns a = numberColumns(rows, cols, cells);
    const int answer = VB_M_IsColConstantSPV(a, rows, cols);
    EXPECT_TRUE(a.untouched());
    return answer;
}

TEST(MIsColConstant, GivesTheNumberOfTheFirst)
{
    EXPECT_EQ(flatColumn(2, 2, {1, 2, 3, 3}), 2);
    EXPECT_EQ(flatColumn(2, 3, {1, 2, 3, 3, 4, 4}), 2);
    EXPECT_EQ(flatColumn(2, 2, {1, 2, 3, 4}), 0);
    EXPECT_EQ(arrayColumn(3, 2, {1, 2, 3, 4, 4, 4}), 2);
    EXPECT_EQ(arrayColumn(3, 2, {1, 2, 3, 4, 5, 6}), 0);
}

TEST(MIsColConstant, MissingCellsAreLeftOut)
{
    EXPECT_EQ(flatColumn(4, 1, {M, 5, M, 5}), 1);
    EXPECT_EQ(flatColumn(4, 1, {M, 5, M, 6}), 0);
    EXPECT_EQ(flatColumn(3, 1, {5, M, M}), 1);
    EXPECT_EQ(arrayColumn(4, 1, {M, 5, M, 5}), 1);
    EXPECT_EQ(arrayColumn(4, 1, {M, 5, 6, 5}), 0);
}

TEST(MIsColConstant, AColumnWithNothingPresentIsConstant)
{
    EXPECT_EQ(flatColumn(2, 1, {M, M}), 1);
    EXPECT_EQ(arrayColumn(2, 1, {M, M}), 1);
    EXPECT_EQ(flatColumn(1, 2, {7, M}), 2);
    EXPECT_EQ(arrayColumn(1, 2, {7, M}), 2);
}

TEST(MIsColConstant, TheLastRowAloneIsNotReported)
{
    EXPECT_EQ(flatColumn(2, 1, {M, 5}), 0);
    EXPECT_EQ(arrayColumn(2, 1, {M, 5}), 0);
    EXPECT_EQ(flatColumn(1, 1, {5}), 0);
    EXPECT_EQ(arrayColumn(1, 1, {5}), 0);
}

TEST(MIsColConstant, OverColumnsTheLastRowIsNotCompared)
{
    EXPECT_EQ(arrayColumn(3, 1, {1, 1, 2}), 1);
    EXPECT_EQ(flatColumn(3, 1, {1, 1, 2}), 0);
    EXPECT_EQ(arrayColumn(2, 1, {1, 2}), 1);
    EXPECT_EQ(flatColumn(2, 1, {1, 2}), 0);
    EXPECT_EQ(arrayColumn(3, 1, {M, 1, 2}), 1);
}

TEST(MIsColConstant, WithoutRowsTheFirstColumnIs)
{
    EXPECT_EQ(flatColumn(0, 2, {}), 1);
    EXPECT_EQ(arrayColumn(0, 2, {}), 1);
    EXPECT_EQ(flatColumn(2, 0, {}), 0);
    EXPECT_EQ(arrayColumn(2, 0, {}), 0);
    ArrayOfColumns a = numberColumns(1, 2, {5, 5});
    EXPECT_EQ(VB_M_IsColConstantSPV(a, lowestInt, 2), 1);
}

TEST(MIsColConstant, FormsAgreeWhereTheLastRowRepeats)
{
    RandomData data(25);
    SCOPED_TRACE(data);
    for (int round = 0; round < 200; ++round) {
        const int rows = data.integer(1, 4);
        const int cols = data.integer(1, 4);
        std::vector<double> cells;
        for (int j = 0; j < cols; ++j) {
            std::vector<double> one = data.withMissing(data.wholes(static_cast<std::size_t>(rows), 1, 2), 0.3);
            one.push_back(M);
            cells.insert(cells.end(), one.begin(), one.end());
        }
        EXPECT_EQ(flatColumn(rows + 1, cols, cells), arrayColumn(rows + 1, cols, cells));
    }
}

// ---- the diagonal ---------------------------------------------------------------------------------------------------

TEST(MIsDiagConstant, ComparesWithTheFirstCell)
{
    auto a = byRows({{3, 1, 1}, {2, 3, 1}, {2, 2, 4}});
    EXPECT_EQ(M_IsDiagConstant(a, 2), -1);
    EXPECT_EQ(M_IsDiagConstant(a, 3), 0);
    auto nan = byRows({{notANumber, 1}, {1, notANumber}});
    EXPECT_EQ(M_IsDiagConstant(nan, 1), -1);
    EXPECT_EQ(M_IsDiagConstant(nan, 0), -1);
    EXPECT_EQ(M_IsDiagConstant(nan, -1), -1);
    EXPECT_EQ(M_IsDiagConstant(nan, 2), 0);
    auto missing = byRows({{M, 1}, {1, M}});
    EXPECT_EQ(M_IsDiagConstant(missing, 2), -1);
    auto minusOne = byRows({{-1}});
    EXPECT_EQ(M_IsDiagConstant(minusOne, 4), -1);
    auto one = byRows({{1}});
    EXPECT_EQ(M_IsDiagConstant(one, 2), 0);
}

TEST(MIsDiagConstant, FlatForm)
{
    Guarded<double> a{3, 2, 1, 3};
    EXPECT_EQ(VB_M_IsDiagConstant(a, 2), -1);
    Guarded<double> b{3, 2, 1, M};
    EXPECT_EQ(VB_M_IsDiagConstant(b, 2), 0);
    EXPECT_TRUE(b.untouched());
}

} // namespace
