// Householder reduction and QL iteration step by step in the published order, with indices from 1, on
// plain vectors; and the variations of the published method from which it departs.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <vector>

namespace vecmat::test {

/// What may be done otherwise.
struct EigenVariant
{
    int passLimit = 28;
    bool relativeTest = false; // an off-diagonal element is negligible beside its neighbours on the diagonal
    bool hypotenuse = false;   // the second edition: a hypotenuse routine, and a test for a vanishing radius
};

struct ReferenceEigen
{
    int status = 0;
    std::vector<double> values;
    std::vector<double> vectors; // column after column
    std::vector<int> passes;     // for each place, as far as it came
    int vanishedRadii = 0;
};

namespace detail {

struct SquareFromOne
{
    int n;
    std::vector<double>& cells;
    double& operator()(int row, int col)
    {
        return cells[static_cast<std::size_t>(row - 1) +
                     static_cast<std::size_t>(col - 1) * static_cast<std::size_t>(n)];
    }
};

struct VectorFromOne
{
    std::vector<double>& cells;
    double& operator()(int i) { return cells[static_cast<std::size_t>(i - 1)]; }
};

inline double withSign(double size, double sign)
{
    return sign >= 0.0 ? std::fabs(size) : -std::fabs(size);
}

inline void reduceBySteps(SquareFromOne a, VectorFromOne d, VectorFromOne e, int n)
{
    for (int i = n; i >= 2; --i) {
        const int l = i - 1;
        double h = 0.0;
        double scale = 0.0;
        if (l > 1)
            for (int k = 1; k <= l; ++k)
                scale += std::fabs(a(i, k));
        if (l == 1 || scale == 0.0) {
            e(i) = a(i, l);
        } else {
            for (int k = 1; k <= l; ++k)
                a(i, k) /= scale;
            for (int k = 1; k <= l; ++k)
                h += a(i, k) * a(i, k);
            double f = a(i, l);
            double g = f > 0.0 ? -std::sqrt(h) : std::sqrt(h);
            e(i) = scale * g;
            h = h - f * g;
            a(i, l) = f - g;
            f = 0.0;
            for (int j = 1; j <= l; ++j) {
                a(j, i) = a(i, j) / h;
                g = 0.0;
                for (int k = 1; k <= j; ++k)
                    g += a(j, k) * a(i, k);
                for (int k = j + 1; k <= l; ++k)
                    g += a(k, j) * a(i, k);
                e(j) = g / h;
                f += e(j) * a(i, j);
            }
            const double hh = f / (h + h);
            for (int j = 1; j <= l; ++j) {
                f = a(i, j);
                g = e(j) - hh * f;
                e(j) = g;
                for (int k = 1; k <= j; ++k)
                    a(j, k) -= f * e(k) + g * a(i, k);
            }
        }
        d(i) = h;
    }
    d(1) = 0.0;
    e(1) = 0.0;
}

inline void accumulateBySteps(SquareFromOne a, VectorFromOne d, int n)
{
    for (int i = 1; i <= n; ++i) {
        const int l = i - 1;
        if (d(i) != 0.0)
            for (int j = 1; j <= l; ++j) {
                double g = 0.0;
                for (int k = 1; k <= l; ++k)
                    g += a(i, k) * a(k, j);
                for (int k = 1; k <= l; ++k)
                    a(k, j) -= g * a(k, i);
            }
        d(i) = a(i, i);
        a(i, i) = 1.0;
        for (int j = 1; j <= l; ++j)
            a(j, i) = a(i, j) = 0.0;
    }
}

} // namespace detail

/// The eigenvalues in the order in which they come, from the full square `cells`.
inline ReferenceEigen eigenBySteps(const std::vector<double>& cells, int n, EigenVariant variant = {})
{
    using std::fabs;
    using std::sqrt;
    ReferenceEigen result;
    result.vectors = cells;
    result.values.assign(static_cast<std::size_t>(n), 0.0);
    std::vector<double> offDiagonal(static_cast<std::size_t>(n));
    detail::SquareFromOne a{n, result.vectors};
    detail::VectorFromOne d{result.values};
    detail::VectorFromOne e{offDiagonal};
    if (n < 1)
        return result;

    detail::reduceBySteps(a, d, e, n);
    detail::accumulateBySteps(a, d, n);
    for (int i = 2; i <= n; ++i)
        e(i - 1) = e(i);
    e(n) = 0.0;

    const auto isNegligible = [&](int m) {
        if (!variant.relativeTest)
            return fabs(e(m)) < 2.220446049250313e-16;
        const double beside = fabs(d(m)) + fabs(d(m + 1));
        return fabs(e(m)) + beside == beside;
    };
    for (int l = 1; l <= n; ++l) {
        result.passes.push_back(0);
        for (;;) {
            int m = n;
            for (int k = l; k <= n - 1; ++k)
                if (isNegligible(k)) {
                    m = k;
                    break;
                }
            if (m == l)
                break;
            if (result.passes.back() == variant.passLimit) {
                result.status = -1;
                return result;
            }
            ++result.passes.back();
            double g = (d(l + 1) - d(l)) / (e(l) + e(l));
            double r = variant.hypotenuse ? std::hypot(g, 1.0) : sqrt(g * g + 1.0);
            g = (d(m) - d(l)) + e(l) / (g + detail::withSign(r, g));
            double s = 1.0;
            double c = 1.0;
            double p = 0.0;
            bool vanished = false;
            for (int i = m - 1; i >= l; --i) {
                double f = s * e(i);
                const double b = c * e(i);
                if (f == 0.0 && g == 0.0)
                    ++result.vanishedRadii;
                if (variant.hypotenuse) {
                    r = std::hypot(f, g);
                    e(i + 1) = r;
                    if (r == 0.0) {
                        d(i + 1) -= p;
                        e(m) = 0.0;
                        vanished = true;
                        break;
                    }
                    s = f / r;
                    c = g / r;
                } else if (fabs(g) <= fabs(f)) {
                    c = g / f;
                    r = sqrt(c * c + 1.0);
                    e(i + 1) = f * r;
                    s = 1.0 / r;
                    c = c * s;
                } else {
                    s = f / g;
                    r = sqrt(s * s + 1.0);
                    e(i + 1) = g * r;
                    c = 1.0 / r;
                    s = s * c;
                }
                g = d(i + 1) - p;
                r = (d(i) - g) * s + (c + c) * b;
                p = s * r;
                d(i + 1) = g + p;
                g = r * c - b;
                for (int k = 1; k <= n; ++k) {
                    f = a(k, i + 1);
                    a(k, i + 1) = s * a(k, i) + c * f;
                    a(k, i) = c * a(k, i) - s * f;
                }
            }
            if (vanished)
                continue;
            d(l) = d(l) - p;
            e(l) = g;
            e(m) = 0.0;
        }
    }
    return result;
}

/// The same with the values descending, equal ones in the order found, and the vectors with them.
inline ReferenceEigen sortedBySteps(const std::vector<double>& cells, int n)
{
    const ReferenceEigen found = eigenBySteps(cells, n);
    if (found.status != 0)
        return found;
    std::vector<std::size_t> order(static_cast<std::size_t>(n));
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t i, std::size_t j) { return found.values[j] < found.values[i]; });
    ReferenceEigen sorted = found;
    for (std::size_t j = 0; j < order.size(); ++j) {
        sorted.values[j] = found.values[order[j]];
        std::copy_n(found.vectors.begin() + static_cast<std::ptrdiff_t>(order[j]) * n, n,
                    sorted.vectors.begin() + static_cast<std::ptrdiff_t>(j) * n);
    }
    return sorted;
}

} // namespace vecmat::test
