// The pair pass as a plain loop, the second implementation with which the covariances and correlations are compared.
#pragma once

#include "support/bits.h"
#include "support/random_data.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace vecmat::test {

inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// n observations of p variables, column after column, with a mask and weights.
struct Observations
{
    int n, p;
    std::vector<double> cells;
    std::vector<short> mask;
    std::vector<double> w;

    std::vector<double> column(int j) const
    {
        return std::vector<double>(cells.begin() + std::ptrdiff_t{j} * n, cells.begin() + std::ptrdiff_t{j + 1} * n);
    }
    /// One table for each row.
    std::vector<std::vector<double>> rows() const
    {
        std::vector<std::vector<double>> all(static_cast<std::size_t>(n));
        for (std::size_t k = 0; k < cells.size(); ++k)
            all[k % all.size()].push_back(cells[k]);
        return all;
    }
    std::vector<std::vector<double>> columns() const
    {
        std::vector<std::vector<double>> all;
        for (int j = 0; j < p; ++j)
            all.push_back(column(j));
        return all;
    }
};

/// Unit weights and a mask that keeps every row.
inline Observations observations(const std::vector<std::vector<double>>& columns)
{
    Observations data{static_cast<int>(columns.at(0).size()), static_cast<int>(columns.size()), {}, {}, {}};
    for (const auto& column : columns)
        data.cells.insert(data.cells.end(), column.begin(), column.end());
    data.mask.assign(columns[0].size(), 0);
    data.w.assign(columns[0].size(), 1.0);
    return data;
}

/// Missing cells, masked rows, and a share of weights that are 0 or negative.
inline Observations randomObservations(RandomData& random, int n, int p)
{
    const auto rows = static_cast<std::size_t>(n);
    Observations data{n, p, random.withMissing(random.normals(rows * static_cast<std::size_t>(p)), 0.15),
                      random.mask(rows, 0.1), random.weights(rows, 0.15)};
    if (n > 3)
        data.w[rows / 2] = -0.3;
    return data;
}

struct Divisor
{
    short sample = -1;
    short freqWeights = 0;
};

/// Each combination that has a meaning, and values that are neither.
inline const std::vector<Divisor> allDivisors{{0, 0}, {0, -1}, {1, -1}, {-1, -1}, {-1, 0}, {-1, 1}};

struct PlainPair
{
    double W = 0.0, meanX = 0.0, meanY = 0.0;
    double Q = 0.0;                     // (f dx) dy
    double S = 0.0, Qx = 0.0, Qy = 0.0; // (dx dy) f and so on
    int m = 0;

    double divisor(Divisor d) const
    {
        if (d.sample != -1)
            return W;
        return d.freqWeights == -1 ? W - 1.0 : W - W / m;
    }
};

enum class Factor { signedValue, magnitude };

inline PlainPair plainPair(const std::vector<double>& x, const std::vector<double>& y, const std::vector<short>& mask,
                           const std::vector<double>& w, Factor factor = Factor::signedValue)
{
    PlainPair pair;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (mask[i] != 0 || x[i] == M || y[i] == M)
            continue;
        pair.W += w[i];
        pair.m += 1;
        if (w[i] == 0.0)
            continue;
        const double dx = x[i] - pair.meanX, dy = y[i] - pair.meanY;
        const double signedFactor = w[i] - (w[i] * w[i]) / pair.W;
        const double f = factor == Factor::magnitude ? std::fabs(signedFactor) : signedFactor;
        pair.Q += (f * dx) * dy;
        pair.Qx += (dx * dx) * f;
        pair.Qy += (dy * dy) * f;
        pair.S += (dx * dy) * f;
        pair.meanX += (w[i] * dx) / pair.W;
        pair.meanY += (w[i] * dy) / pair.W;
    }
    return pair;
}

inline PlainPair plainPair(const Observations& data, int j, int k, Factor factor = Factor::signedValue)
{
    return plainPair(data.column(j), data.column(k), data.mask, data.w, factor);
}

/// Position of (j, k), from 0, in a square table of order p.
inline std::size_t at(int j, int k, int p)
{
    return static_cast<std::size_t>(j) + static_cast<std::size_t>(k) * static_cast<std::size_t>(p);
}

/// The square table of covariances, with a fallback for pairs without rows.
inline std::vector<double> plainCovariances(const Observations& data, Divisor divisor, double fallback)
{
    std::vector<double> C(at(0, data.p, data.p));
    for (int j = 0; j < data.p; ++j)
        for (int k = j; k < data.p; ++k) {
            const PlainPair pair = plainPair(data, j, k);
            C[at(j, k, data.p)] = C[at(k, j, data.p)] = pair.m < 1 ? fallback : pair.Q / pair.divisor(divisor);
        }
    return C;
}

/// The variance of each column; missing without rows.
inline std::vector<double> plainVariances(const Observations& data, Divisor divisor)
{
    std::vector<double> variances;
    for (int j = 0; j < data.p; ++j) {
        const PlainPair pair = plainPair(data, j, j);
        variances.push_back(pair.m < 1 ? M : pair.Q / pair.divisor(divisor));
    }
    return variances;
}

inline std::vector<double> plainCorrelations(const Observations& data, Divisor divisor, double fallback)
{
    std::vector<double> C = plainCovariances(data, divisor, fallback);
    const std::vector<double> v = plainVariances(data, divisor);
    for (int j = 0; j < data.p; ++j)
        for (int k = j; k < data.p; ++k) {
            const double product = v[static_cast<std::size_t>(j)] * v[static_cast<std::size_t>(k)];
            double r = j == k ? 1.0 : C[at(j, k, data.p)] / std::sqrt(product);
            if (product == 0.0)
                r = fallback;
            C[at(j, k, data.p)] = C[at(k, j, data.p)] = r;
        }
    return C;
}

} // namespace vecmat::test
