// The g2 inverse and its sweep.
#include "decompositions/g2_inverse.h"

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

/// The steps in their order, on checked cells.
void referenceSweep(matrix& a, int n, int k, double tol)
{
    const double d = a.vbget(k, k);
    if (std::fabs(d) < tol) {
        for (int j = 1; j <= n; ++j)
            a.vbset(k, j, 0.0);
        for (int i = 1; i <= n; ++i)
            a.vbset(i, k, 0.0);
        return;
    }
    for (int j = 1; j <= n; ++j)
        a.vbset(k, j, a.vbget(k, j) / d);
    for (int i = 1; i <= n; ++i) {
        if (i == k)
            continue;
        const double c = a.vbget(i, k);
        for (int j = 1; j <= n; ++j)
            a.vbset(i, j, a.vbget(i, j) - a.vbget(k, j) * c);
        a.vbset(i, k, -c / d);
    }
    a.vbset(k, k, 1.0 / d);
}

std::vector<double> inverted(matrix* a, int n, double tol)
{
    const Owned<matrix> out = filled(n, n, 77.0);
    M_InverseG2(a, n, tol, out);
    return cellsOf(out);
}

TEST(G2SweepStep, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(811);
    SCOPED_TRACE(data);
    for (int round = 0; round < 400; ++round) {
        const int rows = data.integer(0, 5);
        const int cols = data.integer(1, 5);
        const int n = round % 2 == 0 ? rows : data.integer(-1, 6);
        const int k = data.integer(-1, 7);
        const std::vector<double> cells =
            data.withSpecials(data.wholes(static_cast<std::size_t>(rows * cols), -2, 3), round % 4 < 2 ? 0.0 : 0.1);
        const Owned<matrix> a = table(rows, cols, cells);
        const Owned<matrix> expected = table(rows, cols, cells);
        G2SweepStep(a, n, k, 1e-12);
        referenceSweep(*expected, n, k, 1e-12);
        EXPECT_THAT(cellsOf(a), SameBits(cellsOf(expected))) << rows << " " << cols << " " << n << " " << k;
    }
}

TEST(G2SweepStep, DividesTheRowAndTheColumnByThePivot)
{
    const Owned<matrix> a = byRows({{4, 2}, {6, 8}});
    G2SweepStep(a, 2, 1, 1e-12);
    EXPECT_THAT(cellsOf(a), SameBits({0.25, -1.5, 0.5, 5}));
}

TEST(G2SweepStep, ZeroesTheRowAndTheColumnOfAPivotBelowTheTolerance)
{
    const Owned<matrix> a = byRows({{4, 2, 1}, {6, -1e-3, 3}, {7, 8, 9}});
    G2SweepStep(a, 3, 2, std::nextafter(1e-3, 1.0));
    EXPECT_THAT(cellsOf(a), SameBits({4, 0, 7, 0, 0, 0, 1, 0, 9}));
    // One equal to the tolerance is swept.
    const Owned<matrix> b = column({1e-3});
    G2SweepStep(b, 1, 1, 1e-3);
    EXPECT_THAT(b->X[0], SameBits(1.0 / 1e-3));
}

TEST(G2SweepStep, DividesByZeroWhereTheToleranceIsZero)
{
    const Owned<matrix> a = byRows({{0, 2}, {6, 8}});
    G2SweepStep(a, 2, 1, 0.0);
    EXPECT_THAT(a->vbget(1, 1), SameBits(inf));
    EXPECT_THAT(a->vbget(2, 1), SameBits(-inf));
    EXPECT_THAT(a->vbget(1, 2), SameBits(inf));
    EXPECT_THAT(a->vbget(2, 2), SameBits(-inf));
}

TEST(MInverseG2, IsTheInverseOfARegularTable)
{
    RandomData data(812);
    SCOPED_TRACE(data);
    for (const int n : {1, 2, 8, 40, 120}) {
        const TestMatrix m = gramMatrix(randomMatrix(n, data), 0.5);
        const Owned<matrix> a = table(n, n, m.cells);
        const Wide wide(n, n, m.cells);
        const Wide inverse(n, n, inverted(a, n, 1e-12));
        EXPECT_LT(residual(wide * inverse - Wide::identity(n), wide.norm() * inverse.norm()), residualBound) << n;
        EXPECT_THAT(cellsOf(a), SameBits(m.cells));
    }
}

