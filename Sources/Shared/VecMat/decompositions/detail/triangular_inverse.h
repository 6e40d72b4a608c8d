// The inverse of a triangular table by substitution. Its diagonal is already inverted.
#pragma once

#include "../../access/overlap.h"
#include "../../access/tiled_product.h"
#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../kernels/substitution_kernels.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vecmat {

enum class Triangle { lower, upper };

// ---- one cell at a time ---------------------------------------------------------------------------------------------

template <class Cells, class Out>
void invertCellByCell(Cells a, Out out, int n, Triangle triangle)
{
    const auto solve = [&](int i, int j, int first, int last) {
        double sum = 0.0;
        for (int k = first; k <= last; ++k)
            sum += a.get(i, k) * out.get(k, j);
        out.set(i, j, -sum * out.get(i, i));
    };
    if (triangle == Triangle::lower) {
        for (int i = 1; i < n; ++i)
            for (int j = 0; j < i; ++j)
                solve(i, j, j, i - 1);
    } else {
        for (int i = std::max(n, 1) - 2; i >= 0; --i)
            for (int j = i + 1; j < n; ++j)
                solve(i, j, i + 1, j);
    }
}

// ---- several columns side by side -----------------------------------------------------------------------------------

/// The same for as many columns at a time as a kernel has results. The sums of a row have the same terms for all of
/// them: those beyond a column's diagonal are products with zeros, which change nothing as long as `a` is finite. Needs
/// scratch memory for a strip of n rows.
template <class Cells, class Out>
class TriangularInverse
{
public:
    TriangularInverse(Cells a, Out out, int n, Triangle triangle)
        : a_(a), out_(out), n_(n), triangle_(triangle), strip_(countOf(n) * std::size_t{countOf(kernels_.width)})
    {
    }

    bool hasMemory() const { return static_cast<bool>(strip_); }

    bool isFinite() const
    {
        bool finite = true;
        for (int j = 0; j < n_; ++j)
            for (int i = firstRow(j); i < endRow(j); ++i)
                finite = finite && std::isfinite(a_.get(i, j));
        return finite;
    }

    void run()
    {
        for (int first = 0; first < n_; first += kernels_.width) {
            const int end = std::min(first + kernels_.width, n_);
            std::fill(row(0), row(n_), 0.0);
            for (int j = first; j < end; ++j)
                row(j)[j - first] = out_.get(j, j);
            if (isLower())
                for (int i = first + 1; i < n_; ++i)
                    solveRow(i, first, first, i, std::min(i, end));
            else
                for (int i = end - 2; i >= 0; --i)
                    solveRow(i, first, i + 1, end, end);
            store(first, end);
        }
    }

private:
    bool isLower() const { return triangle_ == Triangle::lower; }
    /// The rows of column j that are in the triangle.
    int firstRow(int j) const { return isLower() ? j : 0; }
    int endRow(int j) const { return isLower() ? n_ : j + 1; }
    /// Row i of the strip.
    double* row(int i) const { return strip_.data() + std::ptrdiff_t{kernels_.width} * i; }

    /// Solves row i from rows `known` to `knownEnd` - 1, in the columns of the strip up to `end` whose triangle
    /// includes it.
    void solveRow(int i, int first, int known, int knownEnd, int end) const
    {
        double sums[SubstitutionKernels::mostResults] = {};
        const std::ptrdiff_t stride = a_.column(1) - a_.column(0);
        kernels_.add(knownEnd - known, {a_.column(known) + i, stride}, {row(known), kernels_.width}, sums);
        for (int j = isLower() ? first : std::max(first, i + 1); j < end; ++j)
            row(i)[j - first] = -sums[j - first] * out_.get(i, i);
    }

    void store(int first, int end) const
    {
        for (int j = first; j < end; ++j)
            for (int i = firstRow(j); i < endRow(j); ++i)
                out_.set(i, j, row(i)[j - first]);
    }

    const SubstitutionKernels& kernels_ = substitutionKernels();
    Cells a_;
    Out out_;
    int n_;
    Triangle triangle_;
    Scratch strip_;
};

/// Below this order copying costs more than it saves.
inline constexpr int leastTriangleSideBySide = 32;

/// Returns false, having done nothing, if the order of the results is observable or allocation fails.
template <class Cells, class Out>
bool invertSideBySide(Cells a, Out out, int n, Triangle triangle)
{
    if constexpr (requires { a.column(0); }) {
        if (n < leastTriangleSideBySide || out.folds(n, n) || overlap(storageOf(out, n, n), storageOf(a, n, n)))
            return false;
        TriangularInverse<Cells, Out> inverse(a, out, n, triangle);
        if (!inverse.hasMemory() || !inverse.isFinite())
            return false;
        inverse.run();
        return true;
    }
    return false;
}

} // namespace vecmat
