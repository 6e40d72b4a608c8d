// The accuracy of singular values: residuals in the manner of LAPACK's own tests, and tables with known values.
#include "decompositions/singular_values.h"

#include "decompositions/residuals.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace vecmat::test {
namespace {

struct Rectangle
{
    std::string name;
    int n;
    int p;
    std::vector<double> cells;
};

struct Found
{
    int info;
    std::vector<double> s;
    std::vector<double> u;
    std::vector<double> v;
};

Found decomposed(const Rectangle& a, int leftCols, int job)
{
    const Owned<matrix> s = filled(std::min(a.n + 1, a.p), 1, 0.0);
    const Owned<matrix> u = filled(a.n, leftCols, 0.0);
    const Owned<matrix> v = filled(a.p, a.p, 0.0);
    Found found{};
    M_SVDecomp(table(a.n, a.p, a.cells), a.n, a.p, s, u, v, job, &found.info);
    found.s = cellsOf(s);
    found.u = cellsOf(u);
    found.v = cellsOf(v);
    return found;
}

Rectangle rectangleOf(const TestMatrix& a)
{
    return {a.name, a.n, a.n, a.cells};
}

Rectangle randomRectangle(int n, int p, RandomData& data)
{
    return {"random", n, p, data.normals(static_cast<std::size_t>(n * p))};
}

/// The product of random tables of `rank` columns and rows.
Rectangle deficientRectangle(int n, int p, int rank, RandomData& data)
{
    const Wide left(n, rank, data.normals(static_cast<std::size_t>(n * rank)));
    const Wide right(rank, p, data.normals(static_cast<std::size_t>(rank * p)));
    const Wide product = left * right;
    Rectangle a{"rank-deficient", n, p, {}};
    for (int j = 0; j < p; ++j)
        for (int i = 0; i < n; ++i)
            a.cells.push_back(static_cast<double>(product.at(i, j)));
    return a;
}

void expectSmallResiduals(const Rectangle& a)
{
    SCOPED_TRACE(a.name + ", " + std::to_string(a.n) + " by " + std::to_string(a.p));
    for (const int job : {11, 21}) {
        const int smaller = std::min(a.n, a.p);
        const int leftCols = job == 11 ? a.n : smaller;
        const Found found = decomposed(a, leftCols, job);
        ASSERT_EQ(found.info, 0);
        const Wide wide(a.n, a.p, a.cells);
        const Wide u(a.n, leftCols, found.u);
        const Wide v(a.p, a.p, found.v);
        Wide scaled(a.n, a.p);
        for (int j = 0; j < smaller; ++j)
            for (int i = 0; i < a.n; ++i)
                scaled.at(i, j) = u.at(i, j) * found.s[static_cast<std::size_t>(j)];
        const long double size = std::max(wide.norm(), wide.transposed().norm());
        EXPECT_LT(residual(scaled * v.transposed() - wide, size), residualBound);
        EXPECT_LT(residual(u.transposed() * u - Wide::identity(leftCols), 1), residualBound);
        EXPECT_LT(residual(v.transposed() * v - Wide::identity(a.p), 1), residualBound);
        EXPECT_TRUE(std::is_sorted(found.s.rbegin(), found.s.rend()));
        EXPECT_GE(found.s.back(), 0.0);
    }
}

TEST(SingularResiduals, OfRandomTables)
{
    RandomData data(8231);
    SCOPED_TRACE(data);
    for (const auto& [n, p] : {std::pair{2, 2}, {5, 3}, {3, 5}, {20, 20}, {60, 20}, {20, 60}, {120, 120}})
        expectSmallResiduals(randomRectangle(n, p, data));
}

TEST(SingularResiduals, OfARandomTableOfOrder200)
{
    RandomData data(8232);
    SCOPED_TRACE(data);
    expectSmallResiduals(randomRectangle(200, 200, data));
}

TEST(SingularResiduals, OfRankDeficientTables)
{
    RandomData data(8233);
    SCOPED_TRACE(data);
    for (const auto& [n, p] : {std::pair{10, 10}, {50, 30}, {30, 50}, {80, 80}})
        for (const int rank : {1, std::min(n, p) / 2})
            expectSmallResiduals(deficientRectangle(n, p, rank, data));
}

TEST(SingularResiduals, OfGradedHilbertAndWilkinsonTables)
{
    RandomData data(8234);
    SCOPED_TRACE(data);
    for (const int n : {3, 12, 60, 120}) {
        expectSmallResiduals(rectangleOf(gradedMatrix(n, data)));
        expectSmallResiduals(rectangleOf(hilbertMatrix(n)));
    }
    for (const int n : {3, 21, 101})
        expectSmallResiduals(rectangleOf(wilkinsonMatrix(n)));
}

// ---- known values ----

void expectValues(const Rectangle& a, std::vector<double> expected, double tolerance)
{
    SCOPED_TRACE(a.name + ", " + std::to_string(a.n) + " by " + std::to_string(a.p));
    const Found found = decomposed(a, a.n, 0);
    ASSERT_EQ(found.info, 0);
    std::sort(expected.rbegin(), expected.rend());
    ASSERT_EQ(found.s.size(), expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k)
        EXPECT_NEAR(found.s[k], expected[k], tolerance) << k;
}

TEST(SingularSpectrum, OfTheFirstDifference)
{
    // Columns of 1 and -1 below it, n + 1 by n: 2 sin(k pi / (2 (n + 1))); lying down it has one value of 0 more.
    for (const int n : {1, 2, 9, 60}) {
        Rectangle standing{"first difference", n + 1, n, std::vector<double>(static_cast<std::size_t>((n + 1) * n))};
        Rectangle lying{"first difference, lying", n, n + 1, standing.cells};
        std::vector<double> expected;
        for (int k = 0; k < n; ++k) {
            standing.cells[static_cast<std::size_t>(k + (n + 1) * k)] = 1;
            standing.cells[static_cast<std::size_t>(k + 1 + (n + 1) * k)] = -1;
            lying.cells[static_cast<std::size_t>(k + n * k)] = 1;
            lying.cells[static_cast<std::size_t>(k + n * (k + 1))] = -1;
            expected.push_back(2 * std::sin((k + 1) * std::numbers::pi / (2 * (n + 1))));
        }
        expectValues(standing, expected, 30.0 * n * unitRoundoff);
        expected.push_back(0.0);
        expectValues(lying, expected, 30.0 * n * unitRoundoff);
    }
}

TEST(SingularSpectrum, OfTheUpperTriangleOfOnes)
{
    // The inverse of the square difference: 1 / (2 cos(k pi / (2n + 1))).
    for (const int n : {1, 2, 10, 50}) {
        const TestMatrix a{"triangle of ones", n, squareOf(n, [](int i, int j) { return i <= j ? 1.0 : 0.0; })};
        std::vector<double> expected;
        for (int k = 1; k <= n; ++k)
            expected.push_back(0.5 / std::cos(k * std::numbers::pi / (2 * n + 1)));
        expectValues(rectangleOf(a), expected, 30.0 * n * n * unitRoundoff);
    }
}

TEST(SingularSpectrum, OfOuterProductsAndDiagonals)
{
    expectValues({"outer product", 3, 2, {1, 2, 2, 2, 4, 4}}, {3 * std::sqrt(5.0), 0}, 1e-14);
    expectValues({"diagonal", 3, 3, {-2, 0, 0, 0, 5, 0, 0, 0, 3}}, {5, 3, 2}, 0.0);
    // The table of order 2 of Golub and Van Loan's kind: values phi and 1 / phi.
    expectValues({"golden", 2, 2, {1, 0, 1, 1}}, {std::numbers::phi, 1 / std::numbers::phi}, 1e-15);
}

TEST(SingularSpectrum, OfTheHilbertTable)
{
    // Fettis and Caslin, Mathematics of Computation 21, 1967.
    const Found found = decomposed(rectangleOf(hilbertMatrix(5)), 5, 0);
    EXPECT_NEAR(found.s[0], 1.5670506910982308, 1e-14);
    EXPECT_NEAR(found.s[4] / 3.2879287721718629e-6, 1.0, 1e-9);
}

} // namespace
} // namespace vecmat::test
