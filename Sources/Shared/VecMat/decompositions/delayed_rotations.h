// Rotations of the columns of a workspace, carried out some time after they are asked for.
#pragma once

#include "column_workspace.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace vecmat {

/// An iteration rotates columns that it doesn't look at. Its rotations are gathered, and a batch of them is carried out
/// on a panel of rows at a time, which stays in the cache. That is done bit by bit while the next batch is gathered: the
/// iteration is one long chain of divisions and roots, and leaves the processor idle. Each row goes through the same
/// rotations in the same order as without the delay.
///
/// The memory is that of 16 rotations for each column and a panel of up to 32 rows.
class DelayedRotations
{
public:
    DelayedRotations(double* first, std::ptrdiff_t stride, int rows, int cols)
        : first_(first), stride_(stride), cols_(cols), vectors_((rows + kernels_.lanes - 1) / kernels_.lanes),
          panels_((vectors_ + ColumnKernels::mostVectors - 1) / ColumnKernels::mostVectors),
          capacity_(rotationsForEachColumn * std::size_t{countOf(cols)}),
          gathered_(new (std::nothrow) ColumnRotation[capacity_]),
          running_(new (std::nothrow) ColumnRotation[capacity_]),
          panel_(countOf(ColumnKernels::mostVectors * kernels_.lanes) * std::size_t{countOf(cols)}), panelsLeft_(0)
    {
    }

    bool hasMemory() const { return gathered_ != nullptr && running_ != nullptr && panel_; }

    void add(const ColumnRotation& rotation)
    {
        if (gatheredCount_ == capacity_)
            startBatch();
        gathered_[gatheredCount_++] = rotation;
        advance(panels_);
    }

    /// To be called before the columns are read.
    void carryOut()
    {
        startBatch();
        finishBatch();
    }

private:
    static constexpr std::size_t rotationsForEachColumn = 16;

    void startBatch()
    {
        finishBatch();
        std::swap(gathered_, running_);
        runningCount_ = static_cast<int>(gatheredCount_);
        gatheredCount_ = 0;
        panelsLeft_ = panels_;
        firstVector_ = 0;
        if (panelsLeft_ > 0)
            openPanel();
    }

    void finishBatch()
    {
        while (panelsLeft_ > 0)
            advance(runningCount_);
    }

    /// Carries out up to `count` rotations of the batch on the panel.
    void advance(int count)
    {
        if (panelsLeft_ == 0)
            return;
        count = std::min(count, runningCount_ - done_);
        kernels_.rotate(panelVectors_, count, running_.get() + done_, panel_.data());
        done_ += count;
        if (done_ == runningCount_)
            closePanel();
    }

    double* rowsOfPanel() const { return first_ + std::ptrdiff_t{firstVector_} * kernels_.lanes; }
    std::ptrdiff_t panelStride() const { return std::ptrdiff_t{panelVectors_} * kernels_.lanes; }

    void openPanel()
    {
        // Panels of about the same size: a narrow one would wait for its own results.
        panelVectors_ = (vectors_ - firstVector_ + panelsLeft_ - 1) / panelsLeft_;
        done_ = 0;
        kernels_.copyColumns(panelVectors_, cols_, rowsOfPanel(), stride_, panel_.data(), panelStride());
    }

    void closePanel()
    {
        kernels_.copyColumns(panelVectors_, cols_, panel_.data(), panelStride(), rowsOfPanel(), stride_);
        firstVector_ += panelVectors_;
        if (--panelsLeft_ > 0)
            openPanel();
    }

    const ColumnKernels& kernels_ = columnKernels();
    double* first_;
    std::ptrdiff_t stride_;
    int cols_;
    int vectors_;
    int panels_;
    std::size_t capacity_;
    std::unique_ptr<ColumnRotation[]> gathered_;
    std::unique_ptr<ColumnRotation[]> running_;
    std::size_t gatheredCount_ = 0;
    int runningCount_ = 0;
    Scratch panel_;
    int panelsLeft_;
    int firstVector_ = 0;
    int panelVectors_ = 0;
    int done_ = 0;
};

} // namespace vecmat
