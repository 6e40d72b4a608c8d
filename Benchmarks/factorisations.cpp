// Determinant, inverse and Cholesky factor.
#include "contest.h"
#include "lapack.h"
#include "plain/plain.h"

#include "decompositions/cholesky.h"
#include "decompositions/determinants.h"
#include "decompositions/inversion.h"

#include <Eigen/Cholesky>
#include <Eigen/LU>

#include <algorithm>
#include <cmath>

namespace vecmat::bench {

namespace {

using Square = Eigen::Map<const Eigen::MatrixXd>;

/// Normal cells of a size that lets the determinant stay a double.
Cells squareTable(int n, std::uint64_t seed)
{
    Cells a = RandomData(seed).normals(count(n, n));
    for (double& cell : a)
        cell *= 1.5 / std::sqrt(static_cast<double>(n));
    return a;
}

struct SquareTable
{
    int n;
    Cells a;
    std::vector<int> pivots;

    SquareTable(int order, Cells cells) : n(order), a(std::move(cells)), pivots(count(n)) {}
    void factor(Cells& lu)
    {
        int info = 0;
        dgetrf_(&n, &n, lu.data(), &n, pivots.data(), &info);
    }
};

struct Determinant : SquareTable
{
    Cells result{0.0};
    short status = 0;

    explicit Determinant(int order) : SquareTable(order, squareTable(order, 70)) {}
    void enter(Contest& contest)
    {
        constexpr double tolerance = 1e-10;
        contest.outputs({&result});
        contest.share("a", a);
        contest.ours([this] { result[0] = VB_M_Determinant(a.data(), n, &status); });
        contest.plain([this] { result[0] = plain::determinant(a.data(), n); });
        contest.compiledPeer("LAPACK dgetrf", tolerance, [this] {
            Cells lu = a;
            factor(lu);
            double product = 1.0;
            for (int i = 0; i < n; ++i)
                product *= pivots[count(i)] == i + 1 ? lu[count(n + 1, i)] : -lu[count(n + 1, i)];
            result[0] = product;
        });
        contest.peer("Eigen", tolerance, [this] { result[0] = Square(a.data(), n, n).determinant(); });
    }
};

struct Inverse : SquareTable
{
    Cells out;

    explicit Inverse(int order) : SquareTable(order, squareTable(order, 71)), out(a.size()) {}
    void enter(Contest& contest)
    {
        constexpr double tolerance = 1e-9;
        contest.outputs({&out});
        contest.share("a", a);
        contest.ours([this] { VB_M_Inverse1(a.data(), n, out.data(), 0.0); });
        contest.plain([this] { plain::inverse(a.data(), n, out.data()); });
        contest.compiledPeer("LAPACK dgetrf, dgetri", tolerance, [this] {
            out = a;
            factor(out);
            int info = 0;
            const int length = 64 * n;
            Cells work(count(length));
            dgetri_(&n, out.data(), &n, pivots.data(), work.data(), &length, &info);
        });
        contest.peer("Eigen", tolerance,
                     [this] { Eigen::Map<Eigen::MatrixXd>(out.data(), n, n) = Square(a.data(), n, n).inverse(); });
    }
};

struct Cholesky
{
    int n;
    Cells a, l;

    explicit Cholesky(int order) : n(order), a(count(n, n)), l(a.size())
    {
        const Cells root = squareTable(n, 72);
        const Square x(root.data(), n, n);
        Eigen::Map<Eigen::MatrixXd> product(a.data(), n, n);
        product = x.transpose() * x;
        product.diagonal().array() += 1.0;
        product.triangularView<Eigen::Lower>() = product.transpose();
    }
    void enter(Contest& contest)
    {
        constexpr double tolerance = 1e-13;
        contest.outputs({&l});
        contest.share("a", a);
        contest.ours([this] { VB_M_CholDecomp(a.data(), n, l.data()); });
        contest.plain([this] { plain::cholesky(a.data(), n, l.data()); });
        contest.compiledPeer("LAPACK dpotrf", tolerance, [this] {
            int info = 0;
            l = a;
            dpotrf_("L", &n, l.data(), &n, &info);
            for (int j = 1; j < n; ++j)
                std::fill_n(l.data() + count(n, j), j, 0.0);
        });
        contest.peer("Eigen", tolerance,
                     [this] { Eigen::Map<Eigen::MatrixXd>(l.data(), n, n) = Square(a.data(), n, n).llt().matrixL(); });
    }
};

} // namespace

void addFactorisations(Suite& suite)
{
    suite.add<Determinant>("determinant", {50, 200, 500});
    suite.add<Inverse>("inverse", {50, 200, 500});
    suite.add<Cholesky>("cholesky", {50, 200, 500});
}

} // namespace vecmat::bench
