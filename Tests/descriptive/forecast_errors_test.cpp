// Error measures of forecasts.
#include "descriptive/forecast_errors.h"

#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

using namespace vecmat::test;

namespace {

using Cells = std::vector<double>;
using Measure = double (*)(matrix*, matrix*, int, matrix*, int);
using FlatMeasure = double (*)(double*, double*, int, double*, int);

double measured(Measure measure, FlatMeasure flat, const Cells& y, const Cells& f, const Cells& w, int first)
{
    const int n = static_cast<int>(y.size());
    const double result = measure(column(y), column(f), n, column(w), first);
    Guarded<double> observed(y), fitted(f), weights(w);
    EXPECT_THAT(flat(observed, fitted, n, weights, first), SameBits(result));
    EXPECT_TRUE(observed.untouched() && fitted.untouched() && weights.untouched());
    return result;
}

double mape(const Cells& y, const Cells& f, const Cells& w, int first = 1)
{
    return measured(MAPE, VB_MAPE, y, f, w, first);
}
double mpe(const Cells& y, const Cells& f, const Cells& w, int first = 1)
{
    return measured(MPE, VB_MPE, y, f, w, first);
}
double mae(const Cells& y, const Cells& f, const Cells& w, int first = 1)
{
    return measured(MAE, VB_MAE, y, f, w, first);
}

TEST(MAPE, IsTheWeightedMeanPercentage)
{
    EXPECT_THAT(mape({100, 200}, {90, 220}, {1, 1}),
                SameBits((std::fabs(1 - 90.0 / 100) + std::fabs(1 - 220.0 / 200)) * 100.0 / 2));
    EXPECT_NEAR(mape({100, 200}, {90, 220}, {1, 1}), 10, 1e-12);
    EXPECT_NEAR(mape({100, 200}, {90, 250}, {3, 1}), (0.1 * 3 + 0.25) / 4 * 100, 1e-12);
    Guarded<double> y({100, 200}), f({90, 220});
    EXPECT_THAT(VB_MAPE(y, f, 2, nullptr, 1), SameBits(mape({100, 200}, {90, 220}, {1, 1})));
}

TEST(MAPE, StartsAtFirstAndTakesZeroAsOne)
{
    EXPECT_THAT(mape({100, 200}, {90, 250}, {1, 1}, 2), SameBits(25));
    EXPECT_THAT(mape({100, 200}, {90, 250}, {1, 1}, 0), SameBits(mape({100, 200}, {90, 250}, {1, 1}, 1)));
    EXPECT_THAT(mape({100}, {90}, {1}, 2), SameBits(0));
}

TEST(Measures, MultiplyAndDivideInTheirOrder)
{
    RandomData data(20301);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < 20; ++turn) {
        constexpr std::size_t n = 30;
        const Cells y = data.normals(n);
        const Cells f = data.normals(n);
        const Cells w = data.weights(n, 0.1);
        double W = 0, ofShares = 0, ofSigned = 0, ofSizes = 0, ofSquares = 0;
        double mean = 0;
        for (const double cell : y)
            mean += cell;
        mean /= static_cast<double>(n);
        for (std::size_t i = 0; i < n; ++i) {
            W += w[i];
            ofShares += std::fabs(1.0 - f[i] / y[i]) * w[i];
            ofSigned += (w[i] * (y[i] - f[i])) / y[i];
            ofSizes += w[i] * std::fabs(y[i] - f[i]);
            ofSquares += w[i] * ((y[i] - mean) * (y[i] - mean));
        }
        EXPECT_THAT(mape(y, f, w), SameBits((ofShares * 100.0) / W));
        EXPECT_THAT(mpe(y, f, w), SameBits((ofSigned * 100.0) / W));
        EXPECT_THAT(MAE(column(y), column(f), n, column(w), 1), SameBits(ofSizes / W));
        double found = 0;
        EXPECT_THAT(GetSSE(column(y), n, column(w), &found), SameBits(ofSquares));
        EXPECT_THAT(found, SameBits(mean));
    }
}

TEST(Measures, SkipWhatCannotBeScored)
{
    EXPECT_THAT(mape({0, M, 5, 4}, {1, 1, M, 3}, {1, 1, 1, 2}), SameBits(25));
    EXPECT_THAT(mpe({0, M, 5, 4}, {1, 1, M, 3}, {1, 1, 1, 2}), SameBits(25));
    EXPECT_THAT(mae({0, M, 5, 4}, {1, 1, M, 3}, {1, 1, 1, 2}), SameBits(1)); // a y of 0 counts
}

