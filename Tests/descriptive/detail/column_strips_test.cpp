// Moments and covariances of tables that are large enough for the vector kernels give the bits of the plain pass over
// one column, or one pair, at a time: at sizes around the edges of a strip, of two strips, and of the rows packed at
// once.
#include "descriptive/covariance.h"
#include "descriptive/covariance_with_moments.h"
#include "descriptive/cross_correlation.h"
#include "descriptive/means.h"
#include "descriptive/moments.h"

#include "descriptive/pair_reference.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace vecmat::test {
namespace {

constexpr std::array columnCounts = {2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 25};
constexpr std::array rowCounts = {0, 1, 15, 16, 17, 127, 128, 129, 260};

enum class Cells { complete, withMissing, special };

Observations observationsOf(RandomData& random, int n, int p, Cells kind)
{
    Observations data = randomObservations(random, n, p);
    const auto count = data.cells.size();
    if (random.seed() % 2 == 0) // without the negative ones
        data.w = random.weights(data.w.size(), 0.15);
    if (kind == Cells::complete)
        data.cells = random.normals(count);
    if (kind == Cells::special)
        data.cells = random.withSpecials(random.normals(count), 0.02);
    return data;
}

/// Runs `body(data)` over tables of all sizes and kinds.
template <class Body>
void forTables(Body body)
{
    std::uint64_t seed = 1;
    for (const int p : columnCounts)
        for (const int n : rowCounts)
            for (const Cells kind : {Cells::complete, Cells::withMissing, Cells::special}) {
                RandomData random(seed++);
                SCOPED_TRACE(testing::Message() << n << " rows, " << p << " columns, seed " << random.seed());
                body(observationsOf(random, n, p, kind));
                if (testing::Test::HasFailure())
                    return;
            }
}

struct PlainMoments
{
    double W = 0.0, mean = 0.0, squares = 0.0;
    int m = 0;
};

enum class Zeros { counted, skipped };

PlainMoments plainMoments(const std::vector<double>& x, const std::vector<short>& mask, const std::vector<double>& w,
                          Zeros zeros)
{
    PlainMoments moments;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (mask[i] != 0 || x[i] == M || (zeros == Zeros::skipped && w[i] == 0.0))
            continue;
        moments.W += w[i];
        moments.m += 1;
        if (w[i] == 0.0)
            continue;
        const double d = x[i] - moments.mean;
        moments.squares += (d * d) * (w[i] - (w[i] * w[i]) / moments.W);
        moments.mean += (d * w[i]) / moments.W;
    }
    return moments;
}

TEST(ColumnStrips, MeansAndVariancesCountRowsOfNoWeight)
{
    forTables([](Observations data) {
        std::vector<double> means, variances;
        for (int j = 0; j < data.p; ++j) {
            const PlainMoments moments = plainMoments(data.column(j), data.mask, data.w, Zeros::counted);
            const double divisor = moments.W - moments.W / moments.m;
            means.push_back(moments.mean);
            variances.push_back(divisor > 0.0 ? moments.squares / divisor : M);
        }
        Owned<matrix> X = table(data.n, data.p, data.cells), mean, stdev, var;
        M_MeanStDevVar(X, data.n, data.p, mean, stdev, var, data.mask.data(), column(data.w), -1, 0);
        EXPECT_THAT(cellsOf(mean), SameBitsAsAll(means));
        EXPECT_THAT(cellsOf(var), SameBitsAsAll(variances));
    });
}

TEST(ColumnStrips, MeansAndDeviationsSkipRowsOfNoWeight)
{
    forTables([](Observations data) {
        std::vector<double> means, deviations;
        for (int j = 0; j < data.p; ++j) {
            const PlainMoments moments = plainMoments(data.column(j), data.mask, data.w, Zeros::skipped);
            const double divisor = moments.W - moments.W / moments.m;
            const double variance = divisor > 0.0 ? moments.squares / divisor : M;
            means.push_back(moments.m == 0 ? M : moments.mean);
            deviations.push_back(moments.m == 0 || variance == M ? M : variance <= 0.0 ? 0.0 : std::sqrt(variance));
        }
        Owned<matrix> X = table(data.n, data.p, data.cells), mean,
                      stdev = table(data.p, 1, std::vector<double>(std::size_t(data.p), 5.0));
        M_MeanStDev(X, data.n, data.p, mean, stdev, data.mask.data(), column(data.w), -1, 0, 0);
        EXPECT_THAT(cellsOf(mean), SameBitsAsAll(means));
        EXPECT_THAT(cellsOf(stdev), SameBitsAsAll(deviations));
    });
}

// Consecutive rows are read in place, others from a copy: the first block of these has only some.
TEST(ColumnStrips, ColumnsApartWithAndWithoutAMask)
{
    forTables([](Observations data) {
        std::vector<Owned<matrix>> columns;
        std::vector<matrix*> X;
        for (int j = 0; j < data.p; ++j)
            X.push_back(columns.emplace_back(column(data.column(j))));
        for (const bool masked : {false, true}) {
            for (std::size_t i = 0; i < data.mask.size(); ++i)
                data.mask[i] = masked && i < 100 && i % 3 == 0 ? 1 : 0;
            std::vector<double> means, variances;
            for (int j = 0; j < data.p; ++j) {
                const PlainMoments moments = plainMoments(data.column(j), data.mask, data.w, Zeros::counted);
                const double divisor = moments.W - moments.W / moments.m;
                means.push_back(moments.mean);
                variances.push_back(divisor > 0.0 ? moments.squares / divisor : M);
            }
            Owned<matrix> mean, stdev, var;
            M_MeanStDevVarSPV(X.data(), data.n, data.p, mean, stdev, var, masked ? data.mask.data() : nullptr,
                              column(data.w), -1, 0);
            EXPECT_THAT(cellsOf(mean), SameBitsAsAll(means));
            EXPECT_THAT(cellsOf(var), SameBitsAsAll(variances));
        }
    });
}

