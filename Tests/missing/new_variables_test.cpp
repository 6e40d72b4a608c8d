#include "missing/new_variables.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <cmath>
#include <limits>

namespace vecmat::test {
namespace {

constexpr double limit = 2.220446049250313e-16;
const double aboveLimit = std::nextafter(limit, 1.0);

using Cells = std::vector<double>;

struct Result
{
    Cells variances;
    Cells covariances;
};

/// The plain steps, over square arrays; Q is `rows` by `cols`, both column after column.
Result plainly(int rows, int cols, const Cells& Q, const Cells& C)
{
    const auto q = [&](int i, int j) { return Q[static_cast<std::size_t>(i + rows * j)]; };
    const auto c = [&](int j, int k) { return C[static_cast<std::size_t>(j + cols * k)]; };
    const auto n = static_cast<std::size_t>(rows);
    Result result{Cells(n), Cells(n * n)};
    for (int i = 0; i < rows; ++i) {
        double variance = 0.0;
        for (int j = 0; j < cols; ++j) {
            variance += q(i, j) * q(i, j) * c(j, j);
            for (int k = 0; k < j; ++k)
                variance += 2.0 * q(i, j) * q(i, k) * c(j, k);
        }
        result.variances[static_cast<std::size_t>(i)] = variance;
    }
    for (int i = 0; i < rows; ++i)
        for (int m = 0; m < rows; ++m) {
            const auto vi = result.variances[static_cast<std::size_t>(i)];
            const auto vm = result.variances[static_cast<std::size_t>(m)];
            double& cell = result.covariances[static_cast<std::size_t>(i + rows * m)];
            if (i == m) {
                cell = vi;
                continue;
            }
            const auto t = [&](int j) { return i < m ? q(i, j) + q(m, j) : q(m, j) + q(i, j); };
            double sum = 0.0;
            for (int j = 0; j < cols; ++j) {
                if (!(std::fabs(t(j)) > limit))
                    continue;
                const double square = t(j) * t(j);
                sum += 0.5 * square * c(j, j);
                for (int k = 0; k < j; ++k)
                    sum += t(k) * t(j) * c(j, k);
            }
            cell = i < m ? sum - 0.5 * (vi + vm) : sum - 0.5 * (vm + vi);
        }
    return result;
}

/// The function, and its flat form, over tables of just the sizes.
Result newVariables(int rows, int cols, const Cells& Q, const Cells& C)
{
    RandomData data(491);
    const auto n = static_cast<std::size_t>(rows);
    auto variances = table(rows, 1, data.leftovers(n));
    auto covariances = table(rows, rows, data.leftovers(n * n));
    ComputeNewVar(table(rows, cols, Q), rows, cols, table(cols, cols, C), variances, covariances);
    Guarded<double> flatQ(Q);
    Guarded<double> flatC(C);
    Guarded<double> flatVariances(data.leftovers(n));
    Guarded<double> flatCovariances(data.leftovers(n * n));
    VB_ComputeNewVar(flatQ, rows, cols, flatC, flatVariances, flatCovariances);
    EXPECT_THAT(flatVariances.values(), SameBits(cellsOf(variances)));
    EXPECT_THAT(flatCovariances.values(), SameBits(cellsOf(covariances)));
    EXPECT_TRUE(flatQ.untouched() && flatC.untouched());
    return {cellsOf(variances), cellsOf(covariances)};
}

void expectSame(const Result& actual, const Result& expected)
{
    EXPECT_THAT(actual.variances, SameBits(expected.variances));
    EXPECT_THAT(actual.covariances, SameBits(expected.covariances));
}

/// A covariance table: a' a for random a.
Cells randomCovariances(RandomData& data, int order)
{
    const auto n = static_cast<std::size_t>(order);
    const Cells a = data.normals(n * n);
    Cells C(n * n, 0.0);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j)
            for (std::size_t k = 0; k < n; ++k)
                C[i + n * j] += a[k + n * i] * a[k + n * j];
    return C;
}

TEST(ComputeNewVar, SmallExample)
{
    // x + y and x - y, with var(x) = 4, var(y) = 9, cov(x, y) = 2.
    const Result result = newVariables(2, 2, {1, 1, 1, -1}, {4, 2, 2, 9});
    EXPECT_THAT(result.variances, SameBits({17.0, 9.0}));
    EXPECT_THAT(result.covariances, SameBits({17.0, -5.0, -5.0, 9.0}));
}

TEST(ComputeNewVar, AgreesWithTheStepsToTheLastBit)
{
    RandomData data(492);
    SCOPED_TRACE(data);
    for (int trial = 0; trial < 25; ++trial) {
        const int rows = data.integer(1, 5);
        const int cols = data.integer(1, 6);
        const Cells Q = data.normals(static_cast<std::size_t>(rows * cols));
        const Cells C = randomCovariances(data, cols);
        expectSame(newVariables(rows, cols, Q, C), plainly(rows, cols, Q, C));
    }
}

TEST(ComputeNewVar, IsTheProductUpToRounding)
{
    RandomData data(493);
    SCOPED_TRACE(data);
    const int rows = 4;
    const int cols = 6;
    const Cells Q = data.normals(24);
    const Cells C = randomCovariances(data, cols);
    const Result result = newVariables(rows, cols, Q, C);
    int differing = 0;
    for (std::size_t i = 0; i < 4; ++i)
        for (std::size_t m = 0; m < 4; ++m) {
            double product = 0.0;
            for (std::size_t j = 0; j < 6; ++j)
                for (std::size_t k = 0; k < 6; ++k)
                    product += Q[i + 4 * j] * C[j + 6 * k] * Q[m + 4 * k];
            EXPECT_NEAR(result.covariances[i + 4 * m], product, 1e-11);
            differing += sameBits(result.covariances[i + 4 * m], product) ? 0 : 1;
        }
    EXPECT_GT(differing, 0); // the polarisation shows in the last bits
}

TEST(ComputeNewVar, ReadsTheLowerTriangleOnly)
{
    const Cells Q = {1, 2, 3, 4};
    expectSame(newVariables(2, 2, Q, {4, 2, 1e99, 9}), newVariables(2, 2, Q, {4, 2, 2, 9}));
}

TEST(ComputeNewVar, OppositeCombinationsLeaveTheHalfSum)
{
    RandomData data(494);
    SCOPED_TRACE(data);
    const Cells q = data.normals(5);
    Cells Q;
    for (const double x : q) {
        Q.push_back(x);
        Q.push_back(-x);
    }
    const Result result = newVariables(2, 5, Q, randomCovariances(data, 5));
    const double half = -0.5 * (result.variances[0] + result.variances[1]);
    EXPECT_THAT(result.covariances[1], SameBits(half));
    EXPECT_THAT(result.covariances[2], SameBits(half));
}

// t is (limit, 1) or just above: a negligible first coefficient opens no term of its own, and yet appears in the cross
// term of the second.
TEST(ComputeNewVar, NegligibleCoefficientKeepsItsTermsInLaterColumns)
{
    const Cells C = {1e20, 1e10, 1e10, 1.0};
    const Cells atLimit = {limit, 0.0, 0.5, 0.5}; // rows (limit, 0.5) and (0, 0.5)
    const Result skipped = newVariables(2, 2, atLimit, C);
    const double halfSum = 0.5 * (skipped.variances[0] + skipped.variances[1]);
    EXPECT_THAT(skipped.covariances[1], SameBits(0.5 * (1.0 * 1.0) * 1.0 + limit * 1.0 * 1e10 - halfSum));
    expectSame(skipped, plainly(2, 2, atLimit, C));

    const Cells above = {aboveLimit, 0.0, 0.5, 0.5};
    const Result counted = newVariables(2, 2, above, C);
    const double sum = 0.5 * (aboveLimit * aboveLimit) * 1e20 + 0.5 * (1.0 * 1.0) * 1.0 + aboveLimit * 1.0 * 1e10;
    EXPECT_THAT(counted.covariances[1], SameBits(sum - 0.5 * (counted.variances[0] + counted.variances[1])));
    EXPECT_FALSE(sameBits(counted.covariances[1], skipped.covariances[1]));

    // As a later column it is dropped with all its cross terms.
    const Cells second = {0.5, 0.5, -limit, 0.0};
    const Result dropped = newVariables(2, 2, second, {1.0, 1e10, 1e10, 1e20});
    const double half = 0.5 * (dropped.variances[0] + dropped.variances[1]);
    EXPECT_THAT(dropped.covariances[1], SameBits(0.5 * (1.0 * 1.0) * 1.0 - half));
}

TEST(ComputeNewVar, NaNIsNotAboveTheLimit)
{
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const Cells Q = {1, 1, notANumber, 0};
    const Cells C = {1, 0, 0, 1};
    const Result result = newVariables(2, 2, Q, C);
    EXPECT_THAT(result.variances, SameBits({notANumber, 1.0}));
    expectSame(result, plainly(2, 2, Q, C));
}

TEST(ComputeNewVar, MissingCellsAreNumbers)
{
    const Cells Q = {1, 0.5};
    expectSame(newVariables(2, 1, Q, {M}), plainly(2, 1, Q, {M}));
    EXPECT_THAT(newVariables(1, 1, {1}, {M}).variances, SameBits({M}));
}

TEST(ComputeNewVar, WithoutRowsOnlyTheCovariancesArePrepared)
{
    auto covariances = filled(2, 2, 77.0);
    auto variances = column({66});
    const matrix* const before = covariances.get();
    ComputeNewVar(column({1}), 0, 1, column({1}), variances, covariances);
    ComputeNewVar(column({1}), -1, 1, column({1}), variances, covariances);
    EXPECT_EQ(covariances.get(), before);
    EXPECT_THAT(cellsOf(covariances), SameBits({77.0, 77.0, 77.0, 77.0}));
    EXPECT_THAT(cellsOf(variances), SameBits({66.0}));
    Owned<matrix> made;
    ComputeNewVar(nullptr, 0, 1, nullptr, nullptr, made);
    ASSERT_NE(made.get(), nullptr);
    EXPECT_EQ(made->nElems, 0u);
    VB_ComputeNewVar(nullptr, 0, 0, nullptr, nullptr, nullptr);
}

TEST(ComputeNewVar, WithoutColumnsEverythingIsZero)
{
    for (const int cols : {0, -1}) {
        auto variances = column({66, 67});
        auto covariances = filled(2, 2, 77.0);
        ComputeNewVar(column({1, 1}), 2, cols, column({1}), variances, covariances);
        EXPECT_THAT(cellsOf(variances), SameBits({0.0, 0.0}));
        EXPECT_THAT(cellsOf(covariances), SameBits({0.0, 0.0, 0.0, 0.0}));
    }
}

TEST(ComputeNewVar, SizesItsCovariancesAndKeepsTheStrideOfALargerTable)
{
    const Cells C = {4, 2, 2, 9};
    auto Q = byRows({{1, 1}, {1, -1}});
    auto small = column({77});
    auto variances = column({66, 66});
    ComputeNewVar(Q, 2, 2, table(2, 2, C), variances, small);
    EXPECT_EQ(small->nRows, 2);
    EXPECT_THAT(cellsOf(small), SameBits({17.0, -5.0, -5.0, 9.0}));
    auto large = filled(3, 3, 77.0);
    ComputeNewVar(Q, 2, 2, table(2, 2, C), variances, large);
    EXPECT_THAT(cellsOf(large), SameBits({17.0, -5.0, 0.0, -5.0, 9.0, 77.0, 77.0, 77.0, 77.0}));
    auto corner = byRows({{1, 1, 5}, {1, -1, 5}, {5, 5, 5}});
    auto cornerC = byRows({{4, 5, 5}, {2, 9, 5}, {5, 5, 5}});
    auto again = filled(2, 2, 77.0);
    ComputeNewVar(corner, 2, 2, cornerC, variances, again);
    EXPECT_THAT(cellsOf(again), SameBits({17.0, -5.0, -5.0, 9.0}));
}

TEST(ComputeNewVar, CellsOutsideATableAreMinusOne)
{
    // The coefficients of the second variable and its covariances read -1.0, and so does a variance without a place.
    auto variances = column({66});
    auto covariances = filled(2, 2, 77.0);
    ComputeNewVar(column({1, 3}), 2, 2, column({4}), variances, covariances);
    const Result expected = plainly(2, 2, {1, 3, -1, -1}, {4, -1, -1, -1});
    EXPECT_THAT(cellsOf(variances), SameBits({expected.variances[0]}));
    const double sum = expected.covariances[2] + 0.5 * (expected.variances[0] + expected.variances[1]);
    EXPECT_THAT(cellsOf(covariances), SameBits({expected.variances[0], sum - 0.5 * (expected.variances[0] - 1.0),
                                                sum - 0.5 * (expected.variances[0] - 1.0), -1.0}));
}

} // namespace
} // namespace vecmat::test
