#include "sampling_with_repeats.h"

#include "../access/cells.h"
#include "../base/detail/memory_ranges.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"
#include "../sorting/sort.h"
#include "detail/sampled_rows.h"
#include "detail/text_samples.h"
#include "permutations.h"

#include <cmath>

using namespace vecmat;

namespace {

template <class Table>
void addMemory(Table* table, int /*cols*/, MemoryRanges& ranges)
{
    ranges.add(memoryOf(table->X, table->nElems));
}
template <class Table>
void addMemory(Table** columns, int cols, MemoryRanges& ranges)
{
    for (int j = 0; j < cols; ++j)
        ranges.add(memoryOf(columns[j]->X, columns[j]->nElems));
}

/// Does each row of the sample have cells of its own, none of them in the population? Then everything read is the
/// population's original contents, and the order in which the rows are written does not matter.
template <class Rows>
bool rowsAreApart(Rows S, Rows Z, int n, int p)
{
    if (p < 1 || n < 1 || !cells(Z).covers(n, p) || cells(Z).plain().folds(n, p))
        return false;
    MemoryRanges ranges;
    addMemory(S, p, ranges);
    addMemory(Z, p, ranges);
    return ranges.areApart();
}

} // namespace

template <class Rows>
void vecmat::drawWithReplacement(Rows S, int N, int p, int n, Rows Z, matrix* ids, int* seed, short seedFlag,
                                 int* seedOut)
{
    TableHandle keys;
    M_GenerateRandom01(keys.reference(), n, 1, seed, seedFlag, seedOut);

    const auto key = linear<matrix>(keys);
    const auto id = linear(ids);
    const auto rowDrawn = [=](int i) { return std::floor(key.get(zeroBased(i)) * static_cast<double>(N)) + 1.0; };
    for (int i = 1; i <= n; ++i)
        id.set(zeroBased(i), rowDrawn(i));
    // Usually the numbers are sorted alone, so that no string is moved once it is copied.
    if (id.covers(n) && rowsAreApart(S, Z, n, p)) {
        SortQVector(ids, n, 1, n, sortAscending);
        for (int i = 1; i <= n; ++i)
            copyRow(cells(S), truncated(id.get(zeroBased(i))), cells(Z), i, p);
        return;
    }
    for (int i = 1; i <= n; ++i)
        copyRow(cells(S), truncated(rowDrawn(i)), cells(Z), i, p);
    sortRowsByKey(Z, n, p, ids, keys);
}

template <class Rows>
void vecmat::takeByCounts(Rows S, int N, int p, Rows Z, matrix* freq, matrix* ids)
{
    const auto count = linear(freq);
    const auto id = linear(ids);
    unsigned copies = 0;
    for (int i = 0; i < N; ++i)
        for (int left = truncated(count.get(i)); left > 0; --left) {
            const int target = static_cast<int>(++copies);
            copyRow(cells(S), i + 1, cells(Z), target, p);
            id.set(zeroBased(target), i + 1.0);
        }
}

template void vecmat::drawWithReplacement(Smatrix*, int, int, int, Smatrix*, matrix*, int*, short, int*);
template void vecmat::drawWithReplacement(BorrowedTexts*, int, int, int, BorrowedTexts*, matrix*, int*, short, int*);
template void vecmat::drawWithReplacement(BorrowedTexts**, int, int, int, BorrowedTexts**, matrix*, int*, short, int*);
template void vecmat::takeByCounts(BorrowedTexts*, int, int, BorrowedTexts*, matrix*, matrix*);
template void vecmat::takeByCounts(BorrowedTexts**, int, int, BorrowedTexts**, matrix*, matrix*);

void M_SamplingWithReplacement(Smatrix* S, int N, int p, int n, Smatrix* Z, matrix* ids, int* seed, short seedFlag,
                               int* seedOut)
{
    drawWithReplacement(S, N, p, n, Z, ids, seed, seedFlag, seedOut);
}

void M_SamplingWithReplacementSPV(Smatrix** S, int N, int p, int n, Smatrix** Z, matrix* ids, int* seed, short seedFlag,
                                  int* seedOut)
{
    drawWithReplacement(S, N, p, n, Z, ids, seed, seedFlag, seedOut);
}

void M_SampleUserDefined(Smatrix* S, int N, int p, Smatrix* Z, matrix* freq, matrix* ids)
{
    takeByCounts(S, N, p, Z, freq, ids);
}

void M_SampleUserDefinedSPV(Smatrix** S, int N, int p, Smatrix** Z, matrix* freq, matrix* ids)
{
    takeByCounts(S, N, p, Z, freq, ids);
}
