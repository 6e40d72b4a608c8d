#include "determinants.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

double VB_M_Determinant(double* a, int n, short* status)
{
    return M_Determinant(viewed(a, n, n), n, status, 0);
}

double Cpp_M_LogDeterminant(double* a, int n)
{
    return M_LogDeterminant(viewed(a, n, n), n);
}

double VB_M_DeterminantTriang(double* a, int n, short* status)
{
    return M_DeterminantTriang(viewed(a, n, n), n, status);
}
