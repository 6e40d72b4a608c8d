// Eigenvalues measured: residuals in the manner of LAPACK's own tests, and tables whose eigenvalues are known.
#include "decompositions/eigen.h"

#include "decompositions/residuals.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace vecmat::test {
namespace {

struct Found
{
    int status;
    std::vector<double> values;
    std::vector<double> vectors;
};

Found decomposed(const TestMatrix& a)
{
    Owned<matrix> values;
    Owned<matrix> vectors;
    const int status = M_Eigen(table(a.n, a.n, a.cells), values, vectors, a.n, -1);
    return {status, cellsOf(values), cellsOf(vectors)};
}

TestMatrix symmetricFrom(TestMatrix a)
{
    for (int j = 0; j < a.n; ++j)
        for (int i = 0; i < j; ++i)
            a.cells[static_cast<std::size_t>(i + a.n * j)] = a.cells[static_cast<std::size_t>(j + a.n * i)];
    return a;
}

/// b b' of a table of `rank` columns, over the order.
TestMatrix deficientMatrix(int n, int rank, RandomData& data)
{
    TestMatrix b = randomMatrix(n, data);
    for (std::size_t k = static_cast<std::size_t>(n * rank); k < b.cells.size(); ++k)
        b.cells[k] = 0.0;
    return {"rank-deficient", n, gramMatrix(b, 0.0).cells};
}

void expectSmallResiduals(const TestMatrix& a)
{
    SCOPED_TRACE(a.name + " of order " + std::to_string(a.n));
    const Found found = decomposed(a);
    ASSERT_EQ(found.status, 0);
    const Wide wide(a.n, a.n, a.cells);
    const Wide vectors(a.n, a.n, found.vectors);
    Wide scaled = vectors;
    for (int j = 0; j < a.n; ++j)
        for (int i = 0; i < a.n; ++i)
            scaled.at(i, j) *= found.values[static_cast<std::size_t>(j)];
    EXPECT_LT(residual(wide * vectors - scaled, wide.norm()), residualBound);
    EXPECT_LT(residual(vectors.transposed() * vectors - Wide::identity(a.n), 1), residualBound);
    EXPECT_TRUE(std::is_sorted(found.values.rbegin(), found.values.rend()));
}

TEST(EigenResiduals, OfRandomTables)
{
    RandomData data(8121);
    SCOPED_TRACE(data);
    for (const int n : {2, 3, 5, 10, 20, 50, 100, 200})
        expectSmallResiduals(symmetricFrom(randomMatrix(n, data)));
}

TEST(EigenResiduals, OfGradedTables)
{
    RandomData data(8122);
    SCOPED_TRACE(data);
    for (const int n : {2, 5, 20, 50, 120})
        expectSmallResiduals(symmetricFrom(gradedMatrix(n, data)));
}

TEST(EigenResiduals, OfRankDeficientTables)
{
    RandomData data(8123);
    SCOPED_TRACE(data);
    for (const int n : {3, 10, 50, 120})
        for (const int rank : {1, n / 2})
            expectSmallResiduals(deficientMatrix(n, rank, data));
}

TEST(EigenResiduals, OfHilbertAndWilkinsonTables)
{
    for (const int n : {2, 5, 12, 50, 120})
        expectSmallResiduals(hilbertMatrix(n));
    for (const int n : {3, 21, 51, 101})
        expectSmallResiduals(wilkinsonMatrix(n));
}

// ---- known eigenvalues ----

void expectValues(const TestMatrix& a, std::vector<double> expected, double tolerance)
{
    SCOPED_TRACE(a.name + " of order " + std::to_string(a.n));
    const Found found = decomposed(a);
    ASSERT_EQ(found.status, 0);
    std::sort(expected.rbegin(), expected.rend());
    for (std::size_t k = 0; k < expected.size(); ++k)
        EXPECT_NEAR(found.values[k], expected[k], tolerance) << k;
}

TEST(EigenSpectrum, OfTheSecondDifference)
{
    // 2 on the diagonal, -1 beside it: 2 - 2 cos(k pi / (n + 1)).
    for (const int n : {1, 2, 7, 30, 100}) {
        const TestMatrix a{"second difference", n, squareOf(n, [](int i, int j) {
                               return i == j ? 2.0 : std::abs(i - j) == 1 ? -1.0 : 0.0;
                           })};
        std::vector<double> expected;
        for (int k = 1; k <= n; ++k)
            expected.push_back(2.0 - 2.0 * std::cos(k * std::numbers::pi / (n + 1)));
        expectValues(a, expected, 4.0 * n * unitRoundoff * 4.0);
    }
}

TEST(EigenSpectrum, OfTheSmallerIndex)
{
    // min(i, j): 1 / (4 sin((2k - 1) pi / (4n + 2)) squared).
    for (const int n : {1, 2, 10, 40}) {
        const TestMatrix a{"smaller index", n, squareOf(n, [](int i, int j) { return std::min(i, j) + 1.0; })};
        std::vector<double> expected;
        for (int k = 1; k <= n; ++k) {
            const double sine = std::sin((2 * k - 1) * std::numbers::pi / (4 * n + 2));
            expected.push_back(1.0 / (4.0 * sine * sine));
        }
        expectValues(a, expected, 30.0 * n * unitRoundoff * n * n);
    }
}

TEST(EigenSpectrum, OfEqualCellsAndOfEqualCorrelations)
{
    for (const int n : {2, 5, 60}) {
        const TestMatrix ones{"ones", n, squareOf(n, [](int, int) { return 1.0; })};
        std::vector<double> expected(static_cast<std::size_t>(n), 0.0);
        expected[0] = n;
        expectValues(ones, expected, 10.0 * n * unitRoundoff * n);

        const TestMatrix equal{"equal correlations", n, squareOf(n, [](int i, int j) { return i == j ? 1.0 : 0.25; })};
        expected.assign(static_cast<std::size_t>(n), 0.75);
        expected[0] = 1.0 + (n - 1) * 0.25;
        expectValues(equal, expected, 10.0 * n * unitRoundoff * n);
    }
}

TEST(EigenSpectrum, OfRossersTable)
{
    // Rosser, Lanczos, Hestenes, Karush, Journal of Research of the National Bureau of Standards 47, 1951.
    const double cells[8][8] = {{611, 196, -192, 407, -8, -52, -49, 29}, {196, 899, 113, -192, -71, -43, -8, -44},
                                {-192, 113, 899, 196, 61, 49, 8, 52},    {407, -192, 196, 611, 8, 44, 59, -23},
                                {-8, -71, 61, 8, 411, -599, 208, 208},   {-52, -43, 49, 44, -599, 411, 208, 208},
                                {-49, -8, 8, 59, 208, 208, 99, -911},    {29, -44, 52, -23, 208, 208, -911, 99}};
    const TestMatrix rosser{"Rosser", 8, squareOf(8, [&](int i, int j) { return cells[i][j]; })};
    const double large = 10.0 * std::sqrt(10405.0);
    const double pair = 100.0 * std::sqrt(26.0);
    expectValues(rosser, {large, 1020, 510 + pair, 1000, 1000, 510 - pair, 0, -large}, 30.0 * 8 * 1020 * unitRoundoff);
}

TEST(EigenSpectrum, OfWilkinsonsTableHasItsPairs)
{
    // The two largest eigenvalues of the table of order 21 agree to fourteen digits (Wilkinson, The Algebraic
    // Eigenvalue Problem, 1965, page 309).
    const Found found = decomposed(wilkinsonMatrix(21));
    EXPECT_NEAR(found.values[0], 10.746194182903393, 1e-13);
    EXPECT_NEAR(found.values[1], 10.746194182903322, 1e-13);
    EXPECT_NEAR(found.values[20], -1.1254415221199847, 1e-13);
}

} // namespace
} // namespace vecmat::test
