// Cholesky factors of full tables and of retained blocks.
#include "decompositions/cholesky.h"

#include "decompositions/cholesky_reference.h"
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

struct Factor
{
    int status;
    std::vector<double> l;
};

Factor factorOf(matrix* a, int n)
{
    Owned<matrix> l = filled(n, n, 77.0);
    const int status = M_CholDecomp(a, n, l);
    return {status, cellsOf(l)};
}

Factor factorOf(const std::vector<double>& cells, int n)
{
    return factorOf(table(n, n, cells), n);
}

TEST(MCholDecomp, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(781);
    SCOPED_TRACE(data);
    for (int round = 0; round < 200; ++round) {
        const int n = data.integer(0, 9);
        std::vector<double> cells = gramMatrix(randomMatrix(n, data), 0.05).cells;
        if (round % 4 == 3)
            cells = data.withSpecials(cells, 0.05);
        Owned<matrix> expected = filled(n, n, 0.0);
        const int status = referenceCholesky(*table(n, n, cells).get(), n, *expected, 1e-12);
        const Factor factor = factorOf(cells, n);
        EXPECT_EQ(factor.status, status);
        EXPECT_THAT(factor.l, SameBits(cellsOf(expected))) << n;
    }
}

TEST(MCholDecomp, TakesTheTermsOffFromTheLastToTheFirst)
{
    RandomData data(782);
    SCOPED_TRACE(data);
    const int n = 12;
    const std::vector<double> cells = gramMatrix(randomMatrix(n, data), 0.05).cells;
    Owned<matrix> upwards = filled(n, n, 0.0);
    ASSERT_EQ(referenceCholesky(*table(n, n, cells).get(), n, *upwards, 1e-12, TermOrder::firstToLast), 0);
    EXPECT_THAT(factorOf(cells, n).l, testing::Not(SameBits(cellsOf(upwards))));
}

TEST(MCholDecomp, GivesALowerTriangle)
{
    const Factor factor = factorOf(byRows({{4, 2}, {2, 10}}), 2);
    EXPECT_EQ(factor.status, 0);
    EXPECT_THAT(factor.l, SameBits({2, 1, 0, 3}));
    // Nothing is read below the diagonal.
    EXPECT_THAT(factorOf(byRows({{4, 2}, {99, 10}}), 2).l, SameBits({2, 1, 0, 3}));
}

TEST(MCholDecomp, FailsAtAPivotBelowTheTolerance)
{
    EXPECT_EQ(factorOf(column({1e-13}), 1).status, -1);
    EXPECT_EQ(factorOf(column({1e-12}), 1).status, 0);
    EXPECT_EQ(factorOf(column({std::nextafter(1e-12, 0.0)}), 1).status, -1);
    EXPECT_EQ(factorOf(column({-1.0}), 1).status, -1);
    EXPECT_EQ(factorOf(column({0.0}), 1).status, -1);
    // Not below: a NaN goes on.
    EXPECT_EQ(factorOf(column({std::numeric_limits<double>::quiet_NaN()}), 1).status, 0);
}

TEST(MCholDecomp, KeepsTheColumnsDoneBeforeTheFailure)
{
    const Factor factor = factorOf(byRows({{4, 2, 6}, {2, 1, 3}, {6, 3, 30}}), 3);
    EXPECT_EQ(factor.status, -1);
    EXPECT_THAT(factor.l, SameBits({2, 1, 3, 0, 0, 0, 0, 0, 0}));
}

TEST(MCholDecomp, PreparesItsResult)
{
    Owned<matrix> none;
    EXPECT_EQ(M_CholDecomp(byRows({{4, 2}, {2, 10}}), 2, none), 0);
    EXPECT_THAT(cellsOf(none), SameBits({2, 1, 0, 3}));
    // A larger table has the head of its block cleared, not the corner.
    Owned<matrix> large = filled(3, 3, 77.0);
    EXPECT_EQ(M_CholDecomp(byRows({{4, 2}, {2, 10}}), 2, large), 0);
    EXPECT_THAT(cellsOf(large), SameBits({2, 1, 0, 0, 3, 77, 77, 77, 77}));
}

