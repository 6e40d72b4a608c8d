// Determinants: their signs, their limits, and what sets the three apart.
#include "base/detail/mathematics/mathematics.h"
#include "decompositions/determinants.h"

#include "decompositions/crout_reference.h"
#include "decompositions/residuals.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// Computed when the test runs, by the library that the product uses, and not by the compiler.
double logarithm(double x)
{
    volatile double value = x;
    return vecmat::log(value);
}

double exponential(double x)
{
    volatile double value = x;
    return vecmat::exp(value);
}

struct Result
{
    double value;
    short status;
};

Result determinant(matrix* a, int n, short logOnOverflow = 0)
{
    Result result{77.0, 77};
    result.value = M_Determinant(a, n, &result.status, logOnOverflow);
    return result;
}

Result triangular(matrix* a, int n)
{
    Result result{77.0, 77};
    result.value = M_DeterminantTriang(a, n, &result.status);
    return result;
}

void expectResult(Result actual, double value, short status)
{
    EXPECT_THAT(actual.value, SameBits(value));
    EXPECT_EQ(actual.status, status);
}

/// From the factors of the reference, step by step.
double referenceDeterminant(const Owned<matrix>& a, int n)
{
    matrix w(*a.get());
    ReferencePivots pivots;
    if (referenceLU(w, n, pivots) != 0)
        return 0.0;
    double sum = 0.0;
    int negatives = 0;
    for (int i = 1; i <= n; ++i) {
        double x = w.vbget(i, i);
        if (x < 0.0) {
            x = -x;
            ++negatives;
        }
        sum += logarithm(x);
    }
    const double size = pivots.parity * exponential(sum);
    return sum < -708.0 ? 0.0 : negatives % 2 == 1 ? -size : size;
}

TEST(MDeterminant, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(751);
    SCOPED_TRACE(data);
    for (int round = 0; round < 200; ++round) {
        const int rows = data.integer(1, 6);
        const int cols = data.integer(1, 6);
        const int n = round % 2 == 0 ? rows : data.integer(1, 6);
        const Owned<matrix> a = table(rows, cols, data.normals(static_cast<std::size_t>(rows * cols)));
        expectResult(determinant(a, n), referenceDeterminant(a, n), 0);
    }
    for (const int n : {31, 32, 40, 60}) {
        const Owned<matrix> a = table(n, n, data.normals(static_cast<std::size_t>(n * n)));
        expectResult(determinant(a, n), referenceDeterminant(a, n), 0);
    }
}

TEST(MDeterminant, HasTheSignOfThePermutationAndOfThePivots)
{
    EXPECT_NEAR(determinant(byRows({{0, 1}, {1, 0}}), 2).value, -1.0, 1e-15);
    EXPECT_NEAR(determinant(byRows({{-2, 0}, {0, 3}}), 2).value, -6.0, 1e-14);
    EXPECT_NEAR(determinant(byRows({{-2, 0}, {0, -3}}), 2).value, 6.0, 1e-14);
    EXPECT_NEAR(determinant(byRows({{0, -2}, {3, 0}}), 2).value, 6.0, 1e-14);
    // Hilbert's matrix of order 3, whose determinant is 1/2160.
    EXPECT_NEAR(determinant(table(3, 3, hilbertMatrix(3).cells), 3).value, 1.0 / 2160.0, 1e-17);
}

TEST(MDeterminant, OfATableWithAZeroRowIsZeroWithAStatus)
{
    expectResult(determinant(byRows({{1, 2}, {0, 0}}), 2), 0.0, -1);
}

TEST(MDeterminant, WithoutAPivotIsZeroWithAStatus)
{
    expectResult(determinant(byRows({{notANumber, 1}, {notANumber, 2}}), 2), 0.0, 1);
}

TEST(MDeterminant, OfASingularTableIsTinyOrZero)
{
    const Result tiny = determinant(byRows({{1, 2}, {1, 2}}), 2);
    EXPECT_EQ(tiny.status, 0);
    EXPECT_NEAR(tiny.value / -1e-20, 1.0, 1e-13); // the rows are exchanged
    // Nineteen tiny pivots are below the limit.
    expectResult(determinant(filled(20, 20, 1.0), 20), 0.0, 0);
}

