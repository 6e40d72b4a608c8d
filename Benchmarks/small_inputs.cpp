// Calls on a few numbers, where the call frame shows.
#include "contest.h"
#include "plain/plain.h"

#include "decompositions/cholesky.h"
#include "decompositions/determinants.h"
#include "decompositions/eigen.h"
#include "decompositions/inversion.h"
#include "descriptive/covariance.h"
#include "descriptive/means.h"
#include "descriptive/moments.h"
#include "descriptive/quantiles.h"
#include "elementary/matrix_products.h"
#include "fitting/least_squares.h"
#include "qualitative/group_by.h"
#include "sorting/ranks.h"
#include "sorting/sort.h"
#include "sorting/sort_apply.h"

#include <algorithm>

namespace vecmat::bench {

namespace {

constexpr int numbers = 10;
constexpr int order = 3;

struct Few
{
    Cells x, w, out;

    explicit Few(int n, int results = 1) : x(RandomData(140).normals(count(n))), w(count(n), 1.0), out(count(results))
    {
    }
    void compete(Contest& contest, Action ours, Action plain)
    {
        contest.outputs({&out});
        contest.ours(std::move(ours));
        contest.plain(std::move(plain));
    }
};

struct Mean : Few
{
    explicit Mean(int n) : Few(n) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { out[0] = VB_V_Mean2(x.data(), numbers); },
            [this] { out[0] = plain::mean(x.data(), numbers); });
    }
};

struct Variance : Few
{
    explicit Variance(int n) : Few(n) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { out[0] = VB_V_Var(x.data(), numbers, nullptr, w.data(), -1, 0); },
            [this] { out[0] = plain::variance(x.data(), numbers, w.data()); });
    }
};

struct Quantile : Few
{
    static constexpr double p = 0.3;
    explicit Quantile(int n) : Few(n) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { out[0] = VB_V_Quantile(x.data(), numbers, p); },
            [this] { out[0] = plain::quantile(x.data(), numbers, p); });
    }
};

struct WeightedQuantile : Few
{
    explicit WeightedQuantile(int n) : Few(n)
    {
        w = RandomData(143).weights(count(n));
    } // of one weight it is unweighted
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { out[0] = VB_V_QuantileW(x.data(), numbers, w.data(), Quantile::p); },
            [this] { out[0] = plain::weightedQuantile(x.data(), numbers, w.data(), Quantile::p); });
    }
};

struct Sort : Few
{
    explicit Sort(int n) : Few(n, n) {}
    void enter(Contest& contest)
    {
        compete(
            contest,
            [this] {
                std::copy(x.begin(), x.end(), out.begin());
                VB_SortQVectorDbl(out.data(), numbers, 1, numbers, 0);
            },
            [this] {
                std::copy(x.begin(), x.end(), out.begin());
                plain::sortVector(out.data(), numbers);
            });
    }
};

/// Rows of three columns, with their key and a companion.
struct SortRows : Few
{
    static constexpr int cols = 3;
    Cells keys, key, companion;
    explicit SortRows(int n)
        : Few(n * cols, n * cols), keys(RandomData(142).normals(count(n))), key(keys), companion(keys)
    {
    }
    void enter(Contest& contest)
    {
        contest.outputs({&out, &key, &companion});
        contest.ours([this] {
            fill();
            VB_SortQDbl(out.data(), numbers, cols, 1, numbers, key.data(), companion.data(), 1, 0, -1);
        });
        contest.plain([this] {
            fill();
            plain::sortRows(out.data(), numbers, cols, key.data(), companion.data());
        });
    }

private:
    void fill()
    {
        std::copy(x.begin(), x.end(), out.begin());
        std::copy(keys.begin(), keys.end(), key.begin());
        std::copy(keys.begin(), keys.end(), companion.begin());
    }
};

struct SortApplied : Few
{
    static constexpr int cols = 3;
    Cells order;
    explicit SortApplied(int n) : Few(n * cols, n * cols), order(count(n))
    {
        for (int i = 0; i < n; ++i)
            order[count(i)] = n - i;
    }
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_SortApply(x.data(), numbers, cols, order.data(), out.data()); },
            [this] { plain::sortApply(x.data(), numbers, cols, order.data(), out.data()); });
    }
};

struct Ranks : Few
{
    Cells tieSizes;
    int ties = 0;
    explicit Ranks(int n) : Few(n, n), tieSizes(x.size()) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_V_GetRanksTiesDbl(x.data(), numbers, w.data(), out.data(), &ties, tieSizes.data()); },
            [this] { ties = plain::ranksWithTies(x.data(), numbers, w.data(), out.data(), tieSizes.data()); });
    }
};

