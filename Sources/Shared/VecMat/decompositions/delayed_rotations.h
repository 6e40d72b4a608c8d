// Rotations of the columns of a workspace, carried out some time after they are asked for.
#pragma once

#include "column_workspace.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>

namespace vecmat {

/// An iteration rotates columns that it doesn't look at. Its rotations are gathered and then carried out on a panel of
/// rows at a time, which stays in the cache. Each row goes through the same rotations in the same order as without the
/// delay. The memory is that of 32 rotations for each column, and a panel of up to 32 rows.
class DelayedRotations
{
public:
    DelayedRotations(double* first, std::ptrdiff_t stride, int rows, int cols)
        : first_(first), stride_(stride), rows_(rows), cols_(cols), capacity_(32 * std::size_t{countOf(cols)}),
          rotations_(new (std::nothrow) ColumnRotation[capacity_]),
          panel_(countOf(widest()) * std::size_t{countOf(cols)})
    {
    }

    bool hasMemory() const { return rotations_ != nullptr && panel_; }

    void add(const ColumnRotation& rotation)
    {
        if (count_ == capacity_)
            carryOut();
        rotations_[count_++] = rotation;
    }

    /// To be called before the columns are read.
    void carryOut()
    {
        if (count_ == 0)
            return;
        for (int row = 0; row < rows_; row += widest())
            rotatePanel(row, std::min(widest(), rows_ - row));
        count_ = 0;
    }

private:
    int widest() const { return ColumnKernels::mostVectors * kernels_.lanes; }

    void rotatePanel(int row, int rows)
    {
        const int vectors = (rows + kernels_.lanes - 1) / kernels_.lanes;
        kernels_.rotate(vectors, static_cast<int>(count_), rotations_.get(), cols_, first_ + row, stride_,
                        panel_.data());
    }

    const ColumnKernels& kernels_ = columnKernels();
    double* first_;
    std::ptrdiff_t stride_;
    int rows_;
    int cols_;
    std::size_t capacity_;
    std::size_t count_ = 0;
    std::unique_ptr<ColumnRotation[]> rotations_;
    Scratch panel_;
};

} // namespace vecmat