TEST(ColumnStrips, MeansAlone)
{
    forTables([](Observations data) {
        data.mask.assign(data.mask.size(), 0);
        std::vector<double> means;
        for (int j = 0; j < data.p; ++j)
            means.push_back(plainMoments(data.column(j), data.mask, data.w, Zeros::counted).mean);
        Owned<matrix> X = table(data.n, data.p, data.cells), mean;
        M_Mean(X, data.n, data.p, mean, column(data.w));
        EXPECT_THAT(cellsOf(mean), SameBitsAsAll(means));
    });
}

TEST(ColumnStrips, Covariances)
{
    forTables([](Observations data) {
        const auto expected = plainCovariances(data, {-1, 0}, M);
        Owned<matrix> X = table(data.n, data.p, data.cells), C;
        M_CovCorr(X, data.n, data.p, C, 0, data.mask.data(), column(data.w), -1, 0, 0);
        EXPECT_THAT(cellsOf(C), SameBitsAsAll(expected));
    });
}

TEST(ColumnStrips, CovariancesCountARowOfNoWeightInThePairsThatHaveIt)
{
    RandomData random(601);
    Observations data = observationsOf(random, 150, 9, Cells::complete);
    std::fill(data.mask.begin(), data.mask.end(), short{0});
    std::fill(data.w.begin(), data.w.end(), 1.5);
    data.w[140] = 0.0;
    const auto complete = plainCovariances(data, {-1, 0}, M);
    data.cells[140] = M; // of the first column: its pairs have one row less to divide by
    const auto expected = plainCovariances(data, {-1, 0}, M);
    ASSERT_THAT(expected, testing::Not(SameBitsAsAll(complete)));
    Owned<matrix> X = table(data.n, data.p, data.cells), C;
    M_CovCorr(X, data.n, data.p, C, 0, data.mask.data(), column(data.w), -1, 0, 0);
    EXPECT_THAT(cellsOf(C), SameBitsAsAll(expected));
}

TEST(ColumnStrips, CovariancesWithTheMagnitudeOfTheFactor)
{
    forTables([](Observations data) {
        std::vector<double> covariances(at(0, data.p, data.p)), means;
        for (int j = 0; j < data.p; ++j)
            for (int k = j; k < data.p; ++k) {
                const PlainPair pair = plainPair(data, j, k, Factor::magnitude);
                covariances[at(j, k, data.p)] = covariances[at(k, j, data.p)] = pair.Q / pair.divisor({-1, 0});
                if (j == k)
                    means.push_back(pair.meanX);
            }
        Owned<matrix> X = table(data.n, data.p, data.cells), C, mean, stdev, var;
        M_CovCorrAndMeanStDevVar(X, data.n, data.p, C, mean, stdev, var, 0, data.mask.data(), column(data.w), -1, 0, 0,
                                 0, 0);
        EXPECT_THAT(cellsOf(C), SameBitsAsAll(covariances));
        EXPECT_THAT(cellsOf(mean), SameBitsAsAll(means));
    });
}

TEST(ColumnStrips, CrossCovariances)
{
    forTables([](Observations data) {
        const int p = data.p / 2, q = data.p - p;
        std::vector<double> expected(at(0, q, p));
        for (int j = 0; j < p; ++j)
            for (int k = 0; k < q; ++k) {
                const PlainPair pair = plainPair(data, j, p + k);
                expected[at(j, k, p)] = pair.S / pair.divisor({-1, 0});
            }
        const auto split = data.cells.begin() + std::ptrdiff_t{p} * data.n;
        Owned<matrix> C;
        M_CorrMatMat(table(data.n, p, {data.cells.begin(), split}), data.n, p,
                     table(data.n, q, {split, data.cells.end()}), q, C, data.mask.data(), column(data.w), 0, 0, -1, 0,
                     0);
        EXPECT_THAT(cellsOf(C), SameBitsAsAll(expected));
    });
}

// Whichever allocation fails: either the exception passes out, or the plain pass gives the same bits.
TEST(ColumnStrips, WithoutMemoryIsThePlainPass)
{
    for (const Cells kind : {Cells::complete, Cells::withMissing}) {
        RandomData random(7);
        Observations data = observationsOf(random, 40, 9, kind);
        const auto expected = plainCovariances(data, {-1, 0}, M);
        Owned<matrix> X = table(data.n, data.p, data.cells), w = column(data.w), C = table(9, 9, std::vector(81, 0.0));
        expectFallbackAtEachFailure(
            [&] {
                C->X[0] = 77.0;
                M_CovCorr(X, data.n, data.p, C, 0, data.mask.data(), w, -1, 0, 0);
            },
            [&] { EXPECT_TRUE(std::equal(expected.begin(), expected.end(), C->X)); });
    }
}

} // namespace
} // namespace vecmat::test
