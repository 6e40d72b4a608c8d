// The inverse from the factors of Crout's method: forward and back substitution for each unit vector (lubksb of Press,
// Flannery, Teukolsky, Vetterling: Numerical Recipes, 1st edition).
#pragma once

#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../kernels/substitution_kernels.h"
#include "crout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

namespace vecmat {

// ---- one unit vector at a time --------------------------------------------------------------------------------------

/// Solves P' L U x = b in place of b, starting at the first non-zero element of P b.
template <class Cells>
void substitute(Cells factors, const std::vector<int>& partner, int n, double* b)
{
    int first = n;
    for (int r = 0; r < n; ++r) {
        const int other = partner[countOf(r)];
        double reduced = b[other];
        b[other] = b[r];
        if (first == n && reduced != 0.0)
            first = r;
        for (int q = first; q < r; ++q)
            reduced -= factors.get(r, q) * b[q];
        b[r] = reduced;
    }
    for (int r = n - 1; r >= 0; --r) {
        double reduced = b[r];
        for (int q = r + 1; q < n; ++q)
            reduced -= factors.get(r, q) * b[q];
        b[r] = reduced / factors.get(r, r);
    }
}

template <class Cells, class Out>
void solveOneByOne(Cells factors, const std::vector<int>& partner, int n, Out out)
{
    std::vector<double> unit(countOf(n));
    for (int c = 0; c < n; ++c) {
        std::fill(unit.begin(), unit.end(), 0.0);
        unit[countOf(c)] = 1.0;
        substitute(factors, partner, n, unit.data());
        for (int r = 0; r < n; ++r)
            out.set(r, c, unit[countOf(r)]);
    }
}

// ---- several side by side -------------------------------------------------------------------------------------------

/// The same for as many unit vectors at a time as a kernel has results, in the order of the positions of their ones in
/// P b. The terms before that one, which the plain form omits, are products with zeros here: they change nothing as
/// long as L is finite. Needs scratch memory for a table of order n and a strip of it.
class UnitSolutions
{
public:
    explicit UnitSolutions(int n)
        : n_(n), factors_(countOf(n) * std::size_t{countOf(n)}),
          solutions_(countOf(n) * std::size_t{countOf(kernels_.width)})
    {
    }

    /// Returns false, having done nothing, if allocation failed or the plain form takes another path.
    template <class Cells, class Out>
    bool run(Cells factors, const std::vector<int>& partner, Out out)
    {
        if (!factors_ || !solutions_ || !order(partner) || !copy(factors))
            return false;
        for (int first = 0; first < n_; first += kernels_.width) {
            substituteForward(first);
            substituteBack();
            for (int k = 0; k < std::min(kernels_.width, n_ - first); ++k) {
                double* const to = out.column(unit_[countOf(first + k)]);
                for (int r = 0; r < n_; ++r)
                    to[r] = row(r)[k];
            }
        }
        return true;
    }

private:
    /// Finds which unit vector has its one at row r of P b. False if an exchange reaches back to a finished row.
    bool order(const std::vector<int>& partner)
    {
        unit_.resize(countOf(n_));
        std::iota(unit_.begin(), unit_.end(), 0);
        for (int r = 0; r < n_; ++r) {
            if (partner[countOf(r)] < r)
                return false;
            std::swap(unit_[countOf(r)], unit_[countOf(partner[countOf(r)])]);
        }
        return true;
    }

    /// Row by row, since both substitutions run along rows. False if L is not finite.
    template <class Cells>
    bool copy(Cells factors) const
    {
        constexpr int columnsAtOnce = 8;
        bool finite = true;
        for (int first = 0; first < n_; first += columnsAtOnce)
            for (int i = 0; i < n_; ++i)
                for (int j = first; j < std::min(first + columnsAtOnce, n_); ++j) {
                    const double x = factors.column(j)[i];
                    factors_.data()[std::ptrdiff_t{n_} * i + j] = x;
                    finite = finite && (i <= j || std::isfinite(x));
                }
        return finite;
    }

    Sequence factorsFrom(int i, int j) const { return {factors_.data() + std::ptrdiff_t{n_} * i + j, 1}; }
    double* row(int r) const { return solutions_.data() + std::ptrdiff_t{kernels_.width} * r; }
    Sequence rowsFrom(int r) const { return {row(r), kernels_.width}; }

    void substituteForward(int first) const
    {
        std::fill(row(0), row(n_), 0.0);
        for (int k = 0; k < std::min(kernels_.width, n_ - first); ++k)
            row(first + k)[k] = 1.0;
        for (int r = first + 1; r < n_; ++r)
            kernels_.subtract(r - first, factorsFrom(r, first), rowsFrom(first), row(r));
    }

    void substituteBack() const
    {
        for (int r = n_ - 1; r >= 0; --r) {
            kernels_.subtract(n_ - 1 - r, factorsFrom(r, r + 1), rowsFrom(r + 1), row(r));
            kernels_.divide(*factorsFrom(r, r).first, row(r));
        }
    }

    const SubstitutionKernels& kernels_ = substitutionKernels();
    int n_;
    Scratch factors_;
    Scratch solutions_;
    std::vector<int> unit_;
};

/// Below this order copying costs more than it saves.
inline constexpr int leastOrderSideBySide = 6;

/// Computes the inverse from the factors and the exchanges that made them.
template <class Cells, class Out>
void solveForUnitVectors(Cells factors, const std::vector<int>& partner, int n, Out out)
{
    if constexpr (requires { factors.column(0); })
        if (n >= leastOrderSideBySide && !out.folds(n, n) && UnitSolutions(n).run(factors, partner, out))
            return;
    solveOneByOne(factors, partner, n, out);
}

} // namespace vecmat
