// The rules of the imputation by principal components, one by one.
#include "fitting/nipals.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/tables.h"

#include <cmath>
#include <limits>

using namespace vecmat::test;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double usual = 1e-6;

struct Limits
{
    double column = 1.0;
    double total = 1.0;
};

int impute(const Owned<matrix>& X, const Owned<matrix>& w, int components, Limits limits = {}, double tol = usual)
{
    return NIPALS(X->nRows, X->nCols, X, w, tol, components, limits.column, limits.total);
}

/// Expects the outcome, and a table whose bits are unchanged.
void expectUnchanged(Owned<matrix> X, const Owned<matrix>& w, int components, int outcome, Limits limits = {})
{
    const std::vector<double> before = cellsOf(X);
    EXPECT_EQ(impute(X, w, components, limits), outcome);
    EXPECT_THAT(cellsOf(X), SameBits(before));
}

// ---- outcomes -------------------------------------------------------------------------------------------------------

TEST(NIPALS, ACompleteTableIsReturnedAsItIs)
{
    expectUnchanged(byRows({{1, 5}, {2, 4}, {4, 4}}), column({1, 1, 1}), 2, 0);
    expectUnchanged(byRows({{1, 5}, {2, 4}, {4, 4}}), column({1, 0, 2}), 9, 0, {-1.0, -1.0});
}

TEST(NIPALS, AConstantColumnIsReportedAlsoInACompleteTable)
{
    expectUnchanged(byRows({{1, 5}, {2, 5}, {4, 5}}), column({1, 1, 1}), 1, 1);
    expectUnchanged(byRows({{1, M}, {2, 5}, {4, 5}}), column({1, 1, 1}), 1, 1);
    expectUnchanged(byRows({{1, 5}, {2, 5}, {4, 7}}), column({1, 1, 0}), 1, 1); // constant where weighted
}

TEST(NIPALS, AConstantColumnComesBeforeTooManyMissingCells)
{
    expectUnchanged(byRows({{M, 5}, {M, 5}, {4, 5}, {3, 5}}), column({1, 1, 1, 1}), 1, 1, {0.0, 0.0});
}

TEST(NIPALS, AStandardDeviationOfUpToAMillionthIsConstant)
{
    // Of 0 and d it is d / sqrt(2).
    expectUnchanged(byRows({{0}, {1.41e-6}}), column({1, 1}), 1, 1);
    expectUnchanged(byRows({{0}, {1.42e-6}}), column({1, 1}), 1, 0);
}

TEST(NIPALS, TheSpreadHasTheDivisorOfTheWeightsMinusOne)
{
    // Weights 2: mean d / 2, squares 2 d^2 - 4 d^2 / 4 = d^2, over 3: d / sqrt(3).
    expectUnchanged(byRows({{0}, {1.72e-6}}), column({2, 2}), 1, 1);
    expectUnchanged(byRows({{0}, {1.74e-6}}), column({2, 2}), 1, 0);
}

TEST(NIPALS, ASpreadOfNaNIsNotConstant)
{
    auto X = byRows({{1, M}, {2, M}, {4, M}});
    EXPECT_EQ(impute(X, column({1, 1, 1}), 0), 0);
    EXPECT_THAT(cellsOf(X), SameBits({1.0, 2.0, 4.0, notANumber, notANumber, notANumber}));
    // The weights of the first column sum to 0.5: the divisor is negative.
    auto negative = byRows({{1, 3}, {M, 4}, {2, 8}});
    EXPECT_EQ(impute(negative, column({0.25, 0.25, 0.25}), 0), 0);
    EXPECT_THAT(cellsOf(negative), SameBits({1.0, 6.0, 2.0, 3.0, 4.0, 8.0}));
}

TEST(NIPALS, AColumnWithoutCellsHasNoLoading)
{
    expectUnchanged(byRows({{1, M}, {2, M}, {4, M}}), column({1, 1, 1}), 1, 1);
}

TEST(NIPALS, TheShareOfMissingCellsOfAColumnMayBeReached)
{
    const auto ones = column({1, 1, 1, 1});
    auto X = byRows({{M, 5}, {2, 4}, {4, 6}, {5, 1}});
    EXPECT_EQ(impute(X, ones, 1, {0.25, 1.0}), 0);
    expectUnchanged(byRows({{M, 5}, {2, 4}, {4, 6}, {5, 1}}), ones, 1, -6, {0.2499, 1.0});
    expectUnchanged(byRows({{5, M}, {2, M}, {4, 6}, {5, 1}}), ones, 1, -6, {0.25, 1.0}); // any column
}

