// Correlation tables of given covariance tables.
#include "descriptive/correlation_of_covariance.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/safearrays.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::vector<double> correlations(int p, const std::vector<double>& S, short zeroForMissing = 0)
{
    Owned<matrix> covariance = table(p, p, S), R = filled(p, p, 7.0);
    EXPECT_EQ(M_CorrMatFromCovMat(covariance, p, R, zeroForMissing), 0);
    EXPECT_THAT(cellsOf(covariance), SameBits(S));
    return cellsOf(R);
}

std::vector<double> inTriangle(int p, const std::vector<double>& S)
{
    TableColumns C = triangle(p, S);
    EXPECT_EQ(M_CorrMatFromCovMatSPV2_T(C, p), 0);
    return C.cells();
}

/// The rule in full, over the upper triangle of S.
std::vector<double> expected(int p, const std::vector<double>& S, double fallback)
{
    const auto cell = [p](int i, int j) { return static_cast<std::size_t>(i + p * j); };
    std::vector<double> R(S.size());
    for (int j = 0; j < p; ++j) {
        R[cell(j, j)] = S[cell(j, j)] > 1e-12 ? 1.0 : fallback;
        for (int k = j + 1; k < p; ++k) {
            const double product = S[cell(j, j)] * S[cell(k, k)];
            R[cell(j, k)] = R[cell(k, j)] = product > 0.0 ? S[cell(j, k)] / std::sqrt(product) : fallback;
        }
    }
    return R;
}

std::vector<double> lowerTriangle(int p, const std::vector<double>& R)
{
    std::vector<double> all;
    for (const auto& column : triangleOf(p, R))
        all.insert(all.end(), column.begin(), column.end());
    return all;
}

std::vector<double> symmetricTable(RandomData& random, int p)
{
    const auto order = static_cast<std::size_t>(p);
    std::vector<double> S = random.withSpecials(random.normals(order * order), 0.15);
    for (std::size_t i = 0; i < order; ++i) {
        if (random.chance(0.8))
            S[i + order * i] = random.uniform(0.0, 4.0);
        for (std::size_t j = 0; j < i; ++j)
            S[i + order * j] = S[j + order * i];
    }
    return S;
}

TEST(MCorrMatFromCovMat, FollowsTheRuleInATableAndInATriangle)
{
    RandomData random(671);
    SCOPED_TRACE(random);
    for (const int p : {0, 1, 2, 5, 9})
        for (int round = 0; round < 5; ++round) {
            const std::vector<double> S = symmetricTable(random, p);
            EXPECT_THAT(correlations(p, S, 0), SameBits(expected(p, S, M)));
            EXPECT_THAT(correlations(p, S, -1), SameBits(expected(p, S, 0.0)));
            EXPECT_THAT(inTriangle(p, S), SameBits(lowerTriangle(p, expected(p, S, M))));
        }
}

TEST(MCorrMatFromCovMat, OfAZeroTableIsAllFallback)
{
    const std::vector<double> zeros(9, 0.0);
    EXPECT_THAT(correlations(3, zeros, 0), SameBits(std::vector<double>(9, M)));
    EXPECT_THAT(correlations(3, zeros, -1), SameBits(std::vector<double>(9, 0.0)));
    EXPECT_THAT(correlations(3, zeros, 1), SameBits(std::vector<double>(9, M))); // only -1 asks for 0.0
    EXPECT_THAT(inTriangle(3, zeros), SameBits(std::vector<double>(6, M)));
}

TEST(MCorrMatFromCovMat, TheDiagonalHasAThresholdOfItsOwn)
{
    // A variance of 1e-13: a fallback on the diagonal, a real correlation beside it.
    const std::vector<double> S{1e-13, 3e-14, 3e-14, 4};
    const double r = 3e-14 / std::sqrt(1e-13 * 4.0);
    EXPECT_THAT(correlations(2, S), SameBits({M, r, r, 1}));
    EXPECT_THAT(correlations(2, S, -1), SameBits({0, r, r, 1}));
    EXPECT_THAT(inTriangle(2, S), SameBits({M, r, 1}));
    // 1e-12 itself is not above; two negative variances have a positive product; a NaN is above nothing.
    EXPECT_THAT(correlations(1, {1e-12}), SameBits({M}));
    EXPECT_THAT(correlations(2, {-4, 2, 2, -1}), SameBits({M, 1, 1, M}));
    EXPECT_THAT(correlations(2, {notANumber, 2, 2, 1}), SameBits({M, M, M, 1}));
}

TEST(MCorrMatFromCovMat, ReadsTheUpperTriangleAndMayWorkInPlace)
{
    Owned<matrix> S = byRows({{4, 2, 6}, {99, 1, 3}, {99, 99, 9}});
    M_CorrMatFromCovMat(S, 3, S, 0);
    EXPECT_THAT(cellsOf(S), SameBits({1, 1, 1, 1, 1, 1, 1, 1, 1}));
}

TEST(MCorrMatFromCovMat, DoesNotPrepareItsResult)
{
    Owned<matrix> R = filled(3, 3, 7.0), small = filled(1, 2, 7.0);
    M_CorrMatFromCovMat(byRows({{4, 2}, {2, 4}}), 2, R, 0);
    EXPECT_THAT(cellsOf(R), SameBits({1, 0.5, 7, 0.5, 1, 7, 7, 7, 7}));
    // (2, 1) and (1, 2) are both the second cell; (2, 2) lies outside and is dropped.
    M_CorrMatFromCovMat(byRows({{4, 2}, {2, 4}}), 2, small, 0);
    EXPECT_THAT(cellsOf(small), SameBits({1, 0.5}));
    // Past the end of S it reads -1.0: here both variances but the first.
    Owned<matrix> T = filled(2, 2, 7.0);
    M_CorrMatFromCovMat(column({4}), 2, T, 0);
    EXPECT_THAT(cellsOf(T), SameBits({1, M, M, M}));
}

TEST(VBMCorrMatFromCovMat, FallsBackToTheMissingValue)
{
    Guarded<double> S{4, 3, 0, 3, 9, 0, 0, 0, 0}, R(9, 7.0);
    EXPECT_EQ(VB_M_CorrMatFromCovMat(S, 3, R), 0);
    EXPECT_THAT(R.values(), SameBits({1, 0.5, M, 0.5, 1, M, M, M, M}));
    EXPECT_TRUE(S.untouched());
    EXPECT_EQ(VB_M_CorrMatFromCovMat(S, 3, S), 0);
    EXPECT_THAT(S.values(), SameBits(R.values()));

    ArrayOfColumns C = numberTriangle(3, {4, 3, 0, 3, 9, 0, 0, 0, 0});
    EXPECT_EQ(Cpp_M_CorrMatFromCovMatSPV2_T(C, 3), 0);
    EXPECT_THAT(C.numbers(), SameBits({1, 0.5, M, 1, M, M}));
}

} // namespace
} // namespace vecmat::test
