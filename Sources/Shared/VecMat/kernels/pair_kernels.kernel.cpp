#include "pair_kernels.h"

#include "../base/missing_value.h"
#include "lanes.h"
#include "quotients.h"

#include <type_traits>

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

constexpr int lanes = PairKernels::lanes;
/// Vectors worked on at once. Of two lanes each, the sums of more than two don't stay in the registers; where quotients are
/// divisions, all the same, as a row waits long for the previous one.
constexpr bool quotientsAreQuick = !std::is_same_v<QuickDivision, Division>;
constexpr int vectors = laneCount == 2 && quotientsAreQuick ? 2 : lanes / laneCount;
constexpr int lanesAtOnce = vectors * laneCount;

/// `value` in the lanes where the comparison `where` holds, otherwise `otherwise`.
template <class Where>
Lanes select(Where where, Lanes value, Lanes otherwise)
{
    return where ? value : otherwise;
}

/// The pairs of one vector.
struct PairLanes
{
    Lanes weights;
    Lanes rows;
    Lanes meanX;
    Lanes meanY;
    Lanes products;
    Lanes squaresX;
    Lanes squaresY;

    PairLanes() = default;
    PairLanes(const PairKernels::Pairs& pairs, int at)
        : weights(load(pairs.weights + at)), rows(load(pairs.rows + at)), meanX(load(pairs.meanX + at)),
          meanY(load(pairs.meanY + at)), products(load(pairs.products + at)), squaresX(load(pairs.squaresX + at)),
          squaresY(load(pairs.squaresY + at))
    {
    }
    void writeTo(PairKernels::Pairs& pairs, int at) const
    {
        store(pairs.weights + at, weights);
        store(pairs.rows + at, rows);
        store(pairs.meanX + at, meanX);
        store(pairs.meanY + at, meanY);
        store(pairs.products + at, products);
        store(pairs.squaresX + at, squaresX);
        store(pairs.squaresY + at, squaresY);
    }
};

// ---- what a row adds to the sums of a pair --------------------------------------------------------------------------

struct Covariance
{
    template <class Present>
    static void grow(PairLanes& sums, Present present, Lanes dx, Lanes dy, Lanes f)
    {
        sums.products = select(present, sums.products + f * dx * dy, sums.products);
    }
};

struct CovarianceOfMagnitude
{
    template <class Present>
    static void grow(PairLanes& sums, Present present, Lanes dx, Lanes dy, Lanes f)
    {
        Covariance::grow(sums, present, dx, dy, select(f <= 0.0, 0.0 - f, f));
    }
};

struct Correlation
{
    template <class Present>
    static void grow(PairLanes& sums, Present present, Lanes dx, Lanes dy, Lanes f)
    {
        sums.squaresX = select(present, sums.squaresX + dx * dx * f, sums.squaresX);
        sums.squaresY = select(present, sums.squaresY + dy * dy * f, sums.squaresY);
        sums.products = select(present, sums.products + dx * dy * f, sums.products);
    }
};

// ---- the rows -------------------------------------------------------------------------------------------------------

template <class Rule, class Divide>
void addRow(PairLanes& sums, Lanes x, Lanes y, double w, typename Divide::Numerators& numerators)
{
    const auto present = y != inEachLane(missingValue);
    sums.weights = select(present, sums.weights + w, sums.weights);
    sums.rows = select(present, sums.rows + 1.0, sums.rows);
    if (w == 0.0)
        return;
    const Divide byWeights(sums.weights);
    const Lanes dx = x - sums.meanX;
    const Lanes dy = y - sums.meanY;
    Rule::grow(sums, present, dx, dy, w - byWeights.of(inEachLane(w * w)));
    numerators.watch(dx * w);
    numerators.watch(dy * w);
    sums.meanX = select(present, sums.meanX + byWeights.of(dx * w), sums.meanX);
    sums.meanY = select(present, sums.meanY + byWeights.of(dy * w), sums.meanY);
}

/// Takes the lanes from `first` on. Returns false, having done nothing, if a quotient may be wrong.
template <class Rule, class Divide, int strips>
bool addRows(int count, const double* x, const double* y, std::ptrdiff_t strip, const double* w,
             PairKernels::Pairs* pairs, int first)
{
    if (!Divide::admitsWeights(count, w))
        return false;
    PairLanes sums[strips][vectors];
    for (int s = 0; s < strips; ++s)
        for (int v = 0; v < vectors; ++v)
            sums[s][v] = PairLanes(pairs[s], first + v * laneCount);
    y += first;
    typename Divide::Numerators numerators;
    for (int i = 0; i < count; ++i, y += lanes) {
        if (x[i] == missingValue)
            continue;
#pragma GCC unroll 2
        for (int s = 0; s < strips; ++s)
#pragma GCC unroll 4
            for (int v = 0; v < vectors; ++v)
                addRow<Rule, Divide>(sums[s][v], inEachLane(x[i]), load(y + s * strip + v * laneCount), w[i],
                                     numerators);
    }
    if (!numerators.areModerate())
        return false;
    for (int s = 0; s < strips; ++s)
        for (int v = 0; v < vectors; ++v)
            if (!Divide::admitsResult(sums[s][v].meanX) || !Divide::admitsResult(sums[s][v].meanY))
                return false;
    for (int s = 0; s < strips; ++s)
        for (int v = 0; v < vectors; ++v)
            sums[s][v].writeTo(pairs[s], first + v * laneCount);
    return true;
}

template <class Rule, int strips>
void addPairs(int count, const double* x, const double* y, std::ptrdiff_t strip, const double* w,
              PairKernels::Pairs* pairs)
{
    for (int first = 0; first < lanes; first += lanesAtOnce)
        if (!addRows<Rule, QuickDivision, strips>(count, x, y, strip, w, pairs, first))
            addRows<Rule, Division, strips>(count, x, y, strip, w, pairs, first);
}

/// Two strips at once if one is not enough to fill the time that a row waits for the previous one.
template <class Rule>
void addPairs(int count, const double* x, const double* y, std::ptrdiff_t strip, int strips, const double* w,
              PairKernels::Pairs* pairs)
{
    constexpr int atOnce = vectors == 1 ? 2 : 1;
    int s = 0;
    for (; s <= strips - atOnce; s += atOnce)
        addPairs<Rule, atOnce>(count, x, y + s * strip, strip, w, pairs + s);
    for (; s < strips; ++s)
        addPairs<Rule, 1>(count, x, y + s * strip, strip, w, pairs + s);
}

} // namespace

const PairKernels pairKernels = {addPairs<Covariance>, addPairs<CovarianceOfMagnitude>, addPairs<Correlation>};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
