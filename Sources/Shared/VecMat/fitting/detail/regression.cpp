#include "regression.h"

#include "../../access/cells.h"
#include "../../base/detail/companions.h"
#include "../../base/detail/numbers.h"
#include "../../base/missing_value.h"
#include "../../decompositions/sweep.h"
#include "../../descriptive/detail/column_panels.h"
#include "../../descriptive/detail/moments_pass.h"
#include "../../kernels/tile_kernels.h"
#include "../../kernels/update_kernels.h"
#include "../tolerance_check.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace vecmat {
namespace {

/// The model's columns and the response count towards the degrees of freedom whether they entered or not.
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

/// The cross products of all variables at once; none if that does not pay or allocation fails.
std::optional<ColumnPanels> crossProducts(const ModelColumns& variables, int n, matrix* w)
{
    const int p = static_cast<int>(variables.size());
    const auto weight = block(linear(w), n);
    const auto x = PlainModelCells::of(variables, n);
    if (!x || !weight.inside || !ColumnPanels::payFor(n, p))
        return std::nullopt;
    std::optional<ColumnPanels> panels(std::in_place, n, p);
    if (!*panels)
        return std::nullopt;
    constexpr int most = ColumnPanels::mostRows;
    std::array<double, most> ones;
    ones.fill(1.0);
    for (int first = 0; first < n; first += most) {
        int count = 0;
        std::array<int, most> numbers;
        std::array<double, most> weights;
        for (int i = first; i < n && i - first < most; ++i)
            if (const double wi = w->X[i]; wi != 0.0) {
                numbers[countOf(count)] = i;
                weights[countOf(count++)] = wi;
            }
        panels->copy(x->cells(), count, numbers.data());
        panels->scale(count, ones.data());
        panels->visitTiles([&](const double* left, const double* right, double* tile) {
            tileKernels().addWeighted(count, left, right, weights.data(), tile);
        });
    }
    return panels;
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
        results.se->X[k] = df != 0.0 ? squareRoot(std::fabs(moments.at(k, k) * residual) / df) * sd[m] / sd[k] : 0.0;
    }
}

double interceptVariance(const ModelMoments& moments, int n, double W, const matrix* se)
{
    const int m = moments.columns();
    const double* const sd = moments.deviation->X;
    const double* const mean = moments.mean->X;
    const double residual = moments.at(m, m);
    // From the weights, whereas the slopes use the number of rows.
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
    results.se->X[m] = squareRoot(interceptVariance(moments, n, W, results.se));
}

/// A block of rows at a time, column by column: the terms of each row are still added in the order of the columns.
void fillFitted(const PlainModelCells& columns, int count, int n, const FitResults& results)
{
    constexpr int rowsAtOnce = 512;
    const double* const beta = results.beta->X;
    std::array<double, rowsAtOnce> sums;
    for (int first = 0; first < n; first += rowsAtOnce) {
        const int rows = std::min(rowsAtOnce, n - first);
        std::fill_n(sums.data(), rows, beta[count]);
        for (int k = 0; k < count; ++k)
            updateKernels().addPresent(rows, columns.column(k) + first, beta[k], sums.data());
        std::copy_n(sums.data(), rows, results.fitted->X + first);
    }
}

void fillFitted(const ModelColumns& columns, int n, const FitResults& results)
{
    const int count = static_cast<int>(columns.size());
    if (const auto plain = PlainModelCells::of(columns, n))
        return fillFitted(*plain, count, n, results);
    for (int i = 0; i < n; ++i) {
        double sum = results.beta->X[count];
        for (int k = 0; k < count; ++k)
            if (const double x = columns[countOf(k)].cells().get(i, 0); !isMissing(x))
                sum += results.beta->X[k] * x;
        results.fitted->X[i] = sum;
    }
}

} // namespace

ModelMoments::ModelMoments(int columns)
    : packed(fresh(static_cast<int>(packedPosition(columns + 1, 0)), 1)), mean(fresh(columns + 1, 1)),
      deviation(fresh(columns + 1, 1)), columns_(columns)
{
}

bool correlateAboutMeans(const ModelMoments& moments, const ModelColumns& variables, int n, matrix* w)
{
    const auto x = PlainModelCells::of(variables, n);
    const auto weight = block(linear(w), n);
    if (!x || !weight.inside)
        return false;
    const int p = moments.columns() + 1;
    const TableHandle variance = fresh(p, 1);
    const ColumnMoments results{linear<matrix>(moments.mean), linear<matrix>(moments.deviation),
                                linear<matrix>(variance)};
    const PackedResult correlations(moments.packed);
    constexpr short corrected = -1;
    constexpr short frequencies = -1;
    covariances(x->cells(), p, weight.checked.plain(), {n, nullptr, corrected, frequencies}, correlations, results,
                [](int) {});
    correlate(p, correlations, results, 0.0);
    takeRoots(p, results);
    return true;
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
    const std::optional<ColumnPanels> products = crossProducts(variables, n, w);
    const auto product = [&](int a, int b) {
        return products ? products->result(b, a) : crossProduct(variables[countOf(a)], variables[countOf(b)], n, w);
    };
    for (int a = 0; a <= moments.columns(); ++a)
        for (int b = 0; b <= a; ++b)
            moments.at(a, b) = uncorrelated(a, b) ? 0.0 : product(a, b) / (W - 1.0) / (sd[a] * sd[b]);
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
