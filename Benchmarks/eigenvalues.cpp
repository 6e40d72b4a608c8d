// Symmetric eigenproblems, and the nearest correlation matrix built on them.
#include "contest.h"
#include "lapack.h"
#include "plain/plain.h"

#include "decompositions/eigen.h"
#include "decompositions/nearest_correlation.h"

#include <Eigen/Eigenvalues>
#include <gsl/gsl_eigen.h>

#include <algorithm>
#include <cmath>

namespace vecmat::bench {

namespace {

/// The correlations of n columns over 2n rows.
Cells correlations(int n, std::uint64_t seed)
{
    const int rows = 2 * n;
    const Cells x = RandomData(seed).normals(count(rows, n));
    Eigen::MatrixXd data = Eigen::Map<const Eigen::MatrixXd>(x.data(), rows, n);
    data.rowwise() -= data.colwise().mean().eval();
    data.colwise().normalize();
    const Eigen::MatrixXd product = data.transpose() * data;
    return Cells(product.data(), product.data() + product.size());
}

struct Eigenvalues
{
    int n;
    Cells a, values, vectors;

    explicit Eigenvalues(int order) : n(order), a(correlations(n, 50)), values(count(n)), vectors(a.size()) {}
    /// A peer's vectors may have the opposite sign.
    Cells descending() const
    {
        Cells sorted = values;
        std::sort(sorted.rbegin(), sorted.rend());
        return sorted;
    }
    void enter(Contest& contest)
    {
        constexpr double tolerance = 1e-12;
        const Result eigenvalues = [this] { return descending(); };
        contest.outputs({&values, &vectors});
        contest.share("a", a);
        contest.ours([this] { VB_M_Eigen(a.data(), values.data(), vectors.data(), n, -1); }, eigenvalues);
        contest.plain([this] { plain::eigen(a.data(), values.data(), vectors.data(), n); },
                      [this] { return agreement(); });
        contest.compiledPeer(
            "LAPACK dsyev", tolerance, [this] { byLapack(); }, eigenvalues);
        contest.compiledPeer(
            "GSL", tolerance, [this] { byGsl(); }, eigenvalues);
        contest.peer(
            "Eigen", tolerance, [this] { byEigen(); }, eigenvalues);
    }

private:
    /// The eigenvalues, provided the vectors are bit-identical to the library's, too.
    Cells agreement()
    {
        const Cells itsValues = values;
        const Cells itsVectors = vectors;
        VB_M_Eigen(a.data(), values.data(), vectors.data(), n, -1);
        return vectors == itsVectors ? itsValues : Cells{};
    }
    void byLapack()
    {
        vectors = a;
        int info = 0;
        int length = -1;
        double best = 0.0;
        dsyev_("V", "L", &n, vectors.data(), &n, values.data(), &best, &length, &info);
        length = static_cast<int>(best);
        Cells work(count(length));
        dsyev_("V", "L", &n, vectors.data(), &n, values.data(), work.data(), &length, &info);
    }
    void byGsl()
    {
        Cells copy = a;
        gsl_matrix_view input = gsl_matrix_view_array(copy.data(), count(n), count(n));
        gsl_vector_view lambda = gsl_vector_view_array(values.data(), count(n));
        gsl_matrix_view columns = gsl_matrix_view_array(vectors.data(), count(n), count(n));
        gsl_eigen_symmv_workspace* const work = gsl_eigen_symmv_alloc(count(n));
        gsl_eigen_symmv(&input.matrix, &lambda.vector, &columns.matrix, work);
        gsl_eigen_symmv_free(work);
    }
    void byEigen()
    {
        const Eigen::SelfAdjointEigenSolver<Eigen::MatrixXd> solver(Eigen::Map<const Eigen::MatrixXd>(a.data(), n, n));
        std::copy_n(solver.eigenvalues().data(), n, values.data());
        std::copy_n(solver.eigenvectors().data(), vectors.size(), vectors.data());
    }
};

/// Correlations perturbed so much that no data could have them.
struct NearestCorrelation
{
    int n;
    Cells disturbed, a;

    explicit NearestCorrelation(int order) : n(order), disturbed(correlations(n, 51)), a(disturbed)
    {
        RandomData random(52);
        for (int j = 0; j < n; ++j)
            for (int i = j + 1; i < n; ++i) {
                double& cell = disturbed[count(n, j) + count(i)];
                cell = std::clamp(cell + random.uniform(-0.3, 0.3), -1.0, 1.0);
                disturbed[count(n, i) + count(j)] = cell;
            }
    }
    void enter(Contest& contest)
    {
        contest.outputs({&a});
        contest.reset([this] { a = disturbed; });
        contest.share("a", disturbed);
        contest.ours([this] { Cpp_M_CorrMatFromSymMat(a.data(), n); });
        contest.plain([this] { plain::nearestCorrelation(a.data(), n); });
    }
};

} // namespace

void addEigenvalues(Suite& suite)
{
    suite.add<Eigenvalues>("eigen", {50, 200, 500});
    suite.add<NearestCorrelation>("nearest-correlation", {10, 25, 50});
}

} // namespace vecmat::bench
