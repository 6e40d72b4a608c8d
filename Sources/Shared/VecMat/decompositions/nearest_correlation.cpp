#include "nearest_correlation.h"

#include "../access/cells.h"
#include "../elementary/blocks.h"
#include "../elementary/diagonal_products.h"
#include "../elementary/matrix_products.h"
#include "../elementary/scalar_arithmetic.h"
#include "../frame/detail/handles.h"
#include "../missing/missing_counts.h"
#include "eigen.h"
#include "square_root.h"

#include <cmath>

using namespace vecmat;

namespace {

// ---- what differs between the storages of the running result ----

struct Table
{
    matrix* a;

    int countMissing(int n) const { return M_NbMissing2(a, n, n); }
    void subtract(matrix* other, int n, matrix*& out) const { M_Sums1As2B(a, n, n, other, 1.0, -1.0, out); }
    void setUnitDiagonalOf(matrix* x, int n) const { M_UProject(x, n, a); }
    double norm(int n) const { return M_RowSumNorm(a, n, n); }
};

struct ColumnArray
{
    matrix** a;

    int countMissing(int n) const { return M_NbMissing2(a, n, n); }
    void subtract(matrix* other, int n, matrix*& out) const { M_Sums1As2BSPV(a, n, n, other, 1.0, -1.0, out); }
    void setUnitDiagonalOf(matrix* x, int n) const { M_UProjectSPV(x, n, a); }
    double norm(int n) const { return M_RowSumNormSPV(a, n, n); }
};

struct TriangularArray
{
    matrix** a;

    // Beyond the end of a column nothing is counted, so counting over the square covers the triangle.
    int countMissing(int n) const { return M_NbMissing2(a, n, n); }
    void subtract(matrix* other, int n, matrix*& out) const { M_Sums1As2BSPV_T(a, n, n, other, 1.0, -1.0, out); }
    void setUnitDiagonalOf(matrix* x, int n) const { M_UProjectSPV_T(x, n, a); }
    double norm(int n) const { return M_RowSumNormSPV_T(a, n, n); }
};

// ---- the projection on the semi-definite tables ----

/// The metric of a projection: a root of the weights and its inverse.
struct Metric
{
    TableHandle root;
    TableHandle inverse;
};

Metric metricOf(matrix* weights, int n)
{
    // The size of the tolerance does not matter: any positive one selects the same pivot threshold.
    constexpr double tolerance = 1e-6;
    Metric metric{fresh(n, n), fresh(n, n)};
    M_SquareRoot(weights, n, metric.root.reference());
    short status = 0;
    metric.root->inverse1(metric.inverse, status, tolerance);
    return metric;
}

TableHandle identity(int n)
{
    TableHandle table = fresh(n, n);
    for (int i = 1; i <= n; ++i)
        table->vbset(i, i, 1.0);
    return table;
}

/// What `metricOf` returns for the identity, without computing eigenvalues: that would swallow a failed allocation, and
/// with a root of zeros the iteration would never end.
Metric identityMetric(int n)
{
    return {identity(n), identity(n)};
}

void projectOnCone(matrix* a, int n, const Metric& metric, matrix* out)
{
    TableHandle scaled = fresh(n, n);
    M_ProductABC(metric.root, n, n, a, n, metric.root, n, scaled);
    TableHandle values = fresh(n, 1);
    TableHandle vectors = fresh(n, n);
    M_Eigen(scaled, values.reference(), vectors.reference(), n, -1);
    for (int i = 1; i <= n; ++i)
        if (values->vbget(i, 1) < 0.0)
            values->vbset(i, 1, 0.0);
    M_ProductADiagVTrA(vectors, n, n, values, scaled);
    M_ProductABC(metric.inverse, n, n, scaled, n, metric.inverse, n, out);
}

template <class Storage>
int iterate(Storage a, int n)
{
    // The projections converge in the end, unless the cells are so large that rounding keeps them apart.
    constexpr int passLimit = 100000;
    if (a.countMissing(n) > 0)
        return -1;
    const Metric metric = identityMetric(n);
    TableHandle correction = fresh(n, n);
    TableHandle residual = fresh(n, n);
    TableHandle projected = fresh(n, n);
    for (int pass = 0; pass < passLimit; ++pass) {
        a.subtract(correction, n, residual.reference());
        projectOnCone(residual, n, metric, projected);
        M_Sums1As2B(projected, n, n, residual, 1.0, -1.0, correction.reference());
        a.setUnitDiagonalOf(projected, n);
        a.subtract(projected, n, residual.reference());
        const double ratio = M_RowSumNorm(residual, n, n) / a.norm(n);
        if (ratio <= convergenceTolerance || ratio != ratio)
            break;
    }
    return 0;
}

template <class Cells>
double largestRowSum(Cells a, int rows, int cols)
{
    double largest = 0.0;
    for (int i = 0; i < rows; ++i) {
        double sum = 0.0;
        for (int j = 0; j < cols; ++j) {
            const double x = a.get(i, j);
            if (x > missingValue)
                sum += std::fabs(x);
        }
        if (sum > largest)
            largest = sum;
    }
    return largest;
}

} // namespace

int M_CorrMatFromSymMat(matrix* a, int n)
{
    return iterate(Table{a}, n);
}

int M_CorrMatFromSymMatSPV(matrix** a, int n)
{
    return iterate(ColumnArray{a}, n);
}

int M_CorrMatFromSymMatSPV_T(matrix** a, int n)
{
    return iterate(TriangularArray{a}, n);
}

void M_SProject(matrix* a, int n, matrix* w, matrix* out)
{
    projectOnCone(a, n, metricOf(w, n), out);
}

void M_UProject(matrix* a, int n, matrix* out)
{
    M_Duplicate(a, n, n, out, 1, 1, 1, 1);
    for (int i = 1; i <= n; ++i)
        out->vbset(i, i, 1.0);
}

void M_UProjectSPV(matrix* a, int n, matrix** out)
{
    M_DuplicateSPV2(a, n, n, out, 1, 1, 1, 1);
    for (int i = 0; i < n; ++i)
        cells(out).set(i, i, 1.0);
}

void M_UProjectSPV_T(matrix* a, int n, matrix** out)
{
    M_DuplicateSPV2_T(a, n, n, out, 1, 1, 1, 1);
    for (int i = 0; i < n; ++i)
        triangle(out).set(i, i, 1.0);
}

double M_RowSumNorm(matrix* a, int rows, int cols)
{
    return onBlocks([=](auto x) { return largestRowSum(x, rows, cols); }, block(cells(a), rows, cols));
}

double M_RowSumNormSPV(matrix** a, int rows, int cols)
{
    return onBlocks([=](auto x) { return largestRowSum(x, rows, cols); }, block(cells(a), rows, cols));
}

double M_RowSumNormSPV_T(matrix** a, int rows, int cols)
{
    return onBlocks([=](auto x) { return largestRowSum(x, rows, cols); }, block(triangle(a), rows, cols));
}
