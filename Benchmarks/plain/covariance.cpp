#include "plain.h"
#include "table.h"

#include "support/constants.h"

#include <cmath>
#include <cstddef>

namespace vecmat::bench::plain {

namespace {

/// The covariance of one pair, divided by the weights corrected by their mean.
double pairCovariance(const double* x, const double* y, int n, const double* w)
{
    double W = 0.0, meanX = 0.0, meanY = 0.0, products = 0.0;
    int rows = 0;
    for (int i = 0; i < n; ++i) {
        if (x[i] == test::M || y[i] == test::M)
            continue;
        W += w[i];
        ++rows;
        if (w[i] == 0.0)
            continue;
        const double dx = x[i] - meanX;
        const double dy = y[i] - meanY;
        products += (w[i] - w[i] * w[i] / W) * dx * dy;
        meanX += dx * w[i] / W;
        meanY += dy * w[i] / W;
    }
    return rows < 1 ? test::M : products / (W - W / rows);
}

} // namespace

void covariance(const double* x, int n, int p, double* c, const double* w)
{
    const Table data{x, n};
    const Table result{c, p};
    for (int j = 0; j < p; ++j)
        for (int k = j; k < p; ++k)
            result(j, k) = result(k, j) = pairCovariance(&data(0, j), &data(0, k), n, w);
}

void correlation(const double* x, int n, int p, double* c, const double* w)
{
    covariance(x, n, p, c, w);
    const Table result{c, p};
    Cells variances;
    for (int j = 0; j < p; ++j)
        variances.push_back(result(j, j));
    for (int j = 0; j < p; ++j)
        for (int k = j; k < p; ++k) {
            const double both = variances[static_cast<std::size_t>(j)] * variances[static_cast<std::size_t>(k)];
            const double r = j == k ? 1.0 : result(j, k) / std::sqrt(both);
            result(j, k) = result(k, j) = both == 0.0 ? test::M : r;
        }
}

} // namespace vecmat::bench::plain
