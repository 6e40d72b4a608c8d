// Means, deviations, variances and higher moments.
#include "contest.h"
#include "plain/plain.h"

#include "descriptive/means.h"
#include "descriptive/moments.h"
#include "descriptive/shape_moments.h"
#include "elementary/cell_functions.h"

#include <Eigen/Core>
#include <gsl/gsl_statistics_double.h>

#include <cmath>

namespace vecmat::bench {

namespace {

constexpr int cols = 10;

/// The library's one pass and a peer's two round differently.
constexpr double onePass = 1e-10;

struct WeightedColumns
{
    int n;
    Cells x, w, mean, deviation, variance;

    explicit WeightedColumns(int rows)
        : n(rows), x(RandomData(20).normals(count(n, cols))), w(RandomData(21).weights(count(n))), mean(count(cols)),
          deviation(mean), variance(mean)
    {
    }
    void share(Contest& contest) const
    {
        contest.share("x", x);
        contest.share("w", w);
    }
    const double* column(int j) const { return x.data() + count(n, j); }

    /// The factor from a variance by GSL's divisor for reliability weights to one by W - W/n.
    double divisorRatio() const
    {
        double W = 0.0, squares = 0.0;
        for (const double weight : w) {
            W += weight;
            squares += weight * weight;
        }
        return (W - squares / W) / (W - W / n);
    }
    void gslMeans()
    {
        for (int j = 0; j < cols; ++j)
            mean[count(j)] = gsl_stats_wmean(w.data(), 1, column(j), 1, count(n));
    }
    void gslVariances(Cells& variances)
    {
        gslMeans();
        for (int j = 0; j < cols; ++j)
            variances[count(j)] = gsl_stats_wvariance_m(w.data(), 1, column(j), 1, count(n), mean[count(j)]);
    }
    static Cells together(const Cells& first, Cells second, double factor)
    {
        for (double& cell : second)
            cell *= factor;
        second.insert(second.begin(), first.begin(), first.end());
        return second;
    }
};

struct ColumnMeans : WeightedColumns
{
    using WeightedColumns::WeightedColumns;
    void enter(Contest& contest)
    {
        share(contest);
        contest.outputs({&mean});
        contest.ours([this] { VB_M_Mean(x.data(), n, cols, mean.data(), 0, w.data()); });
        contest.plain([this] { plain::columnMeans(x.data(), n, cols, mean.data(), w.data()); });
        contest.compiledPeer("GSL", 1e-9, [this] { gslMeans(); });
    }
};

struct ColumnDeviations : WeightedColumns
{
    using WeightedColumns::WeightedColumns;
    void enter(Contest& contest)
    {
        share(contest);
        std::vector<short>& everyRow = mask;
        everyRow.assign(count(n), 0);
        contest.outputs({&mean, &deviation});
        contest.ours([this] {
            VB_M_MeanStDev(x.data(), n, cols, mean.data(), deviation.data(), mask.data(), w.data(), -1, 0, 0);
        });
        contest.plain([this] { plain::columnDeviations(x.data(), n, cols, mean.data(), deviation.data(), w.data()); });
        contest.compiledPeer(
            "GSL", onePass,
            [this] {
                gslVariances(deviation);
                for (double& cell : deviation)
                    cell = std::sqrt(cell);
            },
            [this] { return together(mean, deviation, std::sqrt(divisorRatio())); });
    }
    std::vector<short> mask;
};

struct ColumnVariances : WeightedColumns
{
    using WeightedColumns::WeightedColumns;
    void enter(Contest& contest)
    {
        share(contest);
        contest.outputs({&mean, &variance});
        contest.ours([this] {
            VB_M_MeanStDevVar(x.data(), n, cols, mean.data(), deviation.data(), variance.data(), nullptr, w.data(), -1,
                              0);
        });
        contest.plain([this] {
            plain::columnVariances(x.data(), n, cols, mean.data(), deviation.data(), variance.data(), w.data());
        });
        contest.compiledPeer(
            "GSL", onePass, [this] { gslVariances(variance); },
            [this] { return together(mean, variance, divisorRatio()); });
    }
};

struct FourMoments
{
    Cells x, w, moments;
    double sample[4] = {};

