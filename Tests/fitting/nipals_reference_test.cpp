// Imputation by principal components against a plain second form, by bits, and against R.
#include "fitting/nipals.h"

#include "elementary/product_cases.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <map>

using namespace vecmat::test;

namespace {

// ---- a plain second form --------------------------------------------------------------------------------------------

/// Table by table and cell by cell.
class PlainForm
{
public:
    PlainForm(int n, int p, matrix* X, matrix* w, int components)
        : n_(n), p_(p), X_(X), w_(w), Z(filled(rows(), cols(p), M)), T(filled(rows(), cols(components), M)),
          P(filled(cols(components), cols(p), 0.0)), mean(filled(cols(p), 1, 0.0)), pOld(filled(cols(p), 1, 0.0)),
          missing(static_cast<std::size_t>(cols(p)), 0), components_(components)
    {
    }

    int run(double tol, double maxColumnShare, double maxTotalShare)
    {
        if (!centre())
            return 1;
        int total = 0;
        bool tooMany = false;
        for (int j = 1; j <= p_; ++j) {
            total += count(j);
            tooMany = tooMany || count(j) > n_ * maxColumnShare;
        }
        if (total == 0)
            return 0;
        if (tooMany || total > n_ * maxTotalShare * p_)
            return -6;
        for (int h = 1; h <= components_; ++h)
            if (!extract(h, tol))
                return 1;
        impute();
        return 0;
    }

    /// Those of the changes in the loadings, pass by pass.
    const std::vector<double>& variances() const { return variances_; }

private:
    int rows() const { return std::max(n_, 1); }
    static int cols(int k) { return std::max(k, 1); }
    int& count(int j) { return missing[static_cast<std::size_t>(j) - 1]; }
    double z(int i, int j) const { return Z->vbget(i, j); }
    double t(int i, int h) const { return T->vbget(i, h); }
    double loading(int h, int j) const { return P->vbget(h, j); }

    bool centre()
    {
        for (int j = 1; j <= p_; ++j) {
            double m = 0.0, sd = 0.0, W = 0.0;
            for (int i = 1; i <= n_; ++i) {
                const double x = X_->vbget(i, j), w = w_->vbget(i, 1);
                if (x == M) {
                    ++count(j);
                } else {
                    W = W + w;
                    m = m + w * x;
                    sd = sd + (w * x) * x;
                }
            }
            m = m / W;
            sd = std::sqrt((sd - (m * m) * W) / (W - 1));
            if (sd <= 1e-6)
                return false;
            mean->vbset(j, 1, m);
            for (int i = 1; i <= n_; ++i)
                if (X_->vbget(i, j) != M)
                    Z->vbset(i, j, w_->vbget(i, 1) * X_->vbget(i, j) - m);
        }
        return true;
    }

    bool extract(int h, double tol)
    {
        for (int i = 1; i <= n_; ++i)
            T->vbset(i, h, z(i, 1));
        bool first = true;
        bool last = false;
        for (int pass = 1; pass <= 100000 && !last; ++pass, first = false) {
            double s = 0.0, norm = 0.0;
            for (int j = 1; j <= p_; ++j) {
                double sum = 0.0;
                s = 0.0;
                for (int i = 1; i <= n_; ++i)
                    if (z(i, j) != M && t(i, h) != M) {
                        s += t(i, h) * t(i, h);
                        sum += z(i, j) * t(i, h);
                    }
                if (s < 1e-6)
                    return false;
                P->vbset(h, j, sum / s);
                norm += loading(h, j) * loading(h, j);
            }
            for (int j = 1; j <= p_; ++j)
                P->vbset(h, j, loading(h, j) / std::sqrt(norm));

            for (int i = 1; i <= n_; ++i) {
                T->vbset(i, h, M);
                double q = 0.0;
                for (int j = 1; j <= p_; ++j)
                    if (z(i, j) != M) {
                        q += loading(h, j) * loading(h, j);
                        const double term = z(i, j) * loading(h, j);
                        T->vbset(i, h, t(i, h) == M ? term : t(i, h) + term);
                    }
                if (s < 1e-6)
                    return false;
                if (t(i, h) != M)
                    T->vbset(i, h, t(i, h) / q);
            }

            if (!first) {
                double sum1 = 0.0, sum2 = 0.0;
                for (int j = 1; j <= p_; ++j) {
                    const double d = pOld->vbget(j, 1) - loading(h, j);
                    sum1 += d;
                    sum2 += d * d;
                }
                const double v = (sum2 - sum1 * sum1 / p_) / (p_ - 1);
                variances_.push_back(v);
                last = !(v > tol);
            }
            for (int j = 1; j <= p_; ++j)
                pOld->vbset(j, 1, loading(h, j));
        }
        for (int i = 1; i <= n_; ++i)
            for (int j = 1; j <= p_; ++j)
                if (t(i, h) != M && z(i, j) != M)
                    Z->vbset(i, j, z(i, j) - t(i, h) * loading(h, j));
        return true;
    }

