// The covariances of the columns of one table. Internal to the library.
//
// Where no cell is missing, every pair has the same rows, and the running means of a column are the same in all of its
// pairs: the deviations from them are worked out once for each column, and the cross products are a matrix product of
// deviations, each result the same sum in the same order as that of its pair alone. The scratch memory is a copy of the
// table and a square of results.
#pragma once

#include "../elementary/kernels/tiled_product.h"
#include "pair_pass.h"

namespace vecmat {

namespace detail {

/// Deviations by column and row.
struct DeviationsByColumn
{
    using Value = double;

    const ColumnStrips& deviations;

    double get(int j, int k) const { return deviations.cell(k, j); }
    template <class Visit>
    static void visitStorage(int /*rows*/, int /*cols*/, Visit /*visit*/)
    {
    }
};

/// Deviations by row and column, times the factor of the row.
struct ScaledDeviations
{
    using Value = double;

    const ColumnStrips& deviations;
    const double* factors;

    double get(int k, int j) const { return factors[k] * deviations.cell(k, j); }
    template <class Visit>
    static void visitStorage(int /*rows*/, int /*cols*/, Visit /*visit*/)
    {
    }
};

} // namespace detail

/// Covariances over complete rows, all computed at once.
template <RowFactor form>
class CompleteCovariances
{
public:
    /// Computes nothing where a cell is missing, memory is short or the table small: `operator bool` tells.
    template <class X, class Weight>
    CompleteCovariances(X x, int p, Weight weight, const PairOptions& options)
    {
        if (p < detail::fewestLines || double{1} * p * p * options.n < detail::fewestProducts)
            return;
        const Mask mask(options.mask);
        const RowSelection kept(options.n, [&](int i) { return mask.keeps(i); });
        // A row of weight 0 counts and moves nothing.
        const RowSelection moving(options.n, [&](int i) { return mask.keeps(i) && weight.get(i) != 0.0; });
        if (!kept || !moving || anyMissing(x, kept, p))
            return;
        const int rows = moving.count();
        const ColumnStrips strips(rows, p);
        const Scratch weights(countOf(rows));
        const Scratch sums(countOf(rows));
        Scratch means(countOf(strips.count()) * ColumnStrips::lanes);
        Scratch products(std::size_t{countOf(p)} * countOf(p));
        if (!strips || !weights || !sums || !means || !products)
            return;

        strips.fill(rows, 0, p, [&](int k, int j) { return x.get(moving[k], j); });
        double W = 0.0;
        for (int k = 0; k < rows; ++k) {
            weights.data()[k] = weight.get(moving[k]);
            W += weights.data()[k];
            sums.data()[k] = W;
        }
        std::fill_n(means.data(), strips.count() * ColumnStrips::lanes, 0.0);
        for (int s = 0; s < strips.count(); s += 2)
            momentKernels().deviations(rows, strips.strip(s), strips.size(), std::min(2, strips.count() - s),
                                       weights.data(), sums.data(), means.data() + s * ColumnStrips::lanes);
        for (int k = 0; k < rows; ++k)
            weights.data()[k] = rowFactor<form>(weights.data()[k], sums.data()[k]);
        constexpr auto missing = MissingFactor::multiplied;
        if (!detail::multiplyInTiles<missing, ResultPart::lowerMirrored>(
                detail::DeviationsByColumn{strips}, detail::ScaledDeviations{strips, weights.data()}, {p, rows, p},
                PlainCells<matrix>(products.data(), p)))
            return;
        p_ = p;
        rows_ = kept.count();
        weights_ = W;
        means_.emplace(std::move(means));
        products_.emplace(std::move(products));
    }

    explicit operator bool() const { return products_.has_value(); }

    RunningCovariance<form> pair(int j, int k) const
    {
        RunningCovariance<form> sums;
        sums.weights = weights_;
        sums.rows = rows_;
        sums.meanX = means_->data()[j];
        sums.meanY = means_->data()[k];
        sums.products = products_->data()[std::ptrdiff_t{k} * p_ + j];
        return sums;
    }

private:
    template <class X>
    static bool anyMissing(X x, const RowSelection& rows, int p)
    {
        for (int j = 0; j < p; ++j)
            for (int k = 0; k < rows.count(); ++k)
                if (isMissing(x.get(rows[k], j)))
                    return true;
        return false;
    }

    int p_ = 0;
    int rows_ = 0;
    double weights_ = 0.0;
    std::optional<Scratch> means_;
    std::optional<Scratch> products_;
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

    /// `store(k, sums)` receives the pairs of column j with the columns j to p - 1, in turn.
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
