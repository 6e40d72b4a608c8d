// Singular values, and the generalised inverse built on them.
#include "contest.h"
#include "lapack.h"
#include "plain/plain.h"

#include "decompositions/generalised_inverses.h"
#include "decompositions/singular_values.h"

#include <Eigen/SVD>
#include <gsl/gsl_linalg.h>

#include <algorithm>

namespace vecmat::bench {

namespace {

struct SingularValues
{
    int n, p;
    Cells data, x, s, u, v;
    int info = 0;

    explicit SingularValues(int rows)
        : n(rows), p(2 * rows / 5), data(RandomData(60).normals(count(n, p))), x(data), s(count(p)), u(count(n, p)),
          v(count(p, p))
    {
    }
    void enter(Contest& contest)
    {
        constexpr int shortest = 21;
        constexpr double tolerance = 1e-12;
        const Result values = [this] { return s; };
        contest.outputs({&s, &u, &v});
        contest.reset([this] { x = data; });
        contest.share("x", data);
        contest.ours([this] { VB_M_SVDecomp(x.data(), n, p, s.data(), u.data(), n, v.data(), p, shortest, &info); },
                     values);
        contest.plain([this] { plain::singularValues(x.data(), n, p, s.data(), u.data(), v.data()); },
                      [this] { return agreement(); });
        contest.compiledPeer(
            "LAPACK dgesvd", tolerance, [this] { byLapack(); }, values);
        contest.compiledPeer(
            "GSL", tolerance, [this] { byGsl(); }, values);
        contest.peer(
            "Eigen", tolerance, [this] { byEigen(); }, values);
    }

private:
    /// The singular values, provided the vectors are bit-identical to the library's, too.
    Cells agreement()
    {
        constexpr int shortest = 21;
        const Cells itsValues = s;
        const Cells itsU = u;
        const Cells itsV = v;
        VB_M_SVDecomp(x.data(), n, p, s.data(), u.data(), n, v.data(), p, shortest, &info);
        return u == itsU && v == itsV ? itsValues : Cells{};
    }
    void byLapack()
    {
        int length = -1;
        double best = 0.0;
        dgesvd_("S", "S", &n, &p, x.data(), &n, s.data(), u.data(), &n, v.data(), &p, &best, &length, &info);
        length = static_cast<int>(best);
        Cells work(count(length));
        dgesvd_("S", "S", &n, &p, x.data(), &n, s.data(), u.data(), &n, v.data(), &p, work.data(), &length, &info);
    }
    void byGsl()
    {
        // GSL stores tables row by row.
        Cells rows(x.size());
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < p; ++j)
                rows[count(i, p) + count(j)] = x[count(n, j) + count(i)];
        Cells workspace(count(p));
        gsl_matrix_view a = gsl_matrix_view_array(rows.data(), count(n), count(p));
        gsl_matrix_view right = gsl_matrix_view_array(v.data(), count(p), count(p));
        gsl_vector_view values = gsl_vector_view_array(s.data(), count(p));
        gsl_vector_view work = gsl_vector_view_array(workspace.data(), count(p));
        gsl_linalg_SV_decomp(&a.matrix, &right.matrix, &values.vector, &work.vector);
    }
    void byEigen()
    {
        const Eigen::BDCSVD<Eigen::MatrixXd> solver(Eigen::Map<const Eigen::MatrixXd>(x.data(), n, p),
                                                    Eigen::ComputeThinU | Eigen::ComputeThinV);
        std::copy_n(solver.singularValues().data(), p, s.data());
        std::copy_n(solver.matrixU().data(), u.size(), u.data());
        std::copy_n(solver.matrixV().data(), v.size(), v.data());
    }
};

struct GeneralisedInverse
{
    static constexpr double tol = 1e-8;
    int n;
    Cells a, out;
    int rank = 0;

    /// One column is the sum of two others.
    explicit GeneralisedInverse(int order) : n(order), a(RandomData(61).normals(count(n, n))), out(a.size())
    {
        for (int i = 0; i < n; ++i)
            a[count(i)] = a[count(n) + count(i)] + a[count(n, 2) + count(i)];
    }
    void enter(Contest& contest)
    {
        contest.outputs({&out});
        contest.share("a", a);
        contest.ours([this] { VB_M_InvGeneralized(a.data(), n, out.data(), tol, &rank); });
        contest.plain([this] { plain::generalisedInverse(a.data(), n, out.data(), tol); });
    }
};

} // namespace

void addSingularValues(Suite& suite)
{
    suite.add<SingularValues>("singular-values", {50, 200, 500});
    suite.add<GeneralisedInverse>("generalised-inverse", {20, 50, 100});
}

} // namespace vecmat::bench
