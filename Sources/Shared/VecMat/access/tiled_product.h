// Products computed tile by tile, many results side by side. Each result is the same sum in the same order as in
// `product.h`, which is still used for small products and wherever the order of the results is observable.
#pragma once

#include "../base/detail/numbers.h"
#include "../base/detail/scratch.h"
#include "../base/missing_value.h"
#include "../kernels/tile_kernels.h"
#include "cells.h"
#include "overlap.h"
#include "product.h"
#include "vector_product.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>

namespace vecmat {

/// Which results are computed: all, or those on and below the diagonal, each also stored at its mirror place.
enum class ResultPart { whole, lowerMirrored };

namespace detail {

/// A product by tiles: the operands are copied into panels as wide as a tile, a block of the inner index at a time.
/// Needs scratch memory for a block of both operands, and for the results if there is more than one block.
template <MissingFactor missing, ResultPart part, class Left, class Right, class Out>
class TiledProduct
{
public:
    TiledProduct(const Left& left, const Right& right, const ProductShape& shape, const Out& out)
        : left_(left), right_(right), shape_(shape), out_(out), blockLength_(std::min(shape.inner, longestBlock)),
          rowPanels_(panels(shape.rows, kernels_.rows)), colPanels_(panels(shape.cols, kernels_.cols)),
          leftPanels_(rowPanels_ * leftPanelSize()), rightPanels_(colPanels_ * rightPanelSize()),
          tiles_(shape.inner > blockLength_ ? rowPanels_ * colPanels_ * tileSize() : tileSize())
    {
        if constexpr (missing == MissingFactor::makesResultMissing) {
            rowIsMissing_.reset(new (std::nothrow) bool[countOf(shape.rows)]());
            colIsMissing_.reset(new (std::nothrow) bool[countOf(shape.cols)]());
        }
    }

    bool hasMemory() const
    {
        return leftPanels_ && rightPanels_ && tiles_ &&
               (missing != MissingFactor::makesResultMissing || (rowIsMissing_ && colIsMissing_));
    }

    void run()
    {
        const bool oneBlock = shape_.inner <= blockLength_;
        if (!oneBlock)
            std::fill_n(tiles_.data(), rowPanels_ * colPanels_ * tileSize(), 0.0);
        for (int first = 0; first < shape_.inner; first += blockLength_) {
            const int count = std::min(blockLength_, shape_.inner - first);
            pack(first, count);
            const auto add = hasExactProducts(count) ? kernels_.addExact : kernels_.add;
            forEachTile([&](std::size_t rowPanel, std::size_t colPanel) {
                double* tile = tiles_.data();
                if (oneBlock)
                    std::fill_n(tile, tileSize(), 0.0);
                else
                    tile += (rowPanel + colPanel * rowPanels_) * tileSize();
                add(count, leftPanels_.data() + rowPanel * leftPanelSize(),
                    rightPanels_.data() + colPanel * rightPanelSize(), tile);
                if (first + count == shape_.inner)
                    write(tile, rowPanel, colPanel);
            });
        }
    }

private:
    static constexpr int longestBlock = 256;
    /// Panels of the left operand used with one panel of the right one while they are in the cache.
    static constexpr std::size_t panelsInCache = 12;
    /// Cells in a cache line, all used while in the cache, whichever way an operand is stored.
    static constexpr int cacheLine = 8;

    /// Number of panels as wide as a tile, which is above 0.
    static std::size_t panels(int count, int width)
    {
        // NOLINTNEXTLINE(clang-analyzer-core.DivideZero)
        return (countOf(count) + countOf(width) - 1) / countOf(width);
    }

    std::size_t leftPanelSize() const { return countOf(kernels_.rows) * std::size_t{countOf(blockLength_)}; }
    std::size_t rightPanelSize() const { return countOf(kernels_.cols) * std::size_t{countOf(blockLength_)}; }
    std::size_t tileSize() const { return countOf(kernels_.rows) * std::size_t{countOf(kernels_.cols)}; }

