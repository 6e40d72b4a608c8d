#include "elementary/vector_updates.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/special_values.h"
#include "support/tables.h"

#include <cmath>

using namespace vecmat::test;

namespace {

// ---- scaling --------------------------------------------------------------------------------------------------------

TEST(VNorm, DividesByTheRootOfTheSumOfSquares)
{
    auto x = column({3, 4});
    V_Norm(x, 2);
    EXPECT_THAT(cellsOf(x), SameBits({3.0 / 5.0, 4.0 / 5.0}));
    auto y = column({1, 1, 1});
    V_Norm(y, 3);
    const double divided = 1.0 / std::sqrt(3.0);
    EXPECT_THAT(cellsOf(y), SameBits({divided, divided, divided}));
}

TEST(VNorm, DividesAndDoesNotMultiplyByAReciprocal)
{
    auto x = column({5, 1, 1});
    V_Norm(x, 3);
    const double norm = std::sqrt(27.0);
    ASSERT_NE(5.0 / norm, 5.0 * (1.0 / norm));
    EXPECT_THAT(cellsOf(x), SameBits({5.0 / norm, 1.0 / norm, 1.0 / norm}));
}

TEST(VNorm, ScalesAMissingCellThatItDidNotCount)
{
    auto x = column({3, M, 4});
    V_Norm(x, 3);
    EXPECT_THAT(cellsOf(x), SameBits({3.0 / 5.0, M / 5.0, 4.0 / 5.0}));
}

TEST(VNorm, ScalesTheFirstCellsOnly)
{
    auto x = byColumns({{3, 4}, {6, 7}});
    V_Norm(x, 2);
    EXPECT_THAT(cellsOf(x), SameBits({3.0 / 5.0, 4.0 / 5.0, 6.0, 7.0}));
}

TEST(VNorm, CellBeyondTheTableAddsItsSquare)
{
    auto x = column({2, 2});
    V_Norm(x, 3);
    EXPECT_THAT(cellsOf(x), SameBits({2.0 / 3.0, 2.0 / 3.0}));
}

TEST(VNorm, ZeroSumIsNotGuarded)
{
    auto zeros = column({0.0, -0.0});
    V_Norm(zeros, 2);
    EXPECT_THAT(cellsOf(zeros), SameBits({notANumber, notANumber}));
    auto missing = column({M});
    V_Norm(missing, 1);
    EXPECT_THAT(cellsOf(missing), SameBits({-infinity}));
    auto weighted = column({0, 2});
    V_NormW(weighted, 2, column({0, 5}));
    EXPECT_THAT(cellsOf(weighted), SameBits({notANumber, infinity}));
    auto toVal = column({0.0});
    V_NormToVal(toVal, 1, 4.0);
    EXPECT_THAT(cellsOf(toVal), SameBits({notANumber}));
}

TEST(VNorm, NothingHappensForNBelowOne)
{
    for (int n : {0, -1, lowestInt}) {
        auto x = column({3, M});
        V_Norm(x, n);
        V_NormToVal(x, n, 2.0);
        V_NormW(x, n, column({1, 1}));
        V_NormToValW(x, n, 2.0, column({1, 1}));
        EXPECT_THAT(cellsOf(x), SameBits({3.0, M}));
    }
}

TEST(VNormToVal, MultipliesByTheRootOfTheRatio)
{
    auto x = column({1, M, 3});
    V_NormToVal(x, 3, 7.0);
    const double factor = std::sqrt(7.0 / 10.0);
    EXPECT_THAT(cellsOf(x), SameBits({factor, M * factor, 3.0 * factor}));
}

TEST(VNormW, TakesTheShiftedWeights)
{
    auto x = column({1, 2});
    V_NormW(x, 2, column({5, 7})); // -1 + 5*4
    const double norm = std::sqrt(19.0);
    EXPECT_THAT(cellsOf(x), SameBits({1.0 / norm, 2.0 / norm}));
}

TEST(VNormW, NegativeSumOfSquaresGivesNaN)
{
    auto x = column({3});
    V_NormW(x, 1, column({5}));
    EXPECT_THAT(cellsOf(x), SameBits({notANumber}));
}

TEST(VNormToValW, TakesTheShiftedWeights)
{
    auto x = column({1, 2});
    V_NormToValW(x, 2, 3.0, column({5, 7}));
    const double factor = std::sqrt(3.0 / 19.0);
    EXPECT_THAT(cellsOf(x), SameBits({factor, 2.0 * factor}));
}

// ---- adding ---------------------------------------------------------------------------------------------------------

TEST(VPlusVal, MaskedCellsAreErased)
{
    short mask[] = {0, 1, 0, -1};
    auto x = column({1, 2, M, M});
    V_PlusVal(x, 4, 10.0, mask);
    EXPECT_THAT(cellsOf(x), SameBits({11.0, M, M, M}));
}

TEST(VPlusVal, ChangesTheFirstCellsInRange)
{
    short mask[] = {0, 0, 1, 0};
    auto x = column({1, 2});
    V_PlusVal(x, 4, 1.0, mask);
    EXPECT_THAT(cellsOf(x), SameBits({2.0, 3.0}));
    auto longer = column({1, 2, 3});
    V_PlusVal(longer, 2, 1.0, mask);
    EXPECT_THAT(cellsOf(longer), SameBits({2.0, 3.0, 3.0}));
    V_PlusVal(longer, 0, 1.0, mask);
    V_PlusVal(longer, -1, 1.0, mask);
    EXPECT_THAT(cellsOf(longer), SameBits({2.0, 3.0, 3.0}));
}

TEST(VPlusVal, OnlyTheExactPatternIsMissing)
{
    short mask[] = {0, 0, 0};
    auto x = column({notANumber, -infinity, belowMissing});
    V_PlusVal(x, 3, 1e308, mask);
    EXPECT_THAT(cellsOf(x), SameBits({notANumber, -infinity, belowMissing + 1e308}));
}

TEST(VPlusVal2, MissingCellsStay)
{
    auto x = column({1, M, 3, belowMissing, 5});
    V_PlusVal2(x, 4, 1e308);
    EXPECT_THAT(cellsOf(x), SameBits({1e308, M, 1e308, belowMissing + 1e308, 5.0}));
    V_PlusVal2(x, 0, 1.0);
    V_PlusVal2(x, -1, 1.0);
    EXPECT_THAT(cellsOf(x), SameBits({1e308, M, 1e308, belowMissing + 1e308, 5.0}));
    auto shortTable = column({1});
    V_PlusVal2(shortTable, 3, 2.0);
    EXPECT_THAT(cellsOf(shortTable), SameBits({3.0}));
}

// ---- replacing ------------------------------------------------------------------------------------------------------

TEST(VReplaceVal, ReplacesEqualCells)
{
    auto out = filled(5, 1, 9.0);
    V_ReplaceVal(column({1, 2, 1, 1.0000000000000002}), 4, 1.0, 7.0, out);
    EXPECT_THAT(cellsOf(out), SameBits({7.0, 2.0, 7.0, 1.0000000000000002, 9.0}));
}

TEST(VReplaceVal, MakesNoMissingTest)
{
    auto out = filled(3, 1, 9.0);
    V_ReplaceVal(column({M, 2, belowMissing}), 3, M, 0.0, out);
    EXPECT_THAT(cellsOf(out), SameBits({0.0, 2.0, belowMissing}));
    V_ReplaceVal(column({notANumber, 2, M}), 3, notANumber, 0.0, out);
    EXPECT_THAT(cellsOf(out), SameBits({notANumber, 2.0, M}));
}

TEST(VReplaceVal, ZerosOfBothSignsAreEqual)
{
    auto out = filled(2, 1, 9.0);
    V_ReplaceVal(column({-0.0, -0.0}), 2, 1.0, 5.0, out);
    EXPECT_THAT(cellsOf(out), SameBits({-0.0, -0.0}));
    V_ReplaceVal(column({-0.0, 0.0}), 2, 0.0, 5.0, out);
    EXPECT_THAT(cellsOf(out), SameBits({5.0, 5.0}));
}

TEST(VReplaceVal, BeyondTheTables)
{
    auto out = filled(3, 1, 9.0);
    V_ReplaceVal(column({1}), 3, 1.0, 7.0, out);
    EXPECT_THAT(cellsOf(out), SameBits({7.0, -1.0, -1.0}));
    V_ReplaceVal(column({1}), 2, -1.0, 7.0, out);
    EXPECT_THAT(cellsOf(out), SameBits({1.0, 7.0, -1.0}));
    auto small = filled(1, 1, 9.0);
    V_ReplaceVal(column({1, 1}), 2, 1.0, 7.0, small);
    EXPECT_THAT(cellsOf(small), SameBits({7.0}));
    V_ReplaceVal(column({1}), 0, 1.0, 8.0, small);
    V_ReplaceVal(column({1}), -1, 1.0, 8.0, small);
    EXPECT_THAT(cellsOf(small), SameBits({7.0}));
}

TEST(VReplaceVal, TableMayBeItsOwnResult)
{
    auto x = column({1, 2});
    V_ReplaceVal(x, 2, 1.0, 7.0, x);
    EXPECT_THAT(cellsOf(x), SameBits({7.0, 2.0}));
}

// ---- flat forms -----------------------------------------------------------------------------------------------------

TEST(VectorUpdatesFlat, ScaleInPlace)
{
    RandomData data(2205);
    SCOPED_TRACE(data);
    const auto cells = data.withMissing(data.uniforms(9, 1.0, 2.0), 0.2);
    const auto weights = data.uniforms(9, 1.0, 2.0);
    Guarded<double> w(weights);
    Guarded<double> norm(cells);
    Guarded<double> normToVal(cells);
    Guarded<double> normW(cells);
    Guarded<double> normToValW(cells);
    VB_V_Norm(norm, 9);
    VB_V_NormToVal(normToVal, 9, 3.0);
    VB_V_NormW(normW, 9, w);
    VB_V_NormToValW(normToValW, 9, 3.0, w);

    double squares = 0.0;
    double weighted = 0.0;
    for (std::size_t i = 0; i < 9; ++i)
        if (cells[i] != M) {
            squares += cells[i] * cells[i];
            weighted += (i == 0 ? -1.0 : weights[i - 1]) * cells[i] * cells[i];
        }
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_THAT(norm.data()[i], SameBits(cells[i] / std::sqrt(squares)));
        EXPECT_THAT(normToVal.data()[i], SameBits(cells[i] * std::sqrt(3.0 / squares)));
        EXPECT_THAT(normW.data()[i], SameBits(cells[i] / std::sqrt(weighted)));
        EXPECT_THAT(normToValW.data()[i], SameBits(cells[i] * std::sqrt(3.0 / weighted)));
    }
    EXPECT_TRUE(w.untouched());
}

