// The square root of a symmetric table.
#include "decompositions/square_root.h"

#include "decompositions/eigen.h"
#include "decompositions/residuals.h"
#include "elementary/matrix_products.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

struct Root
{
    int status;
    std::vector<double> out;
};

Root rootOf(matrix* a, int n)
{
    Owned<matrix> out = filled(n, n, 77.0);
    const int status = M_SquareRoot(a, n, out);
    return {status, cellsOf(out)};
}

TEST(MSquareRoot, HasTheBitsOfTheStepsInTheirOrder)
{
    RandomData data(771);
    SCOPED_TRACE(data);
    for (const int n : {1, 2, 3, 8}) {
        const TestMatrix gram = gramMatrix(randomMatrix(n, data), 0.1);
        const Owned<matrix> a = table(n, n, gram.cells);
        Owned<matrix> values;
        Owned<matrix> vectors;
        ASSERT_EQ(M_Eigen(a, values, vectors, n, -1), 0);
        Owned<matrix> g;
        M_ProductTrAA(vectors, n, n, g.reference());
        for (int i = 1; i <= n; ++i)
            g->vbset(i, i, (1.0 / std::sqrt(g->vbget(i, i))) * std::sqrt(std::max(0.0, values->vbget(i, 1))));
        Owned<matrix> expected;
        M_ProductATrB(g, n, n, vectors, n, expected);
        const Root root = rootOf(a, n);
        EXPECT_EQ(root.status, 0);
        EXPECT_THAT(root.out, SameBits(cellsOf(expected))) << n;
        EXPECT_THAT(cellsOf(a), SameBits(gram.cells));
    }
}

TEST(MSquareRoot, IsNotSymmetricButGivesTheTableBack)
{
    RandomData data(772);
    SCOPED_TRACE(data);
    const Owned<matrix> a = byRows({{2, 1}, {1, 2}});
    const Root root = rootOf(a, 2);
    EXPECT_EQ(root.status, 0);
    EXPECT_GT(std::fabs(root.out[1] - root.out[2]), 0.1);
    // The rows belong to the eigenvalues 3 and 1, the largest first.
    EXPECT_NEAR(root.out[0] * root.out[0] + root.out[2] * root.out[2], 3.0, 1e-14);
    for (const int n : {1, 5, 40, 120}) {
        const TestMatrix gram = gramMatrix(randomMatrix(n, data), 0.0);
        const Wide wide(n, n, gram.cells);
        const Root full = rootOf(table(n, n, gram.cells), n);
        ASSERT_EQ(full.status, 0);
        const Wide wideRoot(n, n, full.out);
        EXPECT_LT(residual(wideRoot.transposed() * wideRoot - wide, wide.norm()), residualBound) << n;
    }
}

TEST(MSquareRoot, TakesASlightlyNegativeEigenvalueForZero)
{
    EXPECT_EQ(rootOf(column({-1e-13}), 1).status, 0);
    EXPECT_THAT(rootOf(column({-1e-13}), 1).out, SameBits({0.0}));
    EXPECT_EQ(rootOf(column({-1e-11}), 1).status, -1);
    EXPECT_EQ(rootOf(column({-1e-12}), 1).status, -1); // it must be above
    EXPECT_EQ(rootOf(column({std::nextafter(-1e-12, 0.0)}), 1).status, 0);
    EXPECT_EQ(rootOf(byRows({{1, 0}, {0, -1e-13}}), 2).status, 0);
}

TEST(MSquareRoot, LeavesTheResultWhereItFails)
{
    const Root negative = rootOf(byRows({{1, 0}, {0, -1}}), 2);
    EXPECT_EQ(negative.status, -1);
    EXPECT_THAT(negative.out, SameBits({77, 77, 77, 77}));
    const Root missing = rootOf(byRows({{1, M}, {M, 1}}), 2);
    EXPECT_EQ(missing.status, -1);
    EXPECT_THAT(missing.out, SameBits({77, 77, 77, 77}));
}

TEST(MSquareRoot, ReportsAVectorWithoutLength)
{
    // A NaN in the table reaches the vectors: their squared lengths are not above 0.
    const Root root = rootOf(byRows({{1, 0.5, 0.25},
                                     {0.5, 2, std::numeric_limits<double>::quiet_NaN()},
                                     {0.25, std::numeric_limits<double>::quiet_NaN(), 3}}),
                             3);
    EXPECT_EQ(root.status, -2);
    EXPECT_THAT(root.out, SameBits(std::vector<double>(9, 77.0)));
}

TEST(MSquareRoot, PreparesItsResult)
{
    Owned<matrix> out;
    EXPECT_EQ(M_SquareRoot(byRows({{4, 0}, {0, 1}}), 2, out), 0);
    EXPECT_EQ(out->nRows, 2);
    EXPECT_NEAR(std::fabs(out->vbget(1, 1)), 2.0, 1e-15);
    EXPECT_EQ(M_SquareRoot(filled(0, 0, 0.0), 0, out), 0);
}

TEST(CppMSquareRoot, WritesTheCallersArrayUnlessItFails)
{
    Guarded<double> a{4, 0, 0, 1};
    Guarded<double> out(4, 77.0);
    EXPECT_EQ(Cpp_M_SquareRoot(a, 2, out), 0);
    EXPECT_THAT(out.values(), SameBits(rootOf(byRows({{4, 0}, {0, 1}}), 2).out));
    EXPECT_TRUE(a.untouched());
    Guarded<double> negative{-4};
    Guarded<double> kept(1, 77.0);
    EXPECT_EQ(Cpp_M_SquareRoot(negative, 1, kept), -1);
    EXPECT_TRUE(kept.untouched());
}

} // namespace
} // namespace vecmat::test
