// Eigenvalues of symmetric tables: the steps in their order, what departs from the published method, the failures.
#include "decompositions/eigen_cases.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

using testing::Not;

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double negligibleBelow = 2.220446049250313e-16;

int mostPasses(const std::vector<double>& cells, int n)
{
    EigenVariant patient;
    patient.passLimit = 1000;
    const ReferenceEigen found = eigenBySteps(cells, n, patient);
    return *std::max_element(found.passes.begin(), found.passes.end());
}

TEST(Eigen, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(8101);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 24; ++n) {
        const std::vector<double> cells =
            n % 2 == 0 ? data.normals(squareCount(n)) : data.wholes(squareCount(n), -2, 2);
        SCOPED_TRACE(n);
        expectSame(decomposed(n, cells), eigenBySteps(cells, n));
        expectSame(decomposed(n, cells, -1), sortedBySteps(cells, n));
    }
}

TEST(Eigen, HasThoseBitsForCellsOfAnySizeAndForNaNAndInfinity)
{
    RandomData data(8102);
    SCOPED_TRACE(data);
    int failures = 0;
    int successes = 0;
    for (int round = 0; round < 600; ++round) {
        const int n = data.integer(1, 7);
        std::vector<double> cells = data.wholes(squareCount(n), -2, 2);
        if (round % 3 == 0)
            for (double& cell : cells)
                cell = std::ldexp(cell, data.integer(-600, 600));
        else if (round % 3 == 1)
            for (double& cell : cells)
                cell = data.chance(0.05) ? (data.chance(0.5) ? inf : notANumber) : cell;
        else
            for (double& cell : cells)
                cell = std::ldexp(cell, 1008);
        SCOPED_TRACE(round);
        const ReferenceEigen expected = eigenBySteps(cells, n);
        expectSame(decomposed(n, cells), expected);
        ++(expected.status == 0 ? successes : failures);
    }
    EXPECT_GT(failures, 20);
    EXPECT_GT(successes, 200);
}

TEST(Eigen, PassesARowOverOnlyWhereItIsExactlyZero)
{
    // A row of denormal numbers is reflected, although the element beside the diagonal is negligible: the vectors
    // show it.
    const std::vector<double> tiny = symmetricOf(3, {1, 0, 2, 0, 1e-310, 3});
    const Decomposition reflected = decomposed(3, tiny);
    expectSame(reflected, eigenBySteps(tiny, 3));
    EXPECT_THAT(reflected.vectors, Not(SameBits({1, 0, 0, 0, 1, 0, 0, 0, 1})));
    const Decomposition passedOver = decomposed(3, symmetricOf(3, {1, 0, 2, 0, 0, 3}));
    EXPECT_THAT(passedOver.vectors, SameBits({1, 0, 0, 0, 1, 0, 0, 0, 1}));
}

TEST(Eigen, BranchesOnTheLargerTermAndUsesNoHypotenuseRoutine)
{
    RandomData data(8103);
    SCOPED_TRACE(data);
    const std::vector<double> cells = data.normals(squareCount(12));
    EigenVariant secondEdition;
    secondEdition.hypotenuse = true;
    EXPECT_THAT(decomposed(12, cells).values, Not(SameBits(eigenBySteps(cells, 12, secondEdition).values)));
}

TEST(Eigen, OfOneCellIsThatCell)
{
    for (const double x : {3.5, -2.0, 0.0, -0.0, 1e300, inf}) {
        const Decomposition one = decomposed(1, {x}, -1);
        EXPECT_EQ(one.status, 0);
        EXPECT_THAT(one.values, SameBits({x}));
        EXPECT_THAT(one.vectors, SameBits({1.0}));
    }
}

TEST(Eigen, OfNoCellsMakesEmptyTables)
{
    for (const int n : {0, -1})
        for (const short sort : {0, -1}) {
            Owned<matrix> values;
            Owned<matrix> vectors;
            EXPECT_EQ(M_Eigen(byRows({{5}}), values, vectors, n, sort), 0);
            ASSERT_NE(values.get(), nullptr);
            ASSERT_NE(vectors.get(), nullptr);
            EXPECT_EQ(values->nElems, 0u);
            EXPECT_EQ(vectors->nElems, 0u);
        }
    const Owned<matrix> a = filled(2, 2, 5.0);
    Owned<matrix> values = filled(3, 1, 7.0);
    Owned<matrix> vectors = filled(3, 3, 8.0);
    EXPECT_EQ(M_Eigen(a, values, vectors, 0, -1), 0);
    EXPECT_THAT(cellsOf(values), SameBits({7, 7, 7}));
    EXPECT_THAT(cellsOf(vectors), SameBits(std::vector<double>(9, 8.0)));
}