    void impute()
    {
        for (int j = 1; j <= p_; ++j)
            for (int i = 1; i <= n_ && count(j) > 0; ++i) {
                if (X_->vbget(i, j) != M)
                    continue;
                X_->vbset(i, j, 0.0);
                --count(j);
                if (w_->vbget(i, 1) == 0.0)
                    continue;
                for (int h = 1; h <= components_; ++h)
                    if (t(i, h) != M)
                        X_->vbset(i, j, X_->vbget(i, j) + t(i, h) * loading(h, j));
                X_->vbset(i, j, X_->vbget(i, j) + mean->vbget(j, 1));
                X_->vbset(i, j, X_->vbget(i, j) / w_->vbget(i, 1));
            }
    }

    int n_, p_;
    matrix *X_, *w_;
    Owned<matrix> Z, T, P, mean, pOld;
    std::vector<int> missing;
    std::vector<double> variances_;
    int components_;
};

void expectAsPlain(int n, int p, Owned<matrix> X, const Owned<matrix>& w, double tol, int components,
                   double columnShare, double totalShare, std::map<int, int>& outcomes)
{
    Owned<matrix> expected = copyOf(X);
    const Owned<matrix> before = copyOf(X);
    const int outcome = NIPALS(n, p, X, w, tol, components, columnShare, totalShare);
    EXPECT_EQ(outcome, PlainForm(n, p, expected, w, components).run(tol, columnShare, totalShare));
    expectSame(X, expected);
    if (outcome != 0)
        expectSame(X, before);
    ++outcomes[outcome];
}

/// Tables of any shape near the dimensions passed, with every kind of number, weights of zero, limits that bind.
TEST(NIPALS, FollowsThePlainFormOnAnyTable)
{
    std::map<int, int> outcomes;
    forCases(1500, [&](Cases& c) {
        const int n = c.count() * 2, p = c.count();
        const Owned<matrix> complete = c.operand(n, p);
        Owned<matrix> X =
            table(complete->nRows, complete->nCols, c.data.withMissing(cellsOf(complete), c.data.uniform(0.0, 0.4)));
        const auto w = column(c.data.weights(static_cast<std::size_t>(std::max(n + c.data.integer(-1, 1), 0)), 0.1));
        expectAsPlain(n, p, std::move(X), w, 1e-6, c.data.integer(-1, 4), c.data.chance(0.5) ? 1.0 : 0.34,
                      c.data.chance(0.5) ? 1.0 : 0.25, outcomes);
    });
    for (const int outcome : {0, 1, -6})
        EXPECT_GE(outcomes[outcome], 100) << "too few cases end with " << outcome;
}

/// A table with two leading dimensions and noise, as the method is meant for.
std::vector<double> factorialTable(RandomData& data, int n, int p)
{
    const auto scores = data.normals(static_cast<std::size_t>(2 * n)),
               loadings = data.normals(static_cast<std::size_t>(2 * p));
    std::vector<double> cells;
    for (std::size_t j = 0; j < static_cast<std::size_t>(p); ++j)
        for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i)
            cells.push_back(10.0 + 3.0 * scores[2 * i] * loadings[2 * j] + scores[2 * i + 1] * loadings[2 * j + 1] +
                            0.2 * data.normal());
    return cells;
}