TEST(MCholDecomp, ReadsMinusOneOutsideTheTable)
{
    // (4, -1; ., -1): the second pivot is -1 - 1/4.
    const Factor factor = factorOf(column({4.0}), 2);
    EXPECT_EQ(factor.status, -1);
    EXPECT_THAT(factor.l, SameBits({2, -0.5, 0, 0}));
}

TEST(MCholDecomp, PassesResidualTests)
{
    RandomData data(783);
    SCOPED_TRACE(data);
    std::vector<TestMatrix> matrices{hilbertMatrix(3), hilbertMatrix(8), hilbertMatrix(200, 1e-6)};
    for (const int n : {1, 2, 10, 50, 200}) {
        matrices.push_back(gramMatrix(randomMatrix(n, data), 1e-3));
        matrices.push_back(gramMatrix(gradedMatrix(n, data), 1e-8));
        TestMatrix wilkinson = wilkinsonMatrix(n);
        for (int i = 0; i < n; ++i)
            wilkinson.cells[static_cast<std::size_t>(i * n + i)] += 2.0;
        matrices.push_back(wilkinson);
    }
    for (const TestMatrix& m : matrices) {
        const Factor factor = factorOf(m.cells, m.n);
        ASSERT_EQ(factor.status, 0) << m.name << m.n;
        const Wide l(m.n, m.n, factor.l);
        const Wide a(m.n, m.n, m.cells);
        EXPECT_LT(residual(l * l.transposed() - a, a.norm()), residualBound) << m.name << m.n;
    }
}

TEST(VBMCholDecomp, WritesTheCallersArray)
{
    Guarded<double> a{4, 2, 2, 10};
    Guarded<double> l(4, 77.0);
    EXPECT_EQ(VB_M_CholDecomp(a, 2, l), 0);
    EXPECT_THAT(l.values(), SameBits({2, 1, 0, 3}));
    EXPECT_TRUE(a.untouched());
    EXPECT_EQ(VB_M_CholDecomp(a, 2, a), 0);
    EXPECT_THAT(a.values(), SameBits({2, 1, 0, 3}));
    Guarded<double> singular{4, 2, 2, 1};
    EXPECT_EQ(VB_M_CholDecomp(singular, 2, l), -1);
    EXPECT_THAT(l.values(), SameBits({2, 1, 0, 0}));
}

TEST(VBMCholDecomp, TheFactorMayOverlapTheTable)
{
    RandomData data(784);
    SCOPED_TRACE(data);
    for (const int n : {3, 50}) { // cell by cell, and by strips
        const std::vector<double> cells = gramMatrix(randomMatrix(n, data), 0.05).cells;
        const std::vector<double> expected = factorOf(cells, n).l;
        for (const std::ptrdiff_t shift : {0, 1, n}) {
            std::vector<double> both = cells;
            both.resize(cells.size() + static_cast<std::size_t>(shift));
            EXPECT_EQ(VB_M_CholDecomp(both.data(), n, both.data() + shift), 0);
            EXPECT_THAT(std::vector<double>(both.begin() + shift, both.end()), SameBits(expected)) << n << ' ' << shift;
        }
    }
}

// ---- retained blocks ------------------------------------------------------------------------------------------------

Factor retainedFactorOf(matrix* a, int n, const std::vector<int>& mask)
{
    const std::vector<double> doubles(mask.begin(), mask.end());
    const Owned<matrix> l = filled(n, n, 77.0);
    const Owned<matrix> other = filled(n, n, 77.0);
    const int status = M_CholDecompCleaned(a, n, intColumn(mask), l);
    EXPECT_EQ(M_CholDecompCleaned(a, n, column(doubles), other), status);
    EXPECT_THAT(cellsOf(other), SameBits(cellsOf(l)));
    return {status, cellsOf(l)};
}

TEST(MCholDecompCleaned, FactorsWhatTheMaskRetains)
{
    const Owned<matrix> a = byRows({{4, 9, 2}, {9, 9, 9}, {2, 9, 10}});
    const Factor factor = retainedFactorOf(a, 3, {0, 1, 0});
    EXPECT_EQ(factor.status, 0);
    // Row 2 keeps what it held; in the others column 2 is 0.0.
    EXPECT_THAT(factor.l, SameBits({2, 77, 1, 0, 77, 0, 0, 77, 3}));
    EXPECT_THAT(retainedFactorOf(a, 3, {5, 0, 0}).l, SameBits({77, 0, 0, 77, 3, 3, 77, 0, 1}));
    EXPECT_EQ(retainedFactorOf(a, 3, {1, 1, 1}).status, 0);
    EXPECT_THAT(retainedFactorOf(a, 3, {1, 1, 1}).l, SameBits(std::vector<double>(9, 77.0)));
}

