#include "stratified_sampling.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../elementary/blocks.h"
#include "../frame/detail/handles.h"
#include "../sorting/copy_block.h"
#include "detail/sampled_rows.h"
#include "permutations.h"
#include "sampling_with_repeats.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace vecmat;

namespace {

/// Sums that wrap if a caller's sizes are out of bounds.
constexpr int sum(int a, int b)
{
    return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}
constexpr int difference(int a, int b)
{
    return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

/// The seed of the next series. Each continues from the one before.
struct SeedChain
{
    int seed;
    short flag;
    int out = 0;

    void goOn() { seed = out; }
};

/// The rows of one stratum with their labels: first all of them, then those drawn. `labels` has room for the longer.
struct Block
{
    StringTableHandle rows;
    TableHandle labels;
};

template <class Rows>
Block blockOf(Rows S, matrix* rowIds, int rowsBefore, int size, int room, int p)
{
    Block block{freshStrings(size, p), fresh(room, 1)};
    const int first = sum(rowsBefore, 1);
    const int last = sum(rowsBefore, size);
    M_CopyBlock(S, first, last, 1, p, block.rows.reference());
    M_CopyBlock(rowIds, first, last, 1, 1, block.labels.reference());
    return block;
}

/// The rows with the smallest keys, in the order of their labels.
Block drawnOnce(Block block, int size, int wanted, int p, SeedChain& series)
{
    TableHandle keys = fresh(size, 1);
    M_GenerateRandom01(keys.reference(), size, 1, &series.seed, series.flag, &series.out);
    sortRowsByKey(block.rows, size, p, keys, block.labels);
    sortRowsByKey(block.rows, wanted, p, block.labels, keys);
    return block;
}

Block drawnWithReplacement(const Block& block, int size, int wanted, int p, SeedChain& series)
{
    Block drawn{freshStrings(wanted, p), fresh(wanted, 1)};
    const TableHandle positions = fresh(wanted, 1);
    M_SamplingWithReplacement(block.rows, size, p, wanted, drawn.rows, positions, &series.seed, series.flag,
                              &series.out);
    const auto position = linear<matrix>(positions);
    const auto label = linear<matrix>(block.labels);
    const auto drawnLabel = linear<matrix>(drawn.labels);
    for (int i = 0; i < wanted; ++i)
        drawnLabel.set(i, label.get(zeroBased(truncated(position.get(i)))));
    return drawn; // NOLINT(clang-analyzer-core.StackAddressEscape): a moved handle takes its table along
}

/// `Rows` is a table, or an array of columns.
template <class Rows>
void sampleByStratum(Rows S, int N, int p, int n, Rows Z, matrix* rowIds, matrix* outIds, matrix* strata, matrix* quota,
                     matrix* sizes, int nStrata, int* seed, short seedFlag, int* seedOut)
{
    constexpr short goOnFromSeed = -1;
    const auto quotaOf = linear(quota);
    const auto sizeOf = linear(sizes);

    sortRowsByKey(S, N, p, strata, rowIds);

    SeedChain series{*seed, seedFlag};
    int done = 0;
    int rowsBefore = 0;
    for (int k = 0; k < nStrata; ++k) {
        const int size = truncated(sizeOf.get(k));
        const bool last = k == nStrata - 1;
        const int wanted = last ? difference(n, done) : truncated(std::floor(quotaOf.get(k) + 0.5));
        Block block = blockOf(S, rowIds, rowsBefore, size, std::max(size, wanted), p);
        // The quota and the size as given, possibly fractions, and then the numbers of rows.
        const bool repeats = quotaOf.get(k) > sizeOf.get(k) || size < wanted;
        const Block drawn = repeats ? drawnWithReplacement(block, size, wanted, p, series)
                                    : drawnOnce(std::move(block), size, wanted, p, series);

        const auto label = linear<matrix>(drawn.labels);
        const auto outLabel = linear(outIds);
        for (int i = 1; i <= wanted; ++i) {
            copyRow(cells<Smatrix>(drawn.rows), i, cells(Z), sum(done, i), p);
            outLabel.set(zeroBased(sum(done, i)), label.get(zeroBased(i)));
        }

        if (k == 0) {
            *seed = series.seed; // the generator may have changed it
            series.flag = goOnFromSeed;
        }
        series.goOn();
        done = sum(done, wanted);
        rowsBefore = sum(rowsBefore, size);
    }
    *seedOut = series.seed;
}

} // namespace

void M_SamplingRandomStratifiedByStr(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* rowIds, matrix* outIds,
                                     matrix* strata, matrix* quota, matrix* sizes, int nStrata, int* seed,
                                     short seedFlag, int* seedOut)
{
    sampleByStratum(S, N, p, n, Z, rowIds, outIds, strata, quota, sizes, nStrata, seed, seedFlag, seedOut);
}

void M_SamplingRandomStratifiedByStrSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* rowIds, matrix* outIds,
                                        matrix* strata, matrix* quota, matrix* sizes, int nStrata, int* seed,
                                        short seedFlag, int* seedOut)
{
    sampleByStratum(S, N, p, n, Z, rowIds, outIds, strata, quota, sizes, nStrata, seed, seedFlag, seedOut);
}
