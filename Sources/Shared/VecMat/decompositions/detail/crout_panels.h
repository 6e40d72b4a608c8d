// Crout's method on panels: several columns side by side. Each cell is the same running difference in the same order as
// in `crout.h`, which is still used for small tables and wherever the order of the columns is observable.
#pragma once

#include "../../base/detail/numbers.h"
#include "../../base/detail/scratch.h"
#include "../../kernels/substitution_kernels.h"
#include "../../kernels/tile_kernels.h"
#include "crout.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace vecmat {

/// A copy of a square table, in panels of as many rows as a tile, each panel column by column. So the cells of a panel
/// in neighbouring columns form a tile, and those from column 0 on a packed left operand, without a copy. The places
/// after the last row and column start as 0.0; whatever they become is never read.
class RowPanels
{
public:
    RowPanels(int n, const TileKernels& tiles)
        : n_(n), height_(tiles.rows), panelSize_(upTo(n, tiles.cols) * countOf(height_)),
          cells_(panelSize_ * (upTo(n, height_) / countOf(height_)))
    {
    }

    explicit operator bool() const { return static_cast<bool>(cells_); }

    /// The distance, in cells, from one column to the next.
    int height() const { return height_; }
    /// The place of cell (i, 0).
    double* row(int i) const { return cells_.data() + countOf(i / height_) * panelSize_ + countOf(i % height_); }
    /// From cell (i, j), i the first row of a panel, down to the last row of the panel.
    double* tile(int i, int j) const { return row(i) + std::ptrdiff_t{height_} * j; }

    /// Calls visit(i, cells, count) for each contiguous part of column j from row `first` to the last.
    template <class Visit>
    void visitColumn(int j, int first, Visit visit) const
    {
        for (int i = first; i < n_;) {
            const int count = std::min(height_ - i % height_, n_ - i);
            visit(i, row(i) + std::ptrdiff_t{height_} * j, count);
            i += count;
        }
    }

    template <class Cells>
    void copyFrom(Cells a) const
    {
        std::fill_n(cells_.data(), panelSize_ * (upTo(n_, height_) / countOf(height_)), 0.0);
        for (int j = 0; j < n_; ++j)
            visitColumn(j, 0, [&](int row, double* to, int count) { std::copy_n(a.column(j) + row, count, to); });
    }
    template <class Cells>
    void copyTo(Cells a) const
    {
        for (int j = 0; j < n_; ++j)
            visitColumn(j, 0,
                        [&](int row, const double* from, int count) { std::copy_n(from, count, a.column(j) + row); });
    }

private:
    /// The first multiple of `step` that is not below n.
    static std::size_t upTo(int n, int step)
    {
        // NOLINTNEXTLINE(clang-analyzer-core.DivideZero): a step is as wide as a tile
        return (std::size_t{countOf(n)} + countOf(step) - 1) / countOf(step) * countOf(step);
    }

    int n_;
    int height_;
    std::size_t panelSize_;
    Scratch cells_;
};

/// Some neighbouring columns of a table, addressed by their numbers there.
class ColumnsFrom
{
public:
    ColumnsFrom(double* cells, std::ptrdiff_t stride, int first) : cells_(cells), stride_(stride), first_(first) {}

    std::ptrdiff_t stride() const { return stride_; }
    double* column(int j) const { return cells_ + stride_ * (j - first_); }
    double get(int i, int j) const { return column(j)[i]; }
    void set(int i, int j, double value) const { column(j)[i] = value; }

private:
    double* cells_;
    std::ptrdiff_t stride_;
    int first_;
};

/// The factorisation of a copy. Needs scratch memory for a table of order n and two strips as wide as a tile.
template <class PivotRule>
class PanelledCrout
{
public:
    PanelledCrout(int n, PivotRule rule, CroutState state)
        : n_(n), rule_(rule), state_(std::move(state)), panels_(n, tiles_),
          right_(countOf(n + tiles_.rows) * std::size_t{countOf(tiles_.cols)}), columnStride_(n + rows_.width),
          columns_(countOf(columnStride_) * std::size_t{countOf(tiles_.cols)})
    {
        exchanges_.partner.reserve(countOf(n));
    }

    bool hasMemory() const { return panels_ && right_ && columns_; }

    /// None if a column has no comparable candidate and would take its pivot from finished rows: the later columns have
    /// yet to see what this does to those rows.
    template <class Cells>
    std::optional<CroutOutcome> run(Cells a)
    {
        panels_.copyFrom(a);
        std::fill_n(columns_.data(), countOf(columnStride_) * std::size_t{countOf(tiles_.cols)}, 0.0);
        for (int first = 0; first < n_; first += tiles_.cols) {
            reduceColumns(first);
            if (const auto end = factorColumns(first, std::min(first + tiles_.cols, n_)))
                return *end == CroutOutcome::noPivot ? std::nullopt : end;
        }
        panels_.copyTo(a);
        return CroutOutcome::factored;
    }

