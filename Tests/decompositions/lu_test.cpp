// Triangular factors by Crout's method.
#include "decompositions/lu.h"

#include "decompositions/lu_calls.h"
#include "decompositions/residuals.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double tiny = std::bit_cast<double>(std::uint64_t{0x3bc79ca10c924223});

TEST(MLUDecomp, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(741);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const int n = data.integer(1, 9);
        const std::size_t count = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
        const std::vector<double> cells = round % 3 == 0   ? data.normals(count)
                                          : round % 3 == 1 ? data.wholes(count, -2, 2)
                                                           : data.withSpecials(data.wholes(count, -2, 2), 0.1);
        expectSame(factored(table(n, n, cells)), referenceOf(table(n, n, cells), n));
    }
}

TEST(MLUDecomp, HasThoseBitsWhereTheOrderIsNotThatOfTheTable)
{
    RandomData data(742);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        // Too few rows: a row runs over into the next column, also where no cell is out of range. Too few columns: -1.0
        // is read.
        const int rows = data.integer(1, 6);
        const int cols = data.integer(1, 12);
        const int n = data.integer(1, 6);
        const std::vector<double> cells = data.normals(static_cast<std::size_t>(rows * cols));
        SCOPED_TRACE(testing::Message() << rows << " by " << cols << ", order " << n);
        expectSame(factored(table(rows, cols, cells), n), referenceOf(table(rows, cols, cells), n));
    }
}

TEST(MLUDecomp, PutsTheFactorsInThePlaceOfTheTable)
{
    // Row 2 is the pivot: 4 over 4 against 2 over 3.
    const Factors lu = factored(byRows({{2, 3}, {4, 4}}));
    EXPECT_THAT(lu.cells, SameBits({4, 0.5, 4, 1}));
    EXPECT_EQ(lu.index, (std::vector<int>{2, 2}));
    EXPECT_THAT(lu.d, SameBits(-1.0));
    EXPECT_EQ(lu.status, 0);
}

TEST(MLUDecomp, ScalesTheCandidatesByTheLargestCellOfTheirRow)
{
    // Without the scales row 1 would be the pivot.
    const Factors lu = factored(byRows({{10, 1000}, {1, 1}}));
    EXPECT_EQ(lu.index, (std::vector<int>{2, 2}));
}

TEST(MLUDecomp, TakesTheLastOfEqualCandidates)
{
    const Factors lu = factored(byRows({{1, 0, 0}, {1, 1, 0}, {1, 0, 1}}));
    EXPECT_EQ(lu.index[0], 3);
    const Owned<matrix> a = byRows({{1, 0, 0}, {1, 1, 0}, {1, 0, 1}});
    EXPECT_EQ(referenceOf(a, 3, Tie::first).index[0], 1);
}

TEST(MLUDecomp, ReplacesAPivotOfZeroByATinyOne)
{
    const Factors last = factored(byRows({{1, 2}, {1, 2}}));
    EXPECT_EQ(last.status, 0);
    EXPECT_THAT(last.cells, SameBits({1, 1, 2, tiny}));
    // In an earlier column the rows below are divided by it.
    const Factors first = factored(byRows({{0, 1}, {0, 1}}));
    EXPECT_EQ(first.status, 0);
    EXPECT_THAT(first.cells, SameBits({tiny, 0, 1, 1}));
    // Anything but 0 stays, however small.
    EXPECT_THAT(factored(byRows({{5e-324}})).cells, SameBits({5e-324}));
}

TEST(MLUDecomp, LeavesTheTableWhereARowIsAllZeros)
{
    const Factors lu = factored(byRows({{1, 2}, {0, -0.0}}));
    EXPECT_EQ(lu.status, -1);
    EXPECT_THAT(lu.cells, SameBits({1, 0, 2, -0.0}));
    EXPECT_EQ(lu.index, (std::vector<int>{0, 0}));
    EXPECT_THAT(lu.d, SameBits(1.0));
    // A NaN is skipped in the search for the largest cell.
    EXPECT_EQ(factored(byRows({{1, 2}, {notANumber, 0}})).status, -1);
    EXPECT_EQ(factored(byRows({{notANumber, notANumber}, {1, 2}})).status, -1);
}

TEST(MLUDecomp, LeavesTheTableWhereNoCandidateOfTheFirstColumnCompares)
{
    const Factors lu = factored(byRows({{notANumber, 1}, {notANumber, 2}}));
    EXPECT_EQ(lu.status, 1);
    EXPECT_THAT(lu.cells, SameBits({notANumber, notANumber, 1, 2}));
    EXPECT_EQ(lu.index, (std::vector<int>{0, 0}));
    EXPECT_THAT(lu.d, SameBits(1.0));
}

