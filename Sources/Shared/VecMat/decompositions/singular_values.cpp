#include "singular_values.h"

#include "../frame/cells.h"
#include "../frame/handles.h"
#include "svd_iteration.h"

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

template <class Store, class Cells>
int decompose(Store x, Cells xCells, int n, int p, matrix* s, Store u, Store v, SingularVectors wanted)
{
    matrix saved(n, p, 0.0);
    copyBlock(xCells, cells(&saved), n, p);
    const int info = SvdIteration<Store>(x, n, p, s, u, v, wanted).run();
    copyBlock(cells(&saved), xCells, n, p);
    return info;
}

} // namespace

void M_SVDecomp(matrix* x, int n, int p, matrix* s, matrix* u, matrix* v, int job, int* info)
{
    *info = 0;
    *info = decompose(TableStore(x), cells(x), n, p, s, TableStore(u), TableStore(v), SingularVectors(job, n, p));
}

void M_SVDecompSPV(matrix** x, int n, int p, matrix* s, matrix** u, matrix** v, int job, int* info)
{
    *info = 0;
    const SingularVectors wanted(job, n, p);
    // A table with more columns than rows has a value without a left vector: where cells that are no numbers let a
    // split reach it, its column does not exist.
    *info =
        decompose(ColumnStore(x, p), cells(x), n, p, s, ColumnStore(u, wanted.leftColumns), ColumnStore(v, p), wanted);
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