TEST(MCholDecompCleaned, DropsWhatTheMaskMarksByAnyNumberAboveZero)
{
    const Owned<matrix> l = filled(2, 2, 77.0);
    EXPECT_EQ(M_CholDecompCleaned(byRows({{-1, 1}, {1, 4}}), 2, column({0.5, 0}), l), 0);
    EXPECT_THAT(cellsOf(l), SameBits({77, 0, 77, 2}));
}

TEST(MCholDecompCleaned, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(784);
    SCOPED_TRACE(data);
    for (int n = 1; n <= 8; ++n) {
        const std::vector<double> cells = gramMatrix(randomMatrix(n, data), 0.05).cells;
        const std::vector<int> all(static_cast<std::size_t>(n), 0);
        Owned<matrix> expected = filled(n, n, 0.0);
        ASSERT_EQ(referenceCholesky(*table(n, n, cells).get(), n, *expected, 0.0), 0);
        EXPECT_THAT(retainedFactorOf(table(n, n, cells), n, all).l, SameBits(cellsOf(expected)));
        EXPECT_THAT(factorOf(cells, n).l, SameBits(cellsOf(expected)));
    }
}

TEST(MCholDecompCleaned, AcceptsAPivotThatIsNotBelowZero)
{
    EXPECT_EQ(retainedFactorOf(column({1e-13}), 1, {0}).status, 0);
    EXPECT_EQ(factorOf(column({1e-13}), 1).status, -1);
    EXPECT_EQ(retainedFactorOf(column({-1e-13}), 1, {0}).status, -1);
    EXPECT_EQ(retainedFactorOf(byRows({{1e-13, 0}, {0, 1}}), 2, {0, 0}).status, 0);
}

TEST(MCholDecompCleaned, FailsAtAZeroPivotOnlyAsADivisor)
{
    EXPECT_EQ(retainedFactorOf(column({0.0}), 1, {0}).status, 0);
    EXPECT_THAT(retainedFactorOf(byRows({{4, 2}, {2, 1}}), 2, {0, 0}).l, SameBits({2, 1, 0, 0}));
    const Factor middle = retainedFactorOf(byRows({{4, 2, 0}, {2, 1, 0}, {0, 0, 1}}), 3, {0, 0, 0});
    EXPECT_EQ(middle.status, -1);
    EXPECT_THAT(middle.l, SameBits(std::vector<double>(9, 77.0)));
}

TEST(MCholDecompCleaned, IsSafeForAMaskThatIsNotOne)
{
    // An entry below 0 counts in the order of the block, and its row is not taken.
    const Factor factor = retainedFactorOf(byRows({{4, 2}, {2, 10}}), 2, {0, -1});
    EXPECT_EQ(factor.status, 0);
    EXPECT_THAT(factor.l, SameBits({2, 77, 0, 77}));
    const Owned<matrix> l = filled(2, 2, 77.0);
    EXPECT_EQ(M_CholDecompCleaned(byRows({{4, 2}, {2, 10}}), 2, intColumn({0}), l), 0);
}

TEST(VBMCholDecompCleaned, KeepsTheRowsThatWereDropped)
{
    Guarded<double> a{4, 9, 2, 9, 9, 9, 2, 9, 10};
    Guarded<int> mask{0, 1, 0};
    Guarded<double> l(9, 77.0);
    EXPECT_EQ(VB_M_CholDecompCleaned(a, 3, mask, l), 0);
    EXPECT_THAT(l.values(), SameBits({2, 77, 1, 0, 77, 0, 0, 77, 3}));
    EXPECT_TRUE(a.untouched());
    Guarded<double> negative{-1};
    Guarded<double> kept(1, 77.0);
    Guarded<int> none{0};
    EXPECT_EQ(VB_M_CholDecompCleaned(negative, 1, none, kept), -1);
    EXPECT_TRUE(kept.untouched());
}

} // namespace
} // namespace vecmat::test