    RowExchanges takeExchanges() { return std::move(exchanges_); }

private:
    /// Subtracts all columns before `first` from the columns of the tile that starts there.
    void reduceColumns(int first) const
    {
        for (int i = 0; i < n_; i += tiles_.rows) {
            double* const tile = panels_.tile(i, first);
            tiles_.subtract(std::min(i, first), panels_.tile(i, 0), right_.data(), tile);
            if (i < first)
                tiles_.substitute(std::min(tiles_.rows, first - i), panels_.tile(i, i),
                                  right_.data() + std::ptrdiff_t{tiles_.cols} * i, tile);
        }
    }

    /// Factors columns already reduced by all earlier ones, from the diagonal down, and reorders the rows of the other
    /// columns to match. None, or how it ended early; `noPivot` if `run` gives up.
    std::optional<CroutOutcome> factorColumns(int first, int end)
    {
        const ColumnsFrom columns(columns_.data(), columnStride_, first);
        for (int j = first; j < end; ++j)
            panels_.visitColumn(j, first, [&](int row, const double* from, int count) {
                std::copy_n(from, count, columns.column(j) + row);
            });
        for (int j = first; j < end; ++j) {
            reduceColumn(columns, first, j, j);
            reduceDown(columns, first, j);
            searchPivot(columns, j, n_, state_);
            if (state_.pivotRow < j)
                return CroutOutcome::noPivot;
            const auto exchange = [&](int row, int other) {
                for (int c = first; c < end; ++c)
                    std::swap(columns.column(c)[row], columns.column(c)[other]);
            };
            if (!settlePivot(columns, j, n_, rule_, state_, exchanges_, exchange))
                return CroutOutcome::smallPivot;
        }
        for (int j = first; j < end; ++j)
            panels_.visitColumn(
                j, first, [&](int row, double* to, int count) { std::copy_n(columns.column(j) + row, count, to); });
        exchangeOutside(first, end);
        return std::nullopt;
    }

    /// Like `reduceColumn` for the rows from j on, as many side by side as a kernel has results. The last ones spill
    /// into the places after the column.
    void reduceDown(ColumnsFrom columns, int first, int j) const
    {
        for (int i = j; i < n_; i += rows_.width)
            rows_.subtract(j - first, {columns.column(j) + first, 1}, {columns.column(first) + i, columns.stride()},
                           columns.column(j) + i);
    }

    /// Applies all exchanges of some columns to each other column in turn, while its rows from `first` on are in the
    /// cache.
    void exchangeOutside(int first, int end) const
    {
        double* row[TileKernels::mostCols];
        double* other[TileKernels::mostCols];
        for (int j = first; j < end; ++j) {
            row[j - first] = panels_.row(j);
            other[j - first] = panels_.row(exchanges_.partner[countOf(j)]);
        }
        const auto exchangeIn = [&](int c) {
            const std::ptrdiff_t place = std::ptrdiff_t{panels_.height()} * c;
            for (int k = 0; k < end - first; ++k)
                std::swap(row[k][place], other[k][place]);
        };
        for (int c = 0; c < first; ++c)
            exchangeIn(c);
        for (int c = end; c < n_; ++c)
            exchangeIn(c);
    }

    const TileKernels& tiles_ = tileKernels();
    const SubstitutionKernels& rows_ = substitutionKernels();
    int n_;
    PivotRule rule_;
    CroutState state_;
    RowExchanges exchanges_;
    RowPanels panels_;
    Scratch right_;
    int columnStride_;
    Scratch columns_;
};

/// Below this order copying costs more than it saves.
inline constexpr int leastPanelledOrder = 32;

/// Factors the block of order n in place. If it ends early the cells are meaningless.
template <class Cells, class PivotRule>
CroutOutcome factorCrout(Cells a, int n, PivotRule rule, RowExchanges& exchanges)
{
    CroutState state{{}, PivotRule::pivotRowBeforeAny};
    if (!scaleRows(a, n, state.scales))
        return CroutOutcome::zeroRow;
    if constexpr (requires { a.column(0); })
        if (n >= leastPanelledOrder) {
            PanelledCrout<PivotRule> panelled(n, rule, state);
            if (panelled.hasMemory())
                if (const auto outcome = panelled.run(a)) {
                    exchanges = panelled.takeExchanges();
                    return *outcome;
                }
        }
    exchanges.partner.reserve(countOf(n));
    return factorColumnByColumn(a, n, rule, state, exchanges);
}

} // namespace vecmat