TEST(NIPALS, TheShareOfMissingCellsOfTheTableMayBeReached)
{
    const auto ones = column({1, 1, 1, 1});
    auto X = byRows({{M, 5}, {2, M}, {4, 6}, {5, 1}});
    EXPECT_EQ(impute(X, ones, 1, {1.0, 0.25}), 0); // two cells of eight
    expectUnchanged(byRows({{M, 5}, {2, M}, {4, 6}, {5, 1}}), ones, 1, -6, {1.0, 0.2499});
}

TEST(NIPALS, TheShareOfTheTableIsMultipliedByTheRowsAndThenByTheColumns)
{
    // 7 (1/3) 3 is rounded below 7, 21 (1/3) is not.
    static_assert(7 * (1.0 / 3) * 3 < 7 && 7 * 3 * (1.0 / 3) == 7);
    const auto ones = column({1, 1, 1, 1, 1, 1, 1});
    expectUnchanged(byRows({{M, 5, 3}, {2, M, 1}, {4, 6, M}, {M, 1, 4}, {3, M, 2}, {6, 2, M}, {M, 4, 5}}), ones, 1, -6,
                    {1.0, 1.0 / 3});
}

TEST(NIPALS, AShareOfNaNIsNoLimit)
{
    auto X = byRows({{M, 5}, {2, 4}, {4, 6}, {5, 1}});
    EXPECT_EQ(impute(X, column({1, 1, 1, 1}), 0, {notANumber, notANumber}), 0);
}

TEST(NIPALS, MoreComponentsThanTheTableCarriesEndWithoutAChange)
{
    // Two columns in step: nothing is left after the first component.
    const auto inStep = [] { return byRows({{1, 2}, {2, 4}, {M, 6}, {4, 8}, {5, 10}}); };
    const auto ones = column({1, 1, 1, 1, 1});
    auto X = inStep();
    EXPECT_EQ(impute(X, ones, 1), 0);
    EXPECT_NEAR(X->vbget(3, 1), 3.0, 1e-12);
    expectUnchanged(inStep(), ones, 2, 1);
    expectUnchanged(inStep(), ones, std::numeric_limits<int>::max(), 1);
}

TEST(NIPALS, ScoresThatVanishEndWithoutAChange)
{
    // The first column has a spread above its limit; its sum of squares is 5e-7 and so below that of a denominator.
    expectUnchanged(byRows({{0, 2}, {1e-3, 4}, {0.5e-3, M}}), column({1, 1, 1}), 1, 1);
}

TEST(NIPALS, WithoutRowsOrColumnsNothingIsDone)
{
    const auto w = column({1, 1});
    for (const auto& [n, p] : {std::pair(0, 2), std::pair(2, 0), std::pair(0, 0), std::pair(-3, 2), std::pair(2, -3)}) {
        auto X = byRows({{M, 1}, {2, 3}});
        EXPECT_EQ(NIPALS(n, p, X, w, usual, 1, 0.0, 0.0), 0) << n << " by " << p;
        EXPECT_THAT(cellsOf(X), SameBits({M, 2.0, 1.0, 3.0}));
    }
}

// ---- what is filled in ----------------------------------------------------------------------------------------------

TEST(NIPALS, WithoutComponentsTheMeanOverTheWeightIsFilledIn)
{
    for (const int components : {0, -1}) {
        auto X = byRows({{1, M}, {M, 4}, {4, 6}, {6, 1}});
        EXPECT_EQ(impute(X, column({2, 4, 1, 0.5}), components), 0);
        const double first = (2.0 * 1 + 1.0 * 4 + 0.5 * 6) / 3.5, second = (4.0 * 4 + 1.0 * 6 + 0.5 * 1) / 5.5;
        EXPECT_THAT(cellsOf(X), SameBits({1.0, first / 4.0, 4.0, 6.0, second / 2.0, 4.0, 6.0, 1.0}));
    }
}

TEST(NIPALS, ARowOfWeightZeroIsFilledWithZero)
{
    for (const double zero : {0.0, -0.0})
        for (const int components : {0, 1}) {
            auto X = byRows({{1, 3}, {M, 4}, {4, 6}, {6, 1}});
            EXPECT_EQ(impute(X, column({2, zero, 1, 0.5}), components), 0);
            EXPECT_THAT(cellsOf(X), SameBits({1.0, 0.0, 4.0, 6.0, 3.0, 4.0, 6.0, 1.0}));
        }
}

