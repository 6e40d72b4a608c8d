// The nearest correlation matrix step by step in the prescribed order, on plain vectors: nothing of the
// library enters. The weights are the identity, whose root and whose inverse are the identity too.
#pragma once

#include "decompositions/eigen_reference.h"
#include "support/constants.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace vecmat::test {

struct ReferenceNearest
{
    std::vector<double> cells;
    int status = 0;
    int passes = 0;
    double ratio = 0.0; // of the last pass
};

/// `cells` is the full square, column after column. What may be done otherwise: the limit, and Dykstra's correction
/// left out.
class NearestBySteps
{
public:
    using Square = std::vector<double>;

    NearestBySteps(std::vector<double> cells, int n)
        : n_(static_cast<std::size_t>(n)), a_(std::move(cells)), identity_(n_ * n_, 0.0)
    {
        for (std::size_t i = 0; i < n_; ++i)
            identity_[at(i, i)] = 1.0;
    }

    int passLimit = 100000;
    bool corrected = true;

    ReferenceNearest run()
    {
        ReferenceNearest result;
        if (std::count(a_.begin(), a_.end(), M) > 0) {
            result.cells = a_;
            result.status = -1;
            return result;
        }
        Square correction(n_ * n_, 0.0);
        while (result.passes < passLimit) {
            ++result.passes;
            const Square r = difference(a_, correction);
            const Square x = onCone(r);
            if (corrected)
                correction = difference(x, r);
            a_ = x;
            for (std::size_t i = 0; i < n_; ++i)
                a_[at(i, i)] = 1.0;
            result.ratio = rowSumNorm(difference(a_, x)) / rowSumNorm(a_);
            if (result.ratio <= 1e-06 || result.ratio != result.ratio)
                break;
        }
        result.cells = a_;
        return result;
    }

    /// The projection on the semi-definite tables.
    Square onCone(const Square& a) const
    {
        const Square scaled = product(product(identity_, a), identity_);
        std::vector<double> values(n_, 0.0);
        Square vectors(n_ * n_, 0.0);
        // With a missing cell there are no eigenvalues, and nobody looks.
        if (std::count(scaled.begin(), scaled.end(), M) == 0) {
            const ReferenceEigen found = sortedBySteps(scaled, static_cast<int>(n_));
            values = found.values;
            vectors = found.vectors;
        }
        for (double& value : values)
            if (value < 0.0)
                value = 0.0;
        Square composed(n_ * n_, 0.0);
        for (std::size_t i = 0; i < n_; ++i)
            for (std::size_t j = 0; j <= i; ++j) {
                double sum = 0.0;
                for (std::size_t k = 0; k < n_; ++k)
                    sum += vectors[at(i, k)] * values[k] * vectors[at(j, k)];
                composed[at(i, j)] = composed[at(j, i)] = sum;
            }
        return product(product(identity_, composed), identity_);
    }

private:
    std::size_t at(std::size_t i, std::size_t j) const { return i + n_ * j; }

    static Square difference(const Square& a, const Square& b)
    {
        Square result(a.size());
        for (std::size_t k = 0; k < a.size(); ++k)
            result[k] = a[k] == M || b[k] == M ? M : a[k] * 1.0 + b[k] * -1.0;
        return result;
    }

    double rowSumNorm(const Square& a) const
    {
        double largest = 0.0;
        for (std::size_t i = 0; i < n_; ++i) {
            double sum = 0.0;
            for (std::size_t j = 0; j < n_; ++j)
                if (a[at(i, j)] > M)
                    sum += std::fabs(a[at(i, j)]);
            if (sum > largest)
                largest = sum;
        }
        return largest;
    }

    /// Every other cell of row and column i is 0.0.
    bool isDiagonal(const Square& a, std::size_t i) const
    {
        for (std::size_t k = 0; k < n_; ++k)
            if (k != i && (a[at(i, k)] != 0.0 || a[at(k, i)] != 0.0))
                return false;
        return true;
    }

    /// The product that skips terms known from the structure of its operands.
    Square product(const Square& p, const Square& q) const
    {
        Square result(n_ * n_, 0.0);
        for (std::size_t i = 0; i < n_; ++i)
            for (std::size_t j = 0; j < n_; ++j) {
                bool rowZero = true;
                bool columnZero = true;
                for (std::size_t k = 0; k < n_; ++k) {
                    rowZero = rowZero && p[at(i, k)] == 0.0;
                    columnZero = columnZero && q[at(k, j)] == 0.0;
                }
                if (rowZero || columnZero)
                    continue;
                double& cell = result[at(i, j)];
                if (isDiagonal(p, i))
                    cell = p[at(i, i)] * q[at(i, j)];
                else if (isDiagonal(q, j))
                    cell = p[at(i, j)] * q[at(j, j)];
                else
                    for (std::size_t k = 0; k < n_; ++k)
                        cell += p[at(i, k)] * q[at(k, j)];
            }
        return result;
    }

    std::size_t n_;
    Square a_;
    Square identity_;
};

} // namespace vecmat::test
