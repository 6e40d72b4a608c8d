#include "sweep.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_Sweep(double* a, int n, int k)
{
    const long long packedCells = n < 1 ? 0 : n * (n + 1LL) / 2;
    return M_Sweep(viewed(a, static_cast<int>(packedCells), 1), n, k);
}