TEST(NIPALS, FollowsThePlainFormOnFactorialTables)
{
    std::map<int, int> outcomes;
    forCases(300, [&](Cases& c) {
        const int n = c.data.integer(8, 25), p = c.data.integer(2, 7);
        const auto w = column(c.data.chance(0.5) ? std::vector<double>(static_cast<std::size_t>(n), 1.0)
                                                 : c.data.weights(static_cast<std::size_t>(n), 0.05));
        const double tol = std::array{1e-2, 1e-6, 1e-10}[static_cast<std::size_t>(c.data.integer(0, 2))];
        expectAsPlain(n, p, table(n, p, c.data.withMissing(factorialTable(c.data, n, p), 0.12)), w, tol,
                      c.data.integer(1, 2), 1.0, 1.0, outcomes);
    });
    EXPECT_GE(outcomes[0], 250);
}

TEST(NIPALS, EndsAtAVarianceEqualToTheTolerance)
{
    std::map<int, int> outcomes;
    forCases(40, [&](Cases& c) {
        const int n = c.data.integer(8, 15), p = c.data.integer(3, 7);
        const auto w = column(std::vector<double>(static_cast<std::size_t>(n), 1.0));
        const auto X = table(n, p, c.data.withMissing(factorialTable(c.data, n, p), 0.12));
        Owned<matrix> filledIn = copyOf(X);
        PlainForm plain(n, p, filledIn, w, 1);
        plain.run(1e-12, 1.0, 1.0);
        for (const double variance : plain.variances())
            expectAsPlain(n, p, copyOf(X), w, variance, 1, 1.0, 1.0, outcomes);
    });
    EXPECT_GE(outcomes[0], 150);
}

// Two components that are nearly as large as each other: every pass still turns the loadings a little.
TEST(NIPALS, GivesUpAfterAHundredThousandPasses)
{
    std::map<int, int> outcomes;
    const double d = 1e-6;
    expectAsPlain(5, 2, byColumns({{1, 1, -1, -1, 1e-5}, {1 + d, d - 1, 1 - d, -1 - d, M}}),
                  column(std::vector<double>(5, 1.0)), 0.0, 1, 1.0, 1.0, outcomes);
    EXPECT_EQ(outcomes[0], 1);
}

/// Around the numbers of rows and columns that are worked on side by side; rows without cells, zeros of both signs.
TEST(NIPALS, FollowsThePlainFormAroundItsBlocks)
{
    std::map<int, int> outcomes;
    forCases(100, [&](Cases& c) {
        const int n = 32 * c.data.integer(1, 3) + c.data.integer(-1, 1),
                  p = 8 * c.data.integer(1, 5) + c.data.integer(-1, 1);
        auto cells = c.data.withMissing(factorialTable(c.data, n, p), 0.1);
        const auto rows = static_cast<std::size_t>(n);
        const auto emptyRow = static_cast<std::size_t>(c.data.integer(0, n - 1));
        for (std::size_t k = 0; k < cells.size(); ++k) {
            if (k % rows == emptyRow)
                cells[k] = M;
            else if (c.data.chance(0.1))
                cells[k] = c.data.chance(0.5) ? 0.0 : -0.0;
        }
        const auto w = column(c.data.weights(rows, 0.05));
        expectAsPlain(n, p, table(n, p, cells), w, 1e-6, c.data.integer(1, 3), 1.0, 1.0, outcomes);
    });
    EXPECT_GE(outcomes[0], 90);
}

// ---- R --------------------------------------------------------------------------------------------------------------

