// The pair pass: running cross products of two columns over the rows complete in both. Internal to the library.
//
// A row enters a pair if its mask entry is 0 and neither cell is missing (the equality test). With W the sum of the
// weights up to this row, dx and dy the distances of its cells from the running means, and f = w - w w / W, the sums
// grow by products with f and the means by w dx / W and w dy / W: the weighted updates of a variance (West, D. H. D.
// 1979, Updating mean and variance estimates: an improved method, Comm. ACM 22 (9), 532-535) for two variables. A row
// of weight 0 counts among the rows but moves nothing.
#pragma once

#include "../../access/cells.h"
#include "../../base/detail/companions.h"
#include "../../base/detail/masks.h"
#include "../../base/detail/numbers.h"
#include "../../base/detail/running_moments.h"
#include "../../base/detail/scratch.h"
#include "../../kernels/pair_kernels.h"
#include "column_strips.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>

namespace vecmat {

// ---- the sums of a pair ---------------------------------------------------------------------------------------------

/// The two forms of the factor f. They differ only for negative weights.
enum class RowFactor {
    signedValue, ///< w - w w / W as it is
    magnitude,   ///< its absolute value
};

template <RowFactor form = RowFactor::signedValue>
double rowFactor(double w, double W)
{
    const double factor = w - w * w / W;
    return form == RowFactor::magnitude ? std::fabs(factor) : factor;
}

/// The running means of both variables.
struct PairMeans : RunningWeights<ZeroWeight::counted>
{
    double meanX = 0.0;
    double meanY = 0.0;
};

/// The cross products of a covariance.
template <RowFactor form>
struct CovarianceSums
{
    double products = 0.0;

    void grow(double dx, double dy, double w, double W) { products += rowFactor<form>(w, W) * dx * dy; }

    static auto kernel()
    {
        return form == RowFactor::magnitude ? pairKernels().addCovariancesOfMagnitude : pairKernels().addCovariances;
    }
    void take(const PairKernels::Pairs& pairs, int lane) { products = pairs.products[lane]; }
};

/// The cross products and the squares of both variables, over the same rows. Here the factor comes last, so the terms
/// round differently from those of a covariance.
struct CorrelationSums
{
    double products = 0.0;
    double squaresX = 0.0;
    double squaresY = 0.0;

    void grow(double dx, double dy, double w, double W)
    {
        const double factor = rowFactor(w, W);
        squaresX += dx * dx * factor;
        squaresY += dy * dy * factor;
        products += dx * dy * factor;
    }

    static auto kernel() { return pairKernels().addCorrelations; }
    void take(const PairKernels::Pairs& pairs, int lane)
    {
        products = pairs.products[lane];
        squaresX = pairs.squaresX[lane];
        squaresY = pairs.squaresY[lane];
    }
};

template <class Sums>
struct RunningPair : PairMeans, Sums
{
    void add(double x, double y, double w)
    {
        if (!PairMeans::take(w))
            return;
        const double dx = x - meanX;
        const double dy = y - meanY;
        Sums::grow(dx, dy, w, weights);
        meanX += update::Weighted::mean(dx, w, weights);
        meanY += update::Weighted::mean(dy, w, weights);
    }

    static RunningPair ofLane(const PairKernels::Pairs& pairs, int lane)
    {
        RunningPair pair;
        pair.weights = pairs.weights[lane];
        pair.rows = static_cast<int>(pairs.rows[lane]);
        pair.meanX = pairs.meanX[lane];
        pair.meanY = pairs.meanY[lane];
        pair.Sums::take(pairs, lane);
        return pair;
    }
};

template <RowFactor form>
using RunningCovariance = RunningPair<CovarianceSums<form>>;
using RunningCorrelation = RunningPair<CorrelationSums>;

// ---- the pass -------------------------------------------------------------------------------------------------------

/// When the cells of a column are read.
enum class Reading {
    ahead,  ///< at any time, even all at once before the first pair
    inTurn, ///< afresh for each pair: a column may have changed since the previous pairs
};

/// The rows a pass visits, and the divisor of its sums.
struct PairOptions
{
    int n;
    const short* mask;
    short sample;
    short freqWeights;
    Reading reading = Reading::ahead;

    /// A sum over its divisor, whatever that is, by the rules of floating point.
    double quotient(double sum, const PairMeans& pair) const
    {
        return sum / varianceDivisor(pair.weights, pair.rows, sample, freqWeights);
    }
};

/// Pairs each column of `x` with columns of `y`, which has q of them.
template <class Sums, class X, class Y, class Weight>
class PairPass
{
public:
    PairPass(X x, Y y, int q, Weight weight, const PairOptions& options)
        : x_(x), y_(y), weight_(weight), options_(options)
    {
        if (options.reading == Reading::ahead && q >= fewestColumns && options.n >= fewestRows) {
            inStrips_.reset(new (std::nothrow) Strips(options.n, q, Mask(options.mask)));
            if (inStrips_ && inStrips_->hasMemory())
                packStrips(q);
        }
    }

