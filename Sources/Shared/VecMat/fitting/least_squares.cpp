#include "least_squares.h"

#include "../base/detail/numbers.h"
#include "../descriptive/covariance_with_moments.h"
#include "../descriptive/moments.h"
#include "../elementary/horizontal_merges.h"
#include "../elementary/vector_sums.h"
#include "../frame/detail/handles.h"
#include "detail/model_columns.h"
#include "detail/regression.h"

#include <vector>

using namespace vecmat;

namespace {

/// The model's columns and the response, as one table.
TableHandle merged(matrix* z, int m, matrix* y, int n)
{
    TableHandle table;
    HMergeTables(z, n, m, y, n, 1, table.reference());
    return table;
}

/// The moments of the model's columns and the response, centred.
ModelMoments momentsOf(matrix* z, int m, matrix* y, int n, matrix* w)
{
    ModelMoments moments(m);
    ModelColumns variables = columnsOf(z, m);
    variables.push_back({y, 0});
    if (correlateAboutMeans(moments, variables, n, w))
        return moments;
    TableHandle table = merged(z, m, y, n);
    TableHandle variance;
    // It is a copy, so standardising it is not observable.
    M_CovCorrVAndMeanStDevVar(table.reference(), n, m + 1, moments.packed.reference(), moments.mean.reference(),
                              moments.deviation.reference(), variance.reference(), -1, nullptr, w, -1, -1, 0, 0, -1);
    return moments;
}

/// The same about the origin.
ModelMoments rawMomentsOf(matrix* z, int m, matrix* y, int n, matrix* w, double W)
{
    const TableHandle table = merged(z, m, y, n);
    std::vector<short> everyRow(countOf(n), 0);
    ModelMoments moments(m);
    TableHandle variance;
    M_MeanStDevVar(table, n, m + 1, moments.mean.reference(), moments.deviation.reference(), variance.reference(),
                   everyRow.data(), w, -1, -1);
    correlateAboutOrigin(moments, columnsOf(table, m + 1), n, w, W, MissingDeviation::uncorrelated);
    return moments;
}

/// Fits the model, and returns the moments as the sweeps leave them.
ModelMoments fit(int n, matrix* X, matrix* y, matrix* w, const ModelShape& shape, Intercept intercept, double tol,
                 const FitResults& results)
{
    const double W = V_Sum2(w, n);
    const TableHandle made = shape.isLinear() ? TableHandle() : widened(X, n, shape);
    matrix* const z = shape.isLinear() ? X : made;
    const int m = shape.columns();
    ModelMoments moments = intercept == Intercept::fitted ? momentsOf(z, m, y, n, w) : rawMomentsOf(z, m, y, n, w, W);
    enterColumns(moments, tol);
    estimate(moments, columnsOf(z, m), n, W, intercept, results);
    return moments;
}

} // namespace

void OLSBasic(int n, int p, matrix* X, matrix* y, matrix* w, int degree, short interactions, short noIntercept,
              double tol, matrix*& beta, matrix*& fitted)
{
    TableHandle se;
    OLSBasic2(n, p, X, y, w, degree, interactions, noIntercept, tol, beta, se.reference(), fitted);
}

void OLSBasic2(int n, int p, matrix* X, matrix* y, matrix* w, int degree, short interactions, short noIntercept,
               double tol, matrix*& beta, matrix*& se, matrix*& fitted)
{
    const ModelShape shape{p, degree, interactions};
    fit(n, X, y, w, shape, interceptOf(noIntercept), tol, prepared(beta, se, fitted, shape.columns(), n));
}

void OLSBasic3(int n, int p, matrix* X, matrix* y, matrix* w, int degree, short interactions, short noIntercept,
               double tol, matrix*& beta, matrix*& se, matrix*& fitted, matrix* swept, matrix* mean, matrix* sd)
{
    const ModelShape shape{p, degree, interactions};
    const ModelMoments moments =
        fit(n, X, y, w, shape, interceptOf(noIntercept), tol, prepared(beta, se, fitted, shape.columns(), n));
    for (int i = 0; i <= moments.columns(); ++i) {
        for (int j = 0; j <= moments.columns(); ++j)
            swept->vbset(i + 1, j + 1, moments.at(i, j));
        mean->vbset(i + 1, 1, moments.mean->X[i]);
        sd->vbset(i + 1, 1, moments.deviation->X[i]);
    }
}
