#include "stratified_sampling.h"

#include "../access/block_copy.h"
#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "../sorting/copy_block.h"
#include "detail/sampled_rows.h"
#include "detail/text_samples.h"
#include "permutations.h"

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

using namespace vecmat;

namespace {

/// The seed of the next series. Each continues from the one before.
struct SeedChain
{
    int seed;
    short flag;
    int out = 0;

    void goOn() { seed = out; }
};

/// The rows of one stratum with their labels: first all of them, then those drawn. `labels` has room for the longer.
template <class Table>
struct Block
{
    TextHandle<Table> rows;
    TableHandle labels;

    Block(int size, int room, int p) : rows(new Table(size, p)), labels(fresh(room, 1)) {}
};

/// `Rows` is a table, or an array of columns.
template <class Rows>
using TableOf = std::remove_pointer_t<std::remove_pointer_t<Rows>>;

template <class Rows>
Block<TableOf<Rows>> blockOf(Rows S, matrix* rowIds, int rowsBefore, int size, int room, int p)
{
    Block<TableOf<Rows>> block(size, room, p);
    const int first = wrappingSum(rowsBefore, 1);
    const int last = wrappingSum(rowsBefore, size);
    copyCells(window(S, rowsBefore, 0), window<TableOf<Rows>>(block.rows, 0, 0), countFromTo(first, last), p);
    M_CopyBlock(rowIds, first, last, 1, 1, block.labels.reference());
    return block;
}

/// The rows with the smallest keys, in the order of their labels.
template <class Table>
Block<Table> drawnOnce(Block<Table> block, int size, int wanted, int p, SeedChain& series)
{
    TableHandle keys = fresh(size, 1);
    M_GenerateRandom01(keys.reference(), size, 1, &series.seed, series.flag, &series.out);
    sortRowsByKey<Table>(block.rows, size, p, keys, block.labels);
    sortRowsByKey<Table>(block.rows, wanted, p, block.labels, keys);
    return block;
}

template <class Table>
Block<Table> drawnWithReplacement(const Block<Table>& block, int size, int wanted, int p, SeedChain& series)
{
    Block<Table> drawn(wanted, wanted, p);
    const TableHandle positions = fresh(wanted, 1);
    drawWithReplacement<Table*>(block.rows, size, p, wanted, drawn.rows, positions, &series.seed, series.flag,
                                &series.out);
    const auto position = linear<matrix>(positions);
    const auto label = linear<matrix>(block.labels);
    const auto drawnLabel = linear<matrix>(drawn.labels);
    for (int i = 0; i < wanted; ++i)
        drawnLabel.set(i, label.get(zeroBased(truncated(position.get(i)))));
    return drawn; // NOLINT(clang-analyzer-core.StackAddressEscape): a moved handle takes its table along
}

} // namespace

template <class Rows>
void vecmat::drawByStrata(Rows S, int N, int p, int n, Rows Z, matrix* rowIds, matrix* outIds, matrix* strata,
                          matrix* quota, matrix* sizes, int nStrata, int* seed, short seedFlag, int* seedOut)
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
        const int wanted = last ? differenceOfCounts(n, done) : truncated(std::floor(quotaOf.get(k) + 0.5));
        auto block = blockOf(S, rowIds, rowsBefore, size, std::max(size, wanted), p);
        // The quota and the size as given, possibly fractions, and then the numbers of rows.
        const bool repeats = quotaOf.get(k) > sizeOf.get(k) || size < wanted;
        const auto drawn = repeats ? drawnWithReplacement(block, size, wanted, p, series)
                                   : drawnOnce(std::move(block), size, wanted, p, series);

        const auto label = linear<matrix>(drawn.labels);
        const auto outLabel = linear(outIds);
        for (int i = 1; i <= wanted; ++i) {
            copyRow(cells<TableOf<Rows>>(drawn.rows), i, cells(Z), wrappingSum(done, i), p);
            outLabel.set(zeroBased(wrappingSum(done, i)), label.get(zeroBased(i)));
        }

        if (k == 0) {
            *seed = series.seed; // the generator may have changed it
            series.flag = goOnFromSeed;
        }
        series.goOn();
        done = wrappingSum(done, wanted);
        rowsBefore = wrappingSum(rowsBefore, size);
    }
    *seedOut = series.seed;
}

template void vecmat::drawByStrata(BorrowedTexts*, int, int, int, BorrowedTexts*, matrix*, matrix*, matrix*, matrix*,
                                   matrix*, int, int*, short, int*);
template void vecmat::drawByStrata(BorrowedTexts**, int, int, int, BorrowedTexts**, matrix*, matrix*, matrix*, matrix*,
                                   matrix*, int, int*, short, int*);

void M_SamplingRandomStratifiedByStr(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* rowIds, matrix* outIds,
                                     matrix* strata, matrix* quota, matrix* sizes, int nStrata, int* seed,
                                     short seedFlag, int* seedOut)
{
    drawByStrata(S, N, p, n, Z, rowIds, outIds, strata, quota, sizes, nStrata, seed, seedFlag, seedOut);
}

void M_SamplingRandomStratifiedByStrSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* rowIds, matrix* outIds,
                                        matrix* strata, matrix* quota, matrix* sizes, int nStrata, int* seed,
                                        short seedFlag, int* seedOut)
{
    drawByStrata(S, N, p, n, Z, rowIds, outIds, strata, quota, sizes, nStrata, seed, seedFlag, seedOut);
}