struct Product : Few
{
    explicit Product(int n) : Few(n * n, n * n) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_M_ProductAB(x.data(), order, order, x.data(), order, out.data()); },
            [this] { plain::product(x.data(), order, order, x.data(), order, out.data()); });
    }
};

struct Covariance : Few
{
    static constexpr int cols = 2;
    explicit Covariance(int n) : Few(n * cols, cols * cols) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_M_CovCorr(x.data(), numbers, cols, out.data(), 0, nullptr, w.data(), -1, 0); },
            [this] { plain::covariance(x.data(), numbers, cols, out.data(), w.data()); });
    }
};

struct Inverse : Few
{
    explicit Inverse(int n) : Few(n * n, n * n) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_M_Inverse1(x.data(), order, out.data(), 0.0); },
            [this] { plain::inverse(x.data(), order, out.data()); });
    }
};

struct Determinant : Few
{
    short status = 0;
    explicit Determinant(int n) : Few(n * n) {}
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { out[0] = VB_M_Determinant(x.data(), order, &status); },
            [this] { out[0] = plain::determinant(x.data(), order); });
    }
};

struct Cholesky : Few
{
    explicit Cholesky(int n) : Few(n * n, n * n)
    {
        std::fill(x.begin(), x.end(), 1.0);
        for (int i = 0; i < n; ++i)
            x[count(i, n + 1)] = 3.0 + i;
    }
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_M_CholDecomp(x.data(), order, out.data()); },
            [this] { plain::cholesky(x.data(), order, out.data()); });
    }
};

struct Eigenvalues : Few
{
    Cells vectors;
    explicit Eigenvalues(int n) : Few(n * n, n), vectors(count(n, n))
    {
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < i; ++j)
                x[count(i, n) + count(j)] = x[count(j, n) + count(i)];
    }
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_M_Eigen(x.data(), out.data(), vectors.data(), order, -1); },
            [this] { plain::eigen(x.data(), out.data(), vectors.data(), order); });
    }
};

struct Fit : Few
{
    static constexpr int cols = 2;
    Cells y, se, fitted;
    explicit Fit(int n) : Few(n * cols, cols + 1), y(RandomData(141).normals(count(n))), se(out), fitted(y) {}
    void enter(Contest& contest)
    {
        compete(
            contest,
            [this] {
                RunOLSBasic2(numbers, cols, x.data(), y.data(), w.data(), 1, 0, 0, 1e-8, out.data(), se.data(),
                             fitted.data());
            },
            [this] {
                plain::leastSquares(numbers, cols, x.data(), y.data(), w.data(), 1e-8, out.data(), se.data(),
                                    fitted.data());
            });
    }
};

struct GroupMeans : Few
{
    static constexpr int cols = 2;
    std::vector<int> numeric = std::vector<int>(count(cols), 0);
    int found = 0;
    explicit GroupMeans(int n) : Few(n * cols, n * cols)
    {
        for (int i = 0; i < n; ++i)
            x[count(i)] = i % 3;
    }
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_M_GroupBy(x.data(), numbers, cols, numeric.data(), 1, 1, &found, out.data()); },
            [this] { found = plain::groupMeans(x.data(), numbers, cols, out.data()); });
    }
};

} // namespace

void addSmallInputs(Suite& suite)
{
    suite.add<Mean>("small-mean", {numbers}, Timing::manyCalls);
    suite.add<Variance>("small-variance", {numbers}, Timing::manyCalls);
    suite.add<Quantile>("small-quantile", {numbers}, Timing::manyCalls);
    suite.add<WeightedQuantile>("small-weighted-quantile", {numbers}, Timing::manyCalls);
    suite.add<Sort>("small-sort", {numbers}, Timing::manyCalls);
    suite.add<SortRows>("small-sort-rows", {numbers}, Timing::manyCalls);
    suite.add<SortApplied>("small-sort-apply", {numbers}, Timing::manyCalls);
    suite.add<Ranks>("small-ranks", {numbers}, Timing::manyCalls);
    suite.add<Product>("small-product", {order}, Timing::manyCalls);
    suite.add<Covariance>("small-covariance", {numbers}, Timing::manyCalls);
    suite.add<Inverse>("small-inverse", {order}, Timing::manyCalls);
    suite.add<Determinant>("small-determinant", {order}, Timing::manyCalls);
    suite.add<Cholesky>("small-cholesky", {order}, Timing::manyCalls);
    suite.add<Eigenvalues>("small-eigen", {order}, Timing::manyCalls);
    suite.add<Fit>("small-least-squares", {numbers}, Timing::manyCalls);
    suite.add<GroupMeans>("small-group-means", {numbers}, Timing::manyCalls);
}

} // namespace vecmat::bench
