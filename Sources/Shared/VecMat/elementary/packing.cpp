#include "packing.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"

using vecmat::block;
using vecmat::cells;
using vecmat::linear;
using vecmat::linearIndex;
using vecmat::onBlocks;

namespace {

/// Visits the lower triangle row by row with the position of each cell in packed storage; all from 0.
template <class Visit>
void forEachPacked(int n, Visit visit)
{
    unsigned position = 0;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j <= i; ++j)
            visit(i, j, static_cast<int>(position++));
}

} // namespace

void MatToVect(matrix* a, int rows, int cols, matrix* v)
{
    const auto from = cells(a);
    const auto to = linear(v);
    for (int j = 0; j < cols; ++j)
        for (int i = 0; i < rows; ++i)
            to.set(static_cast<int>(linearIndex(i, j, rows)), from.get(i, j));
}

void VectToMat(matrix* v, matrix* counts, int rows, int cols, matrix* out)
{
    const auto values = linear(v);
    const auto lengths = linear(counts);
    const auto to = cells(out);
    unsigned next = 0;
    for (int j = 0; j < cols; ++j) {
        const double length = lengths.get(j);
        for (int i = 0; i < rows; ++i)
            to.set(i, j, length >= i + 1.0 ? values.get(static_cast<int>(next++)) : vecmat::missingValue);
    }
}

void M_CopySymMatToVector(matrix* a, int n, matrix* v)
{
    const auto from = cells(a);
    const auto to = linear(v);
    forEachPacked(n, [&](int i, int j, int position) { to.set(position, from.get(i, j)); });
}

void M_CopyVectorToSymMat(matrix* v, int n, matrix* a)
{
    const auto from = linear(v);
    const auto to = cells(a);
    forEachPacked(n, [&](int i, int j, int position) {
        const double value = from.get(position);
        to.set(i, j, value);
        to.set(j, i, value);
    });
}
