#include "regression.h"

#include "../decompositions/sweep.h"
#include "../frame/companions.h"
#include "../frame/missing_value.h"
#include "tolerance_check.h"

#include <cmath>

namespace vecmat {
namespace {

/// The model's columns and the response count among the observations' degrees of freedom whether they entered or not.
double degreesOfFreedom(double observations, int columns)
{
    return observations - columns - 1;
}

double crossProduct(const ModelColumn& a, const ModelColumn& b, int n, matrix* w)
{
    return onBlocks(
        [n](auto x, auto y, auto weight) {
            double sum = 0.0;
            for (int i = 0; i < n; ++i)
                if (weight.get(i) != 0.0)
                    sum += x.get(i, 0) * y.get(i, 0) * weight.get(i);
            return sum;
        },
        block(a.cells(), n, 1), block(b.cells(), n, 1), block(linear(w), n));
}

void estimateSlopes(const ModelMoments& moments, int n, const FitResults& results)
{
    const int m = moments.columns();
    const double* const sd = moments.deviation->X;
    const double residual = moments.at(m, m);
    const double df = degreesOfFreedom(n, m);
    for (int k = 0; k < m; ++k) {
        if (!(std::fabs(sd[k]) > zeroTolerance))
            continue;
        results.beta->X[k] = moments.at(m, k) * sd[m] / sd[k];
        results.se->X[k] = df != 0.0 ? sqr(std::fabs(moments.at(k, k) * residual) / df) * sd[m] / sd[k] : 0.0;
    }
}

double interceptVariance(const ModelMoments& moments, int n, double W, const matrix* se)
{
    const int m = moments.columns();
    const double* const sd = moments.deviation->X;
    const double* const mean = moments.mean->X;
    const double residual = moments.at(m, m);
    // Of the weights, where the slopes go by the count of rows.
    const double df = degreesOfFreedom(W, m);
    const double ofResponse = sd[m] * sd[m];

    double s = degreesOfFreedom(n, m) == 0.0 ? 0.0 : (W - 1.0) * residual * ofResponse / df / W;
    for (int k = 0; k < m; ++k) {
        const double term = se->X[k] * mean[k];
        s += term * term;
    }
    for (int a = 0; a < m; ++a)
        for (int b = a + 1; b < m; ++b) {
            const double deviations = sd[a] * sd[b];
            if (!(std::fabs(deviations) - negligible > 0.0))
                continue;
            if (deviations * df != 0.0)
                s -= ofResponse * 2.0 * moments.at(b, a) * residual * mean[a] * mean[b] / deviations / df;
            else
                s = 0.0;
        }
    return s;
}

void estimateIntercept(const ModelMoments& moments, int n, double W, const FitResults& results)
{
    const int m = moments.columns();
    double b0 = moments.mean->X[m];
    for (int k = 0; k < m; ++k)
        b0 -= results.beta->X[k] * moments.mean->X[k];
    results.beta->X[m] = b0;
    results.se->X[m] = sqr(interceptVariance(moments, n, W, results.se));
}

/// Column by column: the terms of each row are still added in the order of the columns.
void fillFitted(const ModelColumns& columns, int n, const FitResults& results)
{
    double* const fitted = results.fitted->X;
    const double* const beta = results.beta->X;
    for (int i = 0; i < n; ++i)
        fitted[i] = beta[columns.size()];
    for (std::size_t k = 0; k < columns.size(); ++k)
        onBlocks(
            [&](auto x) {
                for (int i = 0; i < n; ++i)
                    if (!isMissing(x.get(i, 0)))
                        fitted[i] += beta[k] * x.get(i, 0);
            },
            block(columns[k].cells(), n, 1));
}

} // namespace

ModelMoments::ModelMoments(int columns)
    : packed(fresh(static_cast<int>(packedPosition(columns + 1, 0)), 1)), mean(fresh(columns + 1, 1)),
      deviation(fresh(columns + 1, 1)), columns_(columns)
{
}

void correlateAboutOrigin(const ModelMoments& moments, const ModelColumns& variables, int n, matrix* w, double W,
                          MissingDeviation rule)
{
    const double* const sd = moments.deviation->X;
    const auto uncorrelated = [=](int a, int b) {
        if (rule == MissingDeviation::uncorrelated && (isMissing(sd[a]) || isMissing(sd[b])))
            return true;
        return !(sd[a] * sd[b] > negligible);
    };
    for (int a = 0; a <= moments.columns(); ++a)
        for (int b = 0; b <= a; ++b)
            moments.at(a, b) = uncorrelated(a, b) ? 0.0
                                                  : crossProduct(variables[countOf(a)], variables[countOf(b)], n, w) /
                                                        (W - 1.0) / (sd[a] * sd[b]);
}

FitResults prepared(matrix*& beta, matrix*& se, matrix*& fitted, int columns, int n)
{
    matrix::matCheck(beta, columns + 1, 1, 0.0);
    matrix::matCheck(se, columns + 1, 1, 0.0);
    matrix::matCheck(fitted, n, 1, 0.0);
    return {beta, se, fitted};
}

void enterColumns(const ModelMoments& moments, double tol)
{
    const int m = moments.columns();
    for (int k = 1; k <= m; ++k) {
        if (OLSCheckIfIn(moments.packed, m, k, tol) > tol)
            M_Sweep(moments.packed, m + 1, k);
        else
            moments.deviation->vbset(k, 1, 0.0);
    }
}

void estimate(const ModelMoments& moments, const ModelColumns& columns, int n, double W, Intercept intercept,
              const FitResults& results)
{
    estimateSlopes(moments, n, results);
    if (intercept == Intercept::fitted)
        estimateIntercept(moments, n, W, results);
    fillFitted(columns, n, results);
}

} // namespace vecmat
