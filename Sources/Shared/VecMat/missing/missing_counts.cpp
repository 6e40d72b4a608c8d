#include "missing_counts.h"

#include "../frame/cells.h"

#include <algorithm>

using vecmat::block;
using vecmat::booleanOf;
using vecmat::cells;
using vecmat::countOf;
using vecmat::isMissing;
using vecmat::isMissingOrBelow;
using vecmat::onBlocks;
using vecmat::triangle;

namespace {

// A census is taken over `missing(i, j)`, whatever the storage and the test. Sums are unsigned, since the block that the
// caller names may have more cells than an int counts.

template <class Missing>
unsigned missingInColumn(Missing missing, int rows, int j)
{
    unsigned count = 0;
    for (int i = 0; i < rows; ++i)
        count += missing(i, j) ? 1 : 0;
    return count;
}

auto byColumn(int rows, int cols, int* counts)
{
    return [=](auto missing) {
        for (int j = 0; j < cols; ++j)
            counts[j] = static_cast<int>(missingInColumn(missing, rows, j));
    };
}

auto inAll(int rows, int cols)
{
    return [=](auto missing) {
        unsigned total = 0;
        for (int j = 0; j < cols; ++j)
            total += missingInColumn(missing, rows, j);
        return static_cast<int>(total);
    };
}

/// Takes a census of doubles by one of the two tests.
template <auto test, class Storage, class Census>
auto censusOf(Storage storage, int rows, int cols, Census census)
{
    return onBlocks([&](auto x) { return census([x](int i, int j) { return test(x.get(i, j)); }); },
                    block(storage, rows, cols));
}

/// Takes a census of strings. A place outside the table reads as an empty string, and yet none is missing there.
template <class Census>
auto censusOf(Smatrix* table, Census census)
{
    return census([table](int i, int j) {
        const unsigned k = vecmat::linearIndex(i, j, table->nRows);
        return k < table->nElems && table->X[k].empty();
    });
}

} // namespace

short IsMissingValueDbl(double x)
{
    return booleanOf(isMissingOrBelow(x));
}

short IsMissingValueStr(std::wstring s)
{
    return booleanOf(s.empty());
}

int V_NbMissing(matrix* x, int n)
{
    return M_NbMissing2(x, n, 1);
}

int V_NbMissing(Smatrix* x, int n)
{
    return M_NbMissing2(x, n, 1);
}

int V_NbNonMissing(matrix* x, int n)
{
    return n - V_NbMissing(x, n);
}

void M_NbMissing(matrix* a, int nRows, int nCols, int* counts)
{
    censusOf<isMissing>(cells(a), nRows, nCols, byColumn(nRows, nCols, counts));
}

void M_NbMissing(Smatrix* a, int nRows, int nCols, int* counts)
{
    censusOf(a, byColumn(nRows, nCols, counts));
}

int M_NbMissing(matrix** a, int nRows, int nCols)
{
    return censusOf<isMissingOrBelow>(cells(a), nRows, nCols, inAll(nRows, nCols));
}

int M_NbMissing2(matrix* a, int nRows, int nCols)
{
    return censusOf<isMissing>(cells(a), nRows, nCols, inAll(nRows, nCols));
}

int M_NbMissing2(matrix** a, int nRows, int nCols)
{
    return censusOf<isMissing>(cells(a), nRows, nCols, inAll(nRows, nCols));
}

int M_NbMissing2(Smatrix* a, int nRows, int nCols)
{
    return censusOf(a, inAll(nRows, nCols));
}

void M_NbMissingPerRow(matrix* a, int nRows, int nCols, int* counts)
{
    std::fill_n(counts, countOf(nRows), 0);
    censusOf<isMissing>(cells(a), nRows, nCols, [=](auto missing) {
        for (int j = 0; j < nCols; ++j)
            for (int i = 0; i < nRows; ++i)
                counts[i] += missing(i, j) ? 1 : 0;
    });
}

void M_NbNonMissing(matrix* a, int nRows, int nCols, int* counts)
{
    M_NbMissing(a, nRows, nCols, counts);
    const int present = nRows < 1 ? 0 : nRows;
    for (int j = 0; j < nCols; ++j)
        counts[j] = present - counts[j];
}

int M_NbMissingSPV_T(matrix** a, int n, int /*unused*/)
{
    return censusOf<isMissing>(triangle(a), n, n, [n](auto missing) {
        unsigned below = 0;
        for (int j = 0; j < n; ++j)
            for (int i = j + 1; i < n; ++i)
                below += missing(i, j) ? 1 : 0;
        return static_cast<int>(2 * below);
    });
}
