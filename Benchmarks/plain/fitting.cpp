#include "plain.h"
#include "table.h"

#include "support/constants.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace vecmat::bench::plain {

namespace {

constexpr double negligible = 2.220446049250313e-16;

std::size_t packed(int i, int j)
{
    if (i < j)
        std::swap(i, j);
    return static_cast<std::size_t>(i) * static_cast<std::size_t>(i + 1) / 2 + static_cast<std::size_t>(j);
}

/// Means, deviations and packed correlations of m columns; the weights are frequencies.
struct Correlations
{
    Cells mean, deviation, cells;

    Correlations(const double* data, int n, int m, const double* w)
        : mean(static_cast<std::size_t>(m)), deviation(mean.size()), cells(packed(m, 0))
    {
        const Table x{data, n};
        Cells variance(mean.size());
        for (int j = 0; j < m; ++j)
            for (int k = j; k < m; ++k) {
                double W = 0.0, meanX = 0.0, meanY = 0.0, products = 0.0;
                for (int i = 0; i < n; ++i) {
                    if (x(i, j) == test::M || x(i, k) == test::M)
                        continue;
                    W += w[i];
                    if (w[i] == 0.0)
                        continue;
                    const double dx = x(i, j) - meanX;
                    const double dy = x(i, k) - meanY;
                    products += std::fabs(w[i] - w[i] * w[i] / W) * dx * dy;
                    meanX += dx * w[i] / W;
                    meanY += dy * w[i] / W;
                }
                cells[packed(j, k)] = products / (W - 1.0);
                if (j == k) {
                    mean[static_cast<std::size_t>(j)] = meanX;
                    variance[static_cast<std::size_t>(j)] = cells[packed(j, j)];
                    deviation[static_cast<std::size_t>(j)] = std::sqrt(cells[packed(j, j)]);
                }
            }
        for (int j = 0; j < m; ++j)
            for (int k = j; k < m; ++k) {
                const double both = variance[static_cast<std::size_t>(j)] * variance[static_cast<std::size_t>(k)];
                double& cell = cells[packed(j, k)];
                cell = both <= 0.0 ? 0.0 : j == k ? 1.0 : cell / std::sqrt(both);
            }
    }
};

/// Sweeps a packed table of order n on row k, from 0.
void sweep(Cells& a, int n, int k)
{
    a[packed(k, k)] = -1.0 / a[packed(k, k)];
    const double d = a[packed(k, k)];
    const double scale = std::fabs(d);
    for (int i = 0; i < n; ++i) {
        if (i == k)
            continue;
        const double c = d < 0.0 ? -a[packed(i, k)] : a[packed(i, k)];
        a[packed(i, k)] *= scale;
        for (int j = 0; j <= i; ++j) {
            if (j == k)
                continue;
            double& cell = a[packed(i, j)];
            cell = cell + a[packed(j, k)] * c;
            if (std::fabs(cell) < 1e-12)
                cell = 0.0;
        }
    }
}

} // namespace

void leastSquares(int n, int p, const double* x, const double* y, const double* w, double tol, double* beta, double* se,
                  double* fitted)
{
    Cells merged(x, x + std::ptrdiff_t{n} * p);
    merged.insert(merged.end(), y, y + n);
    double W = 0.0;
    for (int i = 0; i < n; ++i)
        if (w[i] != test::M)
            W += w[i];
    Correlations r(merged.data(), n, p + 1, w);
    Cells& a = r.cells;
    double* const sd = r.deviation.data();
    const double* const mean = r.mean.data();
    for (int k = 0; k < p; ++k) {
        if (a[packed(k, k)] > tol)
            sweep(a, p + 1, k);
        else
            sd[k] = 0.0;
    }

    const double residual = a[packed(p, p)];
    const double df = n - p - 1;
    for (int k = 0; k <= p; ++k)
        beta[k] = se[k] = 0.0;
    for (int k = 0; k < p; ++k) {
        if (!(std::fabs(sd[k]) > 1e-12))
            continue;
        beta[k] = a[packed(p, k)] * sd[p] / sd[k];
        se[k] = std::sqrt(std::fabs(a[packed(k, k)] * residual) / df) * sd[p] / sd[k];
    }
    const double D = W - p - 1.0;
    const double ofResponse = sd[p] * sd[p];
    double s = (W - 1.0) * residual * ofResponse / D / W;
    double b0 = mean[p];
    for (int k = 0; k < p; ++k) {
        b0 -= beta[k] * mean[k];
        s += (se[k] * mean[k]) * (se[k] * mean[k]);
    }
    for (int i = 0; i < p; ++i)
        for (int j = i + 1; j < p; ++j) {
            const double both = sd[i] * sd[j];
            if (std::fabs(both) - negligible > 0.0)
                s -= ofResponse * 2.0 * a[packed(j, i)] * residual * mean[i] * mean[j] / both / D;
        }
    beta[p] = b0;
    se[p] = std::sqrt(s);
    const Table z{x, n};
    for (int i = 0; i < n; ++i) {
        double value = b0;
        for (int k = 0; k < p; ++k)
            if (z(i, k) != test::M)
                value += beta[k] * z(i, k);
        fitted[i] = value;
    }
}

