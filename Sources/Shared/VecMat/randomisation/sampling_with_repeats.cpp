#include "sampling_with_repeats.h"

#include "../frame/cells.h"
#include "../frame/handles.h"
#include "permutations.h"
#include "sampled_rows.h"

#include <cmath>

using namespace vecmat;

namespace {

/// `Rows` is a table, or an array of columns.
template <class Rows>
void sampleWithReplacement(Rows S, int N, int p, int n, Rows Z, matrix* ids, int* seed, short seedFlag, int* seedOut)
{
    TableHandle keys = fresh(n, 1);
    M_GenerateRandom01(keys.reference(), n, 1, seed, seedFlag, seedOut);

    const auto key = linear<matrix>(keys);
    const auto id = linear(ids);
    for (int i = 1; i <= n; ++i) {
        const double row = std::floor(key.get(zeroBased(i)) * static_cast<double>(N)) + 1.0;
        id.set(zeroBased(i), row);
        copyRow(cells(S), truncated(row), cells(Z), i, p);
    }
    sortRowsByKey(Z, n, p, ids, keys);
}

template <class Rows>
void sampleByCounts(Rows S, int N, int p, Rows Z, matrix* freq, matrix* ids)
{
    const auto count = linear(freq);
    const auto id = linear(ids);
    unsigned copies = 0;
    for (int i = 1; i <= N; ++i)
        for (int left = truncated(count.get(zeroBased(i))); left > 0; --left) {
            const int target = static_cast<int>(++copies);
            copyRow(cells(S), i, cells(Z), target, p);
            id.set(zeroBased(target), i);
        }
}

} // namespace

void M_SamplingWithReplacement(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed, short seedFlag,
                               int* seedOut)
{
    sampleWithReplacement(S, N, p, n, Z, ids, seed, seedFlag, seedOut);
}

void M_SamplingWithReplacementSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* ids, int* seed, short seedFlag,
                                  int* seedOut)
{
    sampleWithReplacement(S, N, p, n, Z, ids, seed, seedFlag, seedOut);
}

void M_SampleUserDefined(Smatrix* S, int N, int p, Smatrix* Z, matrix* freq, matrix* ids)
{
    sampleByCounts(S, N, p, Z, freq, ids);
}

void M_SampleUserDefinedSPV(Smatrix** S, int N, int p, Smatrix** Z, matrix* freq, matrix* ids)
{
    sampleByCounts(S, N, p, Z, freq, ids);
}
