#include "lu.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_LUDecomp(double* a, int n, int* index, double* d, short* status)
{
    M_LUDecomp(viewed(a, n, n).reference(), n, viewed(index, n, 1).reference(), d, status);
    return 0;
}