TEST(VectorUpdatesFlat, AddInPlace)
{
    Guarded<double> x({1, 2, M});
    Guarded<short> mask({0, 5, 0});
    VB_V_PlusVal(x, 3, 10.0, mask);
    EXPECT_THAT(x.values(), SameBits({11.0, M, M}));
    Guarded<double> y({1, 2, M});
    VB_V_PlusVal2(y, 3, 10.0);
    EXPECT_THAT(y.values(), SameBits({11.0, 12.0, M}));
    EXPECT_TRUE(mask.untouched());
}

TEST(VectorUpdatesFlat, ReplaceToAnArrayOrOverTheSource)
{
    Guarded<double> x({1, M, 3});
    Guarded<double> out({9, 9, 9});
    VB_V_ReplaceVal(x, 3, M, 0.0, out);
    EXPECT_THAT(out.values(), SameBits({1.0, 0.0, 3.0}));
    EXPECT_TRUE(x.untouched());
    VB_V_ReplaceVal2(x, 3, 3.0, 4.0);
    EXPECT_THAT(x.values(), SameBits({1.0, M, 4.0}));
}

TEST(VectorUpdatesFlat, NothingHappensForNBelowOne)
{
    Guarded<double> x({5});
    for (int n : {0, -1}) {
        VB_V_Norm(x, n);
        VB_V_NormToVal(x, n, 2.0);
        VB_V_NormW(x, n, x);
        VB_V_NormToValW(x, n, 2.0, x);
        VB_V_PlusVal(x, n, 2.0, nullptr);
        VB_V_PlusVal2(x, n, 2.0);
        VB_V_ReplaceVal2(x, n, 5.0, 2.0);
        VB_V_ReplaceVal(x, n, 5.0, 2.0, x);
        VB_V_RemoveVal(x, n, 1, x);
    }
    EXPECT_TRUE(x.untouched());
}