TEST(NIPALS, ARowOfWeightZeroStillTakesPartWithTheMeansTakenOff)
{
    auto with = byRows({{1, 3, 2}, {4, M, 5}, {4, 6, 1}, {6, 1, 7}, {9, 9, 9}});
    auto without = byRows({{1, 3, 2}, {4, M, 5}, {4, 6, 1}, {6, 1, 7}});
    EXPECT_EQ(impute(with, column({1, 1, 1, 1, 0}), 1), 0);
    EXPECT_EQ(impute(without, column({1, 1, 1, 1}), 1), 0);
    EXPECT_GT(std::fabs(with->vbget(2, 2) - without->vbget(2, 2)), 0.1);
    // Its cells count for nothing, only that they are there.
    auto others = byRows({{1, 3, 2}, {4, M, 5}, {4, 6, 1}, {6, 1, 7}, {-5, 100, 0}});
    EXPECT_EQ(impute(others, column({1, 1, 1, 1, 0}), 1), 0);
    EXPECT_THAT(others->vbget(2, 2), SameBits(with->vbget(2, 2)));
}

TEST(NIPALS, ARowWithoutCellsIsFilledWithTheMeansOverItsWeight)
{
    auto X = byRows({{1, 3}, {M, M}, {4, 6}, {6, 1}});
    EXPECT_EQ(impute(X, column({1, 2, 1, 1}), 1), 0);
    const double first = (1.0 + 4.0 + 6.0) / 3.0, second = (3.0 + 6.0 + 1.0) / 3.0;
    EXPECT_THAT(cellsOf(X), SameBits({1.0, first / 2.0, 4.0, 6.0, 3.0, second / 2.0, 6.0, 1.0}));
}

TEST(NIPALS, OneColumnIsFilledWithItsMean)
{
    auto X = byRows({{1}, {M}, {4}, {M}});
    EXPECT_EQ(impute(X, column({1, 2, 1, 0.5}), 1), 0);
    EXPECT_THAT(cellsOf(X), SameBits({1.0, 1.25, 4.0, 5.0}));
    expectUnchanged(byRows({{1}, {M}, {4}}), column({1, 1, 1}), 2, 1); // the first component leaves nothing
}

TEST(NIPALS, ScoresThatAreMissingAtTheStartDoNotEnterTheFirstLoadings)
{
    // With a tolerance of infinity there are just two passes.
    auto X = byRows({{M, 5}, {0, 1}, {2, 3}});
    EXPECT_EQ(impute(X, column({1, 1, 1}), 1, {}, inf), 0);
    // Centred: (., 2), (-1, -2), (1, 0). Scores -1 and 1 give loadings 1 and 1; then -1.5, 0.5 and 2.
    const double root = std::sqrt(0.5);
    const double scores[] = {2.0 / root, -1.5 / root, 0.5 / root};
    double p1 = (-1.0 * scores[1] + 1.0 * scores[2]) / (scores[1] * scores[1] + scores[2] * scores[2]);
    double p2 =
        (2.0 * scores[0] - 2.0 * scores[1]) / (scores[0] * scores[0] + scores[1] * scores[1] + scores[2] * scores[2]);
    const double length = std::hypot(p1, p2);
    p1 /= length;
    p2 /= length;
    EXPECT_NEAR(X->vbget(1, 1), 1.0 + 2.0 / p2 * p1, 1e-14);
}

TEST(NIPALS, OnlyTheMissingValueItselfIsMissing)
{
    const double below = std::nextafter(M, -inf);
    for (const double cell : {below, -inf, notANumber}) {
        auto X = byRows({{cell, 3}, {M, 4}, {4, 6}});
        EXPECT_EQ(impute(X, column({1, 1, 1}), 0), 0);
        EXPECT_THAT(X->vbget(1, 1), SameBits(cell));
        EXPECT_THAT(X->vbget(2, 1), SameBits((cell + 4.0) / 2.0));
    }
}

