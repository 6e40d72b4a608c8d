#include "lu.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_LUDecomp(double* a, int n, int* index, double* d, short* status)
{
    auto table = viewed(a, n, n);
    auto rows = viewed(index, n, 1);
    M_LUDecomp(table.reference(), n, rows.reference(), d, status);
    return 0;
}
