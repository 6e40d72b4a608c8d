// The logarithms of the vector kernel are those of log, bit by bit.
#include "base/detail/mathematics/mathematics.h"
#include "base/mathematics_arguments.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include "descriptive/means.h"
#include "elementary/cell_functions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

void expectLogarithms(std::vector<double> x, int rows, short* mask = nullptr)
{
    std::vector<double> expected = x;
    for (std::size_t k = 0; k < x.size(); ++k)
        if (x[k] != M && (mask == nullptr || mask[k % static_cast<std::size_t>(rows)] == 0))
            expected[k] = vecmat::log(x[k]);
    VB_M_LogMatrix(x.data(), rows, static_cast<int>(x.size()) / rows, mask);
    EXPECT_THAT(x, SameBitsAsAll(expected));
}

/// Normal numbers: one that isn't would leave its whole batch to the function for a single number.
std::vector<double> drawn(std::uint64_t seed, std::size_t count)
{
    MathematicsArguments arguments(seed);
    std::vector<double> x(count);
    for (double& argument : x)
        do
            argument = arguments.forLog();
        while (!std::isnormal(argument));
    return x;
}

TEST(LogarithmKernels, AtTheEdgesOfWhatIsTakenTogether)
{
    for (const std::size_t n : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 255, 256, 257, 511, 512, 513}) {
        RandomData data(n);
        SCOPED_TRACE(data);
        expectLogarithms(data.uniforms(n, 0.5, 2.0), static_cast<int>(n));
        expectLogarithms(data.withMissing(data.uniforms(3 * n, 1e-3, 1e3), 0.1), static_cast<int>(n));
    }
}

TEST(LogarithmKernels, OfArgumentsFromAllExponentsNearTheTablesBordersAndNear1)
{
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        expectLogarithms(drawn(seed, 10000), 10000);
    }
}

// What the quick phase leaves undecided is worked out one number at a time: here one of each batch.
TEST(LogarithmKernels, OfTheHardestArguments)
{
    // Lefevre, V. and Muller, J.-M. 2001, Worst cases for correct rounding of the elementary functions in double
    // precision, Proc. 15th IEEE Symp. Computer Arithmetic, 111-118.
    for (const double hard : {0x1.ea71d85cee020p-509, 0x1.9476e304cd7c7p-384, 0x1.26e9c4d327960p-232,
                              0x1.613955dc802f8p-35, 0x1.62a88613629b6p+678, 0x1.ac50b409c8aeep+8})
        for (const std::size_t place : {0, 1, 7, 8, 255, 256, 299}) {
            std::vector<double> x = RandomData(place).uniforms(300, 0.1, 10.0);
            x[place] = hard;
            SCOPED_TRACE(hard);
            expectLogarithms(x, 300);
        }
}

TEST(LogarithmKernels, OfNumbersThatStandInNoTable)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double special : {0.0, -0.0, -1.0, infinity, -infinity, std::nan(""), 5e-324, 0x1p-1023, 0x1p-1022,
                                 std::numeric_limits<double>::max(), 1.0, 1.0 - 0x1p-9, 1.0 + 0x1p-9, 11.0 / 16.0})
        for (const std::size_t place : {0, 100, 257}) {
            std::vector<double> x = RandomData(3).uniforms(260, 0.1, 10.0);
            x[place] = special;
            SCOPED_TRACE(special);
            expectLogarithms(x, 260);
        }
}

TEST(LogarithmKernels, LeaveRowsAloneThatTheMaskDrops)
{
    std::vector<short> mask(600);
    for (std::size_t i = 0; i < mask.size(); i += 3)
        mask[i] = -1;
    expectLogarithms(RandomData(4).withMissing(RandomData(5).uniforms(1200, 0.1, 10.0), 0.05), 600, mask.data());
}

/// The updates one row at a time.
std::vector<double> plainGeometricMean(const std::vector<double>& x, const std::vector<double>& w)
{
    double W = 0.0, mean = 0.0, squares = 0.0;
    int rows = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (x[i] == M)
            continue;
        W += w[i];
        ++rows;
        if (w[i] == 0.0)
            continue;
        const double d = vecmat::log(x[i]) - mean;
        squares += (1.0 - w[i] / W) * d * d * w[i];
        mean += d * (w[i] / W);
    }
    return {vecmat::exp(mean), vecmat::exp(std::sqrt(squares / (W - W / rows)))};
}

TEST(LogarithmKernels, GeometricMeansAtTheEdgesOfTheRowsTakenTogether)
{
    for (const std::size_t n : {2, 3, 8, 9, 255, 256, 257, 511, 512, 513, 1000}) {
        RandomData data(n);
        SCOPED_TRACE(data);
        const std::vector<double> x = data.withMissing(data.uniforms(n, 0.1, 10.0), 0.05);
        const std::vector<double> w = data.weights(n, 0.1);
        double mean = 0.0, deviation = 0.0;
        V_GMeanGSD(column(x), static_cast<int>(n), nullptr, column(w), &mean, &deviation);
        EXPECT_THAT((std::vector<double>{mean, deviation}), SameBitsAsAll(plainGeometricMean(x, w)));
    }
}

} // namespace
} // namespace vecmat::test
