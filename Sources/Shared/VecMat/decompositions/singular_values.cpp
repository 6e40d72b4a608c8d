#include "singular_values.h"

#include "../access/cells.h"
#include "../access/overlap.h"
#include "../frame/detail/handles.h"
#include "detail/strided_vector.h"
#include "detail/svd_iteration.h"
#include "detail/svd_workspace.h"

#include <algorithm>

using namespace vecmat;

namespace {

template <class From, class To>
void copyBlock(From from, To to, int rows, int cols)
{
    for (int j = 0; j < cols; ++j)
        for (int i = 0; i < rows; ++i)
            to.set(i, j, from.get(i, j));
}

/// Below this number of rows setting up a workspace costs more than it saves.
constexpr int fewestRows = 12;
constexpr int fewestColumns = 8;

/// Like `decompose`, where the order of operations is not observable.
template <class From, class Left, class Right>
bool decomposeApart(From x, int n, int p, matrix* s, PlainVector<matrix> values, Left u, Right v,
                    SingularVectors wanted, int& info)
{
    const int rowsU = wanted.left ? n : 0;
    const int rowsV = wanted.right ? p : 0;
    if (x.folds(n, p) || u.folds(rowsU, wanted.leftColumns) || v.folds(rowsV, p))
        return false;
    if (!areApart(storageOf(x, n, p), storageOf(values, std::min(n + 1, p)), storageOf(u, rowsU, wanted.leftColumns),
                  storageOf(v, rowsV, p)))
        return false;
    return decomposeInWorkspace(x, n, p, s, u, v, wanted, info);
}

/// Works on x itself, then restores it.
template <class Store, class Cells>
int decomposeInPlace(Store x, Cells xCells, int n, int p, matrix* s, Store u, Store v, SingularVectors wanted)
{
    matrix saved(n, p, 0.0);
    copyBlock(xCells, cells(&saved), n, p);
    DirectVectors<Store> left(u, n);
    DirectVectors<Store> right(v, p);
    const int info = SvdIteration<Store, DirectVectors<Store>>(x, n, p, s, left, right, wanted).run();
    copyBlock(cells(&saved), xCells, n, p);
    return info;
}

template <class Table, class Store>
int decompose(Table x, Store xStore, int n, int p, matrix* s, Table u, Store uStore, Table v, Store vStore,
              SingularVectors wanted)
{
    int info = 0;
    const bool done =
        n >= fewestRows && p >= fewestColumns &&
        onBlocksOrElse([&](auto from, auto values, auto left,
                           auto right) { return decomposeApart(from, n, p, s, values, left, right, wanted, info); },
                       [](auto...) { return false; }, block(cells(x), n, p), block(linear(s), std::min(n + 1, p)),
                       block(cells(u), wanted.left ? n : 0, wanted.leftColumns),
                       block(cells(v), wanted.right ? p : 0, p));
    return done ? info : decomposeInPlace(xStore, cells(x), n, p, s, uStore, vStore, wanted);
}

} // namespace

void M_SVDecomp(matrix* x, int n, int p, matrix* s, matrix* u, matrix* v, int job, int* info)
{
    *info = decompose(x, TableStore(x), n, p, s, u, TableStore(u), v, TableStore(v), SingularVectors(job, n, p));
}

void M_SVDecompSPV(matrix** x, int n, int p, matrix* s, matrix** u, matrix** v, int job, int* info)
{
    const SingularVectors wanted(job, n, p);
    // A table with more columns than rows has a value without a left vector: if NaN or infinite cells let a split reach
    // it, its column does not exist.
    *info =
        decompose(x, ColumnStore(x, p), n, p, s, u, ColumnStore(u, wanted.leftColumns), v, ColumnStore(v, p), wanted);
}

int M_Rank(matrix* a, int n, int p)
{
    TableHandle s = fresh(std::min(n, p), 1);
    int info = 0;
    M_SVDecomp(a, n, p, s, nullptr, nullptr, 0, &info);
    if (info < 0)
        return -1;
    int rank = 0;
    while (rank < p && s->vbget(rank + 1, 1) > zeroTolerance)
        ++rank;
    return rank;
}
