#include "generalised_inverses.h"

#include "../elementary/blocks.h"
#include "../elementary/diagonal_products.h"
#include "../frame/detail/handles.h"
#include "singular_values.h"

using namespace vecmat;

namespace {

/// The singular value decomposition of a square table, with all columns of U and V.
struct Decomposition
{
    TableHandle s;
    TableHandle u;
    TableHandle v;
    int info = 0;

    Decomposition(matrix* a, int n) : s(fresh(n, 1)), u(fresh(n, n)), v(fresh(n, n))
    {
        constexpr int allSingularVectors = 21;
        M_SVDecomp(a, n, n, s, u, v, allSingularVectors, &info);
    }

    bool converged() const { return info >= 0; }
};

/// Replaces the singular values by those of the inverse; returns the rank.
int invertValues(matrix* s, int n, double tol, bool sorted)
{
    int rank = n;
    for (int i = 1; i <= n; ++i) {
        const double value = s->vbget(i, 1);
        if (value >= tol) {
            s->vbset(i, 1, 1.0 / value);
        } else if (value < tol && sorted) {
            for (int rest = i; rest <= n; ++rest)
                s->vbset(rest, 1, 0.0);
            return i - 1;
        } else if (value < tol) {
            s->vbset(i, 1, 0.0);
            --rank;
        }
    }
    return rank;
}

int statusOf(const Decomposition& svd)
{
    return svd.converged() ? 0 : -1;
}

} // namespace

int M_InvGeneralized(matrix* a, int n, matrix* out, double tol, int* rank)
{
    matrix workspace(*a);
    const Decomposition svd(&workspace, n);
    *rank = invertValues(svd.s, n, tol, svd.converged());
    M_ProductADiagVTrB(svd.v, n, n, svd.s, svd.u, n, out);
    return statusOf(svd);
}

int M_InvGeneralizedSPV(matrix** a, int n, matrix* out, double tol, int* rank)
{
    const TableHandle full = fresh(n, n);
    M_DuplicateSPV(a, n, n, full, 1, 1, 1, 1);
    return M_InvGeneralized(full, n, out, tol, rank);
}

int M_InvGeneralizedSym(matrix* a, int n, matrix* out, double tol, int* rank)
{
    const Decomposition svd(a, n);
    *rank = invertValues(svd.s, n, tol, svd.converged());
    M_ProductADiagVTrA(svd.u, n, n, svd.s, out);
    return statusOf(svd);
}