/// R 4.2.2: x <- stackloss[1:12, ], some cells NA; components by lm(column ~ scores - 1) and lm(row ~ loadings - 1) by
/// turns, which pass over NA, on sweep(w * x, 2, colSums(w * x) / colSums(w)), until var(change) <= 1e-26.
class StackLoss : public testing::Test
{
protected:
    Owned<matrix> X = byRows({{80, 27, 89, 42},
                              {M, 27, 88, 37},
                              {75, M, 90, 37},
                              {62, 24, 87, 28},
                              {62, M, 87, 18},
                              {62, 23, 87, 18},
                              {62, 24, 93, M},
                              {62, 24, 93, 20},
                              {58, 23, M, 15},
                              {58, 18, 80, 14},
                              {58, 18, 89, M},
                              {58, 17, 88, 13}});
    const Owned<matrix> ones = filled(12, 1, 1.0);

    /// The missing cells, column after column, as they come out.
    std::vector<double> filledBy(const Owned<matrix>& w, double tol, int components) const
    {
        Owned<matrix> copy = copyOf(X);
        EXPECT_EQ(NIPALS(12, 4, copy, w, tol, components, 1.0, 1.0), 0);
        std::vector<double> cells;
        for (unsigned k = 0; k < X->nElems; ++k)
            if (X->X[k] == M)
                cells.push_back(copy->X[k]);
            else
                EXPECT_EQ(copy->X[k], X->X[k]) << "a cell that was present has changed";
        return cells;
    }

    static void expectNear(const std::vector<double>& actual, const std::vector<double>& expected, double tolerance)
    {
        ASSERT_EQ(actual.size(), expected.size());
        for (std::size_t k = 0; k < expected.size(); ++k)
            EXPECT_NEAR(actual[k], expected[k], tolerance) << "missing cell " << k;
    }

    const std::vector<double> one = {72.641724414025816, 26.763602006749103, 21.042024442738136,
                                     87.431602432817485, 24.149907070110142, 15.961532545902173};
    const std::vector<double> two = {72.741489269093790, 26.833385631806884, 20.828896017683661,
                                     97.308321924395983, 23.675731604136974, 15.870774410142669};
    const std::vector<double> three = {72.187562402795038, 26.163870889139641, 19.944960885372787,
                                       97.391424753628414, 24.255246892749270, 14.944605193021403};
};

TEST_F(StackLoss, AgreesWithRegressionsByTurnsInR)
{
    expectNear(filledBy(ones, 1e-26, 1), one, 1e-10);
    expectNear(filledBy(ones, 1e-26, 2), two, 1e-10);
    expectNear(filledBy(ones, 1e-26, 3), three, 1e-10);
}

TEST_F(StackLoss, AgreesWithWeightsToo)
{
    const auto w = column({1, 2, 1, 0.5, 1, 1.5, 1, 1, 2, 1, 1, 0.5});
    expectNear(filledBy(w, 1e-26, 2),
               {74.293872649146536, 25.908237602961385, 22.400517962683583, 74.923603674757530, 20.352262994831793,
                17.354704235554586},
               1e-10);
}

TEST_F(StackLoss, TheUsualToleranceComesAsNearAsItsChangeInLoadings)
{
    // A last change in the loadings of the order of 1e-3 moves scores of the order of 10 by hundredths.
    expectNear(filledBy(ones, 1e-6, 1), one, 0.02);
    expectNear(filledBy(ones, 1e-6, 2), two, 0.2);
}

TEST_F(StackLoss, AComponentThatNeverSettlesIsTakenAtTheLimitOfPasses)
{
    expectNear(filledBy(ones, -1.0, 1), one, 1e-10);
}

/// On a complete table the components are the eigenvectors of its covariances: R 4.2.2, prcomp(stackloss[1:12, ]). A
/// complete table is returned as it is, so rows are added next to the centre, in pairs that leave the means; what is
/// filled into their missing cells shows the loadings, and their own weight is that of the square of their distance.
class CompleteStackLoss : public testing::Test
{
protected:
    static constexpr double delta = 1e-3;
    static constexpr std::array<double, 4> centre = {64.75, 22.666666666666668, 88.166666666666671, 22.916666666666668};
    static constexpr std::array<double, 4> first = {-0.61457792378055864, -0.20651801502406131, -0.063999040324189738,
                                                    -0.758649067691829382};
    static constexpr std::array<double, 4> second = {0.10594917571037696, -0.30761458571846068, -0.942420049866296461,
                                                     0.077411164760376849};

