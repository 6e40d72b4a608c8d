#include "extraction.h"

#include "../access/block_copy.h"
#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_texts.h"
#include "detail/borrowed_moves.h"

#include <cstdint>

using vecmat::copyCells;
using vecmat::countFromTo;
using vecmat::window;
using vecmat::zeroBased;

namespace {

/// One pass over a column: takes cells from `start` on, in runs of `keep`, and skips `skip` after each. `take(position,
/// index)` gets the position in the column, from 1, and the number of cells taken before.
template <class Take>
void takePattern(std::int64_t n, std::int64_t keep, std::int64_t skip, std::int64_t start, Take take)
{
    int index = 0;
    for (std::int64_t p = start - 1;;) {
        const std::int64_t runStart = p;
        if (keep < 1 && runStart >= n)
            return; // nothing would end this run
        std::int64_t taken = 0;
        do {
            take(++p, index++);
        } while (p != n && ++taken != keep);
        p += skip;
        // A run that ends no further than it began would repeat for ever.
        if (p > n || p <= runStart)
            return;
    }
}

/// `Table` holds strings, or borrowed texts.
template <class Table>
void extractPattern(Table** src, int n, int cols, int keep, int skip, int start, Table** dst, matrix* positions)
{
    const auto positionCells = vecmat::linear(positions);
    for (int j = 0; j < cols; ++j) {
        const auto from = vecmat::linear(src[j]);
        const auto to = vecmat::linear(dst[j]);
        takePattern(n, keep, skip, start, [&](std::int64_t position, int index) {
            to.set(index, from.get(static_cast<int>(static_cast<std::uint32_t>(position - 1))));
            positionCells.set(index, static_cast<double>(position));
        });
    }
}

} // namespace

void M_ExtractMatToMat(matrix* src, int cols, int from, int to, matrix* out)
{
    copyCells(window(src, zeroBased(from), 0), window(out, 0, 0), countFromTo(from, to), cols);
}

void M_ExtractMatToMatSPV(matrix** src, int cols, int from, int to, matrix* out)
{
    copyCells(window(src, zeroBased(from), 0), window(out, 0, 0), countFromTo(from, to), cols);
}

void M_ExtractMatToMatByColDbl(matrix* src, int rows, int from, int to, matrix*& out)
{
    const int cols = countFromTo(from, to);
    matrix::matCheck(out, rows, cols, 0.0);
    copyCells(window(src, 0, zeroBased(from)), window(out, 0, 0), rows, cols);
}

void M_ExtractMatNeverySKSPV(Smatrix** src, int n, int cols, int /*nOut*/, int keep, int skip, int start, Smatrix** dst,
                             matrix* positions)
{
    extractPattern(src, n, cols, keep, skip, start, dst, positions);
}

void vecmat::M_ExtractMatNeverySKSPV(BorrowedTexts** src, int n, int cols, int /*nOut*/, int keep, int skip, int start,
                                     BorrowedTexts** dst, matrix* positions)
{
    extractPattern(src, n, cols, keep, skip, start, dst, positions);
}
