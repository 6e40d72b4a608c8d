#include "elementary/predicates.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/special_values.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace vecmat::test;

// ---- positive -------------------------------------------------------------------------------------------------------

short vectorIsPositive(const std::vector<double>& cells, short strict)
{
    const int n = static_cast<int>(cells.size());
    auto x = column(cells);
    Guarded<double> flat(cells);
    const short answer = V_IsPositive(x, n, strict);
    EXPECT_EQ(VB_V_IsPositive(flat, n, strict), answer);
    EXPECT_TRUE(flat.untouched());
    return answer;
}

TEST(VIsPositive, ZeroFailsWhereStrictIsNotZero)
{
    EXPECT_EQ(vectorIsPositive({1, 0.0, 2}, 0), -1);
    EXPECT_EQ(vectorIsPositive({1, -0.0, 2}, 0), -1);
    EXPECT_EQ(vectorIsPositive({1, -1e-300}, 0), 0);
    for (const short strict : {short{-1}, short{1}, short{7}}) {
        EXPECT_EQ(vectorIsPositive({1, 0.0, 2}, strict), 0) << strict;
        EXPECT_EQ(vectorIsPositive({1, -0.0, 2}, strict), 0) << strict;
        EXPECT_EQ(vectorIsPositive({1, 1e-300}, strict), -1) << strict;
    }
}

TEST(VIsPositive, MissingCellsAreLeftOut)
{
    EXPECT_EQ(vectorIsPositive({1, M}, 0), -1);
    EXPECT_EQ(vectorIsPositive({1, M}, -1), -1);
    EXPECT_EQ(vectorIsPositive({M, M}, -1), -1);
    EXPECT_EQ(vectorIsPositive({1, -infinity}, 0), 0) << "missing is the equality test";
    EXPECT_EQ(vectorIsPositive({notANumber}, -1), -1) << "a NaN is not at or below 0.0";
}

TEST(VIsPositive, NoCellsAndCellsBeyondTheTable)
{
    EXPECT_EQ(vectorIsPositive({}, -1), -1);
    auto x = column({1, 2});
    EXPECT_EQ(V_IsPositive(x, -1, -1), -1);
    EXPECT_EQ(V_IsPositive(x, 2, -1), -1);
    EXPECT_EQ(V_IsPositive(x, 3, -1), 0);
    EXPECT_EQ(V_IsPositive(x, 3, 0), 0);
}

short tableIsPositive(int rows, int cols, const std::vector<double>& cells, std::vector<short> mask, short strict)
{
    auto a = table(rows, cols, cells);
    Guarded<double> flat(cells);
    Guarded<short> flatMask(mask);
    const short answer = M_IsPositive(a, rows, cols, mask.data(), strict);
    EXPECT_EQ(VB_M_IsPositive(flat, rows, cols, flatMask, strict), answer);
    EXPECT_TRUE(flat.untouched());
    EXPECT_TRUE(flatMask.untouched());
    return answer;
}

TEST(MIsPositive, ZeroFailsForExactlyMinusOne)
{
    EXPECT_EQ(tableIsPositive(1, 2, {1, 0.0}, {0}, -1), 0);
    EXPECT_EQ(tableIsPositive(1, 2, {1, 2}, {0}, -1), -1);
    for (const short strict : {short{0}, short{1}, short{-2}}) {
        EXPECT_EQ(tableIsPositive(1, 2, {1, 0.0}, {0}, strict), -1) << "unlike in the vector form: " << strict;
        EXPECT_EQ(tableIsPositive(1, 2, {1, -1}, {0}, strict), 0) << strict;
    }
}

TEST(MIsPositive, MaskedRowsPassWhateverTheyHold)
{
    EXPECT_EQ(tableIsPositive(2, 2, {1, -1, 1, M}, {0, -1}, -1), -1);
    EXPECT_EQ(tableIsPositive(2, 2, {1, -1, 1, M}, {0, 1}, -1), -1) << "any entry but 0";
    EXPECT_EQ(tableIsPositive(2, 2, {1, -1, 1, 1}, {-1, 0}, -1), 0);
    EXPECT_EQ(tableIsPositive(2, 2, {-1, 1, 1, 1}, {0, -1}, 0), 0);
}

