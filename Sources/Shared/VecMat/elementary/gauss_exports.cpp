#include "gauss.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_V_Gauss(double* a, int n, double* b)
{
    return VB_M_Gauss(a, n, 1, b);
}

int VB_M_Gauss(double* a, int n, int m, double* b)
{
    TableHandle table = copied(a, n, n);
    TableHandle rightSides = copied(b, n, m);
    const int status = M_Gauss(table, n, m, rightSides, false, false);
    handBack(table, a);
    handBack(rightSides, b);
    return status;
}
