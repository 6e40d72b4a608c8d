// Covariances and correlations of the columns of one table, into a square one.
#include "descriptive/covariance.h"

#include "descriptive/pair_reference.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

std::vector<double> covCorr(Observations d, short corr, Divisor divisor = {}, short zeroForMissing = 0)
{
    Owned<matrix> X = table(d.n, d.p, d.cells), C;
    EXPECT_EQ(M_CovCorr(X, d.n, d.p, C, corr, d.mask.data(), column(d.w), divisor.sample, divisor.freqWeights,
                        zeroForMissing),
              0);
    EXPECT_THAT(cellsOf(X), SameBits(d.cells));
    EXPECT_EQ(C->nRows, d.p);
    EXPECT_EQ(C->nCols, d.p);
    return cellsOf(C);
}

TEST(MCovCorr, FollowsThePlainPassToTheLastBit)
{
    RandomData random(631);
    SCOPED_TRACE(random);
    for (const int n : {0, 1, 2, 5, 23})
        for (const int p : {1, 2, 3, 6, 9}) {
            const Observations data = randomObservations(random, n, p);
            for (const Divisor divisor : allDivisors) {
                EXPECT_THAT(covCorr(data, 0, divisor, 0), SameBits(plainCovariances(data, divisor, M)));
                EXPECT_THAT(covCorr(data, 0, divisor, 5), SameBits(plainCovariances(data, divisor, 0.0)));
                EXPECT_THAT(covCorr(data, -1, divisor, 0), SameBits(plainCorrelations(data, divisor, M)));
                EXPECT_THAT(covCorr(data, 2, divisor, -1), SameBits(plainCorrelations(data, divisor, 0.0)));
            }
        }
}

// Complete tables are worked on row by row, until a missing cell is found: here none, or the very last.
TEST(MCovCorr, FollowsThePlainPassOverCompleteTables)
{
    RandomData random(635);
    SCOPED_TRACE(random);
    for (const int n : {1, 2, 3, 11, 30})
        for (const int p : {1, 2, 3, 7, 8, 9}) {
            Observations data = randomObservations(random, n, p);
            data.cells = random.normals(data.cells.size());
            data.w[0] = -data.w[0];
            data.mask.back() = 0;
            for (const double last : {data.cells.back(), M}) {
                data.cells.back() = last;
                EXPECT_THAT(covCorr(data, 0, {-1, 0}), SameBits(plainCovariances(data, {-1, 0}, M)));
                EXPECT_THAT(covCorr(data, 1, {0, -1}), SameBits(plainCorrelations(data, {0, -1}, M)));
            }
        }
}

TEST(MCovCorr, TakesSpecialValuesAsTheyAre)
{
    RandomData random(632);
    SCOPED_TRACE(random);
    for (int round = 0; round < 10; ++round) {
        Observations data = randomObservations(random, 12, 4);
        data.cells = random.withSpecials(data.cells, 0.1);
        data.w = random.withSpecials(data.w, 0.05);
        EXPECT_THAT(covCorr(data, 0), SameBits(plainCovariances(data, {}, M)));
        EXPECT_THAT(covCorr(data, 1), SameBits(plainCorrelations(data, {}, M)));
    }
    // Only the very pattern is missing: a NaN and what lies below the pattern enter.
    EXPECT_TRUE(std::isnan(covCorr(observations({{1, 2, notANumber}}), 0)[0]));
    EXPECT_TRUE(std::isnan(covCorr(observations({{-inf, 1, 2}}), 0)[0]));
}

TEST(MCovCorr, APairUsesItsCommonRowsAndAVarianceThoseOfItsColumn)
{
    // Common to both are the last two rows, (3, 2) and (5, 8): covariance 2 * 6 / 2. The variances are those of
    // 1, 3, 5 and of 2, 8, 5.
    const Observations data = observations({{1, M, 3, 5}, {M, 5, 2, 8}});
    EXPECT_THAT(covCorr(data, 0, {-1, -1}), SameBits({4.0, 6.0, 6.0, 9.0}));
    EXPECT_THAT(covCorr(data, 1, {-1, -1}), SameBits({1.0, 1.0, 1.0, 1.0}));
}

TEST(MCovCorr, CorrelationsMayPassBeyondOne)
{
    // The rows without a partner lie at the mean and make the variances small.
    const Observations data = observations({{-1, 1, 0, 0, M, M}, {-1, 1, M, M, 0, 0}});
    EXPECT_THAT(covCorr(data, 1, {0, 0}), SameBits({1.0, 2.0, 2.0, 1.0}));
    EXPECT_THAT(covCorr(data, 0, {0, 0}), SameBits({0.5, 1.0, 1.0, 0.5}));
}

