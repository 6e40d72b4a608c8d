#include "cell_functions.h"

#include "../access/cells.h"
#include "../access/cellwise.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/detail/mathematics/mathematics.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../kernels/logarithm_kernels.h"

#include <algorithm>

using namespace vecmat;

namespace {

/// Takes the logarithms of cells that lie one behind the other, many at a time, but for those that the mask drops or that
/// are missing.
void takeLogarithms(double* cell, int count, Mask mask)
{
    double x[logarithmsTogether];
    double logarithm[logarithmsTogether];
    for (int first = 0; first < count; first += logarithmsTogether) {
        const int together = std::min(logarithmsTogether, count - first);
        const auto isTaken = [=](int k) { return mask.keeps(first + k) && !isMissing(cell[first + k]); };
        for (int k = 0; k < together; ++k)
            x[k] = isTaken(k) ? cell[first + k] : 1.0;
        logarithms(together, x, logarithm);
        for (int k = 0; k < together; ++k)
            if (isTaken(k))
                cell[first + k] = logarithm[k];
    }
}

} // namespace

void M_Square(matrix*& a, int rows, int cols)
{
    squareCells(a->X, std::min(elementCount(rows, cols), a->nElems));
}

double M_SquareRootAij(matrix* a, int rows, int cols, matrix* out)
{
    return onBlocks(
        [rows, cols](auto x, auto root) {
            for (int i = 0; i < rows; ++i)
                for (int j = 0; j < cols; ++j) {
                    // An out-of-range cell reads as -1.0 and fails the test like any negative one.
                    if (!(x.get(i, j) >= 0.0))
                        return -1.0;
                    root.set(i, j, squareRoot(x.get(i, j)));
                }
            return 0.0;
        },
        block(cells(a), rows, cols), block(cells(out), rows, cols));
}

double M_SquareRootAij2(matrix* a, int rows, int cols)
{
    return M_SquareRootAij(a, rows, cols, a);
}

void M_LogMatrix(matrix*& a, int rows, int cols, short* mask)
{
    const auto cellByCell = [rows, cols, selected = Mask(mask)](auto cell) {
        for (int i = 0; i < rows; ++i) {
            if (!selected.keeps(i))
                continue;
            for (int j = 0; j < cols; ++j)
                if (!isMissing(cell.get(i, j)))
                    cell.set(i, j, vecmat::log(cell.get(i, j)));
        }
    };
    onBlocksOrElse(
        [&](auto cell) {
            if (cell.folds(rows, cols)) // then a cell may be taken twice
                cellByCell(cell);
            else
                for (int j = 0; j < cols; ++j)
                    takeLogarithms(cell.column(j), rows, Mask(mask));
        },
        cellByCell, block(cells(a), rows, cols));
}

void M_Log10Matrix(matrix* a, int rows, int cols)
{
    mapCells(
        rows, cols, cells(a), [](double x) { return isMissing(x) ? x : Log10(x); }, cells(a));
}
