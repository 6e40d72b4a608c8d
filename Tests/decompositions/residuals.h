// Test matrices and residuals in the manner of LAPACK's own tests: norms over the order, the norm of the input and the
// unit roundoff, which stay below 30 for a stable method.
#pragma once

#include "support/random_data.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace vecmat::test {

/// A square or rectangular table in extended precision, column after column, for what a result is measured with.
class Wide
{
public:
    Wide(int rows, int cols) : rows_(rows), cols_(cols), cells_(count(rows) * count(cols)) {}
    Wide(int rows, int cols, const std::vector<double>& cells) : Wide(rows, cols)
    {
        std::copy_n(cells.begin(), cells_.size(), cells_.begin());
    }

    long double& at(int i, int j) { return cells_[count(j) * count(rows_) + count(i)]; }
    long double at(int i, int j) const { return cells_[count(j) * count(rows_) + count(i)]; }
    int rows() const { return rows_; }
    int cols() const { return cols_; }

    Wide transposed() const
    {
        Wide result(cols_, rows_);
        for (int j = 0; j < cols_; ++j)
            for (int i = 0; i < rows_; ++i)
                result.at(j, i) = at(i, j);
        return result;
    }

    /// The largest sum of magnitudes of a column.
    long double norm() const
    {
        long double largest = 0;
        for (int j = 0; j < cols_; ++j) {
            long double sum = 0;
            for (int i = 0; i < rows_; ++i)
                sum += std::fabs(at(i, j));
            largest = std::max(largest, sum);
        }
        return largest;
    }

    friend Wide operator*(const Wide& a, const Wide& b)
    {
        Wide product(a.rows_, b.cols_);
        for (int j = 0; j < b.cols_; ++j)
            for (int k = 0; k < a.cols_; ++k) {
                const long double factor = b.at(k, j);
                const long double* const source = &a.cells_[count(k) * count(a.rows_)];
                long double* const target = &product.cells_[count(j) * count(a.rows_)];
                for (int i = 0; i < a.rows_; ++i)
                    target[i] += source[i] * factor;
            }
        return product;
    }
    friend Wide operator-(Wide a, const Wide& b)
    {
        for (std::size_t k = 0; k < a.cells_.size(); ++k)
            a.cells_[k] -= b.cells_[k];
        return a;
    }

    static Wide identity(int n)
    {
        Wide result(n, n);
        for (int i = 0; i < n; ++i)
            result.at(i, i) = 1;
        return result;
    }

private:
    static std::size_t count(int n) { return static_cast<std::size_t>(n); }

    int rows_;
    int cols_;
    std::vector<long double> cells_;
};

inline constexpr double unitRoundoff = 1.1102230246251565e-16;
inline constexpr double residualBound = 30.0;

/// The norm of a difference over the order, a scale and the unit roundoff.
inline double residual(const Wide& difference, long double scale)
{
    return static_cast<double>(difference.norm() / (difference.cols() * scale * unitRoundoff));
}

// ---- matrices of order n, column after column -----------------------------------------------------------------------

struct TestMatrix
{
    std::string name;
    int n;
    std::vector<double> cells;
};

template <class Cell>
std::vector<double> squareOf(int n, Cell cell)
{
    std::vector<double> cells;
    for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i)
            cells.push_back(cell(i, j));
    return cells;
}

inline TestMatrix randomMatrix(int n, RandomData& data)
{
    return {"random", n, squareOf(n, [&](int, int) { return data.uniform(-1.0, 1.0); })};
}

/// Rows and columns of sizes that fall over five decades.
inline TestMatrix gradedMatrix(int n, RandomData& data)
{
    const auto size = [n](int i) { return std::pow(10.0, -2.5 * i / std::max(n - 1, 1)); };
    return {"graded", n, squareOf(n, [&](int i, int j) {
                return (size(i) * size(j)) * (data.uniform(-1.0, 1.0) + (i == j ? 2.0 : 0.0));
            })};
}

inline TestMatrix hilbertMatrix(int n, double ridge = 0.0)
{
    return {"Hilbert", n, squareOf(n, [ridge](int i, int j) { return 1.0 / (i + j + 1) + (i == j ? ridge : 0.0); })};
}

/// W of odd order: the distance to the middle on the diagonal, 1 beside it.
inline TestMatrix wilkinsonMatrix(int n)
{
    return {"Wilkinson", n, squareOf(n, [n](int i, int j) {
                return i == j ? std::abs(i - (n - 1) / 2.0) : std::abs(i - j) == 1 ? 1.0 : 0.0;
            })};
}

/// The matrix on which partial pivoting lets the last column grow most.
inline TestMatrix growthMatrix(int n)
{
    return {"growth", n, squareOf(n, [n](int i, int j) { return i == j || j == n - 1 ? 1.0 : i > j ? -1.0 : 0.0; })};
}

/// b b' + ridge, over the order: symmetric and positive definite.
inline TestMatrix gramMatrix(const TestMatrix& b, double ridge)
{
    const Wide wide(b.n, b.n, b.cells);
    const Wide gram = wide * wide.transposed();
    return {b.name + " Gram", b.n, squareOf(b.n, [&](int i, int j) {
                const int row = std::max(i, j);
                const int col = std::min(i, j);
                return static_cast<double>(gram.at(row, col)) / b.n + (i == j ? ridge : 0.0);
            })};
}

} // namespace vecmat::test
