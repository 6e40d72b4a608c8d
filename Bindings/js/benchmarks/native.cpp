// The workloads of compare.js with the native library: a line for each, its name and the best time in milliseconds.
#include "VecMatFlat.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <limits>
#include <vector>

namespace {

using Cells = std::vector<double>;

// The same numbers as in compare.js, one in fifty missing where asked for.
Cells numbers(std::size_t count, bool withMissing)
{
    std::uint32_t state = 12345;
    Cells cells(count);
    for (double& cell : cells) {
        state = state * 1103515245U + 12345U;
        cell = withMissing && state % 50 == 0 ? VECMAT_MISSING : state / 4294967296.0;
    }
    return cells;
}

void timed(const char* name, const std::function<void()>& work)
{
    double best = std::numeric_limits<double>::infinity();
    for (int run = 0; run < 7; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        best = time.count() < best ? time.count() : best;
    }
    std::printf("%s\t%.4g\n", name, best);
}

} // namespace

int main()
{
    constexpr int n = 1000000;
    Cells vector = numbers(n, true);
    Cells ones(n, 1.0);
    timed("mean of 1e6, 2 % missing", [&] { VB_V_Mean2(vector.data(), n); });
    timed("variance of 1e6, 2 % missing", [&] { VB_V_Var(vector.data(), n, nullptr, ones.data(), -1, -1); });
    timed("median of 1e6, 2 % missing", [&] { VB_V_QuantileM(vector.data(), n, nullptr, 0.5); });
    timed("sort of 1e6", [&] {
        Cells copy = vector;
        VB_SortQVectorDbl(copy.data(), n, 1, n, 0);
    });

    constexpr int rows = 20000;
    constexpr int cols = 20;
    Cells table = numbers(std::size_t{rows} * cols, false);
    Cells out(std::size_t{512} * 512);
    Cells weights(rows, 1.0);
    timed("correlations, 20000 by 20",
          [&] { VB_M_CovCorr(table.data(), rows, cols, out.data(), -1, nullptr, weights.data(), -1, -1); });

    Cells square = numbers(std::size_t{512} * 512, false);
    timed("product, order 512", [&] { VB_M_ProductAB(square.data(), 512, 512, square.data(), 512, out.data()); });
    timed("inverse, order 200", [&] { VB_M_Inverse1(square.data(), 200, out.data(), 0.0); });

    constexpr int order = 200;
    Cells symmetric(std::size_t{order} * order);
    for (int i = 0; i < order; ++i)
        for (int j = 0; j < order; ++j)
            symmetric[i + order * j] = square[i + order * j] + square[j + order * i];
    Cells eigenvalues(order);
    timed("eigenvalues and vectors, order 200",
          [&] { VB_M_Eigen(symmetric.data(), eigenvalues.data(), out.data(), order, -1); });
}
