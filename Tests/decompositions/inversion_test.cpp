// The inverse of a square table, and its twin over columns.
#include "decompositions/inversion.h"

#include "decompositions/crout_reference.h"
#include "decompositions/residuals.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double smallThreshold = 2.220446049250313e-16;

struct Inversion
{
    int result;
    short status;
    std::vector<double> out;
};

/// The inverse of all of `a` over `leftover` cells, with a status of 5 before.
Inversion inverted(matrix* a, double tol, double leftover = 77.0)
{
    const Owned<matrix> out = filled(a->nRows, a->nRows, leftover);
    short status = 5;
    const int result = a->inverse1(out, status, tol);
    return {result, status, cellsOf(out)};
}

int resultFor(double pivot, double tol)
{
    return inverted(column({pivot}), tol).result;
}

std::vector<double> referenceOf(const matrix* a, double tol, Tie tie = Tie::last)
{
    const Owned<matrix> out = filled(a->nRows, a->nRows, 77.0);
    referenceInverse(*a, a->nRows, tol, *out, tie);
    return cellsOf(out);
}

Inversion invertedColumns(TableColumns& a, int n, double tol)
{
    const Owned<matrix> out = filled(n, n, 77.0);
    const int result = Inverse1SPV(a, out, n, a.count(), 12345, tol);
    return {result, 0, cellsOf(out)};
}

TEST(Inverse1, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(701);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 24; ++n) {
        const std::size_t count = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
        const Owned<matrix> a = table(n, n, n % 2 == 0 ? data.normals(count) : data.wholes(count, -2, 2));
        const Inversion inverse = inverted(a, 0.0);
        EXPECT_THAT(inverse.out, SameBits(referenceOf(a, 0.0))) << n;
    }
}

TEST(Inverse1, HasThoseBitsForNaNAndInfinityToo)
{
    RandomData data(702);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const int n = data.integer(1, 6);
        const std::size_t count = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
        const Owned<matrix> a = table(n, n, data.withSpecials(data.wholes(count, -2, 2), 0.15));
        EXPECT_THAT(inverted(a, -1.0).out, SameBits(referenceOf(a, -1.0))) << round;
    }
}

TEST(Inverse1, TakesTheLastOfEqualCandidatesForThePivot)
{
    // All of column 1 are equal candidates after scaling; the order of the rows shows in the rounding.
    const Owned<matrix> a = byRows({{0.1, 0.05, 0.03}, {0.3, 0.1, 0.3}, {0.7, 0.7, 0.2}});
    EXPECT_THAT(inverted(a, 0.0).out, SameBits(referenceOf(a, 0.0, Tie::last)));
    EXPECT_THAT(inverted(a, 0.0).out, testing::Not(SameBits(referenceOf(a, 0.0, Tie::first))));
}

TEST(Inverse1, TakesFromTheToleranceNothingButItsSign)
{
    // 1e-9 lies between the two thresholds.
    for (const double tol : {1e-300, 1e-12, 1.0, inf, notANumber, 5e-324})
        EXPECT_EQ(resultFor(1e-9, tol), -1) << tol;
    for (const double tol : {0.0, -0.0, -1.0, -inf})
        EXPECT_EQ(resultFor(1e-9, tol), 0) << tol;
}

TEST(Inverse1, RefusesAPivotEqualToTheThreshold)
{
    EXPECT_EQ(resultFor(1e-8, 1.0), -1);
    EXPECT_EQ(resultFor(std::nextafter(1e-8, 1.0), 1.0), 0);
    EXPECT_EQ(resultFor(-1e-8, 1.0), -1);
    EXPECT_EQ(resultFor(smallThreshold, 0.0), -1);
    EXPECT_EQ(resultFor(std::nextafter(smallThreshold, 1.0), 0.0), 0);
}

TEST(Inverse1, RefusesASmallPivotInAnyColumn)
{
    EXPECT_EQ(inverted(byRows({{1e-8, 0, 0}, {0, 1, 0}, {0, 0, 1}}), 1.0).result, -1);
    EXPECT_EQ(inverted(byRows({{1, 0, 0}, {0, 1e-8, 0}, {0, 0, 1}}), 1.0).result, -1);
    EXPECT_EQ(inverted(byRows({{1, 0, 0}, {0, 1, 0}, {0, 0, 1e-8}}), 1.0).result, -1);
    EXPECT_EQ(inverted(byRows({{1, 2}, {2, 4}}), 0.0).result, -1);
}