TEST(Eigen, OfADiagonalTableKeepsTheOrderOfTheInputUnlessSorted)
{
    const std::vector<double> diagonal = symmetricOf(4, {2, 0, -7, 0, 0, 5, 0, 0, 0, 2});
    const Decomposition asFound = decomposed(4, diagonal);
    EXPECT_THAT(asFound.values, SameBits({2, -7, 5, 2}));
    EXPECT_THAT(asFound.vectors, SameBits({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
    EXPECT_EQ(mostPasses(diagonal, 4), 0);

    // Descending by signed value; of the equal ones the first found comes first.
    const Decomposition sorted = decomposed(4, diagonal, -1);
    EXPECT_THAT(sorted.values, SameBits({5, 2, 2, -7}));
    EXPECT_THAT(sorted.vectors, SameBits({0, 0, 1, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 1, 0, 0}));
}

TEST(Eigen, SortsForExactlyMinusOneOnly)
{
    const std::vector<double> diagonal = symmetricOf(3, {1, 0, 3, 0, 0, 2});
    for (const short sort : {short{0}, short{1}, short{-2}, short{2}, std::numeric_limits<short>::min()})
        EXPECT_THAT(decomposed(3, diagonal, sort).values, SameBits({1, 3, 2})) << sort;
    EXPECT_THAT(decomposed(3, diagonal, -1).values, SameBits({3, 2, 1}));
}

TEST(Eigen, ReadsTheLowerTriangleAlone)
{
    RandomData data(8104);
    SCOPED_TRACE(data);
    const int n = 7;
    std::vector<double> cells = data.normals(squareCount(n));
    const Decomposition before = decomposed(n, cells, -1);
    for (int i = 0; i < n; ++i)
        for (int j = i + 1; j < n; ++j)
            cells[static_cast<std::size_t>(i + j * n)] = data.chance(0.2) ? notANumber : data.normal();
    const Decomposition after = decomposed(n, cells, -1);
    EXPECT_EQ(after.status, 0);
    EXPECT_THAT(after.values, SameBits(before.values));
    EXPECT_THAT(after.vectors, SameBits(before.vectors));
}

TEST(Eigen, RefusesAMissingCellAnywhereWithNothingTouched)
{
    for (std::size_t k = 0; k < 9; ++k) {
        std::vector<double> cells = symmetricOf(3, {1, 2, 3, 4, 5, 6});
        cells[k] = M;
        const Owned<matrix> a = table(3, 3, cells);
        Owned<matrix> none;
        Owned<matrix> values = filled(2, 1, 7.0);
        Owned<matrix> vectors = filled(4, 4, 8.0);
        matrix* const sameValues = values;
        EXPECT_EQ(M_Eigen(a, none, vectors, 3, -1), -1) << k;
        EXPECT_EQ(none.get(), nullptr);
        EXPECT_EQ(M_Eigen(a, values, none, 3, -1), -1) << k;
        EXPECT_EQ(none.get(), nullptr);
        EXPECT_EQ(values.get(), sameValues) << "the small table was not replaced";
        EXPECT_THAT(cellsOf(values), SameBits({7, 7}));
        EXPECT_THAT(cellsOf(vectors), SameBits(std::vector<double>(16, 8.0)));
        EXPECT_THAT(cellsOf(a), SameBits(cells));
    }
}

TEST(Eigen, TakesOnlyTheMissingValueItselfForMissing)
{
    // Neighbours of the missing value, NaN and infinities enter the computation.
    for (const double x : {std::nextafter(M, 0.0), std::nextafter(M, -inf), positiveTwin, -inf, notANumber})
        EXPECT_EQ(decomposed(1, {x}).status, 0) << x;
    EXPECT_EQ(decomposed(1, {M}).status, -1);
    // Nothing is read outside the corner in use.
    Owned<matrix> values;
    Owned<matrix> vectors;
    EXPECT_EQ(M_Eigen(byRows({{1, 0, M}, {0, 2, M}, {M, M, M}}), values, vectors, 2, 0), 0);
    EXPECT_THAT(cellsOf(values), SameBits({1, 2}));
}

TEST(Eigen, AnElementOfExactlyTheBoundIsNotNegligible)
{
    const auto offDiagonal = [](double x) { return decomposed(2, symmetricOf(2, {1, x, 2})); };
    const std::vector<double> unit = {1, 0, 0, 1};
    EXPECT_THAT(offDiagonal(negligibleBelow).vectors, Not(SameBits(unit)));
    EXPECT_THAT(offDiagonal(-negligibleBelow).vectors, Not(SameBits(unit)));
    EXPECT_THAT(offDiagonal(std::nextafter(negligibleBelow, 0.0)).vectors, SameBits(unit));
    EXPECT_THAT(offDiagonal(-std::nextafter(negligibleBelow, 0.0)).vectors, SameBits(unit));
}

TEST(Eigen, TakesAnElementForNegligibleByItsAbsoluteValueAlone)
{
    EigenVariant published;
    published.relativeTest = true;
    published.passLimit = 30;

    // Negligible beside its neighbours, not in absolute terms: a pass is made and turns the vectors a little.
    const std::vector<double> large = symmetricOf(2, {1e10, 1e-10, 2e10});
    EXPECT_THAT(eigenBySteps(large, 2, published).vectors, SameBits({1, 0, 0, 1}));
    EXPECT_THAT(decomposed(2, large).vectors, Not(SameBits({1, 0, 0, 1})));

    // Negligible in absolute terms, not beside its neighbours: none is made, whatever the true eigenvalues are.
    const std::vector<double> small = symmetricOf(2, {1e-17, 2e-16, 1e-17});
    EXPECT_NEAR(eigenBySteps(small, 2, published).values[0], -1.9e-16, 1e-20);
    EXPECT_THAT(decomposed(2, small).values, SameBits({1e-17, 1e-17}));
    EXPECT_THAT(decomposed(2, small).vectors, SameBits({1, 0, 0, 1}));
}

TEST(Eigen, AllowsTwentyEightPassesForAnEigenvalue)
{
    const std::vector<double> cells = needs28();
    ASSERT_EQ(mostPasses(cells, 6), 28);
    const Decomposition found = decomposed(6, cells);
    EXPECT_EQ(found.status, 0);
    expectSame(found, eigenBySteps(cells, 6));
}

TEST(Eigen, GivesUpAtTheTwentyNinthPass)
{
    struct Case
    {
        int n;
        int passes;
        std::vector<double> cells;
    };
    for (const Case& one : {Case{8, 29, needs29()}, Case{9, 30, needs30()}}) {
        SCOPED_TRACE(one.passes);
        ASSERT_EQ(mostPasses(one.cells, one.n), one.passes);
        EigenVariant published;
        published.passLimit = 30;
        ASSERT_EQ(eigenBySteps(one.cells, one.n, published).status, 0);

        // The results hold the interrupted state, unsorted. What was found before is right.
        const ReferenceEigen interrupted = eigenBySteps(one.cells, one.n);
        ASSERT_EQ(interrupted.status, -1);
        ASSERT_EQ(interrupted.passes, (std::vector<int>{0, 28}));
        for (const short sort : {0, -1}) {
            const Decomposition found = decomposed(one.n, one.cells, sort);
            EXPECT_EQ(found.status, -1);
            expectSame(found, interrupted);
            EXPECT_THAT(found.values.front(), SameBits(one.cells.front()));
        }
    }
}

TEST(Eigen, GivesUpOnNaNAndInfinity)
{
    const std::vector<double> cells = symmetricOf(3, {1, notANumber, 2, 0, 1, 3});
    EXPECT_EQ(decomposed(3, cells, -1).status, -1);
    EXPECT_EQ(decomposed(3, symmetricOf(3, {1, 2, 2, inf, 1, 3}), -1).status, -1);
    // On the diagonal of a diagonal table no test meets it.
    const Decomposition diagonal = decomposed(2, {notANumber, 0, 0, 1});
    EXPECT_EQ(diagonal.status, 0);
    EXPECT_THAT(diagonal.values, SameBits({notANumber, 1}));
}

TEST(Eigen, SortsVectorsWithTheirValuesWhereSomeAreNaN)
{
    const std::vector<double> diagonal = {notANumber, 1, notANumber, 3, -inf, 2, inf};
    const auto n = diagonal.size();
    std::vector<double> cells(n * n, 0.0);
    for (std::size_t i = 0; i < n; ++i)
        cells[i + n * i] = diagonal[i];
    const Decomposition sorted = decomposed(static_cast<int>(n), cells, -1);
    EXPECT_EQ(sorted.status, 0);
    std::vector<bool> seen(n, false);
    for (std::size_t j = 0; j < n; ++j) {
        const auto column = sorted.vectors.begin() + static_cast<std::ptrdiff_t>(n * j);
        const auto place =
            static_cast<std::size_t>(std::find(column, column + static_cast<std::ptrdiff_t>(n), 1.0) - column);
        ASSERT_LT(place, n);
        EXPECT_FALSE(seen[place]);
        seen[place] = true;
        EXPECT_THAT(sorted.values[j], SameBits(diagonal[place]));
    }
}

TEST(Eigen, WorksOnTheCornersOfLargerTables)
{
    RandomData data(8105);
    SCOPED_TRACE(data);
    const int n = 4;
    const Owned<matrix> a = table(6, 5, data.normals(30));
    const std::vector<double> corner = cornerOf(a, n, n);
    Owned<matrix> values = filled(6, 2, 7.0);
    Owned<matrix> vectors = filled(5, 6, 8.0);
    matrix* const sameValues = values;
    matrix* const sameVectors = vectors;
    EXPECT_EQ(M_Eigen(a, values, vectors, n, -1), 0);
    const ReferenceEigen expected = sortedBySteps(corner, n);
    EXPECT_EQ(values.get(), sameValues);
    EXPECT_EQ(vectors.get(), sameVectors);
    EXPECT_THAT(cornerOf(values, n, 1), SameBits(expected.values));
    EXPECT_THAT(cornerOf(vectors, n, n), SameBits(expected.vectors));

    // Beyond the corner the head of n times n cells was cleared, and no more.
    const std::vector<double> rest = cellsOf(values);
    EXPECT_THAT(std::vector<double>(rest.begin() + n, rest.end()), SameBits(std::vector<double>(8, 7.0)));
    const std::vector<double> cells = cellsOf(vectors);
    for (std::size_t k = 0; k < cells.size(); ++k) {
        const bool inCorner = k % 5 < 4 && k / 5 < 4;
        if (!inCorner) {
            EXPECT_THAT(cells[k], SameBits(k < 16 ? 0.0 : 8.0)) << k;
        }
    }
}

TEST(Eigen, ReplacesResultsThatAreTooSmall)
{
    Owned<matrix> values = filled(1, 1, 7.0);
    Owned<matrix> vectors = filled(2, 1, 8.0);
    EXPECT_EQ(M_Eigen(byRows({{2, 0}, {0, 3}}), values, vectors, 2, -1), 0);
    EXPECT_THAT(cellsOf(values), SameBits({3, 2}));
    EXPECT_THAT(cellsOf(vectors), SameBits({0, 1, 1, 0}));
}

TEST(Eigen, ComputesOnWithTheReadsOutsideASmallerTable)
{
    // Cell (2, 1) of the one-row table is its cell (1, 2); the rest reads -1.0.
    const std::vector<double> asRead = {4, 9, -1, 9, -1, -1, -1, -1, -1};
    Owned<matrix> values;
    Owned<matrix> vectors;
    EXPECT_EQ(M_Eigen(byRows({{4, 9}}), values, vectors, 3, -1), 0);
    const ReferenceEigen expected = sortedBySteps(asRead, 3);
    EXPECT_THAT(cellsOf(values), SameBits(expected.values));
    EXPECT_THAT(cellsOf(vectors), SameBits(expected.vectors));
}

} // namespace
} // namespace vecmat::test
