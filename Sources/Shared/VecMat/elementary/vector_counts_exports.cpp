#include "vector_counts.h"

#include "../frame/detail/handles.h"

int VB_V_NbTrue(short* x, int n)
{
    return V_NbTrue(x, n);
}

int VB_V_NbTrueFromTo(short* x, int /*n*/, int from, int to)
{
    return V_NbTrueFromTo(x, from, to);
}

short Cpp_V_FindLng(int* x, int n, int val)
{
    return V_FindLng(vecmat::viewed(x, n, 1), n, val);
}
