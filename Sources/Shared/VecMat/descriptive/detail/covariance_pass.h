// The covariances of the columns of one table. Internal to the library.
//
// If no cell is missing, every pair has the same rows, and the running means of a column are the same in all of its
// pairs: the deviations from them are computed once per column, and the cross products are a matrix product of
// deviations, each result the same sum in the same order as for its pair alone.
#pragma once

#include "../../base/detail/masks.h"
#include "../../base/detail/numbers.h"
#include "../../base/detail/running_moments.h"
#include "../../base/detail/scratch.h"
#include "../../base/missing_value.h"
#include "../../kernels/moment_kernels.h"
#include "../../kernels/tile_kernels.h"
#include "column_panels.h"
#include "pair_pass.h"
#include "row_block.h"

#include <algorithm>
#include <array>
#include <optional>

namespace vecmat {

/// Covariances of a few columns over complete rows: row by row, without memory of its own.
template <RowFactor form>
class FewCovariances
{
public:
    /// A single column is left to the pass over pairs, which keeps its sums in registers.
    static bool fits(int p) { return p > 1 && p <= mostColumns; }

    /// False if a cell is missing.
    template <class X, class Weight>
    bool run(X x, int p, Weight weight, const PairOptions& options)
    {
        const Mask mask(options.mask);
        for (int i = 0; i < options.n; ++i) {
            if (!mask.keeps(i))
                continue;
            std::array<double, mostColumns> row;
            for (int j = 0; j < p; ++j)
                if (row[countOf(j)] = x.get(i, j); isMissing(row[countOf(j)]))
                    return false;
            if (const double w = weight.get(i); sum_.take(w))
                add(row, p, w);
        }
        return true;
    }

    /// j is at most k.
    RunningCovariance<form> pair(int j, int k) const
    {
        RunningCovariance<form> sums;
        sums.weights = sum_.weights;
        sums.rows = sum_.rows;
        sums.meanX = mean_[countOf(j)];
        sums.meanY = mean_[countOf(k)];
        sums.products = products_[countOf(j)][countOf(k)];
        return sums;
    }

private:
    static constexpr int mostColumns = 8;

    void add(const std::array<double, mostColumns>& row, int p, double w)
    {
        const double factor = rowFactor<form>(w, sum_.weights);
        std::array<double, mostColumns> d;
        for (unsigned k = 0; k < countOf(p); ++k) {
            d[k] = row[k] - mean_[k];
            for (unsigned j = 0; j <= k; ++j)
                products_[j][k] += factor * d[j] * d[k];
            mean_[k] += update::Weighted::mean(d[k], w, sum_.weights);
        }
    }

    RunningWeights<ZeroWeight::counted> sum_;
    std::array<double, mostColumns> mean_{};
    std::array<std::array<double, mostColumns>, mostColumns> products_{};
};

/// Covariances over complete rows, all computed at once.
template <RowFactor form>
class CompleteCovariances
{
public:
    /// Computes nothing if a cell is missing, allocation fails, the table is small but not narrow, or its cells have to
    /// be read in turn; `operator bool` reports this.
    template <class X, class Weight>
    CompleteCovariances(X x, int p, Weight weight, const PairOptions& options)
    {
        if (options.reading == Reading::inTurn)
            return;
        if (!ColumnPanels::payFor(options.n, p)) {
            complete_ = FewCovariances<form>::fits(p) && few_.emplace().run(x, p, weight, options);
            return;
        }
        panels_.emplace(options.n, p);
        means_.emplace(countOf(panels_->paddedColumns()));
        complete_ = *panels_ && *means_ && run(x, p, weight, options);
    }

    explicit operator bool() const { return complete_; }

    /// j is at most k.
    RunningCovariance<form> pair(int j, int k) const
    {
        if (few_)
            return few_->pair(j, k);
        RunningCovariance<form> sums;
        sums.weights = weights_;
        sums.rows = rows_;
        sums.meanX = means_->data()[j];
        sums.meanY = means_->data()[k];
        sums.products = panels_->result(j, k);
        return sums;
    }

private:
    /// Some rows that move the sums, in order.
    struct Rows : RowBlock
    {
        std::array<double, most> W; ///< sum of the weights up to each row
        std::array<double, most> reciprocals;
        std::array<double, most> factors;
    };

    /// False if a cell is missing.
    template <class X, class Weight>
    bool run(X x, int p, Weight weight, const PairOptions& options)
    {
        std::fill_n(means_->data(), panels_->paddedColumns(), 0.0);
        const Mask mask(options.mask);
        for (int first = 0; first < options.n; first += Rows::most) {
            Rows rows;
            for (int i = first; i < options.n && i - first < Rows::most; ++i) {
                if (!mask.keeps(i))
                    continue;
                ++rows_;
                // A row of weight 0 counts but moves nothing.
                if (const double w = weight.get(i); w != 0.0)
                    add(rows, i, w);
                else if (anyMissing(x, i, p))
                    return false;
            }
            if (!multiply(x, p, rows))
                return false;
        }
        return true;
    }

    void add(Rows& rows, int i, double w)
    {
        weights_ += w;
        const auto k = countOf(rows.count);
        rows.W[k] = weights_;
        rows.reciprocals[k] = 1.0 / weights_;
        rows.factors[k] = rowFactor<form>(w, weights_);
        rows.add(i, w, true);
    }

    template <class X>
    static bool anyMissing(X x, int i, int p)
    {
        for (int j = 0; j < p; ++j)
            if (isMissing(x.get(i, j)))
                return true;
        return false;
    }

    /// False if a cell is missing.
    template <class X>
    bool multiply(X x, int p, const Rows& rows) const
    {
        bool complete = true;
        panels_->visitLeft([&](double* panel, int first) {
            const int columns = std::min(p - first, panels_->panelColumns());
            const BlockColumns<TileKernels::mostRows> cells(x, rows, first, columns);
            complete = complete &&
                       momentKernels().deviations(rows.count, columns, cells.starts(), rows.w.data(), rows.W.data(),
                                                  rows.reciprocals.data(), means_->data() + first, panel);
        });
        if (!complete)
            return false;
        panels_->scale(rows.count, rows.factors.data());
        panels_->visitTiles([&](const double* left, const double* right, double* tile) {
            tileKernels().add(rows.count, left, right, tile);
        });
        return true;
    }

    bool complete_ = false;
    int rows_ = 0;
    double weights_ = 0.0;
    std::optional<FewCovariances<form>> few_;
    std::optional<ColumnPanels> panels_;
    std::optional<Scratch> means_;
};

/// Pairs each column of `x` with itself and the later ones.
template <RowFactor form, class X, class Weight>
class CovariancePass
{
public:
    CovariancePass(X x, int p, Weight weight, const PairOptions& options) : p_(p), complete_(x, p, weight, options)
    {
        if (!complete_)
            pairs_.emplace(x, x, p, weight, options);
    }

    /// `store(k, sums)` receives the pairs of column j with columns j to p - 1, in turn.
    template <class Store>
    void run(int j, Store store) const
    {
        if (complete_)
            for (int k = j; k < p_; ++k)
                store(k, complete_.pair(j, k));
        else
            pairs_->run(j, j, p_, store);
    }

private:
    int p_;
    CompleteCovariances<form> complete_;
    std::optional<PairPass<RunningCovariance<form>, X, X, Weight>> pairs_;
};

} // namespace vecmat
