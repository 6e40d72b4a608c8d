// The least squares fits against a plain second implementation, bit by bit.
#include "fitting/regression_calls.h"

#include "support/guarded.h"
#include "support/random_data.h"

#include <algorithm>
#include <string>

namespace vecmat::test {
namespace {

/// Data with weights, some of them 0; missing cells; columns that repeat another, or don't vary.
Problem drawn(RandomData& data)
{
    Problem problem;
    problem.n = data.integer(0, 14);
    problem.p = data.integer(0, 5);
    const auto n = static_cast<std::size_t>(problem.n);
    for (int j = 0; j < problem.p; ++j) {
        std::vector<double> cells = data.chance(0.3) ? data.wholes(n, -2, 3) : data.normals(n);
        if (j > 0 && data.chance(0.25)) // the column before, or twice it
            for (std::size_t i = 0; i < n; ++i)
                cells[i] = problem.X[problem.X.size() - n + i] * (j % 2 == 0 ? 1.0 : 2.0);
        else if (data.chance(0.15))
            std::fill(cells.begin(), cells.end(), 4.5);
        problem.X.insert(problem.X.end(), cells.begin(), cells.end());
    }
    problem.y = data.normals(n);
    if (data.chance(0.4)) {
        problem.X = data.withMissing(problem.X, 0.1);
        problem.y = data.withMissing(problem.y, 0.1);
    }
    if (data.chance(0.05))
        problem.X = data.withSpecials(problem.X, 0.1);
    problem.w = data.chance(0.4) ? std::vector<double>(n, 1.0) : data.weights(n, data.chance(0.5) ? 0.3 : 0.0);
    if (data.chance(0.1))
        problem.w = data.withMissing(problem.w, 0.1);
    problem.degree = data.chance(0.5) ? 1 : data.integer(0, 3);
    problem.interactions = static_cast<short>(data.integer(-1, 1));
    problem.noIntercept = static_cast<short>(data.chance(0.6) ? 0 : data.integer(-1, 2));
    const double tolerances[] = {1e-8, 1e-8, 1e-4, 0.2, 0.0, -1.0};
    problem.tol = tolerances[data.integer(0, 5)];
    return problem;
}

TEST(OLSBasic3, FollowsThePlainStepsBitByBit)
{
    int dropped = 0, entered = 0;
    for (std::uint64_t seed = 1; seed <= 4000 && !HasFailure(); ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const Problem problem = drawn(data);
        const Solution actual = fitted(problem), expected = reference(problem);
        expectSameFit(actual, expected);
        EXPECT_THAT(actual.swept, SameBits(expected.swept));
        EXPECT_THAT(actual.mean, SameBits(expected.mean));
        EXPECT_THAT(actual.sd, SameBits(expected.sd));
        for (std::size_t k = 0; k + 1 < actual.sd.size(); ++k)
            ++(actual.sd[k] == 0.0 ? dropped : entered);
    }
    // Both kinds are what the cases are for.
    EXPECT_GT(dropped, 2000);
    EXPECT_GT(entered, 5000);
}

/// A cell beyond the table of weights reads as -1.0.
TEST(OLSBasic3, ReadsWeightsBeyondTheirTable)
{
    for (std::uint64_t seed = 1; seed <= 200 && !HasFailure(); ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Problem problem = drawn(data);
        if (problem.n < 2)
            continue;
        problem.w.back() = -1.0;
        const Solution expected = fitted(problem);
        problem.w.pop_back();
        expectSameFit(fitted(problem), expected);
    }
}

TEST(OLSBasic3, IsTheFitOfTheShorterForms)
{
    for (std::uint64_t seed = 1; seed <= 300 && !HasFailure(); ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const Problem problem = drawn(data);
        const Solution expected = fitted(problem);
        const Owned<matrix> X = table(problem.n, problem.p, problem.X), y = column(problem.y), w = column(problem.w);
        Owned<matrix> beta, values, beta2, se2, values2;
        OLSBasic(problem.n, problem.p, X, y, w, problem.degree, problem.interactions, problem.noIntercept, problem.tol,
                 beta, values);
        OLSBasic2(problem.n, problem.p, X, y, w, problem.degree, problem.interactions, problem.noIntercept, problem.tol,
                  beta2, se2, values2);
        EXPECT_THAT(cellsOf(beta), SameBits(expected.beta));
        EXPECT_THAT(cellsOf(values), SameBits(expected.fitted));
        expectSameFit({cellsOf(beta2), cellsOf(se2), cellsOf(values2), {}, {}, {}}, expected);
    }
}

/// The first cells are a result, the others 0.0.
std::vector<double> padded(std::vector<double> cells, std::size_t count)
{
    cells.resize(count, 0.0);
    return cells;
}

TEST(RunOLSBasic3, WritesEachArrayWhole)
{
    for (std::uint64_t seed = 1; seed <= 300 && !HasFailure(); ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        const Problem problem = drawn(data);
        const Solution expected = fitted(problem);
        const int reserved =
            problem.degree * problem.p + 1 + (problem.interactions == -1 ? problem.p * (problem.p - 1) / 2 : 0);
        const auto c = static_cast<std::size_t>(reserved), n = static_cast<std::size_t>(problem.n);
        Guarded<double> X(problem.X), y(problem.y), w(problem.w);
        Guarded<double> beta(c, 77.0), se(c, 77.0), values(n, 77.0), swept(c * c, 77.0), mean(c, 77.0), sd(c, 77.0);
        EXPECT_EQ(RunOLSBasic3(problem.n, problem.p, X, y, w, problem.degree, problem.interactions, problem.noIntercept,
                               problem.tol, beta, se, values, swept, mean, sd),
                  0);
        EXPECT_THAT(beta.values(), SameBits(padded(expected.beta, c)));
        EXPECT_THAT(se.values(), SameBits(padded(expected.se, c)));
        EXPECT_THAT(values.values(), SameBits(expected.fitted));
        EXPECT_THAT(mean.values(), SameBits(padded(expected.mean, c)));
        EXPECT_THAT(sd.values(), SameBits(padded(expected.sd, c)));
        const std::size_t order = expected.mean.size();
        for (std::size_t j = 0; j < c; ++j)
            for (std::size_t i = 0; i < c; ++i)
                EXPECT_THAT(swept.data()[i + c * j],
                            SameBits(i < order && j < order ? expected.swept[i + order * j] : 0.0));
        EXPECT_TRUE(X.untouched() && y.untouched() && w.untouched());

        Guarded<double> beta2(c, 77.0), se2(c, 77.0), values2(n, 77.0), beta1(c, 77.0), values1(n, 77.0);
        EXPECT_EQ(RunOLSBasic2(problem.n, problem.p, X, y, w, problem.degree, problem.interactions, problem.noIntercept,
                               problem.tol, beta2, se2, values2),
                  0);
        EXPECT_EQ(RunOLSBasic(problem.n, problem.p, X, y, w, problem.degree, problem.interactions, problem.noIntercept,
                              problem.tol, beta1, values1),
                  0);
        EXPECT_THAT(beta2.values(), SameBits(beta.values()));
        EXPECT_THAT(se2.values(), SameBits(se.values()));
        EXPECT_THAT(values2.values(), SameBits(values.values()));
        EXPECT_THAT(beta1.values(), SameBits(beta.values()));
        EXPECT_THAT(values1.values(), SameBits(values.values()));
    }
}

std::vector<int> widthsOf(RandomData& data, int p)
{
    std::vector<int> widths(5, 0);
    for (int j = 0; j < p; ++j)
        ++widths[static_cast<std::size_t>(data.integer(0, 4))];
    return widths;
}

TEST(OLSBasic2Lg, FollowsThePlainStepsBitByBit)
{
    for (std::uint64_t seed = 1; seed <= 3000 && !HasFailure(); ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Problem problem = drawn(data);
        problem.degree = 1;
        if (problem.p == 0)
            continue;
        const std::vector<int> widths = widthsOf(data, problem.p);
        const Solution actual = fittedByBlocks(problem, widths), expected = blockReference(problem, widths);
        expectSameFit(actual, expected);

        const auto n = static_cast<std::size_t>(problem.n);
        const auto c = static_cast<std::size_t>(problem.p + 1 +
                                                (problem.interactions == -1 ? problem.p * (problem.p - 1) / 2 : 0));
        std::vector<Guarded<double>> blocks;
        std::vector<double*> arrays;
        auto next = problem.X.begin();
        for (const int width : widths) {
            blocks.emplace_back(std::vector<double>(next, next + problem.n * width));
            next += problem.n * width;
        }
        for (std::size_t b = 0; b < 5; ++b)
            arrays.push_back(widths[b] == 0 ? nullptr : blocks[b].data());
        Guarded<double> y(problem.y), w(problem.w), beta(c, 77.0), se(c, 77.0), values(n, 77.0);
        EXPECT_EQ(RunOLSBasic2Lg(problem.n, widths[0], arrays[0], widths[1], arrays[1], widths[2], arrays[2], widths[3],
                                 arrays[3], widths[4], arrays[4], y, w, 1, problem.interactions, problem.noIntercept,
                                 problem.tol, beta, se, values),
                  0);
        EXPECT_THAT(beta.values(), SameBits(padded(expected.beta, c)));
        EXPECT_THAT(se.values(), SameBits(padded(expected.se, c)));
        EXPECT_THAT(values.values(), SameBits(expected.fitted));
    }
}

TEST(OLSBasic2Lg, GivesTheCoefficientsOfOneTable)
{
    for (std::uint64_t seed = 1; seed <= 200 && !HasFailure(); ++seed) {
        RandomData data(seed);
        SCOPED_TRACE(data);
        Problem problem;
        problem.n = data.integer(12, 40);
        problem.p = data.integer(1, 8);
        const auto n = static_cast<std::size_t>(problem.n);
        problem.X = data.normals(n * static_cast<std::size_t>(problem.p));
        problem.y = data.normals(n);
        problem.w = data.weights(n, 0.1);
        problem.noIntercept = data.chance(0.3) ? -1 : 0;
        const Solution one = fitted(problem), five = fittedByBlocks(problem, widthsOf(data, problem.p));
        for (std::size_t k = 0; k < one.beta.size(); ++k) {
            EXPECT_NEAR(five.beta[k], one.beta[k], 1e-10);
            // Few weights: the intercept's variance may come out negative.
            EXPECT_EQ(std::isnan(five.se[k]), std::isnan(one.se[k]));
            if (!std::isnan(one.se[k])) {
                EXPECT_NEAR(five.se[k], one.se[k], 1e-10);
            }
        }
        for (std::size_t i = 0; i < n; ++i)
            EXPECT_NEAR(five.fitted[i], one.fitted[i], 1e-10);
    }
}

} // namespace
} // namespace vecmat::test
