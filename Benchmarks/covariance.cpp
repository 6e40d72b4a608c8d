// Covariances and correlations of columns.
#include "contest.h"
#include "plain/plain.h"

#include "descriptive/covariance.h"

#include <Eigen/Core>

namespace vecmat::bench {

namespace {

constexpr int cols = 60;

/// Columns with a common component.
Cells relatedColumns(int n, std::uint64_t seed)
{
    RandomData random(seed);
    const Cells common = random.normals(count(n));
    Cells x = random.normals(count(n, cols));
    for (std::size_t k = 0; k < x.size(); ++k)
        x[k] += 0.7 * common[k % common.size()] + 3.0;
    return x;
}

struct Covariance
{
    int n;
    Cells x, w, c;

    explicit Covariance(int rows) : n(rows), x(relatedColumns(n, 40)), w(count(n), 1.0), c(count(cols, cols)) {}
    void enter(Contest& contest)
    {
        contest.outputs({&c});
        contest.share("x", x);
        contest.ours([this] { VB_M_CovCorr(x.data(), n, cols, c.data(), 0, nullptr, w.data(), -1, 0); });
        contest.plain([this] { plain::covariance(x.data(), n, cols, c.data(), w.data()); });
        contest.peer("Eigen, centred product", 1e-12, [this] {
            const Eigen::Map<const Eigen::MatrixXd> data(x.data(), n, cols);
            const Eigen::MatrixXd centred = data.rowwise() - data.colwise().mean();
            Eigen::Map<Eigen::MatrixXd>(c.data(), cols, cols).noalias() = centred.transpose() * centred / (n - 1.0);
        });
    }
};

struct CorrelationWithGaps
{
    int n;
    Cells x, w, c;

    explicit CorrelationWithGaps(int rows)
        : n(rows), x(RandomData(42).withMissing(relatedColumns(n, 41), 0.05)), w(count(n), 1.0), c(count(cols, cols))
    {
    }
    void enter(Contest& contest)
    {
        contest.outputs({&c});
        contest.share("x", x);
        contest.ours([this] { VB_M_CovCorr(x.data(), n, cols, c.data(), -1, nullptr, w.data(), -1, 0); });
        contest.plain([this] { plain::correlation(x.data(), n, cols, c.data(), w.data()); });
    }
};

} // namespace

void addCovariance(Suite& suite)
{
    suite.add<Covariance>("covariance", {1'000, 5'000, 20'000}).alsoAt({100'000, 1'000'000});
    suite.add<CorrelationWithGaps>("correlation-with-gaps", {1'000, 5'000, 20'000}).alsoAt({100'000, 1'000'000});
}

} // namespace vecmat::bench