void nipals(int n, int p, double* x, const double* w, double tol, int components)
{
    const auto rows = static_cast<std::size_t>(n);
    const auto cols = static_cast<std::size_t>(p);
    const auto factors = static_cast<std::size_t>(components);
    const Table X{x, n};
    Cells residual(rows * cols, test::M), scores(rows * factors), loadings(cols * factors), mean(cols), old(cols);
    const Table Z{residual.data(), n};
    const Table T{scores.data(), n};
    const Table P{loadings.data(), p};
    for (int j = 0; j < p; ++j) {
        double W = 0.0, m = 0.0;
        for (int i = 0; i < n; ++i)
            if (X(i, j) != test::M) {
                W += w[i];
                m += w[i] * X(i, j);
            }
        m = m / W;
        mean[static_cast<std::size_t>(j)] = m;
        for (int i = 0; i < n; ++i)
            if (X(i, j) != test::M)
                Z(i, j) = w[i] * X(i, j) - m;
    }
    for (int h = 0; h < components; ++h) {
        for (int i = 0; i < n; ++i)
            T(i, h) = Z(i, 0);
        for (bool first = true, last = false; !last; first = false) {
            double norm = 0.0;
            for (int j = 0; j < p; ++j) {
                double sum = 0.0, s = 0.0;
                for (int i = 0; i < n; ++i)
                    if (Z(i, j) != test::M && T(i, h) != test::M) {
                        s += T(i, h) * T(i, h);
                        sum += Z(i, j) * T(i, h);
                    }
                P(j, h) = sum / s;
                norm += P(j, h) * P(j, h);
            }
            for (int j = 0; j < p; ++j)
                P(j, h) = P(j, h) / std::sqrt(norm);
            for (int i = 0; i < n; ++i) {
                double q = 0.0;
                T(i, h) = test::M;
                for (int j = 0; j < p; ++j)
                    if (Z(i, j) != test::M) {
                        q += P(j, h) * P(j, h);
                        const double term = Z(i, j) * P(j, h);
                        T(i, h) = T(i, h) == test::M ? term : T(i, h) + term;
                    }
                if (T(i, h) != test::M)
                    T(i, h) = T(i, h) / q;
            }
            double sum = 0.0, squares = 0.0;
            for (int j = 0; j < p; ++j) {
                const double d = old[static_cast<std::size_t>(j)] - P(j, h);
                sum += d;
                squares += d * d;
                old[static_cast<std::size_t>(j)] = P(j, h);
            }
            if (!first)
                last = !((squares - sum * sum / p) / (p - 1) > tol);
        }
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < p; ++j)
                if (T(i, h) != test::M && Z(i, j) != test::M)
                    Z(i, j) = Z(i, j) - T(i, h) * P(j, h);
    }
    for (int j = 0; j < p; ++j)
        for (int i = 0; i < n; ++i) {
            if (X(i, j) != test::M)
                continue;
            double value = 0.0;
            for (int h = 0; h < components; ++h)
                if (T(i, h) != test::M)
                    value += T(i, h) * P(j, h);
            X(i, j) = (value + mean[static_cast<std::size_t>(j)]) / w[i];
        }
}

} // namespace vecmat::bench::plain
