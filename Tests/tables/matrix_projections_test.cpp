#include "matrix.h"
#include "support/bits.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace {

using namespace vecmat::test;

// ---- projection steps -----------------------------------------------------------------------------------------------

TEST(GaussProd, RowsOnAColumn)
{
    auto t = table(2, 3, {1, 2, 3, M, 5, 6});
    auto x = table(3, 2, {0, 0, 0, 1, 2, 4});
    auto out = table(2, 2, {9, 9, 9, 9});
    t->GaussProd(x, 1, out);
    EXPECT_THAT(cellsOf(out), SameBits({9, 9, 27.0 / 21.0, 26.0 / 17.0})) << "the divisor leaves the same cell out";
}

TEST(GaussProd, ZeroDivisorIsOne)
{
    auto t = table(2, 1, {3, M});
    auto x = table(1, 1, {0});
    auto out = table(2, 1, {9, 9});
    t->GaussProd(x, 0, out);
    EXPECT_THAT(cellsOf(out), SameBits({0, 0}));
}

TEST(GaussProd, MissingCellOfTheFactorIsMultipliedButNotSquared)
{
    auto t = table(1, 2, {1e-300, 1});
    auto x = table(2, 1, {M, 2});
    auto out = table(1, 1, {9});
    t->GaussProd(x, 0, out);
    EXPECT_THAT(out->X[0], SameBits((1e-300 * M + 2.0) / 4.0));
}

TEST(GaussProd, TargetsAreTheRowsOfTheResult)
{
    auto t = table(3, 1, {1, 2, 3});
    auto x = table(1, 1, {2});
    auto out = table(2, 1, {9, 9});
    t->GaussProd(x, 0, out);
    EXPECT_THAT(cellsOf(out), SameBits({0.5, 1}));
    auto longer = table(4, 1, {9, 9, 9, 9});
    t->GaussProd(x, 0, longer);
    EXPECT_THAT(cellsOf(longer), SameBits({0.5, 1, 1.5, -0.5})) << "a row out of range reads as -1.0";
}

TEST(TransGaussProd, ColumnsOnAColumn)
{
    auto t = table(3, 2, {1, 2, 3, M, 5, 6});
    auto x = table(3, 1, {1, 2, 4});
    auto out = table(2, 1, {9, 9});
    t->transGaussProd(x, 0, out);
    EXPECT_THAT(cellsOf(out), SameBits({17.0 / 21.0, 34.0 / 20.0}));
}

TEST(TransGaussProd, MissingCellOfTheFactorIsMultipliedButNotSquared)
{
    auto t = table(2, 1, {1e-300, 1});
    auto x = table(2, 1, {M, 2});
    auto out = table(1, 1, {9});
    t->transGaussProd(x, 0, out);
    EXPECT_THAT(out->X[0], SameBits((1e-300 * M + 2.0) / 4.0));
}

TEST(GaussProdWeighted, OneWeightForTheTargetRow)
{
    auto t = table(4, 2, {1, 1, 1, 1, 2, 2, 2, M});
    double w[] = {3, 0, -1, 5};
    t->weighting(w);
    auto x = table(2, 1, {1, 2});
    double other[] = {1000, 1000};
    x->weighting(other);
    auto out = table(4, 1, {9, 9, 9, 9});
    t->GaussProdWeighted(x, 0, out);
    EXPECT_THAT(cellsOf(out), SameBits({15.0 / 5.0, 0, 0, 5.0 / 1.0})) << "the divisor has no weights";
}

TEST(GaussProdWeighted, WithoutWeightsIsThePlainStep)
{
    auto t = table(2, 3, {1, 2, 3, M, 5, 6});
    auto x = table(3, 1, {1, 2, 4});
    auto plain = table(2, 1, {9, 9});
    auto weighted = table(3, 1, {9, 9, 9});
    t->GaussProd(x, 0, plain);
    t->GaussProdWeighted(x, 0, weighted);
    EXPECT_NE(t->weights, nullptr);
    EXPECT_EQ(x->weights, nullptr);
    EXPECT_THAT(weighted->X[0], SameBits(plain->X[0]));
    EXPECT_THAT(weighted->X[1], SameBits(plain->X[1]));
    EXPECT_THAT(weighted->X[2], SameBits(0.0)) << "a target row beyond the table has no weight";
}

TEST(GaussProdWeighted, MissingCellOfTheFactorIsMultiplied)
{
    auto t = table(1, 2, {1e-300, 1});
    auto x = table(2, 1, {M, 2});
    auto out = table(1, 1, {9});
    t->GaussProdWeighted(x, 0, out);
    EXPECT_THAT(out->X[0], SameBits((1e-300 * M * 1.0 + 2.0) / 4.0));
}

TEST(GaussProdWeighted, WeightComesLast)
{
    auto t = table(1, 1, {1e200});
    double w[] = {1e-200};
    t->weighting(w);
    auto x = table(1, 1, {1e150});
    auto out = table(1, 1, {9});
    t->GaussProdWeighted(x, 0, out);
    EXPECT_THAT(out->X[0], SameBits(std::numeric_limits<double>::infinity()));
}