TEST(NIPALS, NaNAndInfinityEndAfterTheSecondPass)
{
    auto X = byRows({{notANumber, 3}, {M, 4}, {4, 6}});
    EXPECT_EQ(impute(X, column({1, 1, 1}), 1), 0);
    EXPECT_TRUE(std::isnan(X->vbget(2, 1)));
    EXPECT_THAT(X->vbget(2, 2), SameBits(4.0));
    // So does a tolerance of NaN.
    auto infinite = byRows({{M, 5, 1}, {0, 1, 7}, {2, 3, 0}}), none = byRows({{M, 5, 1}, {0, 1, 7}, {2, 3, 0}});
    EXPECT_EQ(impute(infinite, column({1, 1, 1}), 1, {}, inf), 0);
    EXPECT_EQ(impute(none, column({1, 1, 1}), 1, {}, notANumber), 0);
    EXPECT_THAT(cellsOf(none), SameBits(cellsOf(infinite)));
}

TEST(NIPALS, MorePassesAreMadeForASmallerTolerance)
{
    const auto table = [] { return byRows({{M, 5, 1}, {0, 1, 7}, {2, 3, 0}, {1, 9, 4}}); };
    const auto ones = column({1, 1, 1, 1});
    auto coarse = table(), fine = table(), finest = table();
    EXPECT_EQ(impute(coarse, ones, 1, {}, 1e-1), 0);
    EXPECT_EQ(impute(fine, ones, 1, {}, 1e-12), 0);
    EXPECT_EQ(impute(finest, ones, 1, {}, 1e-28), 0);
    const double limit = finest->vbget(1, 1);
    EXPECT_GT(std::fabs(coarse->vbget(1, 1) - limit), 1e-3);
    EXPECT_LT(std::fabs(fine->vbget(1, 1) - limit), 1e-4);
    EXPECT_GT(std::fabs(fine->vbget(1, 1) - limit), 0.0);
}

// ---- dimensions and the flat form -----------------------------------------------------------------------------------

TEST(NIPALS, OnlyTheRowsAndColumnsPassedTakePart)
{
    auto larger = byRows({{1, 3, M}, {M, 4, M}, {4, 6, M}, {M, 50, M}});
    auto exact = byRows({{1, 3}, {M, 4}, {4, 6}});
    EXPECT_EQ(NIPALS(3, 2, larger, column({1, 1, 1}), usual, 1, 1.0, 0.2), 0);
    EXPECT_EQ(impute(exact, column({1, 1, 1}), 1), 0);
    EXPECT_THAT(cornerOf(larger, 3, 2), SameBits(cellsOf(exact)));
    EXPECT_THAT(larger->vbget(4, 1), SameBits(M));
    EXPECT_THAT(larger->vbget(2, 3), SameBits(M));
}

TEST(NIPALS, WeightsBeyondTheirTableAreMinusOne)
{
    auto shorter = byRows({{1, 3}, {M, 4}, {4, 6}, {7, 1}}), given = byRows({{1, 3}, {M, 4}, {4, 6}, {7, 1}});
    EXPECT_EQ(impute(shorter, column({3, 2, 1}), 1), 0);
    EXPECT_EQ(impute(given, column({3, 2, 1, -1}), 1), 0);
    EXPECT_THAT(cellsOf(shorter), SameBits(cellsOf(given)));
}

TEST(NIPALS, TheFlatFormFillsTheCallersArray)
{
    Guarded<double> X{1, M, 4, 6, 3, 4, M, 1}, w{1, 2, 1, 0.5};
    auto table = byColumns({{1, M, 4, 6}, {3, 4, M, 1}});
    EXPECT_EQ(Cpp_NIPALS(4, 2, X, w, usual, 1, 1.0, 1.0), 0);
    EXPECT_EQ(impute(table, column({1, 2, 1, 0.5}), 1), 0);
    EXPECT_THAT(X.values(), SameBits(cellsOf(table)));
    EXPECT_TRUE(w.untouched());
}

TEST(NIPALS, TheFlatFormHandsItsFailuresOn)
{
    Guarded<double> X{1, M, 4, 6, 3, 4, M, 1}, w{1, 1, 1, 1}, constant{5, 5, 5, 5, 3, 4, M, 1};
    EXPECT_EQ(Cpp_NIPALS(4, 2, X, w, usual, 1, 0.2, 1.0), -6);
    EXPECT_EQ(Cpp_NIPALS(4, 2, X, w, usual, 9, 1.0, 1.0), 1);
    EXPECT_EQ(Cpp_NIPALS(4, 2, constant, w, usual, 1, 1.0, 1.0), 1);
    EXPECT_TRUE(X.untouched());
    EXPECT_TRUE(constant.untouched());
}

} // namespace