TEST(MIsPositive, MissingCellsFail)
{
    EXPECT_EQ(tableIsPositive(1, 2, {1, M}, {0}, 0), 0);
    EXPECT_EQ(tableIsPositive(1, 2, {1, M}, {0}, -1), 0);
    EXPECT_EQ(tableIsPositive(1, 1, {notANumber}, {0}, -1), -1);
}

TEST(MIsPositive, CellsBeyondTheTableFail)
{
    auto a = table(2, 2, {1, 1, 1, 1});
    short mask[] = {0, 0};
    EXPECT_EQ(M_IsPositive(a, 2, 3, mask, 0), 0);
    short masked[] = {-1, -1};
    EXPECT_EQ(M_IsPositive(a, 2, 3, masked, 0), -1);
    EXPECT_EQ(M_IsPositive(a, 2, 3, nullptr, 0), 0) << "without a mask no row is left out";
    EXPECT_EQ(M_IsPositive(a, 0, 2, mask, 0), -1);
    EXPECT_EQ(M_IsPositive(a, 2, 0, mask, 0), -1);
}

TEST(MIsPositive, SmallerDimensionsKeepTheStride)
{
    auto a = byRows({{1, 1, -1}, {1, 1, -1}, {-1, -1, -1}});
    short mask[] = {0, 0, 0};
    EXPECT_EQ(M_IsPositive(a, 2, 2, mask, -1), -1);
    EXPECT_EQ(M_IsPositive(a, 2, 3, mask, -1), 0);
    EXPECT_EQ(M_IsPositive(a, 3, 2, mask, -1), 0);
}

// ---- intervals ------------------------------------------------------------------------------------------------------

/// The answer of a table form, which the flat form must give too.
template <class Form, class FlatForm>
short answerOf(Form form, FlatForm flatForm, int rows, int cols, const std::vector<double>& cells)
{
    auto a = table(rows, cols, cells);
    Guarded<double> flat(cells);
    const short answer = form(a, rows, cols);
    EXPECT_EQ(flatForm(flat, rows, cols), answer);
    EXPECT_TRUE(flat.untouched());
    return answer;
}

short tableIsIn01(int rows, int cols, const std::vector<double>& cells)
{
    return answerOf(M_IsIn01, VB_M_IsIn01, rows, cols, cells);
}

TEST(MIsIn01, EndsIncluded)
{
    EXPECT_EQ(tableIsIn01(2, 2, {0, 1, 0.5, -0.0}), -1);
    EXPECT_EQ(tableIsIn01(2, 2, {0, 1, 0.5, 0x1.0000000000001p+0}), 0);
    EXPECT_EQ(tableIsIn01(2, 2, {0, 1, -5e-324, 0.5}), 0);
    EXPECT_EQ(tableIsIn01(1, 1, {M}), 0);
    EXPECT_EQ(tableIsIn01(1, 1, {notANumber}), 0);
    EXPECT_EQ(tableIsIn01(0, 2, {}), -1);
    auto a = table(1, 1, {0.5});
    EXPECT_EQ(M_IsIn01(a, 1, 2), 0);
    EXPECT_EQ(M_IsIn01(a, 2, 1), 0);
    auto wide = byRows({{0.5, 7}, {7, 7}});
    EXPECT_EQ(M_IsIn01(wide, 1, 1), -1);
}

short tableIsLong(int rows, int cols, const std::vector<double>& cells)
{
    return answerOf(M_IsLong, VB_M_IsLong, rows, cols, cells);
}

TEST(MIsLong, AsksEveryCell)
{
    EXPECT_EQ(tableIsLong(2, 2, {1, -3, 0, 1e12}), -1);
    EXPECT_EQ(tableIsLong(2, 2, {1, -3, 0, 1.5}), 0);
    EXPECT_EQ(tableIsLong(1, 2, {1, M}), -1) << "a missing cell is asked like any other";
    EXPECT_EQ(tableIsLong(1, 1, {infinity}), 0);
    EXPECT_EQ(tableIsLong(0, 3, {}), -1);
    auto a = table(1, 1, {0.5});
    EXPECT_EQ(M_IsLong(a, -1, 1), -1);
    EXPECT_EQ(M_IsLong(a, 1, 1), 0);
    auto whole = table(1, 1, {2});
    EXPECT_EQ(M_IsLong(whole, 3, 3), -1) << "-1.0 is whole";
}

