#include "new_variables.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"

#include <cmath>
#include <cstddef>
#include <vector>

using vecmat::cells;
using vecmat::countOf;
using vecmat::linear;
using vecmat::negligible;

namespace {

/// The rows of the lower triangle of a table, contiguous: every sum here runs along them.
class TriangleRows
{
public:
    TriangleRows(matrix* table, int order)
    {
        cells_.reserve(startOf(countOf(order)));
        for (int j = 0; j < order; ++j)
            for (int k = 0; k <= j; ++k)
                cells_.push_back(cells(table).get(j, k));
    }

    const double* row(int j) const { return cells_.data() + startOf(countOf(j)); }

private:
    static std::size_t startOf(std::size_t j) { return j * (j + 1) / 2; }

    std::vector<double> cells_;
};

/// Variance of the combination with the coefficients q.
double varianceOf(const std::vector<double>& q, const TriangleRows& C)
{
    double sum = 0.0;
    for (std::size_t j = 0; j < q.size(); ++j) {
        const double* const c = C.row(static_cast<int>(j));
        sum += q[j] * q[j] * c[j];
        for (std::size_t k = 0; k < j; ++k)
            sum += 2.0 * q[j] * q[k] * c[k];
    }
    return sum;
}

/// Half the variance of the combination with the coefficients t. Not `varianceOf` halved: the terms are multiplied in
/// another order, and negligible coefficients start no terms of their own.
double halfVarianceOf(const std::vector<double>& t, const TriangleRows& C)
{
    double sum = 0.0;
    for (std::size_t j = 0; j < t.size(); ++j) {
        if (!(std::fabs(t[j]) > negligible))
            continue;
        const double* const c = C.row(static_cast<int>(j));
        sum += 0.5 * (t[j] * t[j]) * c[j];
        for (std::size_t k = 0; k < j; ++k)
            sum += t[k] * t[j] * c[k];
    }
    return sum;
}

} // namespace

void ComputeNewVar(matrix* Q, int nRows, int nCols, matrix* C, matrix* variances, matrix*& covariances)
{
    if (nRows < 1) {
        matrix::matCheck(covariances, nRows, nRows, 0.0);
        return;
    }
    const TriangleRows triangle(C, nCols);
    const auto coefficient = cells(Q);
    const auto variance = linear(variances);
    std::vector<double> combination(countOf(nCols));
    for (int i = 0; i < nRows; ++i) {
        for (int j = 0; j < nCols; ++j)
            combination[countOf(j)] = coefficient.get(i, j);
        variance.set(i, varianceOf(combination, triangle));
    }

    matrix::matCheck(covariances, nRows, nRows, 0.0);
    const auto covariance = cells(covariances);
    for (int i = 0; i < nRows; ++i) {
        covariance.set(i, i, variance.get(i));
        for (int m = i + 1; m < nRows; ++m) {
            for (int j = 0; j < nCols; ++j)
                combination[countOf(j)] = coefficient.get(i, j) + coefficient.get(m, j);
            const double result = halfVarianceOf(combination, triangle) - 0.5 * (variance.get(i) + variance.get(m));
            covariance.set(i, m, result);
            covariance.set(m, i, result);
        }
    }
}
