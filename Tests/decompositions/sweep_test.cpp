// The sweep operator on packed symmetric tables.
#include "decompositions/sweep.h"

#include "decompositions/residuals.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

/// The position, 1-based, of (i, j) for any order of i and j.
int place(int i, int j)
{
    return i < j ? place(j, i) : i * (i - 1) / 2 + j;
}

std::size_t packedCells(int n)
{
    return static_cast<std::size_t>(n) * (static_cast<std::size_t>(n) + 1) / 2;
}

/// The steps in their order, on checked cells.
void reference(matrix& a, int n, int k)
{
    const bool outside = static_cast<unsigned>(place(k, k) - 1) >= a.nElems;
    const double d = -1.0 / a.vbget(place(k, k), 1);
    a.vbset(place(k, k), 1, d);
    for (int i = 1; i <= n; ++i) {
        if (i == k)
            continue;
        double c = a.vbget(place(i, k), 1);
        if (d < 0.0 || outside)
            c = -c;
        a.vbset(place(i, k), 1, a.vbget(place(i, k), 1) * std::fabs(d));
        for (int j = 1; j <= i; ++j) {
            if (j == k)
                continue;
            double x = a.vbget(place(i, j), 1) + a.vbget(place(j, k), 1) * c;
            if (std::fabs(x) < 1e-12)
                x = 0.0;
            a.vbset(place(i, j), 1, x);
        }
    }
}

std::vector<double> swept(const std::vector<double>& cells, int n, int k)
{
    const Owned<matrix> a = column(cells);
    EXPECT_EQ(M_Sweep(a, n, k), 0);
    return cellsOf(a);
}

std::vector<double> packedOf(const TestMatrix& m)
{
    std::vector<double> cells;
    for (int i = 0; i < m.n; ++i)
        for (int j = 0; j <= i; ++j)
            cells.push_back(m.cells[static_cast<std::size_t>(j * m.n + i)]);
    return cells;
}

TEST(MSweep, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(721);
    SCOPED_TRACE(data);
    for (int round = 0; round < 300; ++round) {
        const int n = data.integer(1, 9);
        std::vector<double> cells = data.wholes(packedCells(n), -3, 3);
        if (round % 2 == 0)
            cells = data.withSpecials(data.normals(packedCells(n)), round % 4 == 0 ? 0.1 : 0.0);
        const int k = data.integer(1, n);
        const Owned<matrix> expected = column(cells);
        reference(*expected, n, k);
        EXPECT_THAT(swept(cells, n, k), SameBits(cellsOf(expected))) << n << " " << k;
    }
}

TEST(MSweep, HasThoseBitsInLongRowsToo)
{
    RandomData data(726);
    SCOPED_TRACE(data);
    for (const int n : {7, 8, 9, 15, 16, 17, 25, 31, 32, 33, 34, 41, 64, 65})
        for (const int k : {1, 2, n / 2, n - 1, n})
            for (const double share : {0.0, 0.01}) {
                // Small numbers, so that many results are cleared.
                std::vector<double> cells = data.wholes(packedCells(n), -3, 3);
                for (double& x : cells)
                    x *= data.chance(0.5) ? 1e-12 : data.normal();
                cells = data.withSpecials(cells, share);
                const Owned<matrix> expected = column(cells);
                reference(*expected, n, k);
                EXPECT_THAT(swept(cells, n, k), SameBits(cellsOf(expected))) << n << " " << k;
            }
}

TEST(MSweep, TurnsAPositivePivotNegativeAndScalesItsRow)
{
    // (4, 2; 2, 6): the Schur complement 6 - 2*2/4 is at (2, 2).
    EXPECT_THAT(swept({4, 2, 6}, 2, 1), SameBits({-0.25, 0.5, 5}));
    EXPECT_THAT(swept({4, 2, 6}, 2, 2), SameBits({4 + (2 * (1.0 / 6)) * -2, 2 * (1.0 / 6), -1.0 / 6}));
}

TEST(MSweep, UndoesItselfThroughTheSignOfThePivot)
{
    const std::vector<double> cells{4, 2, 6, 1, -3, 8};
    const std::vector<double> once = swept(cells, 3, 1);
    EXPECT_LT(once[0], 0.0);
    EXPECT_THAT(swept(once, 3, 1), SameBits(cells)); // the quotients by 4 are exact
    // The plain operator, without the sign, would not come back: after its first sweep the pivot is 1/4.
    EXPECT_THAT(swept({0.25, 0.5, 5}, 2, 1), testing::Not(SameBits({4, 2, 6})));
}

TEST(MSweep, TwiceRestoresUpToRounding)
{
    RandomData data(722);
    SCOPED_TRACE(data);
    for (const int n : {2, 7, 30}) {
        const TestMatrix gram = gramMatrix(randomMatrix(n, data), 0.5);
        const std::vector<double> cells = packedOf(gram);
        for (const int k : {1, (n + 1) / 2, n}) {
            const std::vector<double> back = swept(swept(cells, n, k), n, k);
            for (std::size_t p = 0; p < cells.size(); ++p)
                EXPECT_NEAR(back[p], cells[p], 1e-13) << n << " " << k;
        }
    }
}

TEST(MSweep, OnEveryPivotGivesMinusTheInverse)
{
    RandomData data(723);
    SCOPED_TRACE(data);
    for (const int n : {1, 3, 20, 80}) {
        const TestMatrix gram = gramMatrix(randomMatrix(n, data), 0.5);
        const Owned<matrix> a = column(packedOf(gram));
        for (int k = 1; k <= n; ++k)
            M_Sweep(a, n, k);
        const Wide inverse(n, n, squareOf(n, [&](int i, int j) { return -a->vbget(place(i + 1, j + 1), 1); }));
        const Wide wide(n, n, gram.cells);
        EXPECT_LT(residual(wide * inverse - Wide::identity(n), wide.norm() * inverse.norm()), residualBound) << n;
    }
}

