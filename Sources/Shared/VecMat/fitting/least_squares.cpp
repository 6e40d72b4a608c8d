#include "least_squares.h"

#include "../descriptive/covariance_and_moments.h"
#include "../descriptive/moments.h"
#include "../elementary/horizontal_merges.h"
#include "../elementary/vector_sums.h"
#include "regression.h"

#include <vector>

using namespace vecmat;

namespace {

/// The moments of the model's columns and the response.
ModelMoments momentsOf(matrix* z, int m, matrix* y, int n, matrix* w, double W, Intercept intercept)
{
    TableHandle merged;
    HMergeTables(z, n, m, y, n, 1, merged.reference());
    std::vector<short> everyRow(countOf(n), 0);
    ModelMoments moments(m);
    TableHandle variance;
    if (intercept == Intercept::fitted) {
        M_CovCorrVAndMeanStDevVar(merged.reference(), n, m + 1, moments.packed.reference(), moments.mean.reference(),
                                  moments.deviation.reference(), variance.reference(), -1, everyRow.data(), w, -1, -1,
                                  -1, -1, -1);
    } else {
        M_MeanStDevVar(merged, n, m + 1, moments.mean.reference(), moments.deviation.reference(), variance.reference(),
                       everyRow.data(), w, -1, -1);
        correlateAboutOrigin(moments, columnsOf(merged, m + 1), n, w, W, MissingDeviation::uncorrelated);
    }
    return moments;
}

/// Fits the model, and hands out the moments as the sweeps have left them.
ModelMoments fit(int n, matrix* X, matrix* y, matrix* w, const ModelShape& shape, Intercept intercept, double tol,
                 const FitResults& results)
{
    const double W = V_Sum2(w, n);
    const TableHandle made = shape.isLinear() ? TableHandle() : widened(X, n, shape);
    matrix* const z = shape.isLinear() ? X : made;
    ModelMoments moments = momentsOf(z, shape.columns(), y, n, w, W, intercept);
    enterColumns(moments, tol);
    estimate(moments, columnsOf(z, shape.columns()), n, W, intercept, results);
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
