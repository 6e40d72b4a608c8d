// Fits of many rows, which are worked on several columns and rows at a time, have the bits of the plain steps: at sizes
// around the rows and columns taken at once, with missing cells, rows of no weight, NaN and infinities.
#include "fitting/regression_calls.h"

#include "support/failing_new.h"
#include "support/random_data.h"

#include <algorithm>
#include <array>
#include <limits>

namespace vecmat::test {
namespace {

constexpr std::array rowCounts = {60, 127, 128, 129, 255, 257, 511, 512, 513};
constexpr std::array columnCounts = {1, 2, 3, 4, 7, 8, 11, 12, 13, 23, 24, 25};

/// The correlations of all columns, pair by pair.
void plainCorrelations(const Problem& problem, const std::vector<std::vector<double>>& columns, matrix* a, matrix* mean,
                       matrix* sd)
{
    const int m = static_cast<int>(columns.size());
    std::vector<double> variance;
    for (int j = 1; j <= m; ++j)
        for (int k = 1; k <= j; ++k) {
            double W = 0.0, Q = 0.0, meanX = 0.0, meanY = 0.0;
            for (std::size_t i = 0; i < problem.w.size(); ++i) {
                // The earlier column comes first.
                const double x = columns[static_cast<std::size_t>(k - 1)][i];
                const double y = columns[static_cast<std::size_t>(j - 1)][i];
                const double w = problem.w[i];
                if (x == M || y == M)
                    continue;
                W += w;
                if (w == 0.0)
                    continue;
                const double dx = x - meanX, dy = y - meanY;
                Q += std::fabs(w - w * w / W) * dx * dy;
                meanX += w * dx / W;
                meanY += w * dy / W;
            }
            a->vbset(packedPlace(j, k), 1, Q / (W - 1.0));
            if (j == k) {
                mean->vbset(j, 1, meanX);
                variance.push_back(Q / (W - 1.0));
                sd->vbset(j, 1, std::sqrt(variance.back()));
            }
        }
    for (int j = 1; j <= m; ++j)
        for (int k = 1; k <= j; ++k) {
            const double v = variance[static_cast<std::size_t>(j - 1)] * variance[static_cast<std::size_t>(k - 1)];
            const double covariance = a->vbget(packedPlace(j, k), 1);
            a->vbset(packedPlace(j, k), 1, v <= 0.0 ? 0.0 : j == k ? 1.0 : covariance / std::sqrt(v));
        }
}

Solution plainFit(const Problem& problem)
{
    const std::vector<std::vector<double>> z = modelColumns(problem);
    std::vector<std::vector<double>> all = z;
    all.push_back(problem.y);
    const int m = static_cast<int>(z.size());
    const Owned<matrix> a = filled(packedPlace(m + 1, m + 1), 1, 0.0);
    Owned<matrix> mean = filled(m + 1, 1, 0.0), sd = filled(m + 1, 1, 0.0), var;
    if (problem.noIntercept == 0) {
        plainCorrelations(problem, all, a, mean, sd);
    } else {
        std::vector<short> everyRow(problem.y.size(), 0);
        M_MeanStDevVar(joined(all, problem.n), problem.n, m + 1, mean, sd, var, everyRow.data(), column(problem.w), -1,
                       -1);
        rawCorrelations(problem, all, true, sd, a);
    }
    return finished(problem, z, a, mean, sd);
}

void expectPlainSteps(const Problem& problem)
{
    SCOPED_TRACE(testing::Message() << problem.n << " rows, " << problem.p << " columns, origin "
                                    << problem.noIntercept);
    const Solution actual = fitted(problem), expected = plainFit(problem);
    expectSameFit(actual, expected);
    EXPECT_THAT(actual.swept, SameBits(expected.swept));
    EXPECT_THAT(actual.mean, SameBits(expected.mean));
    EXPECT_THAT(actual.sd, SameBits(expected.sd));
}

Problem drawn(RandomData& data, int n, int p)
{
    Problem problem;
    problem.n = n;
    problem.p = p;
    const auto rows = static_cast<std::size_t>(n);
    problem.X = data.normals(rows * static_cast<std::size_t>(p));
    problem.y = data.normals(rows);
    problem.w = std::vector<double>(rows, 1.0);
    return problem;
}

/// Runs `change(problem, data)` on problems of all sizes before they are fitted, with and without an intercept.
template <class Change>
void forProblems(std::uint64_t seed, Change change)
{
    for (const int n : rowCounts)
        for (const int p : columnCounts) {
            RandomData data(seed++);
            SCOPED_TRACE(data);
            Problem problem = drawn(data, n, p);
            change(problem, data);
            for (const short noIntercept : {short{0}, short{1}}) {
                problem.noIntercept = noIntercept;
                expectPlainSteps(problem);
            }
            if (testing::Test::HasFailure())
                return;
        }
}

TEST(OLSBasic3, OfManyRowsFollowsThePlainStepsBitByBit)
{
    forProblems(1, [](Problem&, RandomData&) {});
}

TEST(OLSBasic3, OfManyRowsWithWeightsDoesToo)
{
    forProblems(201, [](Problem& problem, RandomData& data) {
        problem.w = data.weights(problem.w.size(), 0.2);
        if (data.chance(0.3))
            problem.w[problem.w.size() / 2] = -0.25;
        if (data.chance(0.2))
            std::fill_n(problem.w.begin(), 40, 0.0);
    });
}

TEST(OLSBasic3, OfManyRowsWithMissingCellsDoesToo)
{
    forProblems(401, [](Problem& problem, RandomData& data) {
        problem.X = data.withMissing(problem.X, data.chance(0.5) ? 0.05 : 1.0 / double(problem.X.size()));
        if (data.chance(0.5))
            problem.w = data.weights(problem.w.size(), 0.2);
    });
}

TEST(OLSBasic3, OfManyRowsWithNaNAndInfinityDoesToo)
{
    forProblems(601, [](Problem& problem, RandomData& data) {
        problem.X = data.withSpecials(problem.X, 2.0 / double(problem.X.size()));
        problem.y = data.withSpecials(problem.y, 0.5 / double(problem.y.size()));
        if (data.chance(0.3))
            problem.w = data.withSpecials(problem.w, 1.0 / double(problem.w.size()));
    });
}

TEST(OLSBasic3, OfManyRowsLooksAtTheCellsOfRowsWithoutWeight)
{
    // Such a row counts in each pair that has both its cells. Nothing in the fit shows it, as the weights are taken for
    // frequencies, but the bits have to be those of the pairs all the same.
    RandomData data(801);
    Problem problem = drawn(data, 200, 9);
    problem.w[150] = 0.0;
    problem.X[150] = M;
    expectPlainSteps(problem);
    problem.X[150] = std::numeric_limits<double>::quiet_NaN();
    expectPlainSteps(problem);
}

TEST(OLSBasic3, OfManyRowsReadsTheCellsOfLargerAndSmallerTables)
{
    RandomData data(802);
    const Problem problem = drawn(data, 140, 6);
    // In the order of the cells, whatever the shape of the response and the weights.
    const Owned<matrix> y = table(70, 2, problem.y), w = table(35, 4, problem.w);
    std::vector<double> cells;
    for (int j = 0; j < 7; ++j)
        for (int i = 0; i < 150; ++i)
            cells.push_back(i < 140 && j < 6 ? problem.X[static_cast<std::size_t>(i + 140 * j)] : 99.0);
    Owned<matrix> beta, se, values;
    const Solution expected = plainFit(problem);
    OLSBasic2(140, 6, table(150, 7, cells), y, w, 1, 0, 0, problem.tol, beta, se, values);
    expectSameFit({cellsOf(beta), cellsOf(se), cellsOf(values), {}, {}, {}}, expected);
    // A column too few: its cells read -1.0.
    Problem withConstant = problem;
    std::fill(withConstant.X.begin() + 5 * 140, withConstant.X.end(), -1.0);
    const std::vector<double> five(problem.X.begin(), problem.X.begin() + 5 * 140);
    OLSBasic2(140, 6, table(140, 5, five), y, w, 1, 0, 0, problem.tol, beta, se, values);
    expectSameFit({cellsOf(beta), cellsOf(se), cellsOf(values), {}, {}, {}}, plainFit(withConstant));
}

// Whichever allocation fails: either the exception passes out, or the plain way gives the same bits.
TEST(OLSBasic3, OfManyRowsWithoutMemoryIsThePlainFit)
{
    RandomData data(803);
    Problem problem = drawn(data, 200, 9);
    for (const short noIntercept : {short{0}, short{1}}) {
        problem.noIntercept = noIntercept;
        const Solution expected = plainFit(problem);
        const Owned<matrix> X = table(problem.n, problem.p, problem.X), y = column(problem.y), w = column(problem.w);
        Owned<matrix> beta = filled(10, 1, 0.0), values = filled(200, 1, 0.0);
        expectFallbackAtEachFailure(
            [&] {
                beta->X[0] = values->X[0] = 77.0;
                OLSBasic(200, 9, X, y, w, 1, 0, noIntercept, problem.tol, beta, values);
            },
            [&] {
                EXPECT_TRUE(std::equal(expected.beta.begin(), expected.beta.end(), beta->X));
                EXPECT_TRUE(std::equal(expected.fitted.begin(), expected.fitted.end(), values->X));
            });
    }
}

} // namespace
} // namespace vecmat::test
