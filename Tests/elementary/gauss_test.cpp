#include "elementary/gauss.h"

#include "elementary/product_cases.h"

#include "support/special_values.h"

#include <cmath>
#include <vector>

using namespace vecmat::test;

namespace {

/// The plain steps on checked access, with marks and notes of the pivots.
int referenceGauss(matrix* a, int n, int m, matrix* b, bool noSwap, bool noPivot)
{
    std::vector<int> mark(n + 1, 0), rowOf(n + 1, 0), colOf(n + 1, 0);
    for (int step = 1; step <= n; ++step) {
        int row = 0, col = 0;
        if (noPivot) {
            row = col = step;
        } else {
            double largest = 0.0;
            for (int i = 1; i <= n; ++i)
                if (mark[i] != 1)
                    for (int j = 1; j <= n; ++j)
                        if (mark[j] == 0 && std::fabs(a->vbget(i, j)) - largest > 1e-12) {
                            largest = std::fabs(a->vbget(i, j));
                            row = i;
                            col = j;
                        }
        }
        if (col == 0)
            return -2;
        mark[col] += 1;
        if (!noSwap && !noPivot && row != col) {
            for (int l = 1; l <= n; ++l) {
                const double kept = a->vbget(row, l);
                a->vbset(row, l, a->vbget(col, l));
                a->vbset(col, l, kept);
            }
            for (int l = 1; l <= m; ++l) {
                const double kept = b->vbget(row, l);
                b->vbset(row, l, b->vbget(col, l));
                b->vbset(col, l, kept);
            }
            rowOf[step] = row;
            colOf[step] = col;
        }
        if (a->vbget(col, col) == 0.0)
            return -2;
        const double f = 1.0 / a->vbget(col, col);
        a->vbset(col, col, 1.0);
        for (int l = 1; l <= n; ++l)
            a->vbset(col, l, a->vbget(col, l) * f);
        for (int l = 1; l <= m; ++l)
            b->vbset(col, l, b->vbget(col, l) * f);
        for (int i = 1; i <= n; ++i) {
            if (i == col)
                continue;
            const double t = a->vbget(i, col);
            a->vbset(i, col, 0.0);
            for (int l = 1; l <= n; ++l)
                a->vbset(i, l, a->vbget(i, l) - a->vbget(col, l) * t);
            for (int l = 1; l <= m; ++l)
                b->vbset(i, l, b->vbget(i, l) - b->vbget(col, l) * t);
        }
    }
    for (int step = n; step >= 1; --step)
        if (rowOf[step] != colOf[step])
            for (int i = 1; i <= n; ++i) {
                const double kept = a->vbget(i, rowOf[step]);
                a->vbset(i, rowOf[step], a->vbget(i, colOf[step]));
                a->vbset(i, colOf[step], kept);
            }
    return 0;
}

TEST(Gauss, FollowsThePlainStepsInEveryMode)
{
    forCases(1500, [](Cases& c) {
        const int n = c.data.integer(0, 6), m = c.count();
        const int mode = c.data.integer(0, 3);
        auto a = c.operand(n, n), b = c.operand(n, m);
        if (c.data.chance(0.3)) // whole numbers: zero pivots, equal cells, singular tables
            for (unsigned k = 0; k < a->nElems; ++k)
                a->X[k] = c.data.integer(-1, 1);
        auto expectedA = copyOf(a), expectedB = copyOf(b);
        const bool noSwap = (mode & 1) != 0, noPivot = (mode & 2) != 0;
        const int expected = referenceGauss(expectedA.get(), n, m, expectedB.get(), noSwap, noPivot);
        EXPECT_EQ(M_Gauss(a.get(), n, m, b.get(), noSwap, noPivot), expected);
        expectSame(a, expectedA);
        expectSame(b, expectedB);
    });
}

TEST(Gauss, InvertsAndSolves)
{
    RandomData data(7);
    for (const int n : {1, 2, 5, 20, 60}) {
        const auto original = table(n, n, data.normals(vecmat::elementCount(n, n)));
        auto inverse = copyOf(original), x = table(n, 2, data.normals(vecmat::elementCount(n, 2)));
        const auto right = copyOf(x);
        ASSERT_EQ(M_Gauss(inverse.get(), n, 2, x.get(), false, false), 0);
        double norm = 0.0, normOfInverse = 0.0, fromIdentity = 0.0, fromRight = 0.0;
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j) {
                norm = std::fmax(norm, std::fabs(at(original.get(), i, j)));
                normOfInverse = std::fmax(normOfInverse, std::fabs(at(inverse.get(), i, j)));
                const double product =
                    sumOf(n, [&](int k) { return at(original.get(), i, k) * at(inverse.get(), k, j); });
                fromIdentity = std::fmax(fromIdentity, std::fabs(product - (i == j ? 1.0 : 0.0)));
            }
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= 2; ++j) {
                const double product = sumOf(n, [&](int k) { return at(original.get(), i, k) * at(x.get(), k, j); });
                fromRight = std::fmax(fromRight, std::fabs(product - at(right.get(), i, j)));
            }
        const double scale = n * n * norm * normOfInverse * 2.220446049250313e-16;
        EXPECT_LT(fromIdentity, 30 * scale) << n;
        EXPECT_LT(fromRight, 30 * n * scale * 4) << n;
    }
}

