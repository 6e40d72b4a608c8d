// Cholesky factors with a search for the pivot on the diagonal.
#include "decompositions/cholesky.h"

#include "decompositions/cholesky_reference.h"
#include "decompositions/residuals.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

namespace vecmat::test {
namespace {

struct Pivoted
{
    int status;
    std::vector<double> a;
    std::vector<double> l;
    std::vector<int> perm;
};

/// Both forms, of which the one in doubles is checked against the other.
Pivoted pivoted(const std::vector<double>& cells, int n, short keep)
{
    const Owned<matrix> a = table(n, n, cells);
    const Owned<matrix> l = filled(n, n, 77.0);
    const Owned<matrixInt> perm = intColumn(std::vector<int>(static_cast<std::size_t>(n), 9));
    const int status = M_CholDecompPrinc(a, n, l, perm, keep);

    const Owned<matrix> sameA = table(n, n, cells);
    const Owned<matrix> sameL = filled(n, n, 77.0);
    const Owned<matrix> samePerm = filled(n, 1, 9.0);
    EXPECT_EQ(M_CholDecompPrinc(sameA, n, sameL, samePerm, keep), status);
    EXPECT_THAT(cellsOf(sameA), SameBits(cellsOf(a)));
    EXPECT_THAT(cellsOf(sameL), SameBits(cellsOf(l)));
    const std::vector<int> order = cellsOf(perm);
    EXPECT_THAT(cellsOf(samePerm), SameBits(std::vector<double>(order.begin(), order.end())));
    return {status, cellsOf(a), cellsOf(l), order};
}

/// The steps in their order.
Pivoted reference(const std::vector<double>& cells, int n, short keep)
{
    const Owned<matrix> a = table(n, n, cells);
    matrix w(*a.get());
    matrix l(n, n, 0.0);
    std::vector<int> perm;
    for (int i = 1; i <= n; ++i)
        perm.push_back(i);
    const auto finished = [&](int status) {
        return Pivoted{status, keep == -1 ? cellsOf(&w) : cells, cellsOf(&l), perm};
    };
    const auto exchange = [n](matrix& m, int i, int p, bool rows) {
        for (int c = 1; c <= n; ++c) {
            const int row = rows ? i : c;
            const int col = rows ? c : i;
            const int otherRow = rows ? p : c;
            const int otherCol = rows ? c : p;
            const double kept = m.vbget(row, col);
            m.vbset(row, col, m.vbget(otherRow, otherCol));
            m.vbset(otherRow, otherCol, kept);
        }
    };
    for (int i = 1; i <= n; ++i) {
        int p = i;
        if (i < n) {
            double largest = 0.0;
            for (int r = i; r <= n; ++r) {
                double t = w.vbget(r, r);
                if (i > 1)
                    t -= w.vbget(i - 1, r) * w.vbget(i - 1, r) / l.vbget(i - 1, i - 1);
                if (r == i || t > largest) {
                    largest = t;
                    p = r;
                }
            }
        }
        if (p != i) {
            exchange(w, i, p, false);
            exchange(w, i, p, true);
            if (i > 1)
                exchange(l, i, p, true);
            std::swap(perm[static_cast<std::size_t>(i) - 1], perm[static_cast<std::size_t>(p) - 1]);
        }
        if (referenceCholeskyColumn(w, i, n, l, 1e-12) != 0)
            return finished(-1);
    }
    return finished(0);
}

TEST(MCholDecompPrinc, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(791);
    SCOPED_TRACE(data);
    int failures = 0;
    for (int round = 0; round < 300; ++round) {
        const int n = data.integer(0, 8);
        std::vector<double> cells = gramMatrix(randomMatrix(n, data), 0.02).cells;
        if (round % 3 == 1)
            cells = data.wholes(cells.size(), 0, 3);
        if (round % 3 == 2)
            cells = data.withSpecials(cells, 0.05);
        const short keep = round % 2 == 0 ? -1 : 0;
        const Pivoted actual = pivoted(cells, n, keep);
        const Pivoted expected = reference(cells, n, keep);
        failures += expected.status == -1;
        EXPECT_EQ(actual.status, expected.status);
        EXPECT_THAT(actual.l, SameBits(expected.l)) << n;
        EXPECT_THAT(actual.a, SameBits(expected.a)) << n;
        EXPECT_EQ(actual.perm, expected.perm);
    }
    EXPECT_GT(failures, 20);
}

TEST(MCholDecompPrinc, HasThoseBitsWhereManyCellsAreWorkedOnSideBySide)
{
    RandomData data(796);
    SCOPED_TRACE(data);
    for (const int n : {15, 16, 17, 31, 32, 33, 47, 48, 63, 64, 65, 80})
        for (int round = 0; round < 3; ++round) {
            std::vector<double> cells = gramMatrix(randomMatrix(n, data), 0.5).cells;
            if (round == 1)
                cells = data.withSpecials(cells, 0.002);
            // Little beside the diagonal, so that the estimates of the pivots hold to the end.
            if (round == 2)
                for (int j = 0; j < n; ++j)
                    for (int i = 0; i < n; ++i)
                        cells[static_cast<std::size_t>(i + n * j)] =
                            i == j ? data.uniform(1.0, 2.0) : 0.01 / (1.0 + std::abs(i - j));
            const Pivoted actual = pivoted(cells, n, -1);
            const Pivoted expected = reference(cells, n, -1);
            if (round == 2) {
                EXPECT_EQ(expected.status, 0);
            }
            EXPECT_EQ(actual.status, expected.status);
            EXPECT_THAT(actual.l, SameBits(expected.l)) << n;
            EXPECT_THAT(actual.a, SameBits(expected.a)) << n;
            EXPECT_EQ(actual.perm, expected.perm);
        }
}

TEST(MCholDecompPrinc, AFactorThatIsTooSmallIsLost)
{
    const std::vector<double> cells{1, 0.5, 0.5, 4};
    const Owned<matrix> low = filled(1, 4, 77.0), narrow = filled(4, 1, 77.0);
    for (matrix* const l : {low.get(), narrow.get(), static_cast<matrix*>(nullptr)}) {
        const Owned<matrix> a = table(2, 2, cells);
        const Owned<matrixInt> perm = intColumn({9, 9});
        EXPECT_EQ(M_CholDecompPrinc(a, 2, l, perm, -1), 0);
        EXPECT_THAT(cellsOf(a), SameBits({4, 0.5, 0.5, 1}));
        EXPECT_EQ(cellsOf(perm), (std::vector<int>{2, 1}));
    }
    EXPECT_THAT(cellsOf(low), testing::Each(77.0));
    EXPECT_THAT(cellsOf(narrow), testing::Each(77.0));
}

TEST(MCholDecompPrinc, StartsWithTheLargestOfTheDiagonal)
{
    const Pivoted factor = pivoted({1, 0.5, 0.5, 4}, 2, -1);
    EXPECT_EQ(factor.status, 0);
    EXPECT_EQ(factor.perm, (std::vector<int>{2, 1}));
    EXPECT_THAT(factor.a, SameBits({4, 0.5, 0.5, 1}));
    EXPECT_THAT(factor.l, SameBits({2, 0.25, 0, std::sqrt(1 - 0.25 * 0.25)}));
    // Of equal ones the first.
    EXPECT_EQ(pivoted({4, 0, 0, 4}, 2, 0).perm, (std::vector<int>{1, 2}));
}

TEST(MCholDecompPrinc, EstimatesTheNextPivotByTheDivisorNotItsSquare)
{
    // What remains is 5 - 100/100 for row 2 and 3 for row 3; the estimate is 5 - 100/10.
    const Pivoted factor = pivoted({100, 10, 0, 10, 5, 0, 0, 0, 3}, 3, 0);
    EXPECT_EQ(factor.status, 0);
    EXPECT_EQ(factor.perm, (std::vector<int>{1, 3, 2}));
    // The square comes first: rounded otherwise, the other of two that are nearly equal would win.
    EXPECT_EQ(pivoted({570, 1, 3, 1, 51, 0, 3, 0, 51.33508312663336}, 3, 0).perm, (std::vector<int>{1, 3, 2}));
    EXPECT_EQ(pivoted({340, 0.3, 2.4, 0.3, 52, 0, 2.4, 0, 52.30749892395795}, 3, 0).perm, (std::vector<int>{1, 2, 3}));
}

TEST(MCholDecompPrinc, TakesOnlyTheRowBeforeIntoTheEstimate)
{
    // Row 1 would take 3.24 off the 4 of row 4; row 2 takes nothing off.
    const Pivoted factor = pivoted({25, 0, 0, 9, 0, 9, 0, 0, 0, 0, 2, 0, 9, 0, 0, 4}, 4, 0);
    EXPECT_EQ(factor.status, 0);
    EXPECT_EQ(factor.perm, (std::vector<int>{1, 2, 4, 3}));
}

TEST(MCholDecompPrinc, KeepsThePermutedTableOnlyOnRequest)
{
    const std::vector<double> cells{1, 0.5, 0.5, 4};
    EXPECT_THAT(pivoted(cells, 2, 0).a, SameBits(cells));
    EXPECT_THAT(pivoted(cells, 2, 1).a, SameBits(cells));
    EXPECT_THAT(pivoted(cells, 2, -1).a, SameBits({4, 0.5, 0.5, 1}));
}

TEST(MCholDecompPrinc, KeepsThePermutedTableAfterAFailureToo)
{
    const Pivoted factor = pivoted({1, 2, 2, 4}, 2, -1);
    EXPECT_EQ(factor.status, -1);
    EXPECT_THAT(factor.a, SameBits({4, 2, 2, 1}));
    EXPECT_EQ(factor.perm, (std::vector<int>{2, 1}));
    EXPECT_THAT(factor.l, SameBits({2, 1, 0, 0}));
    EXPECT_THAT(pivoted({1, 2, 2, 4}, 2, 0).a, SameBits({1, 2, 2, 4}));
}

TEST(MCholDecompPrinc, SearchesNothingForOrderOne)
{
    EXPECT_THAT(pivoted({9}, 1, 0).l, SameBits({3}));
    EXPECT_EQ(pivoted({1e-12}, 1, 0).status, 0);
    EXPECT_EQ(pivoted({1e-13}, 1, 0).status, -1);
    EXPECT_EQ(pivoted({1e-13}, 1, 0).perm, (std::vector<int>{1}));
}

TEST(MCholDecompPrinc, LeavesAResultTableThatIsTooSmall)
{
    const Owned<matrix> a = byRows({{1, 0.5}, {0.5, 4}});
    const Owned<matrix> l = filled(1, 2, 77.0);
    const Owned<matrixInt> perm = intColumn({9, 9});
    EXPECT_EQ(M_CholDecompPrinc(a, 2, l, perm, -1), 0);
    EXPECT_THAT(cellsOf(l), SameBits({77, 77}));
    EXPECT_EQ(cellsOf(perm), (std::vector<int>{2, 1}));
    EXPECT_THAT(cellsOf(a), SameBits({4, 0.5, 0.5, 1}));
}

TEST(MCholDecompPrinc, PassesResidualTests)
{
    RandomData data(792);
    SCOPED_TRACE(data);
    for (const int n : {1, 3, 20, 100, 200}) {
        const TestMatrix m = gramMatrix(randomMatrix(n, data), 0.1);
        const Pivoted factor = pivoted(m.cells, n, -1);
        ASSERT_EQ(factor.status, 0);
        const Wide a(n, n, m.cells);
        const Wide l(n, n, factor.l);
        Wide permuted(n, n);
        const auto from = [&](int i) { return factor.perm[static_cast<std::size_t>(i)] - 1; };
        for (int j = 0; j < n; ++j)
            for (int i = 0; i < n; ++i)
                permuted.at(i, j) = a.at(from(i), from(j));
        EXPECT_LT(residual(l * l.transposed() - permuted, a.norm()), residualBound) << n;
        EXPECT_EQ((permuted - Wide(n, n, factor.a)).norm(), 0.0L);
    }
}

TEST(VBMCholDecompPrinc, ChangesAllItsArrays)
{
    Guarded<double> a{1, 0.5, 0.5, 4};
    Guarded<double> l(4, 77.0);
    Guarded<int> perm(2, 9);
    EXPECT_EQ(VB_M_CholDecompPrinc(a, 2, l, perm, 0), 0);
    EXPECT_TRUE(a.untouched());
    EXPECT_THAT(l.values(), SameBits(pivoted({1, 0.5, 0.5, 4}, 2, 0).l));
    EXPECT_EQ(perm.values(), (std::vector<int>{2, 1}));
    EXPECT_EQ(VB_M_CholDecompPrinc(a, 2, l, perm, -1), 0);
    EXPECT_THAT(a.values(), SameBits({4, 0.5, 0.5, 1}));
}

} // namespace
} // namespace vecmat::test
