#include "lu.h"

#include "../frame/handles.h"

using namespace vecmat;

int VB_M_LUDecomp(double* a, int n, int* index, double* d, short* status)
{
    TableHandle table = viewed(a, n, n);
    IntTableHandle rows = viewed(index, n, 1);
    M_LUDecomp(table.reference(), n, rows.reference(), d, status);
    return 0;
}
