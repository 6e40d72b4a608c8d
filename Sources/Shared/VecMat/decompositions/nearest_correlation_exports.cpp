#include "nearest_correlation.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int Cpp_M_CorrMatFromSymMat(double* a, int n)
{
    return M_CorrMatFromSymMat(viewed(a, n, n), n);
}

int Cpp_M_CorrMatFromSymMatSPV(SAFEARRAY** a, int n)
{
    return M_CorrMatFromSymMatSPV(columns(a, n, n), n);
}

int Cpp_M_CorrMatFromSymMatSPV_T(SAFEARRAY** a, int n)
{
    return M_CorrMatFromSymMatSPV_T(triangleColumns(a, n), n);
}

double Cpp_M_RowSumNorm(double* a, int rows, int cols)
{
    return M_RowSumNorm(viewed(a, rows, cols), rows, cols);
}
