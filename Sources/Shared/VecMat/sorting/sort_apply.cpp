#include "sort_apply.h"

#include "../frame/cells.h"
#include "../frame/numbers.h"
#include "copy_block.h"

namespace {

using namespace vecmat;

/// 0-based number of the source row; truncated after the subtraction, so that 0.5 is the first row.
int sourceRow(matrix* order, int i)
{
    return truncated(linear(order).get(i) - 1.0);
}

double convertedTo(matrix*, double cell)
{
    return cell;
}

int convertedTo(matrixInt*, double cell)
{
    return truncated(cell);
}

int convertedTo(matrixInt*, int cell)
{
    return cell;
}

const std::wstring& convertedTo(Smatrix*, const std::wstring& cell)
{
    return cell;
}

template <class Source, class Out>
void applyOrder(Source* source, int nRows, int nCols, matrix* order, Out* out)
{
    const auto from = cells(source);
    const auto to = cells(out);
    for (int i = 0; i < nRows; ++i) {
        const int row = sourceRow(order, i);
        for (int j = 0; j < nCols; ++j)
            to.set(i, j, convertedTo(out, from.get(row, j)));
    }
}

template <class Source, class Out>
void applyOrderToResult(Source* source, int nRows, int nCols, matrix* order, Out*& out)
{
    Out::matCheck(out, nRows, nCols, 0.0);
    applyOrder(source, nRows, nCols, order, out);
}

} // namespace

void SortApply(matrix* source, int nRows, int nCols, matrix* order, matrix*& out)
{
    applyOrderToResult(source, nRows, nCols, order, out);
}

void SortApply(matrixInt* source, int nRows, int nCols, matrix* order, matrix*& out)
{
    applyOrderToResult(source, nRows, nCols, order, out);
}

void SortApply(matrix* source, int nRows, int nCols, matrix* order, matrixInt*& out)
{
    applyOrderToResult(source, nRows, nCols, order, out);
}

void SortApply(matrixInt* source, int nRows, int nCols, matrix* order, matrixInt*& out)
{
    applyOrderToResult(source, nRows, nCols, order, out);
}

void SortApply2(matrix* table, int nRows, int nCols, matrix* order)
{
    matrix working(nRows, nCols, 0.0);
    applyOrder(table, nRows, nCols, order, &working);
    M_CopyBlock(&working, 1, nRows, 1, nCols, table);
}

void SortApply2(matrixInt* table, int nRows, int nCols, matrix* order)
{
    matrixInt working(nRows, nCols, 0);
    applyOrder(table, nRows, nCols, order, &working);
    M_CopyBlock(&working, 1, nRows, 1, nCols, table);
}

void SortApplyStr(Smatrix* source, int nRows, int nCols, matrix* order, Smatrix* out)
{
    applyOrder(source, nRows, nCols, order, out);
}