TEST(MDeterminant, ComputesUpToALogarithmOf709)
{
    const double largest = exponential(709.0);
    ASSERT_THAT(logarithm(largest), SameBits(709.0));
    expectResult(determinant(column({largest}), 1), largest, 0);
    expectResult(determinant(column({largest}), 1, -1), largest, 0);
    const double above = largest * (1.0 + 1e-12);
    ASSERT_GT(logarithm(above), 709.0);
    for (const short option : {short{0}, short{1}, short{-2}})
        expectResult(determinant(column({above}), 1, option), positiveTwin, -1);
    expectResult(determinant(column({-above}), 1), positiveTwin, -1);
}

TEST(MDeterminant, GivesTheSignedLogarithmBeyondTheLimitOnRequest)
{
    const double above = exponential(709.0) * 1.5;
    expectResult(determinant(column({above}), 1, -1), logarithm(above), 0);
    expectResult(determinant(column({-above}), 1, -1), -logarithm(above), 0);
    const Result exchanged = determinant(byRows({{0, above}, {1, 0}}), 2, -1);
    expectResult(exchanged, -(logarithm(1.0) + logarithm(above)), 0);
}

TEST(MDeterminant, ComputesDownToALogarithmOfMinus708)
{
    const double smallest = exponential(-708.0);
    ASSERT_THAT(logarithm(smallest), SameBits(-708.0));
    expectResult(determinant(column({smallest}), 1), smallest, 0);
    const double below = smallest * (1.0 - 1e-12);
    ASSERT_LT(logarithm(below), -708.0);
    expectResult(determinant(column({below}), 1), 0.0, 0);
}

TEST(MDeterminant, PassesANaNThrough)
{
    const Result result = determinant(byRows({{1, notANumber}, {0, 1}}), 2);
    EXPECT_EQ(result.status, 0);
    EXPECT_FALSE(std::isnan(result.value)); // U = (1, NaN; 0, 1): the NaN is not on the diagonal
    const Result diagonal = determinant(byRows({{1, 1}, {1, notANumber}}), 2);
    EXPECT_EQ(diagonal.status, 0);
    EXPECT_TRUE(std::isnan(diagonal.value));
}

TEST(MDeterminant, LeavesTheTableAndIsOneForNothing)
{
    const Owned<matrix> a = byRows({{2, 3}, {4, 4}});
    determinant(a, 2);
    EXPECT_THAT(cellsOf(a), SameBits({2, 4, 3, 4}));
    expectResult(determinant(filled(0, 0, 0.0), 0), 1.0, 0);
}

TEST(MLogDeterminant, IsTheLogarithmOfAPositiveDeterminant)
{
    EXPECT_THAT(M_LogDeterminant(byRows({{2, 0}, {0, 3}}), 2),
                SameBits(logarithm(2.0) + logarithm(3.0) + logarithm(1.0)));
    // An odd number of negative pivots and of exchanges.
    EXPECT_THAT(M_LogDeterminant(byRows({{0, -2}, {3, 0}}), 2), SameBits(logarithm(3.0) + logarithm(2.0)));
    EXPECT_THAT(M_LogDeterminant(byRows({{-2, 0}, {0, -3}}), 2), SameBits(logarithm(2.0) + logarithm(3.0)));
    EXPECT_THAT(M_LogDeterminant(filled(0, 0, 0.0), 0), SameBits(0.0));
}

TEST(MLogDeterminant, IsMissingForANegativeDeterminantAndAZeroRow)
{
    EXPECT_THAT(M_LogDeterminant(byRows({{0, 1}, {1, 0}}), 2), SameBits(M));
    EXPECT_THAT(M_LogDeterminant(byRows({{-2, 0}, {0, 3}}), 2), SameBits(M));
    EXPECT_THAT(M_LogDeterminant(byRows({{1, 2}, {0, 0}}), 2), SameBits(M));
}

