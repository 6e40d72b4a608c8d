#include "base/detail/mathematics/mathematics.h"
#include "plain.h"
#include "table.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace vecmat::bench::plain {

namespace {

/// Crout's method on a copy of a table of full rank.
struct Factors
{
    Cells cells;
    std::vector<int> partner;
    double parity = 1.0;

    Factors(const double* a, int n) : cells(a, a + std::ptrdiff_t{n} * n)
    {
        const Table w{cells.data(), n};
        Cells scale;
        for (int i = 0; i < n; ++i) {
            double largest = 0.0;
            for (int j = 0; j < n; ++j)
                if (std::fabs(w(i, j)) > largest)
                    largest = std::fabs(w(i, j));
            scale.push_back(1.0 / largest);
        }
        int pivotRow = 0;
        for (int j = 0; j < n; ++j) {
            for (int i = 0; i < j; ++i) {
                double sum = w(i, j);
                for (int k = 0; k < i; ++k)
                    sum -= w(i, k) * w(k, j);
                w(i, j) = sum;
            }
            double largest = 0.0;
            for (int i = j; i < n; ++i) {
                double sum = w(i, j);
                for (int k = 0; k < j; ++k)
                    sum -= w(i, k) * w(k, j);
                w(i, j) = sum;
                const double candidate = scale[static_cast<std::size_t>(i)] * std::fabs(sum);
                if (candidate >= largest) {
                    largest = candidate;
                    pivotRow = i;
                }
            }
            if (pivotRow != j) {
                for (int c = 0; c < n; ++c)
                    std::swap(w(pivotRow, c), w(j, c));
                parity = -parity;
                scale[static_cast<std::size_t>(pivotRow)] = scale[static_cast<std::size_t>(j)];
            }
            partner.push_back(pivotRow);
            if (w(j, j) == 0.0)
                w(j, j) = 1e-20;
            if (j != n - 1) {
                const double reciprocal = 1.0 / w(j, j);
                for (int i = j + 1; i < n; ++i)
                    w(i, j) *= reciprocal;
            }
        }
    }
};

} // namespace

double determinant(const double* a, int n)
{
    Factors factors(a, n);
    const Table w{factors.cells.data(), n};
    double logarithm = 0.0;
    int negatives = 0;
    for (int i = 0; i < n; ++i) {
        if (w(i, i) < 0.0)
            ++negatives;
        logarithm += vecmat::log(std::fabs(w(i, i)));
    }
    const double size = factors.parity * vecmat::exp(logarithm);
    return negatives % 2 != 0 ? -size : size;
}

void inverse(const double* a, int n, double* out)
{
    Factors factors(a, n);
    const Table w{factors.cells.data(), n};
    const Table result{out, n};
    for (int c = 0; c < n; ++c) {
        Cells b(static_cast<std::size_t>(n), 0.0);
        double* const x = b.data();
        x[c] = 1.0;
        int first = -1;
        for (int r = 0; r < n; ++r) {
            const int other = factors.partner[static_cast<std::size_t>(r)];
            double sum = x[other];
            x[other] = x[r];
            if (first >= 0) {
                for (int q = first; q < r; ++q)
                    sum -= w(r, q) * x[q];
            } else if (sum != 0.0) {
                first = r;
            }
            x[r] = sum;
        }
        for (int r = n - 1; r >= 0; --r) {
            double sum = x[r];
            for (int q = r + 1; q < n; ++q)
                sum -= w(r, q) * x[q];
            x[r] = sum / w(r, r);
        }
        for (int r = 0; r < n; ++r)
            result(r, c) = x[r];
    }
}

void cholesky(const double* a, int n, double* l)
{
    const Table x{a, n};
    const Table result{l, n};
    for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i)
            result(i, j) = 0.0;
    for (int i = 0; i < n; ++i)
        for (int j = i; j < n; ++j) {
            double t = x(i, j);
            for (int k = i - 1; k >= 0; --k)
                t -= result(i, k) * result(j, k);
            result(j, i) = j == i ? std::sqrt(t) : t / result(i, i);
        }
}

} // namespace vecmat::bench::plain