TEST(TransGaussProdWeighted, WeightsOfBothTables)
{
    auto t = table(4, 1, {1, 2, 3, 4});
    double w[] = {2, 0, -1, 1};
    t->weighting(w);
    auto x = table(4, 1, {1, 2, 3, 4});
    double other[] = {1, 1, 1, 0.5};
    x->weighting(other);
    auto out = table(1, 1, {9});
    t->transGaussProdWeighted(x, 0, out);
    EXPECT_THAT(out->X[0], SameBits((2.0 + 16.0) / (1.0 + 4.0 + 9.0 + 8.0)));
}

TEST(TransGaussProdWeighted, MakesTheWeightsOfBothTables)
{
    auto t = table(2, 1, {1, 2});
    auto x = table(2, 1, {3, 4});
    auto out = table(1, 1, {9});
    t->transGaussProdWeighted(x, 0, out);
    EXPECT_THAT(out->X[0], SameBits(11.0 / 25.0));
    EXPECT_NE(t->weights, nullptr);
    EXPECT_NE(x->weights, nullptr);
}

TEST(TransGaussProdWeighted, LeavesOutMissingCellsOfEither)
{
    auto t = table(3, 1, {M, 2, 3});
    auto x = table(3, 1, {5, M, 2});
    auto out = table(1, 1, {9});
    t->transGaussProdWeighted(x, 0, out);
    EXPECT_THAT(out->X[0], SameBits(6.0 / 4.0));
}

TEST(TransGaussProdWeighted, WeightComesBeforeTheFactor)
{
    auto t = table(1, 1, {1e200});
    double w[] = {1e200};
    t->weighting(w);
    auto x = table(1, 1, {1e-200});
    auto out = table(1, 1, {9});
    t->transGaussProdWeighted(x, 0, out);
    EXPECT_THAT(out->X[0], SameBits(std::numeric_limits<double>::infinity()));
}

// ---- the structure of a block ---------------------------------------------------------------------------------------

struct Structure
{
    std::array<bool, 4> colZero{};
    std::array<bool, 4> rowZero{};
    std::array<bool, 4> diag{};
};

using Flags = std::array<bool, 4>;

/// Entries that must not be written start as `before`.
Structure structureOf(matrix* t, int rows, int cols, int row0, int col0, bool before)
{
    Structure s;
    s.colZero.fill(before);
    s.rowZero.fill(before);
    s.diag.fill(before);
    t->calcStrucInfo(rows, cols, s.colZero.data(), s.rowZero.data(), s.diag.data(), row0, col0);
    return s;
}

TEST(CalcStrucInfo, SquareBlock)
{
    auto t = table(3, 3, {7, 0, 0, 0, 0, 0, 0, 5, 0});
    for (const bool before : {false, true}) {
        const Structure s = structureOf(t, 3, 3, 0, 0, before);
        EXPECT_EQ(s.colZero, (Flags{false, true, false, before}));
        EXPECT_EQ(s.rowZero, (Flags{false, false, true, before}));
        EXPECT_EQ(s.diag, (Flags{true, false, false, before})) << "the diagonal cell itself is not read";
    }
}

TEST(CalcStrucInfo, OtherShapesHaveNoDiagonal)
{
    auto t = table(2, 3, {0, 0, 0, 0, 0, 1});
    for (const bool before : {false, true}) {
        const Structure s = structureOf(t, 2, 3, 0, 0, before);
        EXPECT_EQ(s.colZero, (Flags{true, true, false, before}));
        EXPECT_EQ(s.rowZero, (Flags{true, false, before, before}));
        EXPECT_EQ(s.diag, (Flags{false, false, false, before}));
    }
    auto tall = table(3, 2, {0, 0, 0, 0, 0, 0});
    EXPECT_EQ(structureOf(tall, 3, 2, 0, 0, true).diag, (Flags{false, false, false, true}));
}

TEST(CalcStrucInfo, BlockInsideTheTable)
{
    auto t = table(4, 4, {9, 9, 9, 9, 9, 0, 0, 9, 9, 3, 0, 9, 9, 9, 9, 9});
    const Structure s = structureOf(t, 2, 2, 1, 1, false);
    EXPECT_EQ(s.colZero, (Flags{true, false, false, false}));
    EXPECT_EQ(s.rowZero, (Flags{false, true, false, false}));
    EXPECT_EQ(s.diag, (Flags{false, false, false, false}));
    const Structure one = structureOf(t, 1, 1, 0, 0, false);
    EXPECT_EQ(one.diag, (Flags{true, false, false, false}));
    EXPECT_EQ(one.colZero, (Flags{false, false, false, false}));
}

TEST(CalcStrucInfo, NotANumberAndMissingAreNotZero)
{
    auto t = table(2, 2, {0, std::numeric_limits<double>::quiet_NaN(), -0.0, 0});
    const Structure s = structureOf(t, 2, 2, 0, 0, false);
    EXPECT_EQ(s.colZero, (Flags{false, true, false, false}));
    EXPECT_EQ(s.rowZero, (Flags{true, false, false, false}));
    EXPECT_EQ(s.diag, (Flags{false, false, false, false}));
    auto missing = table(1, 1, {M});
    EXPECT_EQ(structureOf(missing, 1, 1, 0, 0, true).colZero, (Flags{false, true, true, true}));
}

TEST(CalcStrucInfo, EmptyBlock)
{
    auto t = table(1, 1, {5});
    EXPECT_EQ(structureOf(t, 0, 2, 0, 0, false).colZero, (Flags{true, true, false, false}));
    EXPECT_EQ(structureOf(t, 0, 0, 0, 0, false).diag, (Flags{false, false, false, false}));
}

} // namespace