TEST(Inverse1, LeavesTheResultAndSetsTheStatusWhereItFails)
{
    const Inversion singular = inverted(byRows({{1, 2}, {2, 4}}), 1.0);
    EXPECT_EQ(singular.status, -1);
    EXPECT_THAT(singular.out, SameBits({77, 77, 77, 77}));
    const Inversion zeroRow = inverted(byRows({{1, 2}, {0, -0.0}}), 1.0);
    EXPECT_EQ(zeroRow.result, -1);
    EXPECT_EQ(zeroRow.status, -1);
    EXPECT_THAT(zeroRow.out, SameBits({77, 77, 77, 77}));
}

TEST(Inverse1, DoesNotClearTheStatusOnSuccess)
{
    const Inversion inverse = inverted(byRows({{2, 0}, {0, 4}}), 1.0);
    EXPECT_EQ(inverse.result, 0);
    EXPECT_EQ(inverse.status, 5);
    EXPECT_THAT(inverse.out, SameBits({0.5, 0, 0, 0.25}));
}

TEST(Inverse1, WorksOnACopy)
{
    const Owned<matrix> a = byRows({{0, 2}, {4, 1}});
    const std::vector<double> before = cellsOf(a);
    inverted(a, 1.0);
    EXPECT_THAT(cellsOf(a), SameBits(before));
    // So that the result may take the place of the table.
    short status = 0;
    EXPECT_EQ(a->inverse1(a, status, 1.0), 0);
    EXPECT_THAT(cellsOf(a), SameBits({-0.125, 0.5, 0.25, 0.0}));
}

TEST(Inverse1, IsOfTheOrderOfTheRows)
{
    // A further column is not used.
    EXPECT_THAT(inverted(byRows({{2, 0, 9}, {0, 4, 9}}), 1.0).out, SameBits({0.5, 0, 0, 0.25}));
    // A column that is not there reads -1.0, also after it has been written.
    const Owned<matrix> narrow = byColumns({{2.0, 1.0}});
    const Inversion inverse = inverted(narrow, 1.0);
    EXPECT_EQ(inverse.result, 0);
    EXPECT_THAT(inverse.out, SameBits(referenceOf(narrow, 1.0)));
    // By hand: the rows are exchanged, L has 2 below the diagonal, and U has -1 wherever it reads column 2.
    EXPECT_THAT(inverse.out, SameBits({-1, -1, 3, 2}));
}

TEST(Inverse1, OfNothingSucceeds)
{
    const Inversion inverse = inverted(filled(0, 0, 0.0), 1.0);
    EXPECT_EQ(inverse.result, 0);
    EXPECT_EQ(inverse.status, 5);
}

TEST(Inverse1, DropsCellsThatDoNotFitTheResult)
{
    const Owned<matrix> a = byRows({{2, 0, 0}, {0, 4, 0}, {0, 0, 8}});
    const Owned<matrix> out = filled(3, 2, 0.0);
    short status = 0;
    EXPECT_EQ(a->inverse1(out, status, 1.0), 0);
    EXPECT_THAT(cellsOf(out), SameBits({0.5, 0, 0, 0, 0.25, 0}));
}

TEST(Inverse1, TakesThePivotFromRow1WhereNoCandidateCompares)
{
    const Inversion inverse = inverted(byRows({{notANumber, 1}, {notANumber, 2}}), 1.0);
    EXPECT_EQ(inverse.result, 0);
    EXPECT_TRUE(std::isnan(inverse.out[0]));
}

TEST(Inverse1, PassesResidualTests)
{
    RandomData data(703);
    SCOPED_TRACE(data);
    std::vector<TestMatrix> matrices;
    for (const int n : {1, 2, 5, 21, 60, 200}) {
        matrices.push_back(randomMatrix(n, data));
        matrices.push_back(gradedMatrix(n, data));
        matrices.push_back(hilbertMatrix(n, 1e-4));
    }
    for (const int n : {3, 7, 8})
        matrices.push_back(hilbertMatrix(n));
    for (const int n : {6, 21, 50, 200})
        matrices.push_back(wilkinsonMatrix(n));
    for (const int n : {5, 30, 200})
        matrices.push_back(growthMatrix(n));
    for (const TestMatrix& m : matrices) {
        const Owned<matrix> a = table(m.n, m.n, m.cells);
        const Inversion inverse = inverted(a, 0.0);
        ASSERT_EQ(inverse.result, 0) << m.name << m.n;
        const Wide wide(m.n, m.n, m.cells);
        const Wide wideInverse(m.n, m.n, inverse.out);
        EXPECT_LT(residual(wide * wideInverse - Wide::identity(m.n), wide.norm() * wideInverse.norm()), residualBound)
            << m.name << m.n;
    }
}

