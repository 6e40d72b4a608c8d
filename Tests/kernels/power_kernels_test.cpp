// The powers of the vector kernel are those of pow, bit by bit.
#include "base/detail/mathematics/mathematics.h"
#include "support/bits.h"
#include "support/random_data.h"

#include "descriptive/shape_moments.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

struct Shape
{
    double mean, var, skewP, kurtP, skewS, kurtS, seSkew, seKurt;
};

/// The updates one row at a time, with pow.
std::vector<double> plainSums(const std::vector<double>& x, const std::vector<double>& w)
{
    double W = 0.0, mean = 0.0, m2 = 0.0, m3 = 0.0, m4 = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (x[i] == M)
            continue;
        W += w[i];
        if (w[i] == 0.0)
            continue;
        const double f = w[i] / W, d = x[i] - mean;
        const double d4 = vecmat::pow(d, 4.0), d3 = vecmat::pow(d, 3.0), t = f * 3.0 * d * m2;
        m4 += (f + f) * d * (t - (m3 + m3)) + (((f * 6.0 + -4.0) - f * f * 3.0) * f + 1.0) * d4 * w[i];
        m3 = (m3 - t) + (f * f + f * f + (1.0 - f * 3.0)) * d3 * w[i];
        m2 += (1.0 - w[i] / W) * d * d * w[i];
        mean += d * (w[i] / W);
    }
    const double variance = m2 / W;
    if (variance == 0.0)
        return {mean, variance, M, M};
    return {mean, variance, (m3 / W) / vecmat::pow(variance, 1.5), (m4 / W) / (variance * variance) + -3.0};
}

void expectPlainSums(const std::vector<double>& x, const std::vector<double>& w)
{
    Shape s{};
    V_MeanVarSkewPKurtP(column(x), static_cast<int>(x.size()), &s.mean, &s.var, &s.skewP, &s.kurtP, &s.skewS, &s.kurtS,
                        &s.seSkew, &s.seKurt, nullptr, column(w), 0, -1);
    EXPECT_THAT((std::vector<double>{s.mean, s.var, s.skewP, s.kurtP}), SameBitsAsAll(plainSums(x, w)));
}

TEST(PowerKernels, MomentsAtTheEdgesOfTheRowsTakenTogether)
{
    for (const std::size_t n : {2, 3, 7, 8, 9, 127, 128, 129, 255, 256, 257, 1000}) {
        RandomData data(n);
        SCOPED_TRACE(data);
        expectPlainSums(data.withMissing(data.normals(n), 0.05), data.weights(n, 0.1));
    }
}

TEST(PowerKernels, MomentsOfManyRows)
{
    for (int seed = 1; seed <= 10; ++seed) {
        RandomData data(static_cast<std::uint64_t>(seed));
        SCOPED_TRACE(data);
        expectPlainSums(data.normals(20000), std::vector<double>(20000, 1.0));
    }
}

TEST(PowerKernels, MomentsOfWholeNumbersWhosePowersAreExact)
{
    RandomData data(3);
    expectPlainSums(data.wholes(5000, -1000, 1000), std::vector<double>(5000, 1.0));
}

// The weights double, so that the mean moves by half of each deviation and all of them are whole: odd ones whose cubes
// have 54 bits, and lie in the middle between two doubles.
TEST(PowerKernels, MomentsOfDeviationsWhoseCubesLieInTheMiddle)
{
    std::vector<double> x, w;
    double mean = 0.0;
    for (int i = 0; i < 24; ++i) {
        const double deviation = (i % 2 == 0 ? 1.0 : -1.0) * (208065.0 + 2.0 * 1117.0 * i);
        x.push_back(mean + deviation);
        w.push_back(i == 0 ? 1.0 : std::ldexp(1.0, i - 1));
        mean += i == 0 ? deviation : deviation * 0.5;
    }
    expectPlainSums(x, w);
}

// Powers that overflow, vanish or are NaN, and those whose rounding is in doubt, are expanded exactly.
TEST(PowerKernels, MomentsOfCellsOfAllMagnitudes)
{
    for (const double scale :
         {1e-300, 1e-110, 4e-103, 1e-80, 2e-77, 1e-61, 1e-59, 1e59, 1e61, 1e77, 1e80, 1e110, 1e300}) {
        RandomData data(4);
        std::vector<double> x = data.normals(300);
        for (double& cell : x)
            cell *= scale;
        SCOPED_TRACE(scale);
        expectPlainSums(x, std::vector<double>(300, 1.0));
    }
    for (const double special : {std::numeric_limits<double>::infinity(), std::nan(""), 5e-324, 0.0, -0.0}) {
        RandomData data(5);
        std::vector<double> x = data.normals(300);
        x[100] = special;
        SCOPED_TRACE(special);
        expectPlainSums(x, std::vector<double>(300, 1.0));
    }
    // A fourth power that overflows among so many rows that the variance and its square don't, in any of their places.
    for (std::size_t row = 1100; row < 1100 + 256; ++row) {
        RandomData data(6);
        std::vector<double> x = data.normals(2000);
        x[row] = 1.5e77;
        SCOPED_TRACE(row);
        expectPlainSums(x, std::vector<double>(2000, 1.0));
    }
}

} // namespace
} // namespace vecmat::test
