#include "missing_kernels.h"

#include "../base/missing_value.h"
#include "lanes.h"

namespace vecmat::VECMAT_INSTRUCTION_SET {

namespace {

/// The result of comparing lanes: -1 where it holds, otherwise 0.
using Answers = decltype(Lanes() == Lanes());

template <class Test>
std::size_t countWhere(Test test, const double* x, std::size_t n)
{
    constexpr std::size_t vectors = 4;
    constexpr std::size_t width = laneCount;
    Answers found[vectors] = {};
    std::size_t i = 0;
    for (; i + vectors * width <= n; i += vectors * width)
#pragma GCC unroll 4
        for (std::size_t v = 0; v < vectors; ++v)
            found[v] -= test(load(x + i + v * width));
    Answers sum = found[0] + found[1] + found[2] + found[3];
    std::size_t total = 0;
    for (std::size_t lane = 0; lane < width; ++lane)
        total += static_cast<std::size_t>(sum[lane]);
    for (; i < n; ++i)
        total += static_cast<std::size_t>(-test(inEachLane(x[i]))[0]);
    return total;
}

std::size_t count(const double* x, std::size_t n)
{
    return countWhere([](Lanes cells) { return cells == inEachLane(missingValue); }, x, n);
}

std::size_t countOrBelow(const double* x, std::size_t n)
{
    return countWhere([](Lanes cells) { return inEachLane(missingValue) >= cells; }, x, n);
}

void addByRow(const double* x, std::size_t n, int* counts)
{
    for (std::size_t i = 0; i < n; ++i)
        counts[i] += x[i] == missingValue ? 1 : 0;
}

} // namespace

const MissingKernels missingKernels = {count, countOrBelow, addByRow};

} // namespace vecmat::VECMAT_INSTRUCTION_SET