TEST(MCovCorr, ARowOfNoWeightCountsAmongTheRowsAndMovesNothing)
{
    Observations data = observations({{1, 77, 3}});
    data.w = {1, 0, 1};
    // Q = 2 and W = 2; with m = 3 the divisor is 2 - 2/3, without the row it would be 1.
    EXPECT_THAT(covCorr(data, 0, {-1, 0}), SameBits({2.0 / (2.0 - 2.0 / 3)}));
    EXPECT_THAT(covCorr(data, 0, {-1, -1}), SameBits({2.0}));
    EXPECT_THAT(covCorr(data, 0, {0, 0}), SameBits({1.0}));
    // Such rows alone are rows all the same: no fallback, but 0/0, or 0/-1.
    data.w = {0, 0, 0};
    EXPECT_TRUE(std::isnan(covCorr(data, 0, {0, 0}, 1)[0]));
    EXPECT_THAT(covCorr(data, 0, {-1, -1}, 1), SameBits({-0.0}));
}

TEST(MCovCorr, AnyMaskEntryButZeroDropsTheRow)
{
    Observations data = observations({{1, 50, 60, 3}});
    data.mask = {0, 1, -1, 0};
    EXPECT_THAT(covCorr(data, 0, {0, 0}), SameBits({1.0}));
    Owned<matrix> X = column({1, 3}), C;
    M_CovCorr(X, 2, 1, C, 0, nullptr, column({1, 1}), 0, 0, 0);
    EXPECT_THAT(cellsOf(C), SameBits({1.0}));
}

TEST(MCovCorr, AConstantColumnHasNoCorrelation)
{
    const Observations data = observations({{1, 2, 4}, {7, 7, 7}, {3, 1, 1}});
    const double r = plainCorrelations(data, {}, M)[2];
    EXPECT_THAT(covCorr(data, 1, {}, 0), SameBits({1.0, M, r, M, M, M, r, M, 1.0}));
    for (const short zeroForMissing : {-1, 1, 7})
        EXPECT_THAT(covCorr(data, 1, {}, zeroForMissing), SameBits({1.0, 0.0, r, 0.0, 0.0, 0.0, r, 0.0, 1.0}));
    const std::vector<double> C = covCorr(data, 0);
    EXPECT_THAT(C[4], SameBits(0.0)); // a covariance of 0 is a result
    // A product that vanishes in the rounding is 0 as well.
    EXPECT_THAT(covCorr(observations({{0, 1e-160}, {0, 1}}), 1, {0, 0})[0], SameBits(M));
}

TEST(MCovCorr, AColumnWithoutRowsFallsBackAndCorrelatesWithItself)
{
    const Observations data = observations({{M, M, M}, {1, 2, 4}, {M, M, M}});
    const double variance = plainVariances(data, {})[1];
    EXPECT_THAT(covCorr(data, 0), SameBits({M, M, M, M, variance, M, M, M, M}));
    EXPECT_THAT(covCorr(data, 0, {}, 1), SameBits({0, 0, 0, 0, variance, 0, 0, 0, 0}));
    // The variance M times itself is infinite and passes the test for 0; M times another variance is negative.
    EXPECT_THAT(covCorr(data, 1), SameBits({1, notANumber, -0.0, notANumber, 1, notANumber, -0.0, notANumber, 1}));
    EXPECT_THAT(covCorr(data, 1, {}, 1), SameBits({1, notANumber, 0, notANumber, 1, notANumber, 0, notANumber, 1}));
    // No rows at all.
    Observations none = observations({{1, 2}, {3, 5}});
    none.mask = {1, 1};
    EXPECT_THAT(covCorr(none, 0), SameBits({M, M, M, M}));
    EXPECT_THAT(covCorr(Observations{0, 2, {}, {}, {}}, 0), SameBits({M, M, M, M}));
    EXPECT_THAT(covCorr(Observations{0, 0, {}, {}, {}}, 1), SameBits(std::vector<double>{}));
}

TEST(MCovCorr, APairWithoutCommonRowsHasTheFallbackAsItsCovariance)
{
    const Observations data = observations({{1, 3, M, M}, {M, M, 2, 6}});
    EXPECT_THAT(covCorr(data, 0, {0, 0}), SameBits({1, M, M, 4}));
    EXPECT_THAT(covCorr(data, 1, {0, 0}), SameBits({1, M / 2, M / 2, 1}));
    EXPECT_THAT(covCorr(data, 1, {0, 0}, 1), SameBits({1, 0.0, 0.0, 1}));
}

TEST(MCovCorr, TheDivisorIsNotTested)
{
    // One row: 0/0. A NaN is not 0, so that the correlations are computed, and the diagonal is 1.
    const Observations one = observations({{5}, {6}});
    for (const double cell : covCorr(one, 0, {-1, 0}))
        EXPECT_TRUE(std::isnan(cell));
    EXPECT_THAT(covCorr(one, 1, {-1, 0}), SameBits({1, notANumber, notANumber, 1}));
    EXPECT_THAT(covCorr(one, 1, {0, 0}), SameBits({M, M, M, M}));
    // Weights of less than 1 in all as frequencies: the first variance is negative, the second is not, and their
    // product passes the test for 0.
    Observations light = observations({{1, 3, M}, {1, 3, 5}});
    light.w = {0.25, 0.25, 2};
    const std::vector<double> C = covCorr(light, 0, {-1, -1});
    EXPECT_LT(C[0], 0.0);
    EXPECT_GT(C[3], 0.0);
    EXPECT_THAT(covCorr(light, 1, {-1, -1}), SameBits({1, notANumber, notANumber, 1}));
}

