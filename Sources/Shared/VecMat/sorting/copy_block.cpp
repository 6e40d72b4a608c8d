#include "copy_block.h"

#include "../frame/cells.h"

#include <algorithm>
#include <functional>

namespace {

using namespace vecmat;

/// Number of the row or column k places behind `first`, 0-based; wraps, and then fails every check.
int behind(int first, long long k)
{
    return static_cast<int>(static_cast<unsigned>(first) - 1u + static_cast<unsigned>(k));
}

template <class Table>
bool insideColumns(const Table& table, int r1, int r2, int c1, int c2)
{
    return r1 >= 1 && r2 <= table.nRows && c1 >= 1 && c2 <= table.nCols;
}

template <class Table>
bool disjoint(const Table& a, const Table& b)
{
    const std::less_equal<> upTo;
    return upTo(a.X + a.nElems, b.X) || upTo(b.X + b.nElems, a.X);
}

/// Is the result the same in whatever order the cells are copied?
template <class Table>
bool orderIsFree(const Table& src, int r1, int r2, int c1, int c2, const Table& dst)
{
    return insideColumns(src, r1, r2, c1, c2) && r2 - r1 < dst.nRows && c2 - c1 < dst.nCols && disjoint(src, dst);
}

template <class Table>
int copyBlock(Table* src, int r1, int r2, int c1, int c2, Table* dst)
{
    if (r2 < r1 || c2 < c1)
        return 0;
    const auto from = cells(src);
    const auto to = cells(dst);
    if (orderIsFree(*src, r1, r2, c1, c2, *dst)) {
        for (int j = c1; j <= c2; ++j)
            std::copy_n(from.plain().column(j - 1) + (r1 - 1), r2 - r1 + 1, to.plain().column(j - c1));
        return 0;
    }
    const long long rows = static_cast<long long>(r2) - r1 + 1;
    const long long cols = static_cast<long long>(c2) - c1 + 1;
    for (long long i = 0; i < rows; ++i)
        for (long long j = 0; j < cols; ++j)
            to.set(static_cast<int>(i), static_cast<int>(j), from.get(behind(r1, i), behind(c1, j)));
    return 0;
}

} // namespace

int M_CopyBlock(matrix* src, int r1, int r2, int c1, int c2, matrix*& dst)
{
    return copyBlock(src, r1, r2, c1, c2, dst);
}

int M_CopyBlock(matrixInt* src, int r1, int r2, int c1, int c2, matrixInt*& dst)
{
    return copyBlock(src, r1, r2, c1, c2, dst);
}

int M_CopyBlock(Smatrix* src, int r1, int r2, int c1, int c2, Smatrix*& dst)
{
    return copyBlock(src, r1, r2, c1, c2, dst);
}
