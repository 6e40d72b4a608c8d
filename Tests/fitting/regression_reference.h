// The steps of the least squares fit, written out plainly. All indices are 1-based.
#pragma once

#include "decompositions/sweep.h"
#include "descriptive/covariance_with_moments.h"
#include "descriptive/cross_correlation.h"
#include "descriptive/moments.h"
#include "support/bits.h"
#include "support/tables.h"

#include <cmath>
#include <vector>

namespace vecmat::test {

struct Problem
{
    int n = 0;
    int p = 0;
    std::vector<double> X;
    std::vector<double> y;
    std::vector<double> w;
    int degree = 1;
    short interactions = 0;
    short noIntercept = 0;
    double tol = 1e-8;

    /// A problem with unit weights.
    static Problem of(std::vector<std::vector<double>> columns, std::vector<double> response)
    {
        Problem problem;
        problem.n = static_cast<int>(response.size());
        problem.p = static_cast<int>(columns.size());
        for (const auto& cells : columns)
            problem.X.insert(problem.X.end(), cells.begin(), cells.end());
        problem.w.assign(response.size(), 1.0);
        problem.y = std::move(response);
        return problem;
    }
};

struct Solution
{
    std::vector<double> beta, se, fitted;
    std::vector<double> swept, mean, sd; ///< swept is square, of order m + 1
};

/// A square table, or a long one, from 1.
class Grid
{
public:
    Grid(int rows, int cols) : rows_(rows), cells_(static_cast<std::size_t>(rows * cols), 0.0) {}
    Grid(int rows, int cols, const std::vector<double>& cells) : Grid(rows, cols) { cells_ = cells; }
    double& operator()(int i, int j = 1) { return cells_.at(static_cast<std::size_t>(i - 1 + (j - 1) * rows_)); }
    const std::vector<double>& cells() const { return cells_; }

private:
    int rows_;
    std::vector<double> cells_;
};

inline int packedPlace(int i, int j)
{
    return i >= j ? i * (i - 1) / 2 + j : packedPlace(j, i);
}

/// The columns of the model, in the order of the fit.
inline std::vector<std::vector<double>> modelColumns(const Problem& problem)
{
    const auto x = [&](int i, int j) { return problem.X.at(static_cast<std::size_t>(i - 1 + (j - 1) * problem.n)); };
    std::vector<std::vector<double>> z;
    for (int e = 1; e <= problem.degree; ++e)
        for (int j = 1; j <= problem.p; ++j) {
            z.emplace_back();
            for (int i = 1; i <= problem.n; ++i) {
                double power = x(i, j);
                for (int factor = 2; factor <= e; ++factor)
                    power = power * x(i, j);
                z.back().push_back(power);
            }
        }
    if (problem.degree != 1 && problem.interactions == -1)
        for (int a = 1; a <= problem.p - 1; ++a)
            for (int b = a + 1; b <= problem.p; ++b) {
                z.emplace_back();
                for (int i = 1; i <= problem.n; ++i)
                    z.back().push_back(x(i, b) * x(i, a));
            }
    return z;
}

/// The sum of the weights that are not missing.
inline double sumOfWeights(const Problem& problem)
{
    double W = 0.0;
    for (const double w : problem.w)
        if (w != M)
            W += w;
    return W;
}

/// The raw correlations of all columns; `testMissing` is what the fit from one table does and the one from five does
/// not.
inline void rawCorrelations(const Problem& problem, const std::vector<std::vector<double>>& columns, bool testMissing,
                            matrix* sd, matrix* a)
{
    const double W = sumOfWeights(problem);
    for (int i = 1; i <= static_cast<int>(columns.size()); ++i)
        for (int j = 1; j <= i; ++j) {
            double s = 0.0;
            for (std::size_t row = 0; row < problem.w.size(); ++row)
                if (problem.w[row] != 0.0)
                    s += columns[static_cast<std::size_t>(i - 1)][row] * columns[static_cast<std::size_t>(j - 1)][row] *
                         problem.w[row];
            const double si = sd->vbget(i, 1), sj = sd->vbget(j, 1);
            double cell = (s / (W - 1)) / (si * sj);
            if (!(si * sj > 2.220446049250313e-16))
                cell = 0.0;
            if (testMissing && (si == M || sj == M))
                cell = 0.0;
            a->vbset(packedPlace(i, j), 1, cell);
        }
}

/// What follows the correlations: entry, slopes, intercept, fitted values.
inline Solution finished(const Problem& problem, const std::vector<std::vector<double>>& z, matrix* a, matrix* mean,
                         matrix* sd)
{
    const int m = static_cast<int>(z.size()), n = problem.n;
    const double W = sumOfWeights(problem);
    for (int k = 1; k <= m; ++k) {
        const double t = a->vbget(packedPlace(k, k), 1);
        if (t > problem.tol)
            M_Sweep(a, m + 1, k);
        else
            sd->vbset(k, 1, 0.0);
    }
    const auto at = [&](int i, int j) { return a->vbget(packedPlace(i, j), 1); };
    Grid swept(m + 1, m + 1), beta(m + 1, 1), se(m + 1, 1), fitted(n, 1);
    for (int i = 1; i <= m + 1; ++i)
        for (int j = 1; j <= m + 1; ++j)
            swept(i, j) = at(i, j);

    const double A = at(m + 1, m + 1), sy = sd->vbget(m + 1, 1);
    const int df = n - m - 1;
    for (int k = 1; k <= m; ++k) {
        const double s = sd->vbget(k, 1);
        if (std::fabs(s) > 1e-12) {
            beta(k) = (at(m + 1, k) * sy) / s;
            if (df != 0)
                se(k) = (std::sqrt(std::fabs(at(k, k) * A) / df) * sy) / s;
        }
    }

    if (problem.noIntercept == 0) {
        const double D = (W - m) - 1;
        double s = 0.0;
        if (n - m != 1)
            s = ((((W - 1) * A) * (sy * sy)) / D) / W;
        double b0 = mean->vbget(m + 1, 1);
        for (int k = 1; k <= m; ++k) {
            b0 = b0 - beta(k) * mean->vbget(k, 1);
            s = s + (se(k) * mean->vbget(k, 1)) * (se(k) * mean->vbget(k, 1));
        }
        beta(m + 1) = b0;
        for (int i = 1; i <= m - 1; ++i)
            for (int j = i + 1; j <= m; ++j) {
                const double product = sd->vbget(i, 1) * sd->vbget(j, 1);
                if (std::fabs(product) - 2.220446049250313e-16 > 0) {
                    double term = sy * sy;
                    term = term * 2;
                    term = term * at(j, i);
                    term = term * A;
                    term = term * mean->vbget(i, 1);
                    term = term * mean->vbget(j, 1);
                    term = term / product;
                    term = term / D;
                    s = product * D == 0.0 ? 0.0 : s - term;
                }
            }
        se(m + 1) = std::sqrt(s);
    }

    for (int i = 1; i <= n; ++i) {
        double value = beta(m + 1);
        for (int k = 1; k <= m; ++k) {
            const double cell = z[static_cast<std::size_t>(k - 1)][static_cast<std::size_t>(i - 1)];
            if (cell != M)
                value = value + beta(k) * cell;
        }
        fitted(i) = value;
    }
    Solution solution{beta.cells(), se.cells(), fitted.cells(), swept.cells(), {}, {}};
    for (int k = 1; k <= m + 1; ++k) {
        solution.mean.push_back(mean->vbget(k, 1));
        solution.sd.push_back(sd->vbget(k, 1));
    }
    return solution;
}

inline Owned<matrix> joined(const std::vector<std::vector<double>>& columns, int n)
{
    std::vector<double> cells;
    for (const auto& one : columns)
        cells.insert(cells.end(), one.begin(), one.end());
    return table(n, static_cast<int>(columns.size()), cells);
}

/// The fit from one table.
inline Solution reference(const Problem& problem)
{
    const std::vector<std::vector<double>> z = modelColumns(problem);
    std::vector<std::vector<double>> merged = z;
    merged.push_back(problem.y);
    const int m = static_cast<int>(z.size());
    Owned<matrix> data = joined(merged, problem.n), w = column(problem.w);
    Owned<matrix> a, mean, sd = filled(m + 1, 1, 0.0), var;
    std::vector<short> mask(problem.y.size(), 0);
    if (problem.noIntercept == 0) {
        M_CovCorrVAndMeanStDevVar(data, problem.n, m + 1, a, mean, sd, var, -1, mask.data(), w, -1, -1, -1, -1, -1);
    } else {
        M_MeanStDevVar(data, problem.n, m + 1, mean, sd, var, mask.data(), w, -1, -1);
        a.reference() = new matrix(packedPlace(m + 1, m + 1), 1, 0.0);
        rawCorrelations(problem, merged, true, sd, a);
    }
    return finished(problem, z, a, mean, sd);
}

/// The fit from five tables, whose widths add up to p.
inline Solution blockReference(const Problem& problem, const std::vector<int>& widths)
{
    const std::vector<std::vector<double>> z = modelColumns(problem);
    std::vector<std::vector<double>> merged = z;
    merged.push_back(problem.y);
    const int m = static_cast<int>(z.size()), n = problem.n;
    std::vector<int> blockOf; // of each variable
    for (std::size_t b = 0; b < widths.size(); ++b)
        blockOf.insert(blockOf.end(), static_cast<std::size_t>(widths[b]), static_cast<int>(b));
    blockOf.push_back(blockOf.back()); // the response
    Owned<matrix> a = filled(packedPlace(m + 1, m + 1), 1, 0.0), mean = filled(m + 1, 1, 0.0),
                  sd = filled(m + 1, 1, 0.0), w = column(problem.w);
    std::vector<short> mask(problem.y.size(), 0);

    const auto columnsIn = [&](int block) {
        std::vector<int> numbers;
        for (int k = 1; k <= m + 1; ++k)
            if (blockOf[static_cast<std::size_t>(k - 1)] == block)
                numbers.push_back(k);
        return numbers;
    };
    const auto tableIn = [&](int block) {
        std::vector<std::vector<double>> columns;
        for (const int k : columnsIn(block))
            columns.push_back(merged[static_cast<std::size_t>(k - 1)]);
        return joined(columns, n);
    };
    for (int block = 0; block < static_cast<int>(widths.size()); ++block) {
        const std::vector<int> numbers = columnsIn(block);
        const int q = static_cast<int>(numbers.size());
        if (q == 0)
            continue;
        Owned<matrix> data = tableIn(block), within, itsMean, itsSd = filled(q, 1, 0.0), itsVar;
        if (problem.noIntercept == 0)
            M_CovCorrVAndMeanStDevVar(data, n, q, within, itsMean, itsSd, itsVar, -1, mask.data(), w, -1, -1, 0, 0, -1);
        else
            M_MeanStDevVar(data, n, q, itsMean, itsSd, itsVar, mask.data(), w, -1, -1);
        for (int j = 1; j <= q; ++j) {
            const int number = numbers[static_cast<std::size_t>(j - 1)];
            mean->vbset(number, 1, itsMean->vbget(j, 1));
            sd->vbset(number, 1, itsSd->vbget(j, 1));
            for (int k = 1; k <= j && problem.noIntercept == 0; ++k)
                a->vbset(packedPlace(number, numbers[static_cast<std::size_t>(k - 1)]), 1,
                         within->vbget(packedPlace(j, k), 1));
        }
        for (int other = 0; other < block && problem.noIntercept == 0; ++other) {
            const std::vector<int> others = columnsIn(other);
            Owned<matrix> left = tableIn(other), across;
            if (others.empty())
                continue;
            M_CorrMatMat(left, n, static_cast<int>(others.size()), data, q, across, mask.data(), w, -1, 0, -1, -1, 0);
            for (std::size_t j = 0; j < others.size(); ++j)
                for (std::size_t k = 0; k < numbers.size(); ++k)
                    a->vbset(packedPlace(others[j], numbers[k]), 1,
                             across->vbget(static_cast<int>(j) + 1, static_cast<int>(k) + 1));
        }
    }
    if (problem.noIntercept != 0)
        rawCorrelations(problem, merged, false, sd, a);
    return finished(problem, z, a, mean, sd);
}

} // namespace vecmat::test
