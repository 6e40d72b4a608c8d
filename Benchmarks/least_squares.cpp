// Regression, and components with missing cells.
#include "contest.h"
#include "lapack.h"
#include "plain/plain.h"

#include "fitting/least_squares.h"
#include "fitting/nipals.h"

#include <Eigen/Cholesky>
#include <Eigen/QR>

namespace vecmat::bench {

namespace {

constexpr int cols = 20;

struct LeastSquares
{
    static constexpr double tol = 1e-8;
    int n;
    Cells x, y, w, withOnes, design, response, beta, se, fitted;

    explicit LeastSquares(int rows)
        : n(rows), x(RandomData(80).normals(count(n, cols))), y(RandomData(81).normals(count(n))), w(count(n), 1.0),
          withOnes(x), beta(count(cols + 1)), se(beta), fitted(count(n))
    {
        for (int j = 0; j < cols; ++j)
            for (int i = 0; i < n; ++i)
                y[count(i)] += (j + 1) * x[count(n, j) + count(i)] / cols;
        for (double& cell : y)
            cell += 5.0;
        withOnes.resize(count(n, cols + 1), 1.0);
    }
    void enter(Contest& contest)
    {
        constexpr double tolerance = 1e-10;
        const Result coefficients = [this] { return beta; };
        contest.outputs({&beta, &se, &fitted});
        // The peers are given a design with its column of ones, which they may overwrite.
        contest.reset([this] {
            design = withOnes;
            response = y;
        });
        contest.share("x", x);
        contest.share("y", y);
        contest.ours([this] { fit(); }, coefficients);
        contest.plain(
            [this] {
                plain::leastSquares(n, cols, x.data(), y.data(), w.data(), tol, beta.data(), se.data(), fitted.data());
            },
            [this] { return agreement(); });
        contest.compiledPeer(
            "LAPACK dgels", tolerance, [this] { byLapack(); }, coefficients);
        contest.peer(
            "Eigen, Householder QR", tolerance,
            [this] {
                const Eigen::Map<const Eigen::MatrixXd> a(design.data(), n, cols + 1);
                Eigen::Map<Eigen::VectorXd>(beta.data(), cols + 1) =
                    a.householderQr().solve(Eigen::Map<const Eigen::VectorXd>(response.data(), n));
            },
            coefficients);
        contest.peer(
            "Eigen, normal equations", tolerance, [this] { byNormalEquations(); }, coefficients);
    }

private:
    void fit()
    {
        RunOLSBasic2(n, cols, x.data(), y.data(), w.data(), 1, 0, 0, tol, beta.data(), se.data(), fitted.data());
    }
    /// The coefficients, provided standard errors and fitted values are bit-identical to the library's, too.
    Cells agreement()
    {
        const Cells itsBeta = beta;
        const Cells itsErrors = se;
        const Cells itsFitted = fitted;
        fit();
        return se == itsErrors && fitted == itsFitted ? itsBeta : Cells{};
    }
    void byLapack()
    {
        const int p = cols + 1;
        const int one = 1;
        const int length = 64 * p;
        int info = 0;
        Cells work(count(length));
        dgels_("N", &n, &p, &one, design.data(), &n, response.data(), &n, work.data(), &length, &info);
        std::copy_n(response.begin(), p, beta.begin());
    }
    /// The standard errors and the fitted values, too.
    void byNormalEquations()
    {
        const int p = cols + 1;
        const Eigen::Map<const Eigen::MatrixXd> a(design.data(), n, p);
        const Eigen::Map<const Eigen::VectorXd> b(response.data(), n);
        Eigen::Map<Eigen::VectorXd> solution(beta.data(), p);
        Eigen::Map<Eigen::VectorXd> line(fitted.data(), n);
        Eigen::MatrixXd products = Eigen::MatrixXd::Zero(p, p);
        products.selfadjointView<Eigen::Lower>().rankUpdate(a.transpose());
        const auto factor = products.selfadjointView<Eigen::Lower>().llt();
        solution = factor.solve(a.transpose() * b);
        line = a * solution;
        const double variance = (b - line).squaredNorm() / (n - p);
        const Eigen::MatrixXd inverse = factor.solve(Eigen::MatrixXd::Identity(p, p));
        Eigen::Map<Eigen::VectorXd>(se.data(), p) = (variance * inverse.diagonal()).cwiseSqrt();
    }
};

/// Three dimensions, noise, and gaps.
struct Components
{
    static constexpr double tol = 1e-6;
    static constexpr int components = 3;
    int n;
    Cells data, x, w;

    explicit Components(int rows) : n(rows), data(RandomData(82).normals(count(n, cols))), w(count(n), 1.0)
    {
        RandomData random(83);
        for (int h = 0; h < components; ++h) {
            const Cells scores = random.normals(count(n));
            const Cells loadings = random.normals(count(cols));
            for (std::size_t k = 0; k < data.size(); ++k)
                data[k] += (4.0 - h) * scores[k % count(n)] * loadings[k / count(n)];
        }
        data = random.withMissing(data, 0.05);
        x = data;
    }
    void enter(Contest& contest)
    {
        contest.outputs({&x});
        contest.reset([this] { x = data; });
        contest.share("x", data);
        contest.ours([this] { Cpp_NIPALS(n, cols, x.data(), w.data(), tol, components, 1.0, 1.0); });
        contest.plain([this] { plain::nipals(n, cols, x.data(), w.data(), tol, components); });
    }
};

} // namespace

void addLeastSquares(Suite& suite)
{
    suite.add<LeastSquares>("least-squares", {1'000, 10'000, 100'000}).alsoAt({1'000'000, 10'000'000});
    suite.add<Components>("nipals", {500, 2'000, 5'000});
}

} // namespace vecmat::bench
