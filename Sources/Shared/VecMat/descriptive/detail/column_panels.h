// Sums of products of all pairs of columns, a block of rows at a time. Internal to the library.
#pragma once

#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../kernels/moment_kernels.h"
#include "../../kernels/tile_kernels.h"

#include <algorithm>
#include <cstddef>

namespace vecmat {

/// Copies of some rows of p columns, as the two operands of the tile kernels, and the results for each pair of columns.
/// The left operand is in panels of as many columns as a tile has rows, the right one in panels of as many as it has
/// columns; the places after the last column start as 0.0, and whatever they become is never read.
class ColumnPanels
{
public:
    /// Below this number of columns, or of single products, copying costs more than it saves.
    static constexpr int fewestColumns = 4;
    static constexpr double fewestProducts = 2000;
    static constexpr int mostRows = 128;

    static bool payFor(int n, int p) { return p >= fewestColumns && double{1} * p * p * n >= fewestProducts; }

    /// For up to n rows at a time, but at most `mostRows`.
    ColumnPanels(int n, int p)
        : p_(p), rows_(std::min(n, mostRows)), leftPanels_(panels(p, tiles_.rows)),
          rightPanels_(panels(p, tiles_.cols)), left_(leftSize() * countOf(leftPanels_)),
          right_(rightSize() * countOf(rightPanels_)),
          results_(tileSize() * countOf(leftPanels_) * countOf(rightPanels_))
    {
        if (!*this)
            return;
        std::fill_n(left_.data(), leftSize() * countOf(leftPanels_), 0.0);
        std::fill_n(results_.data(), tileSize() * countOf(leftPanels_) * countOf(rightPanels_), 0.0);
    }

    explicit operator bool() const { return left_ && right_ && results_; }

    /// Number of columns in the panels of the left operand: in one, and in all of them.
    int panelColumns() const { return tiles_.rows; }
    int paddedColumns() const { return leftPanels_ * tiles_.rows; }

    /// Copies rows `numbers`[0] to `numbers`[count - 1] of `x` into the left operand.
    template <class X>
    void copy(X x, int count, const int* numbers) const
    {
        for (int j = 0; j < p_; ++j) {
            double* to = left(j / tiles_.rows) + j % tiles_.rows;
            for (int k = 0; k < count; ++k, to += tiles_.rows)
                *to = x.get(numbers[k], j);
        }
    }

    /// Calls visit(panel, column) for each panel of the left operand, which begins with that column.
    template <class Visit>
    void visitLeft(Visit visit) const
    {
        for (int panel = 0; panel < leftPanels_; ++panel)
            visit(left(panel), panel * tiles_.rows);
    }

    /// Makes the right operand from the left one, each row times its factor.
    void scale(int count, const double* factors) const
    {
        for (int panel = 0; panel < rightPanels_; ++panel) {
            const int column = panel * tiles_.cols;
            momentKernels().scale(count, left(column / tiles_.rows) + column % tiles_.rows, factors, right(panel));
        }
    }

    /// Calls visit(left, right, tile) for the operands and the results of each tile on or below the diagonal.
    template <class Visit>
    void visitTiles(Visit visit) const
    {
        for (int i = 0; i < leftPanels_; ++i)
            for (int j = 0; j * tiles_.cols < std::min((i + 1) * tiles_.rows, p_); ++j)
                visit(left(i), right(j), tile(i, j));
    }

    /// The result for columns j and k, j at most k: k was read from the left operand.
    double result(int j, int k) const
    {
        return tile(k / tiles_.rows, j / tiles_.cols)[j % tiles_.cols * tiles_.rows + k % tiles_.rows];
    }

private:
    static int panels(int count, int width) { return (count + width - 1) / width; }
    std::size_t leftSize() const { return countOf(rows_) * std::size_t{countOf(tiles_.rows)}; }
    std::size_t rightSize() const { return countOf(rows_) * std::size_t{countOf(tiles_.cols)}; }
    std::size_t tileSize() const { return countOf(tiles_.rows) * std::size_t{countOf(tiles_.cols)}; }

    double* left(int panel) const { return left_.data() + leftSize() * countOf(panel); }
    double* right(int panel) const { return right_.data() + rightSize() * countOf(panel); }
    double* tile(int leftPanel, int rightPanel) const
    {
        return results_.data() +
               (countOf(leftPanel) * std::size_t{countOf(rightPanels_)} + countOf(rightPanel)) * tileSize();
    }

    const TileKernels& tiles_ = tileKernels();
    int p_;
    int rows_;
    int leftPanels_;
    int rightPanels_;
    Scratch left_;
    Scratch right_;
    Scratch results_;
};

} // namespace vecmat