    /// `store(k, sums)` receives the pairs of column j of `x` with columns `first` to `last - 1` of `y`, in turn.
    template <class Store>
    void run(int j, int first, int last, Store store) const
    {
        if (inStrips_ && inStrips_->hasMemory())
            runInStrips(j, first, last, store);
        else
            runPairByPair(j, first, last, store);
    }

private:
    static constexpr int fewestColumns = 3;
    static constexpr int fewestRows = 16;
    static constexpr int lanes = ColumnStrips::lanes;

    /// The rows that the mask keeps, of all of `y` and of one column of `x`.
    struct Strips
    {
        Strips(int n, int q, Mask mask)
            : rows(n, [mask](int i) { return mask.keeps(i); }), y(rows.count(), q), x(countOf(rows.count())),
              weights(countOf(rows.count()))
        {
        }
        bool hasMemory() const { return rows && y && x && weights; }

        RowSelection rows;
        ColumnStrips y;
        Scratch x;
        Scratch weights;
    };

    void packStrips(int q) const
    {
        const Strips& strips = *inStrips_;
        const int count = strips.rows.count();
        for (int k = 0; k < count; ++k)
            strips.weights.data()[k] = weight_.get(strips.rows[k]);
        strips.y.fill(count, 0, q, [&](int k, int j) { return y_.get(strips.rows[k], j); });
    }

    template <class Store>
    void runInStrips(int j, int first, int last, Store store) const
    {
        const Strips& strips = *inStrips_;
        const int count = strips.rows.count();
        for (int k = 0; k < count; ++k)
            strips.x.data()[k] = x_.get(strips.rows[k], j);
        constexpr int most = PairKernels::mostStrips;
        for (int s = first / lanes; s * lanes < last; s += most) {
            const int width = std::min(most, strips.y.count() - s);
            PairKernels::Pairs pairs[most] = {};
            Sums::kernel()(count, strips.x.data(), strips.y.strip(s), strips.y.size(), width, strips.weights.data(),
                           pairs);
            for (int k = std::max(first, s * lanes); k < std::min(last, (s + width) * lanes); ++k)
                store(k, Sums::ofLane(pairs[k / lanes - s], k % lanes));
        }
    }

    template <class Store>
    void runPairByPair(int j, int first, int last, Store store) const
    {
        const Mask rows(options_.mask);
        accumulate<Sums>(
            last - first, options_.n,
            [&](Sums& sums, int pair, int i) {
                if (rows.keeps(i) && isPresent(x_.get(i, j)) && isPresent(y_.get(i, first + pair)))
                    sums.add(x_.get(i, j), y_.get(i, first + pair), weight_.get(i));
            },
            [&](int pair, const Sums& sums) { store(first + pair, sums); });
    }

    X x_;
    Y y_;
    Weight weight_;
    PairOptions options_;
    std::unique_ptr<Strips> inStrips_;
};

template <class Sums, class X, class Y, class Weight>
PairPass<Sums, X, Y, Weight> pairPass(X x, Y y, int q, Weight weight, const PairOptions& options)
{
    return PairPass<Sums, X, Y, Weight>(x, y, q, weight, options);
}

// ---- after the pass -------------------------------------------------------------------------------------------------

/// The result for a cell that can't be computed: the missing value, or 0.0 if `zeroForMissing` is anything but 0.
inline double fallbackUnlessZero(short zeroForMissing)
{
    return zeroForMissing != 0 ? 0.0 : missingValue;
}

/// The same, with 0.0 only for -1.
inline double fallbackForMinusOne(short zeroForMissing)
{
    return zeroForMissing == -1 ? 0.0 : missingValue;
}

/// The products of two variances for which there is no correlation.
enum class NoCorrelation {
    atZero,        ///< equal to 0
    atZeroOrBelow, ///< 0 or below
    atZeroOrNaN,   ///< neither below nor above 0
};

template <NoCorrelation rule>
bool hasNoCorrelation(double product)
{
    if (rule == NoCorrelation::atZero)
        return product == 0.0;
    if (rule == NoCorrelation::atZeroOrBelow)
        return product <= 0.0;
    return !(product < 0.0) && !(product > 0.0);
}

/// Turns covariances into correlations, for j and k from j: `covariance(j, k)` is read only off the diagonal, and
/// `store(j, k, r)` receives each result before the next is computed.
template <NoCorrelation rule, class Variance, class Covariance, class Store>
void correlate(int p, double fallback, Variance variance, Covariance covariance, Store store)
{
    for (int j = 0; j < p; ++j)
        for (int k = j; k < p; ++k) {
            const double product = variance(j) * variance(k);
            if (hasNoCorrelation<rule>(product))
                store(j, k, fallback);
            else
                store(j, k, j == k ? 1.0 : covariance(j, k) / squareRoot(product));
        }
}

/// Copies cell (k, j) of a square result to cell (j, k) of its upper triangle.
template <class Cells>
void mirrorUpperTriangle(Cells result, int p)
{
    for (int j = 0; j < p; ++j)
        for (int k = j + 1; k < p; ++k)
            result.set(k, j, result.get(j, k));
}

} // namespace vecmat
