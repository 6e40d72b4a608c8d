#include "qualitative/moments_of_one_column.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {

namespace {

using Doubles = std::vector<double>;

const double NaN = std::numeric_limits<double>::quiet_NaN();
const double infinity = std::numeric_limits<double>::infinity();

/// Mean, standard deviation and variance.
Doubles moments(matrix* x, int nRows, int col, matrix* weights, short sample = 0, short countDivisor = 0)
{
    double mean = 77;
    double stdDev = 77;
    double variance = 77;
    M_MeanStDevVarOneInMat(x, nRows, col, &mean, &stdDev, &variance, weights, sample, countDivisor);
    return {mean, stdDev, variance};
}

TEST(MeanStDevVarOneInMat, DivisorsOfTheVariance)
{
    const auto x = column({1, 3, 5});
    const auto w = column({1, 1, 2});
    // Mean 3.5, sum of squares 11; W = 4, three rows.
    EXPECT_THAT(moments(x, 3, 1, w, 0, 0), SameBits({3.5, std::sqrt(2.75), 2.75}));
    EXPECT_THAT(moments(x, 3, 1, w, 1, -1), SameBits({3.5, std::sqrt(2.75), 2.75}))
        << "only -1 requests the correction";
    EXPECT_THAT(moments(x, 3, 1, w, -1, -1), SameBits({3.5, std::sqrt(11.0 / 3.0), 11.0 / 3.0}));
    const double byMeanWeight = 11.0 / (4.0 - 4.0 / 3);
    EXPECT_THAT(moments(x, 3, 1, w, -1, 0), SameBits({3.5, std::sqrt(byMeanWeight), byMeanWeight}));
    EXPECT_THAT(moments(x, 3, 1, w, -1, 1), SameBits({3.5, std::sqrt(byMeanWeight), byMeanWeight}));
}

TEST(MeanStDevVarOneInMat, OneBasedColumnOfTheTable)
{
    const auto x = byColumns({{1, 2}, {10, 30}});
    EXPECT_THAT(moments(x, 2, 2, column({1, 1})), SameBits({20, 10, 100}));
    EXPECT_THAT(moments(x, 1, 2, column({1, 1})), SameBits({10, 0, 0})) << "the rows passed";
}

TEST(MeanStDevVarOneInMat, CellsNotAboveTheMissingValueAreSkipped)
{
    const double below = std::nextafter(M, -infinity);
    const double above = std::nextafter(M, 0.0);
    const auto w = filled(4, 1, 1.0);
    EXPECT_THAT(moments(column({M, 2, below, 4}), 4, 1, w), SameBits({3, 1, 1}));
    EXPECT_THAT(moments(column({-infinity, 2, NaN, 4}), 4, 1, w), SameBits({3, 1, 1}))
        << "a NaN is not above it: the equality test would let it in";
    EXPECT_THAT(moments(column({above}), 1, 1, w)[0], SameBits(above));
    EXPECT_THAT(moments(column({infinity}), 1, 1, w)[0], SameBits(infinity));
}

TEST(MeanStDevVarOneInMat, RowOfZeroWeightIsCountedAndMovesNothing)
{
    const auto x = column({100, 1, 3});
    const auto w = column({0, 1, 1});
    EXPECT_THAT(moments(x, 3, 1, w, 0, 0), SameBits({2, 1, 1}));
    EXPECT_THAT(moments(x, 3, 1, w, -1, -1), SameBits({2, std::sqrt(2.0), 2}));
    const double variance = 2.0 / (2.0 - 2.0 / 3);
    EXPECT_THAT(moments(x, 3, 1, w, -1, 0), SameBits({2, std::sqrt(variance), variance})) << "three rows";
}

TEST(MeanStDevVarOneInMat, WithoutUsableRowsTheDivisionShows)
{
    EXPECT_THAT(moments(column({M, NaN}), 2, 1, filled(2, 1, 1.0)), SameBits({0, NaN, NaN}));
    EXPECT_THAT(moments(column({1}), 0, 1, filled(1, 1, 1.0)), SameBits({0, NaN, NaN}));
    EXPECT_THAT(moments(column({1, 2}), 2, 1, filled(2, 1, 0.0)), SameBits({0, NaN, NaN}));
    EXPECT_THAT(moments(column({5}), 1, 1, filled(1, 1, 1.0), -1, -1), SameBits({5, NaN, NaN})) << "one row: 0/0";
    EXPECT_THAT(moments(column({M}), 1, 1, filled(1, 1, 1.0), -1, -1), SameBits({0, -0.0, -0.0})) << "none: 0/-1";
}

TEST(MeanStDevVarOneInMat, CellsBeyondTheTablesAreMinusOne)
{
    EXPECT_THAT(moments(column({3}), 2, 1, filled(2, 1, 1.0)), SameBits({1, 2, 4}));
    EXPECT_THAT(moments(column({3, 5}), 2, 2, filled(2, 1, 1.0)), SameBits({-1, 0, 0}));
    EXPECT_THAT(moments(column({3, 5}), 2, 0, filled(2, 1, 1.0)), SameBits({-1, 0, 0}));
    EXPECT_THAT(moments(column({3, 5}), 2, std::numeric_limits<int>::min(), filled(2, 1, 1.0)), SameBits({-1, 0, 0}));
    const auto slides = byColumns({{1, 3}, {8, 9}});
    EXPECT_THAT(moments(slides, 3, 1, filled(3, 1, 1.0))[0], SameBits(4));
    // The third weight is -1: W is 1 again.
    EXPECT_THAT(moments(slides, 3, 1, filled(2, 1, 1.0))[0], SameBits(2 + (8.0 - 2.0) * -1.0 / 1.0));
}

TEST(MeanStDevVarOneInMat, IsTheUpdateAsWritten)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const int rows = data.integer(1, 20);
        const int col = data.integer(1, 3);
        const auto n = static_cast<std::size_t>(rows);
        const Doubles cells =
            data.withSpecials(data.normals(n * static_cast<std::size_t>(col)), data.chance(0.3) ? 0.1 : 0.0);
        const Doubles w = data.weights(n, 0.2);
        const auto sample = static_cast<short>(data.integer(-1, 1));
        const auto countDivisor = static_cast<short>(data.integer(-1, 1));
        double mean = 0.0;
        double squares = 0.0;
        double W = 0.0;
        int c = 0;
        for (std::size_t i = 0; i < n; ++i) {
            const double x = cells[n * static_cast<std::size_t>(col - 1) + i];
            if (!(x > M))
                continue;
            ++c;
            W = W + w[i];
            if (w[i] == 0.0)
                continue;
            const double d = x - mean;
            squares = squares + (d * d) * (w[i] - (w[i] * w[i]) / W);
            mean = mean + (d * w[i]) / W;
        }
        const double divisor = sample != -1 ? W : countDivisor == -1 ? W - 1.0 : W - W / c;
        const double variance = squares / divisor;
        const Doubles expected{mean, std::sqrt(variance), variance};
        EXPECT_THAT(moments(table(rows, col, cells), rows, col, column(w), sample, countDivisor), SameBits(expected));

        Guarded<double> flat(cells);
        Guarded<double> flatWeights(w);
        double results[3] = {77, 77, 77};
        VB_M_MeanStDevVarOneInMat(flat, rows, col, &results[0], &results[1], &results[2], 99, flatWeights, sample,
                                  countDivisor);
        EXPECT_THAT(Doubles(results, results + 3), SameBits(expected));
        EXPECT_TRUE(flat.untouched() && flatWeights.untouched());
    }
}

} // namespace

} // namespace vecmat::test
