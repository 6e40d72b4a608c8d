#include "sums_and_norms.h"

#include "../frame/detail/handles.h"
#include "detail/sum_of_cells.h"

using namespace vecmat;

double VB_M_Trace(double* a, int n)
{
    return M_Trace(viewed(a, n, n), n);
}

double VB_M_FrobeniusNorm(double* a, int rows, int cols, double* b)
{
    return M_FrobeniusNorm(viewed(a, rows, cols), rows, cols, viewed(b, rows, cols));
}

void VB_M_SumByCols(double* a, int rows, int cols, double* out)
{
    M_SumByCols(viewed(a, rows, cols), rows, cols, viewed(out, cols, 1));
}

void VB_M_SumByRows(double* a, int rows, int cols, double* out)
{
    M_SumByRows(viewed(a, rows, cols), rows, cols, viewed(out, rows, 1));
}

void VB_M_SquaredRows(double* a, int rows, int cols, double* out)
{
    M_SquaredRows(viewed(a, rows, cols), rows, cols, viewed(out, rows, 1).reference());
}

void VB_M_SquaredColumns(double* a, int rows, int cols, double* out)
{
    M_SquaredColumns(viewed(a, rows, cols), rows, cols, viewed(out, cols, 1).reference());
}

double VB_M_SumOfElem(double* a, int rows, int cols)
{
    return sumOfColumnSums(viewed(a, rows, cols), rows, cols);
}
