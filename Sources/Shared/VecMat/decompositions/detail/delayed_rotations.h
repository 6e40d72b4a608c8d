// Rotations of the columns of a workspace, carried out some time after they are requested.
#pragma once

#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../kernels/column_kernels.h"
#include "column_workspace.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace vecmat {

/// An iteration rotates columns that it doesn't read. Its rotations are collected, and each batch is carried out on one
/// panel of rows at a time, which stays in the cache. That is done bit by bit while the next batch is collected: the
/// iteration is one long chain of divisions and roots, and leaves the processor idle. Each row goes through the same
/// rotations in the same order as without the delay.
///
/// It needs memory for the columns, copied into panels, and for 16 rotations per column.
class DelayedRotations
{
public:
    DelayedRotations(double* first, std::ptrdiff_t stride, int rows, int cols)
        : first_(first), stride_(stride), cols_(cols), vectors_((rows + kernels_.lanes - 1) / kernels_.lanes),
          panelCount_((vectors_ + ColumnKernels::mostVectors - 1) / ColumnKernels::mostVectors),
          capacity_(rotationsForEachColumn * std::size_t{countOf(cols)}),
          gathered_(new (std::nothrow) ColumnRotation[capacity_]),
          running_(new (std::nothrow) ColumnRotation[capacity_]),
          panels_(std::size_t{countOf(vectors_ * kernels_.lanes)} * countOf(cols))
    {
    }

    bool hasMemory() const { return gathered_ != nullptr && running_ != nullptr && panels_; }

    void add(const ColumnRotation& rotation)
    {
        if (gatheredCount_ == capacity_)
            startBatch();
        gathered_[gatheredCount_++] = rotation;
        advance(panelCount_);
    }

    /// Call once, before the columns are read.
    void carryOut()
    {
        startBatch();
        finishBatch();
        if (isOpen_)
            forEachPanel([this](double* rows, const Panel& panel) {
                kernels_.copyColumns(panel.vectors, cols_, cells(panel), panel.vectors * kernels_.lanes, rows, stride_);
            });
    }

private:
    static constexpr std::size_t rotationsForEachColumn = 8;

    struct Panel
    {
        int firstVector;
        int vectors;
    };

    /// Panels of about equal size: a narrow one would wait for its own results.
    Panel panel(int number) const
    {
        const auto start = [this](int i) {
            return static_cast<int>(static_cast<long long>(vectors_) * i / panelCount_);
        };
        return {start(number), start(number + 1) - start(number)};
    }
    double* cells(const Panel& panel) const
    {
        return panels_.data() + std::ptrdiff_t{panel.firstVector} * kernels_.lanes * cols_;
    }

    template <class Visit>
    void forEachPanel(Visit visit) const
    {
        for (int i = 0; i < panelCount_; ++i)
            visit(first_ + std::ptrdiff_t{panel(i).firstVector} * kernels_.lanes, panel(i));
    }

    void startBatch()
    {
        finishBatch();
        if (gatheredCount_ == 0)
            return;
        if (!isOpen_)
            forEachPanel([this](const double* rows, const Panel& panel) {
                kernels_.copyColumns(panel.vectors, cols_, rows, stride_, cells(panel), panel.vectors * kernels_.lanes);
            });
        isOpen_ = true;
        std::swap(gathered_, running_);
        runningCount_ = static_cast<int>(std::exchange(gatheredCount_, 0));
        goTo(0);
    }

    void goTo(int number)
    {
        current_ = number;
        here_ = panel(number);
        done_ = 0;
    }

    void finishBatch()
    {
        while (current_ < panelCount_)
            advance(runningCount_);
    }

    /// Carries out up to `count` rotations of the batch on the current panel.
    void advance(int count)
    {
        if (current_ >= panelCount_)
            return;
        count = std::min(count, runningCount_ - done_);
        kernels_.rotate(here_.vectors, count, running_.get() + done_, cells(here_));
        done_ += count;
        if (done_ == runningCount_)
            goTo(current_ + 1);
    }

    const ColumnKernels& kernels_ = columnKernels();
    double* first_;
    std::ptrdiff_t stride_;
    int cols_;
    int vectors_;
    int panelCount_;
    std::size_t capacity_;
    std::unique_ptr<ColumnRotation[]> gathered_;
    std::unique_ptr<ColumnRotation[]> running_;
    std::size_t gatheredCount_ = 0;
    int runningCount_ = 0;
    Scratch panels_;
    bool isOpen_ = false;
    int current_ = panelCount_; // current panel of the running batch; none is left
    Panel here_{};
    int done_ = 0; // rotations of the batch done on this panel
};

} // namespace vecmat
