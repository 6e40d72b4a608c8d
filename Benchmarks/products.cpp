// Matrix products.
#include "contest.h"
#include "plain/plain.h"

#include "elementary/matrix_products.h"

#include <Eigen/Core>
#include <cblas.h>

namespace vecmat::bench {

namespace {

using Matrix = Eigen::Map<Eigen::MatrixXd>;
using ConstMatrix = Eigen::Map<const Eigen::MatrixXd>;

/// Sums of a few hundred terms in another order, and with one rounding for a product and its sum.
constexpr double reordered = 1e-13;

struct Product
{
    int n;
    Cells a, b, out;

    explicit Product(int order)
        : n(order), a(RandomData(10).normals(count(n, n))), b(RandomData(11).normals(count(n, n))), out(count(n, n))
    {
    }
    void enter(Contest& contest)
    {
        contest.outputs({&out});
        contest.share("a", a);
        contest.share("b", b);
        contest.ours([this] { VB_M_ProductAB(a.data(), n, n, b.data(), n, out.data()); });
        contest.plain([this] { plain::product(a.data(), n, n, b.data(), n, out.data()); });
        contest.compiledPeer("OpenBLAS dgemm", reordered, [this] {
            cblas_dgemm(CblasColMajor, CblasNoTrans, CblasNoTrans, n, n, n, 1.0, a.data(), n, b.data(), n, 0.0,
                        out.data(), n);
        });
        contest.peer("Eigen", reordered, [this] {
            Matrix(out.data(), n, n).noalias() = ConstMatrix(a.data(), n, n) * ConstMatrix(b.data(), n, n);
        });
    }
};

struct CrossProduct
{
    int n;
    Cells a, out;

    explicit CrossProduct(int order) : n(order), a(RandomData(12).normals(count(n, n))), out(count(n, n)) {}
    void enter(Contest& contest)
    {
        contest.outputs({&out});
        contest.share("a", a);
        contest.ours([this] { VB_M_ProductTrAA(a.data(), n, n, out.data()); });
        contest.plain([this] { plain::crossProduct(a.data(), n, n, out.data()); });
        contest.compiledPeer("OpenBLAS dsyrk", reordered, [this] {
            cblas_dsyrk(CblasColMajor, CblasUpper, CblasTrans, n, n, 1.0, a.data(), n, 0.0, out.data(), n);
            for (int j = 0; j < n; ++j)
                for (int i = j + 1; i < n; ++i)
                    out[count(n, j) + count(i)] = out[count(n, i) + count(j)];
        });
        contest.peer("Eigen", reordered, [this] {
            const ConstMatrix x(a.data(), n, n);
            Matrix(out.data(), n, n).noalias() = x.transpose() * x;
        });
    }
};

/// Dummies times whole numbers: every single product is exact.
struct ExactProduct : Product
{
    explicit ExactProduct(int order) : Product(order)
    {
        a = RandomData(13).wholes(count(n, n), 0, 1);
        b = RandomData(14).wholes(count(n, n), -1000, 1000);
    }
};

/// A table and a vector on either side.
struct VectorProduct
{
    int n;
    Cells b, v, out;

    explicit VectorProduct(int order)
        : n(order), b(RandomData(15).normals(count(n, n))), v(RandomData(16).normals(count(n))), out(count(n))
    {
    }

protected:
    void compete(Contest& contest, Action ours, Action plain, CBLAS_TRANSPOSE transposition)
    {
        contest.outputs({&out});
        contest.share("b", b);
        contest.share("v", v);
        contest.ours(std::move(ours));
        contest.plain(std::move(plain));
        contest.compiledPeer("OpenBLAS dgemv", reordered, [this, transposition] {
            cblas_dgemv(CblasColMajor, transposition, n, n, 1.0, b.data(), n, v.data(), 1, 0.0, out.data(), 1);
        });
    }
};

struct TableByVector : VectorProduct
{
    using VectorProduct::VectorProduct;
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_M_ProductBV(b.data(), n, n, v.data(), out.data()); },
            [this] { plain::product(b.data(), n, n, v.data(), 1, out.data()); }, CblasNoTrans);
    }
};

struct VectorByTable : VectorProduct
{
    using VectorProduct::VectorProduct;
    void enter(Contest& contest)
    {
        compete(
            contest, [this] { VB_M_ProductVB(v.data(), n, b.data(), n, out.data()); },
            [this] { plain::product(v.data(), 1, n, b.data(), n, out.data()); }, CblasTrans);
    }
};

} // namespace

void addProducts(Suite& suite)
{
    suite.add<Product>("product", {64, 256, 512});
    suite.add<ExactProduct>("exact-product", {64, 256, 512});
    suite.add<TableByVector>("table-by-vector", {100, 500, 2000});
    suite.add<VectorByTable>("vector-by-table", {100, 500, 2000});
    suite.add<CrossProduct>("cross-product", {64, 256, 512});
}

} // namespace vecmat::bench
