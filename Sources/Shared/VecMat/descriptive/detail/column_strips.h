// Columns side by side for the pair kernels. Internal to the library.
#pragma once

#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../base/missing_value.h"
#include "../../kernels/pair_kernels.h"

#include <cstddef>
#include <memory>
#include <new>

namespace vecmat {

/// The numbers, from 0, of the rows that enter a pass, in order. Empty if allocation failed.
class RowSelection
{
public:
    template <class Enters>
    RowSelection(int n, Enters enters) : rows_(new (std::nothrow) int[countOf(n)])
    {
        for (int i = 0; rows_ && i < n; ++i)
            if (enters(i))
                rows_[count_++] = i;
    }

    explicit operator bool() const { return rows_ != nullptr; }
    int count() const { return count_; }
    int operator[](int k) const { return rows_[k]; }

private:
    std::unique_ptr<int[]> rows_;
    int count_ = 0;
};

/// A copy of the cells of p columns in the selected rows, in strips of `PairKernels::lanes` columns. The lanes after
/// the last column are missing.
class ColumnStrips
{
public:
    static constexpr int lanes = PairKernels::lanes;

    ColumnStrips(int rows, int p)
        : stripSize_(std::size_t{countOf(rows)} * lanes), count_((p + lanes - 1) / lanes),
          cells_(stripSize_ * countOf(count_))
    {
    }

    explicit operator bool() const { return static_cast<bool>(cells_); }
    int count() const { return count_; }
    std::ptrdiff_t size() const { return static_cast<std::ptrdiff_t>(stripSize_); }
    double* strip(int s) const { return cells_.data() + stripSize_ * countOf(s); }
    double* row(int s, int k) const { return strip(s) + std::ptrdiff_t{k} * lanes; }
    double& cell(int k, int j) const { return row(j / lanes, k)[j % lanes]; }

    /// Fills the first `count` rows with `cell(k, j)` for row k of the selection and the columns from `firstColumn` to
    /// p - 1. Returns whether any cell is missing.
    template <class Cell>
    bool fill(int count, int firstColumn, int p, Cell cell) const
    {
        bool anyMissing = false;
        for (int s = 0; s < count_; ++s)
            for (int lane = 0; lane < lanes; ++lane) {
                const int j = firstColumn + s * lanes + lane;
                double* to = strip(s) + lane;
                for (int k = 0; k < count; ++k, to += lanes) {
                    *to = j < p ? cell(k, j) : missingValue;
                    anyMissing |= j < p && isMissing(*to);
                }
            }
        return anyMissing;
    }

private:
    std::size_t stripSize_;
    int count_;
    Scratch cells_;
};

} // namespace vecmat