TEST(MSweep, ClearsWhatIsBelowTheToleranceOutsideThePivotsRow)
{
    // 1 - 1*(1 - 1e-12...) leaves less than 1e-12: exactly 0, which a second sweep does not bring back.
    const double nearly = 1.0 + 0x1p-41;
    const std::vector<double> once = swept({1, 1, nearly}, 2, 1);
    EXPECT_THAT(once, SameBits({-1, 1, 0}));
    EXPECT_THAT(swept(once, 2, 1), SameBits({1, 1, 1}));
    // 1e-12 itself stays; a cell of the pivot's row stays however small.
    EXPECT_THAT(swept({1, 0, 1e-12}, 2, 1), SameBits({-1, -0.0 + 0.0, 1e-12}));
    EXPECT_THAT(swept({1, 0, std::nextafter(1e-12, 0.0)}, 2, 1), SameBits({-1, 0, 0}));
    EXPECT_THAT(swept({1, 1e-30, 3}, 2, 1), SameBits({-1, 1e-30, 3}));
    EXPECT_THAT(swept({1, 1e-30, 1e-13, 1e-13, 0, 3}, 3, 1), SameBits({-1, 1e-30, 0, 1e-13, 0, 3}));
}

TEST(MSweep, DividesByAZeroPivot)
{
    const Owned<matrix> a = column({0, 2, 6});
    EXPECT_EQ(M_Sweep(a, 2, 1), 0);
    EXPECT_THAT(cellsOf(a), SameBits({-inf, inf, -inf}));
    // A negative zero gives plus infinity and the other sign.
    const Owned<matrix> b = column({-0.0, 2, 6});
    EXPECT_EQ(M_Sweep(b, 2, 1), 0);
    EXPECT_THAT(cellsOf(b), SameBits({inf, inf, inf}));
}

TEST(MSweep, TakesAPivotOutsideTheTableForMinusOneNotYetSwept)
{
    // Row 3 is not there: its cells read -1.0 before and after.
    const Owned<matrix> a = column({4, 2, 6});
    const Owned<matrix> expected = column({4, 2, 6});
    EXPECT_EQ(M_Sweep(a, 3, 3), 0);
    reference(*expected, 3, 3);
    EXPECT_THAT(cellsOf(a), SameBits(cellsOf(expected)));
    // By hand: c = -(-1.0), and a(i, j) gains -1.0 times that.
    EXPECT_THAT(cellsOf(a), SameBits({3, 1, 5}));
}

TEST(MSweep, HasTheBitsOfTheStepsForAnyNumbers)
{
    RandomData data(724);
    SCOPED_TRACE(data);
    for (int n = -1; n <= 7; ++n)
        for (int k = -3; k <= 8; ++k)
            for (int size = 0; size <= 30; size += 3) {
                const std::vector<double> cells = data.normals(static_cast<std::size_t>(size));
                const Owned<matrix> a = column(cells);
                const Owned<matrix> expected = column(cells);
                EXPECT_EQ(M_Sweep(a, n, k), 0);
                // A k below 1 has its place by the same formula.
                const auto formula = [](int i, int j) { return i < j ? j * (j - 1) / 2 + i : i * (i - 1) / 2 + j; };
                ASSERT_EQ(formula(2, 1), place(2, 1));
                reference(*expected, n, k);
                EXPECT_THAT(cellsOf(a), SameBits(cellsOf(expected))) << n << " " << k << " " << size;
            }
}

TEST(MSweep, StaysInsideForAnyNumberOfThePivot)
{
    // All of them lie outside: c = -(-1.0), and each element gains -1.0 times that.
    for (const int k : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 70000, -70000}) {
        EXPECT_THAT(swept({4, 2, 6}, 2, k), SameBits({3, 1, 5})) << k;
        EXPECT_THAT(swept({4, 2, 6}, -1, k), SameBits({4, 2, 6})) << k;
    }
}

TEST(MSweep, WorksOnTheLeadingOrderOfALargerTable)
{
    EXPECT_THAT(swept({4, 2, 6, 77, 77, 77}, 2, 1), SameBits({-0.25, 0.5, 5, 77, 77, 77}));
}

TEST(VBMSweep, SweepsTheCallersArray)
{
    Guarded<double> a{4, 2, 6};
    EXPECT_EQ(VB_M_Sweep(a, 2, 1), 0);
    EXPECT_THAT(a.values(), SameBits({-0.25, 0.5, 5}));
    Guarded<double> none(0, 0.0);
    EXPECT_EQ(VB_M_Sweep(none, 0, 1), 0);
    EXPECT_EQ(VB_M_Sweep(a, 2, 9), 0);
    Guarded<double> one{4};
    EXPECT_EQ(VB_M_Sweep(one, 1, 1), 0);
    EXPECT_THAT(one.values(), SameBits({-0.25}));
}

TEST(VBMSweep, OpensNoMoreThanTheTriangle)
{
    // The row of a pivot beyond the table would be the next cells.
    const std::vector<double> cells{4, 1, 5, 2, 1, 6, 1, 2, 3, 7};
    Guarded<double> a(cells);
    EXPECT_EQ(VB_M_Sweep(a, 4, 5), 0);
    EXPECT_THAT(a.values(), SameBits(swept(cells, 4, 5)));
}

} // namespace
} // namespace vecmat::test