TEST(MLUDecomp, KeepsThePivotRowOfTheColumnBeforeWhereNoCandidateCompares)
{
    const Owned<matrix> a = byRows({{1, notANumber, 1}, {2, notANumber, 9}, {3, notANumber, 4}});
    const Factors lu = factored(table(3, 3, cellsOf(a)));
    EXPECT_EQ(lu.status, 0);
    EXPECT_EQ(lu.index, (std::vector<int>{1, 1, lu.index[2]}));
    expectSame(lu, referenceOf(a, 3));
}

TEST(MLUDecomp, WorksOnTheTopLeftCornerOfALargerTable)
{
    const Factors lu = factored(byRows({{2, 3, 9}, {4, 4, 9}, {9, 9, 9}}), 2);
    EXPECT_THAT(lu.cells, SameBits({4, 0.5, 9, 4, 1, 9, 9, 9, 9}));
}

TEST(MLUDecomp, KeepsALargeIndexAndReplacesASmallOne)
{
    Owned<matrix> a = byRows({{2, 3}, {4, 4}});
    Owned<matrixInt> index = intTable(3, 1, {9, 9, 9});
    double d = 0.0;
    short status = 7;
    M_LUDecomp(a, 2, index, &d, &status);
    EXPECT_EQ(cellsOf(index), (std::vector<int>{2, 2, 9}));
    Owned<matrixInt> small = intTable(1, 1, {9});
    M_LUDecomp(a, 2, small, &d, &status);
    EXPECT_EQ(small->nRows, 2);
}

TEST(MLUDecomp, OfNothingSucceeds)
{
    EXPECT_EQ(factored(filled(0, 0, 0.0)).status, 0);
    EXPECT_THAT(factored(filled(0, 0, 0.0)).d, SameBits(1.0));
}

TEST(MLUDecomp, PassesResidualTests)
{
    RandomData data(743);
    SCOPED_TRACE(data);
    std::vector<TestMatrix> matrices;
    for (const int n : {1, 2, 7, 20, 80, 200}) {
        matrices.push_back(randomMatrix(n, data));
        matrices.push_back(gradedMatrix(n, data));
        matrices.push_back(hilbertMatrix(n));
        matrices.push_back(wilkinsonMatrix(n + 1));
    }
    for (const int n : {5, 30, 50})
        matrices.push_back(growthMatrix(n));
    for (const TestMatrix& m : matrices) {
        const Factors lu = factored(table(m.n, m.n, m.cells));
        ASSERT_EQ(lu.status, 0) << m.name << m.n;
        const Wide factors(m.n, m.n, lu.cells);
        Wide lower = Wide::identity(m.n);
        Wide upper(m.n, m.n);
        Wide permuted(m.n, m.n, m.cells);
        for (int j = 0; j < m.n; ++j)
            for (int i = 0; i < m.n; ++i)
                (i > j ? lower : upper).at(i, j) = factors.at(i, j);
        for (int j = 0; j < m.n; ++j)
            for (int c = 0; c < m.n; ++c)
                std::swap(permuted.at(j, c), permuted.at(lu.index[static_cast<std::size_t>(j)] - 1, c));
        EXPECT_LT(residual(permuted - lower * upper, Wide(m.n, m.n, m.cells).norm()), residualBound) << m.name << m.n;
    }
}

TEST(VBMLUDecomp, WorksInTheCallersArrays)
{
    Guarded<double> a{2, 4, 3, 4};
    Guarded<int> index(2, 9);
    double d = 0.0;
    short status = 7;
    EXPECT_EQ(VB_M_LUDecomp(a, 2, index, &d, &status), 0);
    EXPECT_THAT(a.values(), SameBits({4, 0.5, 4, 1}));
    EXPECT_EQ(index.values(), (std::vector<int>{2, 2}));
    EXPECT_THAT(d, SameBits(-1.0));
    EXPECT_EQ(status, 0);
}

TEST(VBMLUDecomp, ReportsInTheStatusAlone)
{
    Guarded<double> a{1, 0, 2, 0};
    Guarded<int> index(2, 9);
    double d = 0.0;
    short status = 7;
    EXPECT_EQ(VB_M_LUDecomp(a, 2, index, &d, &status), 0);
    EXPECT_EQ(status, -1);
    EXPECT_TRUE(a.untouched());
    EXPECT_EQ(index.values(), (std::vector<int>{0, 0}));
}

} // namespace
} // namespace vecmat::test
