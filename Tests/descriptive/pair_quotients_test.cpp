// Covariances with columns enough for the vector kernels, past missing cells or without, have the bits of the plain
// pass also where quotients are hard to round: with significands at the ends of their range, and with numerators,
// weights and means at the ends of theirs, where the quotients may not be made from reciprocals.
#include "descriptive/covariance.h"
#include "descriptive/covariance_with_moments.h"
#include "descriptive/cross_correlation.h"

#include "descriptive/pair_reference.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

namespace vecmat::test {
namespace {

/// Numbers from 1 to below 2 whose significands have few bits other than a leading run of zeros or ones.
double significandAtAnEnd(RandomData& random)
{
    const double steps = std::floor(std::exp2(random.uniform(0.0, 20.0))) - 1.0;
    return random.chance(0.5) ? 1.0 + steps * 0x1p-52 : 2.0 - (steps + 1.0) * 0x1p-52;
}

Observations withMissing(RandomData& random, int n, int p, double scale = 1.0, double weightScale = 1.0)
{
    const auto rows = static_cast<std::size_t>(n);
    std::vector<double> cells = random.normals(rows * static_cast<std::size_t>(p));
    for (double& cell : cells)
        cell *= scale;
    Observations data{n, p, random.withMissing(cells, 0.1), std::vector<short>(rows, 0), random.weights(rows, 0.1)};
    for (double& weight : data.w)
        weight *= weightScale;
    return data;
}

void expectResultsOfPairs(const Observations& data)
{
    const auto expected = plainCovariances(data, {-1, 0}, M);
    Observations copy = data;
    Owned<matrix> X = table(data.n, data.p, data.cells), w = column(data.w), C, mean, stdev, var;
    M_CovCorr(X, data.n, data.p, C, 0, copy.mask.data(), w, -1, 0, 0);
    EXPECT_THAT(cellsOf(C), SameBitsAsAll(expected));
    M_CovCorrAndMeanStDevVar(X, data.n, data.p, C, mean, stdev, var, 0, copy.mask.data(), w, -1, 0, 0, 0, 0);
    for (int j = 0; j < data.p; ++j) {
        const PlainPair pair = plainPair(data, j, j, Factor::magnitude);
        EXPECT_THAT(mean->X[j], SameBits(pair.meanX)) << "column " << j;
        EXPECT_THAT(var->X[j], SameBits(pair.Q / pair.divisor({-1, 0}))) << "column " << j;
    }
    Owned<matrix> cross;
    M_CorrMatMat(X, data.n, data.p, X, data.p, cross, copy.mask.data(), w, 0, 0, -1, 0, 0);
    for (int j = 0; j < data.p; ++j)
        for (int k = 0; k < data.p; ++k) {
            const PlainPair pair = plainPair(data, j, k);
            EXPECT_THAT(cellsOf(cross)[at(j, k, data.p)], SameBits(pair.S / pair.divisor({-1, 0})))
                << "columns " << j << ", " << k;
        }
}

/// Past the missing cells, and with these filled by their neighbours, where all pairs share their deviations.
void expectPlainResults(Observations data)
{
    expectResultsOfPairs(data);
    for (std::size_t k = 0; k < data.cells.size(); ++k)
        if (data.cells[k] == M)
            data.cells[k] = k == 0 || data.cells[k - 1] == M ? 0.0 : data.cells[k - 1];
    SCOPED_TRACE("without missing cells");
    expectResultsOfPairs(data);
}

TEST(PairQuotients, SignificandsAtTheEnds)
{
    for (std::uint64_t seed = 1; seed <= 12; ++seed) {
        RandomData random(seed);
        SCOPED_TRACE(testing::Message() << "seed " << random.seed());
        Observations data = withMissing(random, 300, 9);
        for (double& cell : data.cells)
            if (cell != M)
                cell = std::copysign(significandAtAnEnd(random), cell);
        for (double& weight : data.w)
            weight = weight == 0.0 ? 0.0 : significandAtAnEnd(random);
        expectPlainResults(data);
    }
}

TEST(PairQuotients, CellsOfAnyMagnitude)
{
    std::uint64_t seed = 100;
    for (const int exponent : {-1070, -1022, -1010, -1000, -900, -620, -600, -580, -300, 300, 900, 1000, 1015, 1022}) {
        RandomData random(seed++);
        SCOPED_TRACE(testing::Message() << "cells times 2^" << exponent);
        expectPlainResults(withMissing(random, 100, 17, std::ldexp(1.0, exponent)));
        // Where the weights are small, what a quotient leaves falls below the normal numbers sooner than the quotient.
        expectPlainResults(withMissing(random, 100, 17, std::ldexp(1.0, exponent), 0x1p-10));
    }
}

TEST(PairQuotients, WeightsOfAnyMagnitude)
{
    std::uint64_t seed = 200;
    for (const int exponent : {-1070, -1022, -600, -210, -200, -190, 190, 200, 210, 500, 1000, 1015}) {
        RandomData random(seed++);
        SCOPED_TRACE(testing::Message() << "weights times 2^" << exponent);
        expectPlainResults(withMissing(random, 100, 9, 1.0, std::ldexp(1.0, exponent)));
        // Some rows that leave the sums of weights far behind.
        Observations data = withMissing(random, 100, 9);
        for (std::size_t i = 20; i < data.w.size(); i += 30)
            data.w[i] = std::ldexp(data.w[i], exponent);
        expectPlainResults(data);
    }
}

// Distances from a mean can be tiny where the cells are not: the cells of this column are 0 but for a few tiny ones.
TEST(PairQuotients, OneColumnOfTinyDistances)
{
    for (const double tiny : {0x1p-1074, 0x1.8p-1060, 0x1.23456789p-1010, 0x1.fedcba98p-950, 0x1.3579bdfp-610}) {
        RandomData random(300);
        Observations data = withMissing(random, 120, 9);
        for (std::size_t i = 0; i < 120; ++i)
            data.cells[3 * 120 + i] = i % 7 == 2 ? tiny * double(i) : 0.0;
        SCOPED_TRACE(testing::Message() << "tiny cells of " << tiny);
        expectPlainResults(data);
    }
}

TEST(PairQuotients, NegativeWeightsMayCancel)
{
    RandomData random(400);
    Observations data = withMissing(random, 120, 9);
    for (std::size_t i = 1; i < data.w.size(); i += 2)
        data.w[i] = i % 6 == 1 ? -data.w[i - 1] : -data.w[i];
    expectPlainResults(data);
}

TEST(PairQuotients, ACellThatOverflowsTheMean)
{
    RandomData random(500);
    for (const double large : {0x1.8p+1023, -0x1.fffp+1023, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        Observations data = withMissing(random, 120, 9);
        data.cells[2 * 120 + 110] = large;
        data.cells[0 * 120 + 60] = large; // in the first lane of all, beside columns that don't overflow
        data.cells[5 * 120 + 3] = -large;
        // An infinite mean becomes NaN one row later.
        data.cells[7 * 120 + 119] = large;
        data.w.back() = 3.0;
        expectPlainResults(data);
    }
}

} // namespace
} // namespace vecmat::test
