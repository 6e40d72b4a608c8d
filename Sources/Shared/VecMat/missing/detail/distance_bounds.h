// Which rows a nearest-neighbour search can skip: bounds of their distances, for all of them side by side. Internal to
// the library.
//
// A distance is a sum of terms d d / variance and of whole numbers. A bound is the sum of the numeric terms alone, with
// the variances turned into factors beforehand. It is no part of any result: no term is negative and no sum decreases
// as terms are added, so a row whose bound is clearly above the least distance found cannot be nearer, and all others
// are compared by the exact distance.
#pragma once

#include "../../base/detail/masks.h"
#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../kernels/distance_kernels.h"

#include <cstddef>
#include <memory>
#include <new>

namespace vecmat {

/// The rows that may be neighbours, with a copy of their numbers. They are never written during the search.
class DistanceBounds
{
public:
    /// Empty if allocation fails.
    DistanceBounds(int rows, Mask mask, int columns) : DistanceBounds(rowsKept(rows, mask), columns)
    {
        if (!usable_)
            return;
        std::size_t next = 0;
        for (int i = 0; i < rows; ++i)
            if (mask.keeps(i))
                rowNumbers_[next++] = i;
    }

    explicit operator bool() const { return usable_; }

    /// Copies the columns of a block after those copied before.
    template <class Block>
    void copy(const Block& block)
    {
        for (int k = 0; k < block.cols; ++k, ++copiedColumns_) {
            const double variance = block.variances[k];
            // Within this range neither the variance nor its reciprocal loses digits. Other columns have no terms.
            if (variance > 0.0)
                usable_ = usable_ && variance > 1e-290 && variance < 1e290;
            factors_.data()[copiedColumns_] = 1.0 / variance;
            double* const column = panels_.data() + copiedColumns_ * DistanceKernels::width;
            for (std::size_t r = 0; r < panelCount_ * DistanceKernels::width; ++r)
                column[r / DistanceKernels::width * panelSize() + r % DistanceKernels::width] =
                    r < rowCount_ ? block.cells.get(rowNumbers_[r], k) : 0.0;
        }
    }

    // ---- for one target row -----------------------------------------------------------------------------------------

    void clearTerms() { termCount_ = 0; }
    /// Includes column `k`, counted over all blocks.
    void addTerm(int k, double target)
    {
        terms_[termCount_++] = {std::ptrdiff_t{k} * DistanceKernels::width, target, factors_.data()[k]};
    }
    void compute()
    {
        distanceKernels().distances(static_cast<std::ptrdiff_t>(panelCount_), panels_.data(),
                                    static_cast<std::ptrdiff_t>(panelSize()), terms_.get(), termCount_,
                                    distances_.data());
    }

    std::size_t rowCount() const { return rowCount_; }
    int row(std::size_t k) const { return rowNumbers_[k]; }

    /// From row k on, the first that may be as near as `shortest`; the count of rows if none.
    std::size_t nextWithin(double shortest, std::size_t k) const
    {
        // Far above the effect of rounding on sums of as many terms as there may be columns, and on the smallest
        // numbers. Infinite until a row has won.
        const double limit = shortest * (1.0 + 1e-5) + 1e-290;
        while (k < rowCount_ && distances_.data()[k] > limit)
            ++k;
        return k;
    }

private:
    DistanceBounds(std::size_t rowCount, int columns)
        : columns_(countOf(columns)), rowCount_(rowCount),
          panelCount_((rowCount + DistanceKernels::width - 1) / DistanceKernels::width),
          rowNumbers_(new (std::nothrow) int[rowCount]), terms_(new (std::nothrow) DistanceKernels::Term[columns_]),
          factors_(columns_), panels_(panelCount_ * panelSize()), distances_(panelCount_ * DistanceKernels::width),
          usable_(rowNumbers_ && terms_ && factors_ && panels_ && distances_)
    {
    }

    static std::size_t rowsKept(int rows, Mask mask)
    {
        std::size_t kept = 0;
        for (int i = 0; i < rows; ++i)
            kept += mask.keeps(i) ? 1 : 0;
        return kept;
    }

    std::size_t panelSize() const { return columns_ * DistanceKernels::width; }

    std::size_t columns_;
    std::size_t rowCount_;
    std::size_t panelCount_;
    std::unique_ptr<int[]> rowNumbers_;
    std::unique_ptr<DistanceKernels::Term[]> terms_;
    Scratch factors_;
    Scratch panels_;
    Scratch distances_;
    bool usable_;
    std::size_t copiedColumns_ = 0;
    std::ptrdiff_t termCount_ = 0;
};

} // namespace vecmat
