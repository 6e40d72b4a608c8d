// A block of rows of a table, for the kernels that process columns side by side. Internal to the library.
#pragma once

#include "../../base/detail/numbers.h"

#include <array>
#include <cstddef>

namespace vecmat {

/// Rows that enter a pass, by number from 0 and in order, with their weights.
struct RowBlock
{
    static constexpr int most = 128;

    int count = 0;
    std::array<int, most> numbers;
    std::array<double, most> w;

    /// Adds a row, if it enters.
    void add(int row, double weight, bool enters)
    {
        numbers[countOf(count)] = row;
        w[countOf(count)] = weight;
        count += enters ? 1 : 0;
    }
    /// Are there no gaps between the first row and the last?
    bool isUnbroken() const { return count > 0 && numbers[countOf(count) - 1] - numbers[0] == count - 1; }
};

/// The cells of up to `mostColumns` columns in the rows of a block: the table's own if contiguous in memory, otherwise
/// copies.
template <int mostColumns>
class BlockColumns
{
public:
    template <class X>
    BlockColumns(X x, const RowBlock& rows, int first, int columns)
    {
        for (int c = 0; c < columns; ++c)
            starts_[countOf(c)] = cellsOf(x, rows, first + c, copies_.data() + std::ptrdiff_t{RowBlock::most} * c);
    }

    const double* const* starts() const { return starts_.data(); }

private:
    template <class X>
    static const double* cellsOf(X x, const RowBlock& rows, int j, double* copy)
    {
        if constexpr (requires { x.column(j); })
            if (rows.isUnbroken())
                return x.column(j) + rows.numbers[0];
        for (int k = 0; k < rows.count; ++k)
            copy[k] = x.get(rows.numbers[countOf(k)], j);
        return copy;
    }

    std::array<const double*, mostColumns> starts_;
    std::array<double, std::size_t{mostColumns} * RowBlock::most> copies_;
};

} // namespace vecmat
