#include "moment_kernels.h"

#include "../../frame/missing_value.h"
#include "tile_shape.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

constexpr int lanes = MomentKernels::lanes;
constexpr int vectors = lanes / laneCount;

/// `value` in the lanes that the comparison `where` holds in, else `otherwise`.
template <class Where>
Lanes select(Where where, Lanes value, Lanes otherwise)
{
    return where ? value : otherwise;
}

// ---- means and variances --------------------------------------------------------------------------------------------

/// The running moments of the lanes of one vector.
struct MomentLanes
{
    Lanes weights;
    Lanes rows;
    Lanes mean;
    Lanes squares;

    void add(Lanes x, double w)
    {
        const auto present = x != inEachLane(missingValue);
        weights = select(present, weights + w, weights);
        rows = select(present, rows + 1.0, rows);
        if (w == 0.0)
            return;
        const Lanes d = x - mean;
        squares = select(present, squares + d * d * (w - w * w / weights), squares);
        mean = select(present, mean + d * w / weights, mean);
    }
};

template <int strips>
void addMomentsOf(int count, const double* cells, std::ptrdiff_t strip, const double* w,
                  MomentKernels::Moments* moments)
{
    MomentLanes state[strips][vectors];
    for (int s = 0; s < strips; ++s)
        for (int v = 0; v < vectors; ++v)
            state[s][v] = {load(moments[s].weights + v * laneCount), load(moments[s].rows + v * laneCount),
                           load(moments[s].mean + v * laneCount), load(moments[s].squares + v * laneCount)};
    for (int i = 0; i < count; ++i)
        for (int s = 0; s < strips; ++s)
            for (int v = 0; v < vectors; ++v)
                state[s][v].add(load(cells + s * strip + i * std::ptrdiff_t{lanes} + v * laneCount), w[i]);
    for (int s = 0; s < strips; ++s)
        for (int v = 0; v < vectors; ++v) {
            store(moments[s].weights + v * laneCount, state[s][v].weights);
            store(moments[s].rows + v * laneCount, state[s][v].rows);
            store(moments[s].mean + v * laneCount, state[s][v].mean);
            store(moments[s].squares + v * laneCount, state[s][v].squares);
        }
}

void addMoments(int count, const double* cells, std::ptrdiff_t strip, int strips, const double* w,
                MomentKernels::Moments* moments)
{
    if (strips == 2)
        addMomentsOf<2>(count, cells, strip, w, moments);
    else
        addMomentsOf<1>(count, cells, strip, w, moments);
}

// ---- deviations from the running means ------------------------------------------------------------------------------

void deviations(int count, double* panel, const double* w, const double* W, double* mean)
{
    Lanes means[tileVectors];
    for (int v = 0; v < tileVectors; ++v)
        means[v] = load(mean + v * laneCount);
    for (int i = 0; i < count; ++i, panel += tileRows)
        for (int v = 0; v < tileVectors; ++v) {
            const Lanes d = load(panel + v * laneCount) - means[v];
            store(panel + v * laneCount, d);
            means[v] += d * w[i] / W[i];
        }
    for (int v = 0; v < tileVectors; ++v)
        store(mean + v * laneCount, means[v]);
}

void scale(int count, const double* panel, const double* factors, double* to)
{
    for (int i = 0; i < count; ++i, panel += tileRows, to += tileCols)
        for (int c = 0; c < tileCols; c += laneCount)
            store(to + c, factors[i] * load(panel + c));
}

// ---- pairs ----------------------------------------------------------------------------------------------------------

struct PairLanes
{
    Lanes weights;
    Lanes rows;
    Lanes meanX;
    Lanes meanY;
    Lanes products;
    Lanes squaresX;
    Lanes squaresY;
};

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

template <class Rule>
void addPairs(int count, const double* x, const double* y, const double* w, MomentKernels::Pairs* pairs)
{
    PairLanes state[vectors];
    for (int v = 0; v < vectors; ++v) {
        const int at = v * laneCount;
        state[v] = {load(pairs->weights + at), load(pairs->rows + at),     load(pairs->meanX + at),
                    load(pairs->meanY + at),   load(pairs->products + at), load(pairs->squaresX + at),
                    load(pairs->squaresY + at)};
    }
    for (int i = 0; i < count; ++i) {
        if (x[i] == missingValue)
            continue;
        for (int v = 0; v < vectors; ++v) {
            PairLanes& sums = state[v];
            const Lanes cell = load(y + i * std::ptrdiff_t{lanes} + v * laneCount);
            const auto present = cell != inEachLane(missingValue);
            sums.weights = select(present, sums.weights + w[i], sums.weights);
            sums.rows = select(present, sums.rows + 1.0, sums.rows);
            if (w[i] == 0.0)
                continue;
            const Lanes dx = x[i] - sums.meanX;
            const Lanes dy = cell - sums.meanY;
            Rule::grow(sums, present, dx, dy, w[i] - w[i] * w[i] / sums.weights);
            sums.meanX = select(present, sums.meanX + dx * w[i] / sums.weights, sums.meanX);
            sums.meanY = select(present, sums.meanY + dy * w[i] / sums.weights, sums.meanY);
        }
    }
    for (int v = 0; v < vectors; ++v) {
        const int at = v * laneCount;
        store(pairs->weights + at, state[v].weights);
        store(pairs->rows + at, state[v].rows);
        store(pairs->meanX + at, state[v].meanX);
        store(pairs->meanY + at, state[v].meanY);
        store(pairs->products + at, state[v].products);
        store(pairs->squaresX + at, state[v].squaresX);
        store(pairs->squaresY + at, state[v].squaresY);
    }
}

} // namespace

const MomentKernels momentKernels = {
    addMoments, deviations, scale, addPairs<Covariance>, addPairs<CovarianceOfMagnitude>, addPairs<Correlation>};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
