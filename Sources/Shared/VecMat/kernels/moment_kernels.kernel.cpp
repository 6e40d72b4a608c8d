#include "moment_kernels.h"

#include "../base/missing_value.h"
#include "lanes.h"
#include "quotients.h"
#include "tile_shape.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

// ---- means and variances --------------------------------------------------------------------------------------------

/// A row waits for the division of the previous row: as many columns as possible share the wait. Vectors of four have a
/// shorter wait than longer ones, and a divider takes no longer for two of them than for one of eight.
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
    // The places after the last column repeat its cells.
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

/// Uses the smallest number of groups that holds all columns.
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

inline Lanes lanesOf(const double* const* cells, int i)
{
#if defined(__AVX512F__)
    return Lanes{cells[0][i], cells[1][i], cells[2][i], cells[3][i],
                 cells[4][i], cells[5][i], cells[6][i], cells[7][i]};
#else
    return rowOf(cells, i);
#endif
}

enum class Outcome { done, missingCell, doubtfulQuotient };

template <class Divide>
Outcome deviationsBy(int count, const double* const* cells, const double* w, const double* W, const double* reciprocals,
                     double* mean, double* panel)
{
    Lanes means[tileVectors];
    for (int v = 0; v < tileVectors; ++v)
        means[v] = load(mean + v * laneCount);
    auto missing = Lanes{} != Lanes{};
    typename Divide::Numerators numerators;
    for (int i = 0; i < count; ++i, panel += tileRows) {
        const Divide byWeights(inEachLane(W[i]), inEachLane(reciprocals[i]));
#pragma GCC unroll 4
        for (int v = 0; v < tileVectors; ++v) {
            const Lanes x = lanesOf(cells + v * laneCount, i);
            missing |= x == inEachLane(missingValue);
            const Lanes d = x - means[v];
            store(panel + v * laneCount, d);
            numerators.watch(d * w[i]);
            means[v] += byWeights.of(d * w[i]);
        }
    }
    for (int lane = 0; lane < laneCount; ++lane)
        if (missing[lane] != 0)
            return Outcome::missingCell;
    bool admitted = numerators.areModerate();
    for (int v = 0; v < tileVectors; ++v)
        admitted = admitted && Divide::admitsResult(means[v]);
    if (!admitted)
        return Outcome::doubtfulQuotient;
    for (int v = 0; v < tileVectors; ++v)
        store(mean + v * laneCount, means[v]);
    return Outcome::done;
}

bool deviations(int count, int columns, const double* const* cells, const double* w, const double* W,
                const double* reciprocals, double* mean, double* panel)
{
    const double* eachPlace[tileRows];
    for (int c = 0; c < tileRows; ++c)
        eachPlace[c] = cells[c < columns ? c : columns - 1];
    Outcome outcome = Outcome::doubtfulQuotient;
    if (QuickDivision::admitsWeights(count, w) && QuickDivision::admitsWeights(count, W))
        outcome = deviationsBy<QuickDivision>(count, eachPlace, w, W, reciprocals, mean, panel);
    if (outcome == Outcome::doubtfulQuotient)
        outcome = deviationsBy<Division>(count, eachPlace, w, W, reciprocals, mean, panel);
    return outcome == Outcome::done;
}

void scale(int count, const double* panel, const double* factors, double* to)
{
    for (int i = 0; i < count; ++i, panel += tileRows, to += tileCols)
        for (int c = 0; c < tileCols; c += laneCount)
            store(to + c, factors[i] * load(panel + c));
}

} // namespace

const MomentKernels momentKernels = {add<Sums::meanAndSquares>, add<Sums::mean>, deviations, scale};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
