#include "plain.h"

#include "base/detail/mathematics/mathematics.h"
#include "support/constants.h"

#include <cmath>
#include <cstddef>

namespace vecmat::bench::plain {

namespace {

struct Moments
{
    double weights = 0.0;
    double mean = 0.0;
    double squares = 0.0;
    int rows = 0;

    /// W - W/m: the weights corrected by their mean.
    double variance() const
    {
        const double divisor = weights - weights / rows;
        return divisor > 0.0 ? squares / divisor : test::M;
    }
};

/// How a weight of 0 is treated.
enum class ZeroWeight { skipped, counted };

Moments columnMoments(const double* x, int n, const double* w, ZeroWeight zero)
{
    Moments m;
    for (int i = 0; i < n; ++i) {
        if (x[i] == test::M || (zero == ZeroWeight::skipped && w[i] == 0.0))
            continue;
        m.weights += w[i];
        ++m.rows;
        if (w[i] == 0.0)
            continue;
        const double d = x[i] - m.mean;
        m.squares += d * d * (w[i] - w[i] * w[i] / m.weights);
        m.mean += d * w[i] / m.weights;
    }
    return m;
}

double rootUnlessMissing(double variance)
{
    return variance == test::M ? test::M : std::sqrt(variance);
}

} // namespace

double mean(const double* x, int n)
{
    double sum = 0.0;
    int rows = 0;
    for (int i = 0; i < n; ++i)
        if (x[i] != test::M) {
            sum += x[i];
            ++rows;
        }
    return rows > 0 ? sum / rows : test::M;
}

double variance(const double* x, int n, const double* w)
{
    const Moments m = columnMoments(x, n, w, ZeroWeight::counted);
    return m.squares / (m.weights - m.weights / m.rows);
}

void columnMeans(const double* x, int n, int p, double* mean, const double* w)
{
    for (int j = 0; j < p; ++j, x += n) {
        double weights = 0.0;
        double running = 0.0;
        for (int i = 0; i < n; ++i) {
            if (x[i] == test::M)
                continue;
            weights += w[i];
            if (w[i] != 0.0)
                running += (x[i] - running) * w[i] / weights;
        }
        mean[j] = running;
    }
}

void columnDeviations(const double* x, int n, int p, double* mean, double* deviation, const double* w)
{
    for (int j = 0; j < p; ++j, x += n) {
        const Moments m = columnMoments(x, n, w, ZeroWeight::skipped);
        mean[j] = m.rows == 0 ? test::M : m.mean;
        deviation[j] = m.rows == 0 ? test::M : rootUnlessMissing(m.variance());
    }
}

void columnVariances(const double* x, int n, int p, double* mean, double* deviation, double* variance, const double* w)
{
    for (int j = 0; j < p; ++j, x += n) {
        const Moments m = columnMoments(x, n, w, ZeroWeight::counted);
        mean[j] = m.mean;
        variance[j] = m.variance();
        deviation[j] = rootUnlessMissing(variance[j]);
    }
}

void geometricMean(const double* x, int n, const double* w, double* results)
{
    Moments m;
    for (int i = 0; i < n; ++i) {
        if (x[i] == test::M)
            continue;
        m.weights += w[i];
        ++m.rows;
        if (w[i] == 0.0)
            continue;
        const double d = vecmat::log(x[i]) - m.mean;
        const double share = w[i] / m.weights;
        m.squares += (1.0 - share) * d * d * w[i];
        m.mean += d * share;
    }
    results[0] = vecmat::exp(m.mean);
    results[1] = vecmat::exp(std::sqrt(m.squares / (m.weights - m.weights / m.rows)));
}

void logarithms(double* cells, int rows, int cols)
{
    for (int i = 0; i < rows; ++i)
        for (int j = 0; j < cols; ++j)
            if (double& cell = cells[i + static_cast<std::ptrdiff_t>(rows) * j]; cell != test::M)
                cell = vecmat::log(cell);
}

void fourMoments(const double* x, int n, const double* w, double* moments)
{
    double W = 0.0, mean = 0.0, m2 = 0.0, m3 = 0.0, m4 = 0.0;
    int rows = 0;
    for (int i = 0; i < n; ++i) {
        if (x[i] == test::M)
            continue;
        W += w[i];
        ++rows;
        if (w[i] == 0.0)
            continue;
        const double f = w[i] / W;
        const double d = x[i] - mean;
        const double d4 = vecmat::pow(d, 4.0);
        const double d3 = vecmat::pow(d, 3.0);
        const double t = f * 3.0 * d * m2;
        m4 += (f + f) * d * (t - (m3 + m3)) + (((f * 6.0 + -4.0) - f * f * 3.0) * f + 1.0) * d4 * w[i];
        m3 = (m3 - t) + (f * f + f * f + (1.0 - f * 3.0)) * d3 * w[i];
        m2 += (1.0 - f) * d * d * w[i];
        mean += d * f;
    }
    const double variance = m2 / (W - W / rows);
    moments[0] = mean;
    moments[1] = variance;
    moments[2] = (m3 / W) / vecmat::pow(variance, 1.5);
    moments[3] = (m4 / W) / (variance * variance) + -3.0;
}

} // namespace vecmat::bench::plain