TEST(MInverseG2, ZeroesTheRowsAndColumnsOfDependentParameters)
{
    // Columns 1 and 2 are the same.
    const std::vector<double> g = inverted(byRows({{4, 4, 2}, {4, 4, 2}, {2, 2, 5}}), 3, 1e-12);
    EXPECT_THAT(g, SameBits({0.3125, 0, -0.125, 0, 0, 0, -0.125, -0.0, 0.25}));
    // A later sweep sees the zeros: the 3 is gone. The column of a pivot changes its sign, that of a zero too.
    EXPECT_THAT(inverted(byRows({{0, 3}, {3, 2}}), 2, 1e-12), SameBits({0, 0, -0.0, 0.5}));
}

TEST(MInverseG2, IsReflexiveForASingularTable)
{
    RandomData data(813);
    SCOPED_TRACE(data);
    for (const int n : {2, 5, 20}) {
        // The last columns of a factor repeat the first.
        const int rank = (n + 1) / 2;
        const Wide factor(n, n,
                          squareOf(n, [&](int i, int j) { return j < rank ? data.integer(-3, 3) : i == j - rank; }));
        Wide repeated = factor;
        for (int i = 0; i < n; ++i)
            for (int j = rank; j < n; ++j)
                repeated.at(i, j) = repeated.at(i, j - rank);
        const Wide a = repeated.transposed() * repeated;
        const std::vector<double> cells = squareOf(n, [&](int i, int j) { return static_cast<double>(a.at(i, j)); });
        const Wide g(n, n, inverted(table(n, n, cells), n, 1e-6));
        const long double condition = a.norm() * g.norm();
        EXPECT_LT(residual(a * g * a - a, a.norm() * condition), residualBound) << n;
        EXPECT_LT(residual(g * a * g - g, g.norm() * condition), residualBound) << n;
        for (int i = 0; i < n; ++i)
            EXPECT_EQ(g.at(i, n - 1), 0.0L) << n;
    }
}

TEST(MInverseG2Selective, SweepsWhereTheEntryIsExactlyOne)
{
    const Owned<matrix> a = byRows({{4, 2}, {6, 8}});
    const Owned<matrix> out = filled(2, 2, 77.0);
    for (const int other : {0, -1, 2}) {
        M_InverseG2Selective(a, 2, intColumn({1, other}), 1e-12, out, 0);
        EXPECT_THAT(cellsOf(out), SameBits({0.25, -1.5, 0.5, 5})) << other;
    }
    M_InverseG2Selective(a, 2, intColumn({1, 1}), 1e-12, out, 0);
    EXPECT_THAT(cellsOf(out), SameBits(inverted(a, 2, 1e-12)));
    // No entry: -1 is read.
    M_InverseG2Selective(a, 2, intColumn({1}), 1e-12, out, 0);
    EXPECT_THAT(cellsOf(out), SameBits({0.25, -1.5, 0.5, 5}));
    EXPECT_THAT(cellsOf(a), SameBits({4, 6, 2, 8}));
}

TEST(MInverseG2Selective, ZeroesTheOthersForExactlyMinusOne)
{
    const Owned<matrix> a = byRows({{4, 2}, {6, 8}});
    const Owned<matrix> out = filled(2, 2, 77.0);
    M_InverseG2Selective(a, 2, intColumn({1, 0}), 1e-12, out, -1);
    EXPECT_THAT(cellsOf(out), SameBits({0.25, 0, 0, 0}));
    M_InverseG2Selective(a, 2, intColumn({1, 0}), 1e-12, out, 1);
    EXPECT_THAT(cellsOf(out), SameBits({0.25, -1.5, 0.5, 5}));
    // In its turn: the sweep that follows sees the zeros.
    M_InverseG2Selective(a, 2, intColumn({0, 1}), 1e-12, out, -1);
    EXPECT_THAT(cellsOf(out), SameBits({0, 0, -0.0, 0.125}));
}

TEST(G2Inverse, WorksOnTheTopLeftCorner)
{
    const Owned<matrix> out = filled(3, 3, 77.0);
    M_InverseG2(byRows({{4, 0, 9}, {0, 8, 9}, {9, 9, 9}}), 2, 1e-12, out);
    EXPECT_THAT(cellsOf(out), SameBits({0.25, -0.0, 77, -0.0, 0.125, 77, 77, 77, 77}));
}

TEST(G2Inverse, HasFlatForms)
{
    Guarded<double> a{4, 6, 2, 8};
    Guarded<double> out(4, 77.0);
    Cpp_M_InverseG2(a, 2, 1e-12, out);
    EXPECT_THAT(out.values(), SameBits(inverted(byRows({{4, 2}, {6, 8}}), 2, 1e-12)));
    Guarded<int> select{1, 0};
    Cpp_M_InverseG2Selective(a, 2, select, 1e-12, out, -1);
    EXPECT_THAT(out.values(), SameBits({0.25, 0, 0, 0}));
    EXPECT_TRUE(a.untouched());
}

} // namespace
} // namespace vecmat::test