    template <class Visit>
    void forEachTile(Visit visit) const
    {
        for (std::size_t from = 0; from < rowPanels_; from += panelsInCache)
            for (std::size_t colPanel = 0; colPanel < colPanels_; ++colPanel)
                for (std::size_t rowPanel = from; rowPanel < std::min(from + panelsInCache, rowPanels_); ++rowPanel) {
                    const bool above = (rowPanel + 1) * countOf(kernels_.rows) <= colPanel * countOf(kernels_.cols);
                    if (part == ResultPart::whole || !above)
                        visit(rowPanel, colPanel);
                }
    }

    /// Copies a block of both operands: of the left one `kernels_.rows` cells for each k, of the right one
    /// `kernels_.cols`. Places after the last row or column are zero; their results are not used.
    void pack(int first, int count)
    {
        packPanels(leftPanels_.data(), leftPanelSize(), kernels_.rows, shape_.rows, count, rowIsMissing_.get(),
                   [&](int i, int k) { return left_.get(i, first + k); });
        packPanels(rightPanels_.data(), rightPanelSize(), kernels_.cols, shape_.cols, count, colIsMissing_.get(),
                   [&](int j, int k) { return right_.get(first + k, j); });
    }

    /// Can the kernel for exact products work on a packed block? Panel by panel of both operands, as most data answer no
    /// with the first.
    bool hasExactProducts(int count) const
    {
        if (kernels_.addExact == nullptr)
            return false;
        FactorRange left;
        FactorRange right;
        for (std::size_t panel = 0; panel < std::max(rowPanels_, colPanels_); ++panel) {
            if (panel < rowPanels_)
                kernels_.extend(left, std::ptrdiff_t{count} * kernels_.rows,
                                leftPanels_.data() + panel * leftPanelSize());
            if (panel < colPanels_)
                kernels_.extend(right, std::ptrdiff_t{count} * kernels_.cols,
                                rightPanels_.data() + panel * rightPanelSize());
            if (!productsAreExact(left, right))
                return false;
        }
        return true;
    }

    template <class Read>
    static void packPanels(double* panel, std::size_t panelSize, int width, int lines, int count, bool* isMissingLine,
                           Read read)
    {
        for (int first = 0; first < lines; first += width, panel += panelSize) {
            const int inside = std::min(width, lines - first);
            for (int k0 = 0; k0 < count; k0 += cacheLine) {
                for (int r = 0; r < inside; ++r)
                    for (int k = k0; k < std::min(k0 + cacheLine, count); ++k) {
                        const double x = read(first + r, k);
                        panel[std::ptrdiff_t{k} * width + r] = x;
                        if constexpr (missing == MissingFactor::makesResultMissing)
                            // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): there is a flag for each line
                            isMissingLine[first + r] |= isMissing(x);
                    }
            }
            if (inside < width)
                for (int k = 0; k < count; ++k)
                    std::fill_n(panel + std::ptrdiff_t{k} * width + inside, width - inside, 0.0);
        }
    }

    void write(const double* tile, std::size_t rowPanel, std::size_t colPanel) const
    {
        const int row0 = static_cast<int>(rowPanel) * kernels_.rows;
        const int col0 = static_cast<int>(colPanel) * kernels_.cols;
        const int rows = std::min(kernels_.rows, shape_.rows - row0);
        const int cols = std::min(kernels_.cols, shape_.cols - col0);
        const auto result = [&](int r, int c) {
            const double sum = tile[c * kernels_.rows + r];
            if constexpr (missing == MissingFactor::makesResultMissing)
                return rowIsMissing_[row0 + r] || colIsMissing_[col0 + c] ? missingValue : sum;
            else
                return sum;
        };
        for (int c = 0; c < cols; ++c)
            for (int r = firstRow(row0, col0 + c); r < rows; ++r)
                storeNumber(out_, row0 + r, col0 + c, result(r, c));
        if constexpr (part == ResultPart::lowerMirrored)
            for (int r = 0; r < rows; ++r)
                for (int c = 0; c < std::min(cols, row0 + r + 1 - col0); ++c)
                    storeNumber(out_, col0 + c, row0 + r, result(r, c));
    }