    /// The deviations from the centre, in units of `delta`, that fill row 13, of which `present` cells are given.
    static std::vector<double> filledDeviations(std::array<double, 4> present, double tol, int components)
    {
        const std::vector<std::vector<double>> columns = {{80, 80, 75, 62, 62, 62, 62, 62, 58, 58, 58, 58},
                                                          {27, 27, 25, 24, 22, 23, 24, 24, 23, 18, 18, 17},
                                                          {89, 88, 90, 87, 87, 87, 93, 93, 87, 80, 89, 88},
                                                          {42, 37, 37, 28, 18, 18, 19, 20, 15, 14, 14, 13}};
        std::vector<double> cells;
        for (std::size_t j = 0; j < 4; ++j) {
            cells.insert(cells.end(), columns[j].begin(), columns[j].end());
            for (const double sign : {1.0, -1.0})
                cells.push_back(present[j] == M ? M : centre[j] + sign * (delta * present[j]));
        }
        Owned<matrix> X = table(14, 4, cells);
        EXPECT_EQ(NIPALS(14, 4, X, filled(14, 1, 1.0), tol, components, 1.0, 1.0), 0);
        std::vector<double> deviations;
        for (int j = 1; j <= 4; ++j) {
            const double above = X->vbget(13, j), below = X->vbget(14, j);
            EXPECT_NEAR((above + below) / 2.0, centre[static_cast<std::size_t>(j) - 1], 1e-12);
            deviations.push_back((above - below) / (2.0 * delta));
        }
        return deviations;
    }
};

TEST_F(CompleteStackLoss, TheFirstLoadingsAreTheFirstEigenvector)
{
    const auto exact = filledDeviations({1.0, M, M, M}, 1e-24, 1);
    const auto usual = filledDeviations({1.0, M, M, M}, 1e-6, 1);
    for (std::size_t j = 1; j < 4; ++j) {
        EXPECT_NEAR(exact[j], first[j] / first[0], 1e-8) << "column " << j;
        EXPECT_NEAR(usual[j], first[j] / first[0], 1e-3) << "column " << j;
    }
}

TEST_F(CompleteStackLoss, TheNextLoadingsAreTheSecondEigenvector)
{
    const std::array<double, 4> present = {1.0, M, 2.0, M};
    const auto filledIn = filledDeviations(present, 1e-24, 2);
    // Regressed on the first vector over the two cells that are present, and what is left of them on the second.
    const double t1 = (first[0] + 2.0 * first[2]) / (first[0] * first[0] + first[2] * first[2]);
    const double left0 = 1.0 - t1 * first[0], left2 = 2.0 - t1 * first[2];
    const double t2 = (left0 * second[0] + left2 * second[2]) / (second[0] * second[0] + second[2] * second[2]);
    for (const std::size_t j : {1u, 3u})
        EXPECT_NEAR(filledIn[j], t1 * first[j] + t2 * second[j], 1e-6) << "column " << j;
}

TEST(NIPALS, RebuildsATableOfOneDimension)
{
    // Cells t b + 10; the two missing ones of each column cancel, so that the means of the others are 10.
    const std::vector<double> t = {-3, -2, -1, -0.5, 0.5, 1, 2, 3}, b = {1, -2, 0.5};
    std::vector<double> cells;
    for (const double slope : b)
        for (const double score : t)
            cells.push_back(10.0 + slope * score);
    std::vector<double> holes = cells;
    for (const std::size_t k : {1u, 6u, 8u, 15u, 18u, 21u})
        holes[k] = M;
    Owned<matrix> X = table(8, 3, holes);
    EXPECT_EQ(NIPALS(8, 3, X, filled(8, 1, 1.0), 1e-20, 1, 1.0, 1.0), 0);
    for (unsigned k = 0; k < 24; ++k)
        EXPECT_NEAR(X->X[k], cells[k], 1e-13) << "cell " << k;
}

} // namespace
