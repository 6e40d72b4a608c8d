// Common frame of the calls of the sampling designs.
#pragma once

#include "../../Smatrix.h"
#include "../../elementary/detail/texts.h"
#include "../../frame/detail/handles.h"
#include "../../frame/super_matrices.h"
#include "callers_seeds.h"

namespace vecmat {

/// A caller without rows may also have no array: this gives a table without cells, which can be read and written like
/// any other. A design visits cells even if there are no rows.
inline StringTableHandle copiedOrEmpty(wchar_t** x, int rows, int cols)
{
    return x != nullptr ? copied(x, rows, cols) : freshStrings(0, 0);
}
inline TableHandle copiedOrEmpty(double* x, int rows)
{
    return x != nullptr ? copied(x, rows, 1) : fresh(0, 1);
}

/// Calls `design(population, sample, ids)` on tables over the caller's arrays: `n` rows of the sample, `p` columns, and
/// `nIds` row numbers. The sample and the row numbers are then written back; whatever the design leaves unwritten in
/// them is the caller's.
template <class Population, class Design>
void sampleFrom(const Population& population, int p, wchar_t** Z, int n, double* ids, int nIds, Design design)
{
    const StringTableHandle sample = copiedOrEmpty(Z, n, p);
    const TableHandle rows = copiedOrEmpty(ids, nIds);
    design(population, sample, rows);
    handBack(sample, Z); // before the numbers, since making strings may fail
    handBack(rows, ids);
}

/// The same over a caller's population of `N` rows, read where it lies.
template <class Design>
void sampleInto(wchar_t** S, int N, int p, wchar_t** Z, int n, double* ids, int nIds, Design design)
{
    sampleFrom(CallerTexts(S, N, p), p, Z, n, ids, nIds, design);
}

/// The same over arrays of columns.
template <class Design>
void sampleInto(SAFEARRAY** S, int N, int p, SAFEARRAY** Z, int n, double* ids, int nIds, Design design)
{
    const ColumnsHandle<Smatrix> population = stringColumns(S, p, N);
    const ColumnsHandle<Smatrix> sample = stringColumns(Z, p, n);
    const TableHandle rows = copiedOrEmpty(ids, nIds);
    design(population, sample, rows);
    SaveSAFEARRAY(sample, p, n, Z);
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