TEST(Inverse1SPV, HasTheBitsOfThePlainForm)
{
    RandomData data(704);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 12; ++n) {
        const std::size_t count = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
        const std::vector<double> cells = data.withSpecials(data.normals(count), n % 3 == 0 ? 0.02 : 0.0);
        TableColumns columns(n, n, cells);
        for (const double tol : {0.0, 1.0}) {
            const Inversion plain = inverted(table(n, n, cells), tol);
            const Inversion inverse = invertedColumns(columns, n, tol);
            EXPECT_EQ(inverse.result, plain.result);
            EXPECT_THAT(inverse.out, SameBits(plain.out)) << n;
        }
        EXPECT_THAT(columns.cells(), SameBits(cells));
    }
}

TEST(Inverse1SPV, TakesAColumnThatIsMissingForOneWithoutCells)
{
    TableColumns all(3, 3, {4, 1, 2, 1, 5, 1, 2, 1, 6}), empty({{4, 1, 2}, {}, {2, 1, 6}});
    const Owned<matrix> out = filled(3, 3, 77.0), expected = filled(3, 3, 77.0), atTheEnd = filled(3, 3, 77.0);
    matrix* const middle = std::exchange(all.get()[1], nullptr);
    EXPECT_EQ(Inverse1SPV(all, out, 3, 3, 3, 1e-12), Inverse1SPV(empty, expected, 3, 3, 3, 1e-12));
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(expected)));
    all.get()[1] = middle;
    TableColumns two({{4, 1, 2}, {1, 5, 1}, {}});
    EXPECT_EQ(Inverse1SPV(all, out, 3, 2, 3, 1e-12), Inverse1SPV(two, atTheEnd, 3, 3, 3, 1e-12));
    EXPECT_THAT(cellsOf(out), SameBits(cellsOf(atTheEnd)));
}

TEST(Inverse1SPV, FailsWithTheResultAsItWas)
{
    TableColumns singular(2, 2, {1, 2, 2, 4});
    EXPECT_EQ(invertedColumns(singular, 2, 1.0).result, -1);
    EXPECT_THAT(invertedColumns(singular, 2, 1.0).out, SameBits({77, 77, 77, 77}));
    TableColumns between(1, 1, {1e-9});
    EXPECT_EQ(invertedColumns(between, 1, 1e-300).result, -1);
    EXPECT_EQ(invertedColumns(between, 1, -1e300).result, 0);
}

TEST(Inverse1SPV, WorksOnTheLeadingBlock)
{
    TableColumns larger(3, 3, {2, 0, 9, 0, 4, 9, 9, 9, 9});
    EXPECT_THAT(invertedColumns(larger, 2, 1.0).out, SameBits({0.5, 0, 0, 0.25}));
}

TEST(Inverse1SPV, TakesAColumnThatIsNotThereForOneOfMinusOnes)
{
    TableColumns one(2, 1, {2, 1});
    EXPECT_THAT(invertedColumns(one, 2, 1.0).out, SameBits(referenceOf(byColumns({{2, 1}}), 1.0)));
}

TEST(VBMInverse1, WritesTheInverseAndReturnsTheStatus)
{
    Guarded<double> a{2, 0, 0, 4};
    Guarded<double> out(4, 77.0);
    EXPECT_EQ(VB_M_Inverse1(a, 2, out, 1.0), 0);
    EXPECT_THAT(out.values(), SameBits({0.5, 0, 0, 0.25}));
    EXPECT_TRUE(a.untouched());
}

TEST(VBMInverse1, LeavesTheArraysWhereItFails)
{
    Guarded<double> a{1, 2, 2, 4};
    Guarded<double> out(4, 77.0);
    EXPECT_EQ(VB_M_Inverse1(a, 2, out, 1.0), -1);
    EXPECT_TRUE(out.untouched());
    EXPECT_TRUE(a.untouched());
}

} // namespace
} // namespace vecmat::test