TEST(MLogDeterminant, HasNoLimits)
{
    const Owned<matrix> large = byRows({{1e300, 0}, {0, 1e300}});
    EXPECT_THAT(M_LogDeterminant(large, 2), SameBits(logarithm(1e300) + logarithm(1e300)));
    const Owned<matrix> small = byRows({{1e-300, 0}, {0, 1e-300}});
    EXPECT_THAT(M_LogDeterminant(small, 2), SameBits(logarithm(1e-300) + logarithm(1e-300)));
}

TEST(MLogDeterminant, GoesOnWithoutAPivotOnTheTableAsItIs)
{
    // The determinant itself is 0.0 with status 1 for all of these.
    EXPECT_TRUE(std::isnan(M_LogDeterminant(byRows({{notANumber, 1}, {notANumber, 2}}), 2)));
    EXPECT_THAT(M_LogDeterminant(byRows({{notANumber, 1}, {notANumber, -2}}), 2), SameBits(M));
    EXPECT_THAT(M_LogDeterminant(byRows({{notANumber, 1, 1}, {notANumber, 0, 1}, {notANumber, 1, 5}}), 3),
                SameBits(0.0));
}

TEST(MLogDeterminant, LeavesTheTable)
{
    const Owned<matrix> a = byRows({{2, 3}, {4, 4}});
    M_LogDeterminant(a, 2);
    EXPECT_THAT(cellsOf(a), SameBits({2, 4, 3, 4}));
}

TEST(MDeterminantTriang, IsTheProductOfTheDiagonalAlone)
{
    expectResult(triangular(byRows({{2, 9}, {9, 3}}), 2), exponential(logarithm(2.0) + logarithm(3.0)), 0);
    expectResult(triangular(byRows({{-2, 9}, {9, 3}}), 2), -exponential(logarithm(2.0) + logarithm(3.0)), 0);
    expectResult(triangular(byRows({{-2, 9}, {9, -3}}), 2), exponential(logarithm(2.0) + logarithm(3.0)), 0);
    expectResult(triangular(filled(0, 0, 0.0), 0), 1.0, 0);
}

TEST(MDeterminantTriang, IsZeroForAZeroOnTheDiagonal)
{
    expectResult(triangular(byRows({{-2, 9}, {9, -0.0}}), 2), 0.0, 0);
    expectResult(triangular(byRows({{0, 9}, {9, notANumber}}), 2), 0.0, 0);
}

TEST(MDeterminantTriang, HasNoLimitsUnlikeTheFullOne)
{
    expectResult(triangular(byRows({{1e300, 0}, {0, 1e300}}), 2), inf, 0);
    expectResult(triangular(byRows({{-1e300, 0}, {0, 1e300}}), 2), -inf, 0);
    const double below = exponential(-708.0) * (1.0 - 1e-12);
    expectResult(triangular(column({below}), 1), exponential(logarithm(below)), 0);
    expectResult(determinant(column({below}), 1), 0.0, 0);
}

TEST(MDeterminantTriang, CountsACellOutsideTheTableAsANegativeOne)
{
    expectResult(triangular(column({5.0}), 2), -exponential(logarithm(5.0) + logarithm(1.0)), 0);
}

TEST(Determinants, HaveFlatForms)
{
    Guarded<double> a{2, 4, 3, 4};
    short status = 7;
    EXPECT_THAT(VB_M_Determinant(a, 2, &status), SameBits(determinant(byRows({{2, 3}, {4, 4}}), 2).value));
    EXPECT_EQ(status, 0);
    EXPECT_THAT(Cpp_M_LogDeterminant(a, 2), SameBits(M));
    EXPECT_THAT(VB_M_DeterminantTriang(a, 2, &status), SameBits(exponential(logarithm(2.0) + logarithm(4.0))));
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(a.untouched());

    Guarded<double> huge{1e300, 0, 0, 1e300};
    EXPECT_THAT(VB_M_Determinant(huge, 2, &status), SameBits(positiveTwin));
    EXPECT_EQ(status, -1);
    Guarded<double> zeroRow{1, 0, 2, 0};
    EXPECT_THAT(VB_M_Determinant(zeroRow, 2, &status), SameBits(0.0));
    EXPECT_EQ(status, -1);
}

} // namespace
} // namespace vecmat::test
