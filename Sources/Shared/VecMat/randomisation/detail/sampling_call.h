// Common frame of the calls of the sampling designs.
#pragma once

#include "../../frame/detail/borrowed_handles.h"
#include "../../frame/detail/borrowed_texts.h"
#include "../../frame/detail/handles.h"
#include "../../frame/super_matrices.h"
#include "callers_seeds.h"

namespace vecmat {

/// A caller without rows may also have no array: this gives a table without cells, which can be read and written like
/// any other. A design visits cells even if there are no rows.
inline BorrowedHandle borrowedOrEmpty(wchar_t** x, int rows, int cols)
{
    return x != nullptr ? borrowed(x, rows, cols) : freshBorrowed(0, 0);
}
inline BorrowedHandle borrowedCopyOrEmpty(wchar_t** x, int rows, int cols)
{
    return x != nullptr ? borrowedCopy(x, rows, cols) : freshBorrowed(0, 0);
}
inline TableHandle copiedOrEmpty(double* x, int rows)
{
    return x != nullptr ? copied(x, rows, 1) : fresh(0, 1);
}

/// Calls `design(population, sample, ids)` on tables over the caller's arrays: `n` rows of the sample, `p` columns, and
/// `nIds` row numbers. The sample and the row numbers are then written back; whatever the design leaves unwritten in
/// them is the caller's.
template <class Design>
void sampleFrom(BorrowedTexts* population, int p, wchar_t** Z, int n, double* ids, int nIds, Design design)
{
    const BorrowedHandle sample = borrowedCopyOrEmpty(Z, n, p);
    const TableHandle rows = copiedOrEmpty(ids, nIds);
    design(population, sample, rows);
    handBack(sample, Z); // before the numbers, since making strings may fail
    handBack(rows, ids);
}

/// The same over a population of `N` rows that the design does not write.
template <class Design>
void sampleInto(wchar_t** S, int N, int p, wchar_t** Z, int n, double* ids, int nIds, Design design)
{
    sampleFrom(borrowedOrEmpty(S, N, p), p, Z, n, ids, nIds, design);
}

/// The same over arrays of columns.
template <class Design>
void sampleInto(SAFEARRAY** S, int N, int p, SAFEARRAY** Z, int n, double* ids, int nIds, Design design)
{
    const ColumnsHandle<BorrowedTexts> population = borrowedColumns(S, p, N);
    const ColumnsHandle<BorrowedTexts> sample = borrowedColumns(Z, p, n);
    const TableHandle rows = copiedOrEmpty(ids, nIds);
    design(population, sample, rows);
    handBack(sample, p, Z);
    handBack(rows, ids);
}

/// The same, over either kind of array, for the designs that draw `n` rows in one series: their arguments are alike.
template <class Design, class Strings>
void drawInto(Design design, Strings S, int N, int p, int n, Strings Z, double* ids, int nIds, int* seed,
              short seedFlag, int* seedOut)
{
    withSeeds(seed, seedOut, [&](int& start, int& next) {
        sampleInto(S, N, p, Z, n, ids, nIds, [&](const auto& population, const auto& sample, matrix* rows) {
            design(population, N, p, n, sample, rows, &start, seedFlag, &next);
        });
    });
}

} // namespace vecmat
