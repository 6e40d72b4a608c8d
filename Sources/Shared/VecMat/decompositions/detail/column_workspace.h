// A table in its own memory, laid out for the kernels of `kernels/column_kernels.h`.
#pragma once

#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../kernels/column_kernels.h"

#include <algorithm>
#include <cstddef>

namespace vecmat {

/// Columns numbered from 0, each starting at a multiple of the widest vectors. After the last row and the last column
/// there are zeros, for kernels that read whole vectors and whole groups of columns.
class ColumnWorkspace
{
public:
    ColumnWorkspace(int rows, int cols) : stride_(strideFor(rows)), cells_(size(cols))
    {
        if (cells_)
            std::fill_n(cells_.data(), size(cols), 0.0);
    }

    explicit operator bool() const { return static_cast<bool>(cells_); }
    std::ptrdiff_t stride() const { return stride_; }
    double* column(int j) const { return cells_.data() + j * stride_; }

private:
    static constexpr int lanes = ColumnKernels::mostLanes;

    /// An odd number of vectors, so that one row of many columns does not map to the same cache set.
    static std::ptrdiff_t strideFor(int rows)
    {
        return std::ptrdiff_t{lanes} * (((std::max(rows, 0) + lanes - 1) / lanes) | 1);
    }
    std::size_t size(int cols) const
    {
        return static_cast<std::size_t>(stride_) * (countOf(cols) + ColumnKernels::mostColumns);
    }

    std::ptrdiff_t stride_;
    Scratch cells_;
};

} // namespace vecmat
