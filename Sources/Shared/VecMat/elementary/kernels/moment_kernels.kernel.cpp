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

/// A row waits for the division of the row before: as many columns as possible share the wait. Vectors of four wait less
/// for it than longer ones, and a divider takes no longer for two of them than for one of eight.
#if defined(__AVX__)
constexpr int groupWidth = 4;
#else
constexpr int groupWidth = 2;
#endif
using Group [[gnu::vector_size(groupWidth * sizeof(double))]] = double;

inline Group rowOf(const double* const* cells, int i)
{
#if defined(__AVX__)
    return Group{cells[0][i], cells[1][i], cells[2][i], cells[3][i]};
#else
    return Group{cells[0][i], cells[1][i]};
#endif
}

enum class Sums { mean, meanAndSquares };

/// The running moments of the columns of one group.
template <Sums sums>
struct GroupMoments
{
    Group weights;
    Group rows;
    Group mean;
    Group squares;

    void add(Group x, double w)
    {
        const auto present = x != missingValue - Group{};
        weights = present ? weights + w : weights;
        rows = present ? rows + 1.0 : rows;
        if (w == 0.0)
            return;
        const Group d = x - mean;
        if constexpr (sums == Sums::meanAndSquares)
            squares = present ? squares + d * d * (w - w * w / weights) : squares;
        mean = present ? mean + d * w / weights : mean;
    }
};

template <Sums sums, int groups>
void addInGroups(int count, int columns, const double* const* cells, const double* w, MomentKernels::Moments* moments)
{
    // The places behind the last column see its cells once more.
    const double* eachPlace[groups * groupWidth];
    for (int c = 0; c < groups * groupWidth; ++c)
        eachPlace[c] = cells[c < columns ? c : columns - 1];
    GroupMoments<sums> state[groups];
    const auto copy = [](auto& to, const auto& from) { __builtin_memcpy(&to, &from, sizeof(Group)); };
    for (int g = 0; g < groups; ++g) {
        copy(state[g].weights, moments->weights[g * groupWidth]);
        copy(state[g].rows, moments->rows[g * groupWidth]);
        copy(state[g].mean, moments->mean[g * groupWidth]);
        copy(state[g].squares, moments->squares[g * groupWidth]);
    }
    for (int i = 0; i < count; ++i)
#pragma GCC unroll 8
        for (int g = 0; g < groups; ++g)
            state[g].add(rowOf(eachPlace + g * groupWidth, i), w[i]);
    for (int g = 0; g < groups; ++g) {
        copy(moments->weights[g * groupWidth], state[g].weights);
        copy(moments->rows[g * groupWidth], state[g].rows);
        copy(moments->mean[g * groupWidth], state[g].mean);
        copy(moments->squares[g * groupWidth], state[g].squares);
    }
}

/// Takes as few groups as hold all columns.
template <Sums sums, int groups = MomentKernels::mostColumns / groupWidth>
void add(int count, int columns, const double* const* cells, const double* w, MomentKernels::Moments* moments)
{
    if constexpr (groups > 1) {
        if (columns <= (groups - 1) * groupWidth)
            return add<sums, groups - 1>(count, columns, cells, w, moments);
    }
    addInGroups<sums, groups>(count, columns, cells, w, moments);
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
    add<Sums::meanAndSquares>,       add<Sums::mean>,      deviations, scale, addPairs<Covariance>,
    addPairs<CovarianceOfMagnitude>, addPairs<Correlation>};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