    explicit FourMoments(int n) : x(RandomData(22).normals(count(n))), w(count(n), 1.0), moments(4)
    {
        for (double& cell : x) // for a third moment that isn't 0
            cell = cell * cell + cell;
    }
    void enter(Contest& contest)
    {
        contest.outputs({&moments});
        contest.share("x", x);
        contest.ours([this] {
            VB_V_MeanVarSkewPKurtP(x.data(), lengthOf(x), &moments[0], &moments[1], &moments[2], &moments[3],
                                   &sample[0], &sample[1], &sample[2], &sample[3], nullptr, w.data(), -1, 0);
        });
        contest.plain([this] { plain::fourMoments(x.data(), lengthOf(x), w.data(), moments.data()); });
        contest.compiledPeer("GSL", onePass, [this] {
            const std::size_t n = x.size();
            moments[0] = gsl_stats_mean(x.data(), 1, n);
            moments[1] = gsl_stats_variance_m(x.data(), 1, n, moments[0]);
            const double deviation = std::sqrt(moments[1]);
            moments[2] = gsl_stats_skew_m_sd(x.data(), 1, n, moments[0], deviation);
            moments[3] = gsl_stats_kurtosis_m_sd(x.data(), 1, n, moments[0], deviation);
        });
    }
};

struct GeometricMean
{
    Cells x, w, results;

    explicit GeometricMean(int n) : x(RandomData(23).uniforms(count(n), 0.1, 10.0)), w(count(n), 1.0), results(2) {}
    void enter(Contest& contest)
    {
        contest.outputs({&results});
        contest.share("x", x);
        contest.ours([this] { Cpp_V_GMeanGSD(x.data(), lengthOf(x), nullptr, w.data(), &results[0], &results[1]); });
        contest.plain([this] { plain::geometricMean(x.data(), lengthOf(x), w.data(), results.data()); });
        contest.peer("Eigen, two passes", onePass, [this] {
            const Eigen::ArrayXd logarithms = Eigen::Map<const Eigen::ArrayXd>(x.data(), lengthOf(x)).log();
            const double middle = logarithms.mean();
            results[0] = std::exp(middle);
            results[1] = std::exp(std::sqrt((logarithms - middle).square().sum() / (lengthOf(x) - 1.0)));
        });
    }
};

struct LogarithmsOfTable
{
    int n;
    Cells data, x;

    explicit LogarithmsOfTable(int rows) : n(rows), data(RandomData(24).uniforms(count(n, cols), 0.1, 10.0)), x(data) {}
    void enter(Contest& contest)
    {
        contest.outputs({&x});
        contest.reset([this] { x = data; });
        contest.share("x", data);
        contest.ours([this] { VB_M_LogMatrix(x.data(), n, cols, nullptr); });
        contest.plain([this] { plain::logarithms(x.data(), n, cols); });
        contest.peer("Eigen", onePass, [this] {
            Eigen::Map<Eigen::ArrayXd> cells(x.data(), lengthOf(x));
            cells = cells.log();
        });
    }
};

} // namespace

void addMoments(Suite& suite)
{
    suite.add<ColumnMeans>("column-means", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000});
    suite.add<ColumnDeviations>("column-deviations", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000});
    suite.add<ColumnVariances>("column-variances", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000});
    suite.add<GeometricMean>("geometric-mean", {10'000, 100'000, 1'000'000});
    suite.add<LogarithmsOfTable>("log-matrix", {1'000, 10'000, 100'000});
    suite.add<FourMoments>("four-moments", {10'000, 100'000, 1'000'000}).alsoAt({10'000'000, 100'000'000});
}

} // namespace vecmat::bench
