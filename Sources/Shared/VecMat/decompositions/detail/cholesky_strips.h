// Cholesky factors by strips of rows, many cells side by side. Each cell is the same running difference in the same
// order as in the row form, which is still used for small tables and wherever the order of the cells is observable.
#pragma once

#include "../../access/overlap.h"
#include "../../access/tiled_product.h"
#include "../../base/detail/companions.h"
#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../base/missing_value.h"
#include "../../kernels/substitution_kernels.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace vecmat {

/// When a pivot fails.
enum class PivotTest { belowTolerance, belowZero };

template <PivotTest test>
bool failsAsPivot(double x)
{
    if constexpr (test == PivotTest::belowTolerance)
        return x < zeroTolerance;
    else
        return x < 0.0;
}

/// L of order n, computed as many rows at a time as a kernel has results, each strip from its first column to the
/// diagonal. Needs scratch memory for a triangle of order n and a strip of it.
template <PivotTest test, class Cells, class Factor>
class StripCholesky
{
public:
    StripCholesky(Cells a, Factor l, int n)
        : a_(a), l_(l), n_(n), columns_(n), rows_(rowStart(n)),
          strip_(countOf(n) * std::size_t{countOf(kernels_.width)})
    {
    }

    bool hasMemory() const { return rows_ && strip_; }

    /// Returns 0, or -1 with only the columns before the failed pivot written to l.
    int run()
    {
        for (int first = 0; first < n_; first += kernels_.width) {
            for (int i = 0; i < std::min(first, columns_); ++i) {
                reduce(i, first);
                kernels_.divide(row(i)[i], strip(i));
            }
            factorTriangle(first);
            store(first);
        }
        return columns_ == n_ ? 0 : -1;
    }

private:
    /// The rows of L one behind the other, each up to its diagonal: half of a table, and with it of the pages to map.
    static std::size_t rowStart(int i) { return std::size_t{countOf(i)} * (std::size_t{countOf(i)} + 1) / 2; }
    double* row(int i) const { return rows_.data() + rowStart(i); }
    /// The cells of column k in the strip. The last column comes first, as the kernel reads them.
    double* strip(int k) const { return strip_.data() + std::ptrdiff_t{kernels_.width} * (n_ - 1 - k); }
    int endOf(int first) const { return std::min(first + kernels_.width, n_); }

    /// Subtracts the columns before i from column i in the strip, from the last one back to the first.
    void reduce(int i, int first) const
    {
        double* const cells = strip(i);
        std::fill_n(cells, kernels_.width, 0.0);
        for (int j = std::max(first, i); j < endOf(first); ++j)
            cells[j - first] = a_.get(i, j);
        if (i > 0)
            kernels_.subtract(i, {row(i) + i - 1, -1}, {strip(i - 1), kernels_.width}, cells);
    }

    /// The columns whose diagonal is in the strip. The values above the diagonal are never read.
    void factorTriangle(int first)
    {
        for (int i = first; i < std::min(endOf(first), columns_); ++i) {
            for (int k = 0; k < i; ++k)
                row(i)[k] = strip(k)[i - first];
            reduce(i, first);
            double& diagonal = strip(i)[i - first];
            const bool fails = failsAsPivot<test>(diagonal);
            const double pivot = fails ? 0.0 : squareRoot(diagonal);
            // In the last row a pivot of 0 divides nothing.
            if (fails || (pivot == 0.0 && i + 1 < n_)) {
                columns_ = i;
                return;
            }
            row(i)[i] = pivot;
            kernels_.divide(pivot, strip(i));
            diagonal = pivot;
        }
    }

    void store(int first) const
    {
        for (int k = 0; k < std::min(endOf(first), columns_); ++k)
            for (int j = std::max(first, k); j < endOf(first); ++j)
                l_.set(j, k, strip(k)[j - first]);
    }

    const SubstitutionKernels& kernels_ = substitutionKernels();
    Cells a_;
    Factor l_;
    int n_;
    int columns_; ///< number of columns of L completed
    Scratch rows_;
    Scratch strip_;
};

/// Below this order copying costs more than it saves.
inline constexpr int leastStripOrder = 40;

/// None, with nothing done, if the factor overlaps the table, or if allocation fails.
template <PivotTest test, class Cells, class Factor>
std::optional<int> factorByStrips(Cells a, Factor l, int n)
{
    if (l.folds(n, n) || overlap(storageOf(l, n, n), storageOf(a, n, n)))
        return std::nullopt;
    StripCholesky<test, Cells, Factor> strips(a, l, n);
    if (!strips.hasMemory())
        return std::nullopt;
    return strips.run();
}

} // namespace vecmat