TEST(MCovCorr, AnyCorrButZeroGivesCorrelations)
{
    const Observations data = observations({{1, 2, 4}, {3, 1, 1}});
    EXPECT_THAT(covCorr(data, 1), SameBits(covCorr(data, -1)));
    EXPECT_THAT(covCorr(data, 1)[0], SameBits(1.0));
    EXPECT_NE(covCorr(data, 0)[0], 1.0);
}

TEST(MCovCorr, KeepsALargerResultWithItsStride)
{
    Owned<matrix> X = byColumns({{1, 3}, {2, 6}}), C = filled(4, 3, 9.0);
    matrix* const given = C;
    M_CovCorr(X, 2, 2, C, 0, nullptr, column({1, 1}), 0, 0, 0);
    EXPECT_EQ(C.get(), given);
    EXPECT_THAT(cellsOf(C), SameBits({1, 2, 0, 0, 2, 4, 9, 9, 9, 9, 9, 9}));
    Owned<matrix> small = filled(1, 5, 9.0);
    M_CovCorr(X, 2, 2, small, 0, nullptr, column({1, 1}), 0, 0, 0);
    EXPECT_EQ(small->nRows, 2);
    EXPECT_THAT(cellsOf(small), SameBits({1, 2, 2, 4}));
}

TEST(MCovCorr, ReadsTheCornerOfALargerTable)
{
    Owned<matrix> X = byColumns({{1, 3, 99}, {2, 6, 99}, {99, 99, 99}}), C;
    M_CovCorr(X, 2, 2, C, 0, nullptr, column({1, 1, 99}), 0, 0, 0);
    EXPECT_THAT(cellsOf(C), SameBits({1, 2, 2, 4}));
}

TEST(MCovCorr, PastTheTableItReadsMinusOne)
{
    // Row 2 of column 1 is cell (1, 2); row 2 of column 2 lies outside, as do the rows from 3 on.
    Owned<matrix> X = byColumns({{1}, {3}}), C;
    std::vector<short> mask(3, 0);
    M_CovCorr(X, 3, 2, C, 0, mask.data(), column({1, 1, 1}), -1, 0, 0);
    EXPECT_THAT(cellsOf(C), SameBits(plainCovariances(observations({{1, 3, -1}, {3, -1, -1}}), {}, M)));
    // So do weights.
    Observations data = observations({{1, 3, 8}});
    Owned<matrix> Y = column(data.cells), D;
    M_CovCorr(Y, 3, 1, D, 0, mask.data(), column({3, 2}), 0, 0, 0);
    data.w = {3, 2, -1};
    EXPECT_THAT(cellsOf(D), SameBits(plainCovariances(data, {0, 0}, M)));
}

TEST(VBMCovCorr, LeavesTheTableAsItWasAndFallsBackToTheMissingValue)
{
    RandomData random(633);
    SCOPED_TRACE(random);
    const Observations data = randomObservations(random, 15, 5);
    for (const short corr : {0, 1}) {
        Guarded<double> X(data.cells), w(data.w), C(random.leftovers(25));
        Guarded<short> mask(data.mask);
        EXPECT_EQ(VB_M_CovCorr(X, 15, 5, C, corr, mask, w, -1, 0), 0);
        EXPECT_THAT(C.values(), SameBits(covCorr(data, corr, {-1, 0}, 0)));
        EXPECT_TRUE(X.untouched());
        EXPECT_TRUE(w.untouched());
        EXPECT_TRUE(mask.untouched());
    }
    Guarded<double> X{4, 4, 1, 2}, w{1, 1}, C(4, 9.0);
    EXPECT_EQ(VB_M_CovCorr(X, 2, 2, C, 1, nullptr, w, -1, -1), 0);
    EXPECT_THAT(C.values(), SameBits({M, M, M, 1.0}));
    EXPECT_EQ(VB_M_CovCorr(X, 2, 2, C, 1, nullptr, w, 0, -1), 0);
    EXPECT_EQ(VB_M_CovCorr(nullptr, 0, 0, nullptr, 1, nullptr, nullptr, 0, -1), 0);
}

// The table is copied back last: of a result that reaches into it only the part after it remains.
TEST(VBMCovCorr, LeavesTheTableAsItWasBelowAResult)
{
    RandomData random(634);
    SCOPED_TRACE(random);
    Observations data = randomObservations(random, 15, 5);
    const auto C = covCorr(data, 0, {-1, 0}, 0);
    std::vector<double> cells = data.cells;
    cells.resize(85);
    EXPECT_EQ(VB_M_CovCorr(cells.data(), 15, 5, cells.data() + 60, 0, data.mask.data(), data.w.data(), -1, 0), 0);
    std::vector<double> expected = data.cells;
    expected.insert(expected.end(), C.end() - 10, C.end());
    EXPECT_THAT(cells, SameBits(expected));
}

} // namespace
} // namespace vecmat::test