TEST(Gauss, ExchangeIsItsOwnInverse)
{
    auto a = byRows({{0, 1}, {1, 0}}), b = column({2, 3});
    EXPECT_EQ(M_Gauss(a.get(), 2, 1, b.get(), false, false), 0);
    EXPECT_THAT(cellsOf(a), SameBits({0.0, 1.0, 1.0, 0.0}));
    EXPECT_THAT(cellsOf(b), SameBits({3.0, 2.0}));
}

TEST(Gauss, SingularTableIsLeftPartlyReduced)
{
    auto a = byRows({{1, 2}, {2, 4}}), b = column({1, 2});
    EXPECT_EQ(M_Gauss(a.get(), 2, 1, b.get(), false, false), -2);
    // The pivot was 4, the second step found nothing.
    EXPECT_THAT(cellsOf(a), SameBits({0.0, 0.5, -0.5, 0.25}));
    EXPECT_THAT(cellsOf(b), SameBits({0.0, 0.5}));
}

TEST(Gauss, TableWithoutACellAboveTheToleranceIsSingular)
{
    auto a = filled(2, 2, 1e-12), b = column({1, 2});
    EXPECT_EQ(M_Gauss(a.get(), 2, 1, b.get(), false, false), -2);
    EXPECT_THAT(cellsOf(a), SameBits({1e-12, 1e-12, 1e-12, 1e-12}));
    auto nan = filled(1, 1, notANumber);
    EXPECT_EQ(M_Gauss(nan.get(), 1, 0, nullptr, false, false), -2);
    auto tiny = filled(1, 1, 1e-300), one = column({1});
    EXPECT_EQ(M_Gauss(tiny.get(), 1, 1, one.get(), false, true), 0); // on the diagonal only an exact zero is refused
    EXPECT_THAT(cellsOf(one), SameBits({1.0 / 1e-300}));
}

TEST(Gauss, FirstOfNearlyEqualCellsIsThePivot)
{
    // The second cell is larger, but by less than 1e-12: the first row stays where it is.
    auto a = byRows({{1, 1 + 1e-13}, {0, 1}}), b = column({1, 2});
    auto expectedA = copyOf(a), expectedB = copyOf(b);
    EXPECT_EQ(M_Gauss(a.get(), 2, 1, b.get(), false, false), 0);
    EXPECT_EQ(M_Gauss(expectedA.get(), 2, 1, expectedB.get(), false, true), 0); // by the diagonal
    expectSame(a, expectedA);
    expectSame(b, expectedB);
}

TEST(Gauss, FlagsShowOnAZeroDiagonal)
{
    auto onDiagonal = byRows({{0, 1}, {1, 0}}), withoutSwap = copyOf(onDiagonal), b = column({2, 3});
    EXPECT_EQ(M_Gauss(onDiagonal.get(), 2, 1, b.get(), false, true), -2);
    EXPECT_EQ(M_Gauss(withoutSwap.get(), 2, 1, b.get(), true, false), -2);
    EXPECT_THAT(cellsOf(onDiagonal), SameBits({0.0, 1.0, 1.0, 0.0}));
    EXPECT_THAT(cellsOf(withoutSwap), SameBits({0.0, 1.0, 1.0, 0.0}));
}

TEST(Gauss, PivotOutsideTheTableIsMinusOne)
{
    auto a = filled(1, 1, 4.0), b = column({8});
    EXPECT_EQ(M_Gauss(a.get(), 2, 1, b.get(), false, true), 0);
    auto expectedA = filled(1, 1, 4.0), expectedB = column({8});
    referenceGauss(expectedA.get(), 2, 1, expectedB.get(), false, true);
    expectSame(a, expectedA);
    expectSame(b, expectedB);
}

TEST(Gauss, NothingToSolveSucceeds)
{
    EXPECT_EQ(M_Gauss(nullptr, 0, 0, nullptr, false, false), 0);
    auto a = byRows({{2}});
    EXPECT_EQ(M_Gauss(a.get(), 1, 0, nullptr, false, false), 0);
    EXPECT_THAT(cellsOf(a), SameBits({0.5}));
}

TEST(GaussExports, WriteBothArraysBack)
{
    forCases(300, [](Cases& c) {
        const int n = c.data.integer(0, 6), m = c.count();
        auto a = c.exact(n, n), b = c.exact(n, m), single = c.exact(n, 1), aOfSingle = copyOf(a);
        if (c.data.chance(0.3))
            for (unsigned k = 0; k < a->nElems; ++k)
                a->X[k] = aOfSingle->X[k] = c.data.integer(-1, 1);
        auto flatA = flat(a), flatB = flat(b), flatSingle = flat(single), flatAOfSingle = flat(a);
        EXPECT_EQ(VB_M_Gauss(flatA, n, m, flatB), M_Gauss(a.get(), n, m, b.get(), false, false));
        expectFlat(flatA, a);
        expectFlat(flatB, b);
        EXPECT_EQ(VB_V_Gauss(flatAOfSingle, n, flatSingle), M_Gauss(aOfSingle.get(), n, 1, single.get(), false, false));
        expectFlat(flatAOfSingle, aOfSingle);
        expectFlat(flatSingle, single);
    });
    Guarded<double> a({1, 2, 2, 4}), b({1, 2});
    EXPECT_EQ(VB_V_Gauss(a, 2, b), -2);
    EXPECT_THAT(a.values(), SameBits({0.0, 0.5, -0.5, 0.25}));
    EXPECT_THAT(b.values(), SameBits({0.0, 0.5}));
}

} // namespace