short vectorIsIn(const std::vector<double>& cells, double lo, double hi, short open, short skipMissing)
{
    const int n = static_cast<int>(cells.size());
    auto x = column(cells);
    Guarded<double> flat(cells);
    Columns<matrix> one(n, 1, cells);
    Columns<matrix> each(1, n, cells);
    ArrayOfColumns array = numberColumns(n, 1, cells);
    const short answer = V_IsInInterval(x, n, lo, hi, open, skipMissing);
    EXPECT_EQ(VB_V_IsInInterval(flat, n, lo, hi, open, skipMissing), answer);
    EXPECT_EQ(M_IsInIntervalSPV(one, n, 1, lo, hi, open, skipMissing), answer);
    EXPECT_EQ(M_IsInIntervalSPV(each, 1, n, lo, hi, open, skipMissing), answer);
    EXPECT_EQ(VB_M_IsInIntervalSPV(array, n, 1, lo, hi, open, skipMissing), answer);
    EXPECT_TRUE(flat.untouched());
    EXPECT_TRUE(array.untouched());
    return answer;
}

TEST(IsInInterval, EndsCountUnlessOpenIsMinusOne)
{
    EXPECT_EQ(vectorIsIn({2, 3, 5}, 2, 5, -1, 0), 0);
    EXPECT_EQ(vectorIsIn({2.5, 3, 4.5}, 2, 5, -1, 0), -1);
    EXPECT_EQ(vectorIsIn({2, 3}, 2, 5, -1, 0), 0);
    EXPECT_EQ(vectorIsIn({3, 5}, 2, 5, -1, 0), 0);
    for (const short open : {short{0}, short{1}, short{-2}}) {
        EXPECT_EQ(vectorIsIn({2, 3, 5}, 2, 5, open, 0), -1) << open;
        EXPECT_EQ(vectorIsIn({2, 3, 5.5}, 2, 5, open, 0), 0) << open;
        EXPECT_EQ(vectorIsIn({1.5, 3, 5}, 2, 5, open, 0), 0) << open;
    }
}

TEST(IsInInterval, MissingCellsAreLeftOutForExactlyMinusOne)
{
    EXPECT_EQ(vectorIsIn({3, M}, 2, 5, 0, -1), -1);
    EXPECT_EQ(vectorIsIn({3, M}, 2, 5, -1, -1), -1);
    EXPECT_EQ(vectorIsIn({M, M}, 2, 5, 0, -1), -1);
    EXPECT_EQ(vectorIsIn({3, M}, 2, 5, 0, 0), 0);
    EXPECT_EQ(vectorIsIn({3, M}, 2, 5, 0, 1), 0);
    EXPECT_EQ(vectorIsIn({3, M}, M, 5, 0, 0), -1) << "a number like any other";
    EXPECT_EQ(vectorIsIn({3, -infinity}, 2, 5, 0, -1), 0) << "missing is the equality test";
    EXPECT_EQ(vectorIsIn({notANumber}, -infinity, infinity, 0, -1), 0);
}

TEST(IsInInterval, NoCellsAndCellsBeyondTheTable)
{
    EXPECT_EQ(vectorIsIn({}, 2, 5, 0, 0), -1);
    auto x = column({3});
    EXPECT_EQ(V_IsInInterval(x, -1, 2, 5, 0, 0), -1);
    EXPECT_EQ(V_IsInInterval(x, 2, 2, 5, 0, 0), 0);
    EXPECT_EQ(V_IsInInterval(x, 2, -1, 5, 0, 0), -1) << "-1.0 takes part";
    Columns<matrix> a(1, 2, {3, 3});
    EXPECT_EQ(M_IsInIntervalSPV(a, 2, 2, 2, 5, 0, 0), 0);
    EXPECT_EQ(M_IsInIntervalSPV(a, 2, 2, -1, 5, 0, 0), -1);
    EXPECT_EQ(M_IsInIntervalSPV(a, 0, 2, 7, 8, 0, 0), -1);
    EXPECT_EQ(M_IsInIntervalSPV(a, 2, 0, 7, 8, 0, 0), -1);
}

} // namespace