    /// Of the rows of a tile starting at row0, the first whose result in column j is stored.
    static int firstRow(int row0, int j) { return part == ResultPart::lowerMirrored ? std::max(j - row0, 0) : 0; }

    const TileKernels& kernels_ = tileKernels();
    const Left& left_;
    const Right& right_;
    ProductShape shape_;
    const Out& out_;
    int blockLength_;
    std::size_t rowPanels_;
    std::size_t colPanels_;
    Scratch leftPanels_;
    Scratch rightPanels_;
    Scratch tiles_;
    std::unique_ptr<bool[]> rowIsMissing_;
    std::unique_ptr<bool[]> colIsMissing_;
};

/// Below this number of single products, or with fewer rows, columns or terms than this, copying costs more than it
/// saves.
inline constexpr double fewestProducts = 2000;
inline constexpr int fewestLines = 4;

/// Small enough to be inlined: a product of order 3 would notice the call.
inline bool tilesPay(const ProductShape& shape)
{
    const auto& [rows, inner, cols] = shape;
    return rows >= fewestLines && inner >= fewestLines && cols >= fewestLines &&
           double{1} * rows * inner * cols >= fewestProducts;
}

/// Runs the product by tiles if the order of the results is not observable. Returns false, having done nothing,
/// otherwise.
template <MissingFactor missing, ResultPart part, class Left, class Right, class Out>
bool multiplyInTiles(const Left& left, const Right& right, const ProductShape& shape, const Out& out)
{
    const auto& [rows, inner, cols] = shape;
    if (out.folds(rows, cols) || overlap(storageOf(out, rows, cols), storageOf(left, rows, inner)) ||
        overlap(storageOf(out, rows, cols), storageOf(right, inner, cols)))
        return false;
    TiledProduct<missing, part, Left, Right, Out> product(left, right, shape, out);
    if (!product.hasMemory())
        return false;
    product.run();
    return true;
}

} // namespace detail

/// out = left right.
template <MissingFactor missing = MissingFactor::multiplied, class Left, class Right, class Out>
void multiply(Left left, Right right, const ProductShape& shape, Out out)
{
    const auto cellByCell = [&](auto x, auto y, auto result) { multiplyCellByCell<missing>(x, y, shape, result); };
    onBlocksOrElse(
        [&](auto x, auto y, auto result) {
            if constexpr (missing == MissingFactor::multiplied) {
                if (detail::isByVector(shape) && detail::multiplyByVector(x, y, shape, result))
                    return;
            }
            if (!detail::tilesPay(shape) || !detail::multiplyInTiles<missing, ResultPart::whole>(x, y, shape, result))
                cellByCell(x, y, result);
        },
        cellByCell, block(left, shape.rows, shape.inner), block(right, shape.inner, shape.cols),
        block(out, shape.rows, shape.cols));
}

/// out = left right of order n, a product symmetric but for rounding: the cells above the diagonal are copies of those
/// below it.
template <class Left, class Right, class Out>
void multiplySymmetric(Left left, Right right, int n, int inner, Out out)
{
    const auto cellByCell = [n, inner](auto x, auto y, auto result) {
        multiplySymmetricCellByCell(x, y, n, inner, result);
    };
    onBlocksOrElse(
        [&](auto x, auto y, auto result) {
            constexpr auto lower = ResultPart::lowerMirrored;
            const ProductShape shape{n, inner, n};
            if (!detail::tilesPay(shape) ||
                !detail::multiplyInTiles<MissingFactor::multiplied, lower>(x, y, shape, result))
                cellByCell(x, y, result);
        },
        cellByCell, block(left, n, inner), block(right, inner, n), block(out, n, n));
}

} // namespace vecmat