std::vector<double> withoutElement(int pos)
{
    Guarded<double> x({1, M, 3, 4});
    Guarded<double> out({9, 9, 9}); // room for n - 1 elements and no more
    VB_V_RemoveVal(x, 4, pos, out);
    EXPECT_TRUE(x.untouched());
    return out.values();
}

TEST(VBVRemoveVal, ClosesTheGap)
{
    EXPECT_THAT(withoutElement(1), SameBits({M, 3.0, 4.0}));
    EXPECT_THAT(withoutElement(2), SameBits({1.0, 3.0, 4.0}));
    EXPECT_THAT(withoutElement(4), SameBits({1.0, M, 3.0}));
}

TEST(VBVRemoveVal, PositionOutsideStillWritesOneElementLess)
{
    EXPECT_THAT(withoutElement(5), SameBits({1.0, M, 3.0}));
    EXPECT_THAT(withoutElement(highestInt), SameBits({1.0, M, 3.0}));
    EXPECT_THAT(withoutElement(0), SameBits({M, 3.0, 4.0}));
    EXPECT_THAT(withoutElement(lowestInt), SameBits({M, 3.0, 4.0}));
}

TEST(VBVRemoveVal, MayWorkInPlace)
{
    Guarded<double> x({1, 2, 3});
    VB_V_RemoveVal(x, 3, 2, x);
    EXPECT_THAT(x.values(), SameBits({1.0, 3.0, 3.0}));
    Guarded<double> one({1});
    VB_V_RemoveVal(one, 1, 1, one);
    VB_V_RemoveVal(one, lowestInt, 1, one);
    EXPECT_TRUE(one.untouched());
}

} // namespace
