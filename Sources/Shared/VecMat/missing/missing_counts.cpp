#include "missing_counts.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../elementary/detail/texts.h"
#include "../kernels/missing_kernels.h"
#include "detail/text_calls.h"

#include <algorithm>

using vecmat::block;
using vecmat::booleanOf;
using vecmat::CallerTexts;
using vecmat::cells;
using vecmat::countOf;
using vecmat::isMissing;
using vecmat::isMissingOrBelow;
using vecmat::missingKernels;
using vecmat::onBlocks;
using vecmat::onBlocksOrElse;
using vecmat::TableTexts;
using vecmat::triangle;

namespace {

// Counts over columns of any storage, by either test. Sums are unsigned, since the block named by the caller may have
// more cells than an int can count.

/// Columns whose cells are tested one by one: `missing(i, j)`.
template <class Missing>
struct ColumnsOfCells
{
    Missing missing;

    unsigned count(int rows, int j) const
    {
        unsigned found = 0;
        for (int i = 0; i < rows; ++i)
            found += missing(i, j) ? 1 : 0;
        return found;
    }
    void addByRow(int rows, int j, int* counts) const
    {
        for (int i = 0; i < rows; ++i)
            counts[i] += missing(i, j) ? 1 : 0;
    }
};

/// Contiguous columns of doubles, by the equality test or by the order test.
template <auto test, class Cells>
struct ColumnsInMemory
{
    Cells cells;

    unsigned count(int rows, int j) const
    {
        const auto& kernels = missingKernels();
        const auto counted = test == isMissing ? kernels.count : kernels.countOrBelow;
        return rows < 1 ? 0u : static_cast<unsigned>(counted(cells.column(j), countOf(rows)));
    }
    void addByRow(int rows, int j, int* counts) const
    {
        static_assert(test == isMissing);
        if (rows > 0)
            missingKernels().addByRow(cells.column(j), countOf(rows), counts);
    }
};

auto byColumn(int rows, int cols, int* counts)
{
    return [=](const auto& columns) {
        for (int j = 0; j < cols; ++j)
            counts[j] = static_cast<int>(columns.count(rows, j));
    };
}

auto inAll(int rows, int cols)
{
    return [=](const auto& columns) {
        unsigned total = 0;
        for (int j = 0; j < cols; ++j)
            total += columns.count(rows, j);
        return static_cast<int>(total);
    };
}

/// Counts in doubles by one of the two tests: `count(columns)`.
template <auto test, class Storage, class Count>
auto countIn(Storage storage, int rows, int cols, Count count)
{
    return onBlocksOrElse([&](auto x) { return count(ColumnsInMemory<test, decltype(x)>{x}); },
                          [&](auto x) {
                              const auto missing = [x](int i, int j) { return test(x.get(i, j)); };
                              return count(ColumnsOfCells<decltype(missing)>{missing});
                          },
                          block(storage, rows, cols));
}

/// Counts in strings. A place outside the table reads as an empty string, but does not count as missing.
template <class Texts, class Count>
auto countIn(Texts texts, Count count)
{
    const auto missing = [texts](int i, int j) { return texts.isInside(i, j) && texts.at(i, j).empty(); };
    return count(ColumnsOfCells<decltype(missing)>{missing});
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
    countIn<isMissing>(cells(a), nRows, nCols, byColumn(nRows, nCols, counts));
}

void M_NbMissing(Smatrix* a, int nRows, int nCols, int* counts)
{
    countIn(TableTexts(a), byColumn(nRows, nCols, counts));
}

int M_NbMissing(matrix** a, int nRows, int nCols)
{
    return countIn<isMissingOrBelow>(cells(a), nRows, nCols, inAll(nRows, nCols));
}

int M_NbMissing2(matrix* a, int nRows, int nCols)
{
    return countIn<isMissing>(cells(a), nRows, nCols, inAll(nRows, nCols));
}

int M_NbMissing2(matrix** a, int nRows, int nCols)
{
    return countIn<isMissing>(cells(a), nRows, nCols, inAll(nRows, nCols));
}

int M_NbMissing2(Smatrix* a, int nRows, int nCols)
{
    return countIn(TableTexts(a), inAll(nRows, nCols));
}

void vecmat::nbMissing(const CallerTexts& a, int nRows, int nCols, int* counts)
{
    countIn(a, byColumn(nRows, nCols, counts));
}

int vecmat::nbMissing2(const CallerTexts& a, int nRows, int nCols)
{
    return countIn(a, inAll(nRows, nCols));
}

void M_NbMissingPerRow(matrix* a, int nRows, int nCols, int* counts)
{
    std::fill_n(counts, countOf(nRows), 0);
    countIn<isMissing>(cells(a), nRows, nCols, [=](const auto& columns) {
        for (int j = 0; j < nCols; ++j)
            columns.addByRow(nRows, j, counts);
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
    return onBlocks(
        [n](auto x) {
            unsigned below = 0;
            for (int j = 0; j < n; ++j)
                for (int i = j + 1; i < n; ++i)
                    below += isMissing(x.get(i, j)) ? 1 : 0;
            return static_cast<int>(2 * below);
        },
        block(triangle(a), n, n));
}