TEST(Measures, DifferWhereNothingIsLeft)
{
    EXPECT_THAT(mape({0}, {-7}, {1}), SameBits(0));
    EXPECT_THAT(mpe({0}, {-7}, {1}), SameBits(M));
    EXPECT_THAT(mae({0}, {-7}, {1}), SameBits(7));
    EXPECT_THAT(mape({}, {}, {}), SameBits(0));
    EXPECT_THAT(mpe({}, {}, {}), SameBits(M));
    EXPECT_THAT(mae({}, {}, {}), SameBits(M));
    EXPECT_THAT(mpe({4}, {3}, {1}, 2), SameBits(M)); // first above n
    EXPECT_THAT(mae({4}, {3}, {1}, 2), SameBits(M));
    EXPECT_THAT(mpe({4, 4}, {3, 3}, {1, -1}), SameBits(M)); // weights that sum to 0
    EXPECT_THAT(mae({4, 4}, {3, 3}, {1, -1}), SameBits(M));
    EXPECT_THAT(mape({4, 2}, {3, 1}, {1, -1}), SameBits(0.25 - 0.5)); // the sum so far
}

TEST(MPE, IsPositiveBelowTheObservation)
{
    EXPECT_THAT(mpe({100}, {90}, {1}), SameBits(10));
    EXPECT_THAT(mpe({3, 7}, {2, 8}, {0.3, 0.9}),
                SameBits((0.3 * (3.0 - 2.0) / 3.0 + 0.9 * (7.0 - 8.0) / 7.0) * 100.0 / (0.3 + 0.9)));
}

TEST(Measures, ReadBeforeTheTableWithAFirstOfZero)
{
    // All three vectors read -1.0 there: the error is 0 and the weight -1.
    EXPECT_THAT(mae({4, 6}, {3, 3}, {1, 2}, 0), SameBits((1.0 + 2 * 3.0) / (-1.0 + 1 + 2)));
    EXPECT_THAT(mpe({4, 6}, {3, 3}, {1, 2}, 0), SameBits((0.25 + 2 * 3.0 / 6) * 100.0 / (-1.0 + 1 + 2)));
}

TEST(RMSE, ScoresTheColumnGiven)
{
    const auto Y = table(2, 2, {9, 9, 3, 10});
    const auto F = table(2, 2, {0, 0, 0, 6});
    EXPECT_THAT(RMSE(Y.get(), 2, 2, F.get(), 1), SameBits(5));
    EXPECT_THAT(RMSE(Y.get(), 2, 1, F.get(), 2), SameBits(9));
    EXPECT_THAT(RMSE(Y.get(), 2, 0, F.get(), 1), SameBits(0));
    Guarded<double> y({9, 9, 3, 10}), f({0, 0, 0, 6});
    EXPECT_THAT(VB_RMSE(y, 2, 2, f, 1), SameBits(5)); // the last column
    EXPECT_THAT(VB_RMSE(y, 2, 0, f, 1), SameBits(0));
}

TEST(RMSE, SkipsByTheOrderTestButNotInTheDivisor)
{
    const double below = -std::numeric_limits<double>::infinity();
    EXPECT_THAT(RMSE(column({M, below, 8}), 3, 1, column({0, 0, 4}), 4), SameBits(2));
    // A missing fit is no reason to skip.
    EXPECT_THAT(RMSE(column({1}), 1, 1, column({M}), 1), SameBits(std::numeric_limits<double>::infinity()));
}

TEST(GetSSE, WeighsTheSumButNotTheMean)
{
    double mean = 0;
    EXPECT_THAT(GetSSE(column({1, 3}), 2, column({3, 1}), &mean), SameBits(4));
    EXPECT_THAT(mean, SameBits(2));
    EXPECT_THAT(GetSSE(column({1, M, 4}), 3, column({1, 50, 2}), &mean), SameBits(2.25 + 2 * 2.25));
    EXPECT_THAT(mean, SameBits(2.5));
    EXPECT_THAT(GetSSE(column({1, 3}), 2, column({1, -1}), &mean), SameBits(M));
    mean = 7;
    EXPECT_THAT(GetSSE(column({}), 0, column({}), &mean), SameBits(M));
    EXPECT_THAT(mean, SameBits(M)); // written all the same
}

} // namespace
