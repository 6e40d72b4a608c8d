#include "filling.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"

#include <algorithm>
#include <numeric>

using vecmat::countOf;

namespace {

/// 1, 2, ... over the first `n` cells of the block, as far as the table extends.
template <class Table>
void setToPositions(Table& v, int n)
{
    std::iota(v.X, v.X + std::min(countOf(n), v.nElems), 1);
}

} // namespace

void SetVectorToValue(matrix*& v, int n, double value)
{
    matrix::matCheck(v, n, 1, value);
}

void InitVectorToFalse(matrix*& v, int n)
{
    matrix::matCheck(v, n, 1, 0.0);
}

void InitVectorToFalse(short* v, int n)
{
    std::fill_n(v, countOf(n), short{0});
}

void V_SetToValueStr(Smatrix* v, int n, std::wstring value)
{
    std::fill_n(v->X, std::min(countOf(n), v->nElems), value);
}

void V_Set1toN(matrix*& v, int n)
{
    matrix::matCheck(v, n, 1, 0.0);
    setToPositions(*v, n);
}

void V_Set1toN(matrixInt*& v, int n)
{
    matrixInt::matCheck(v, n, 1, 0.0);
    setToPositions(*v, n);
}
