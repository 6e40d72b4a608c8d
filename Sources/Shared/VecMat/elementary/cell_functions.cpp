#include "cell_functions.h"

#include "../access/cells.h"
#include "../access/cellwise.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/detail/mathematics/mathematics.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"

#include <algorithm>

using namespace vecmat;

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
    onBlocks(
        [rows, cols, selected = Mask(mask)](auto cell) {
            for (int i = 0; i < rows; ++i) {
                if (!selected.keeps(i))
                    continue;
                for (int j = 0; j < cols; ++j)
                    if (!isMissing(cell.get(i, j)))
                        cell.set(i, j, vecmat::log(cell.get(i, j)));
            }
        },
        block(cells(a), rows, cols));
}

void M_Log10Matrix(matrix* a, int rows, int cols)
{
    mapCells(
        rows, cols, cells(a), [](double x) { return isMissing(x) ? x : Log10(x); }, cells(a));
}
