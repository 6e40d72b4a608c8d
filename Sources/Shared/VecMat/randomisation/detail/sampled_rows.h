// Shared by the sampling designs: how a row gets from the population into the sample, and how rows are sorted.
#pragma once

#include "../../base/detail/numbers.h"
#include "../../matrix.h"
#include "../../sorting/detail/borrowed_rows.h"
#include "../../sorting/sort.h"

namespace vecmat {

/// Copies the first `p` cells of row `from` of the population to row `to` of the sample, both 1-based. Their storages
/// may differ; reads and writes are those of the accessors, so that beyond a plain table a row runs into the next
/// column, and beyond the columns of an array it is empty, or dropped.
template <class Population, class Sample>
void copyRow(Population population, int from, Sample sample, int to, int p)
{
    for (int j = 0; j < p; ++j)
        sample.set(zeroBased(to), j, population.get(zeroBased(from), j));
}

constexpr short sortAscending = 0;
constexpr short writeSortedKeys = -1;

/// Sorts rows 1 to `n` by their keys, ascending and stably; the keys come back sorted, and `carried`, of one column,
/// moves with the rows.
template <class Table>
void sortRowsByKey(Table* rows, int n, int p, matrix* key, matrix* carried)
{
    SortQ(rows, n, p, 1, n, key, carried, 1, sortAscending, writeSortedKeys);
}

template <class Table>
void sortRowsByKey(Table** rows, int n, int p, matrix* key, matrix* carried)
{
    // To the sort, 0 columns of strings mean one. An array of none has no first table to read.
    constexpr int noColumns = -1;
    SortQ(rows, n, p == 0 ? noColumns : p, 1, n, key, carried, 1, sortAscending, writeSortedKeys);
}

} // namespace vecmat
