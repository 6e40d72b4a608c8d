#include "extremes.h"

#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

#include <vector>

using namespace vecmat;

namespace {

std::vector<short> zeroMask(int n)
{
    return std::vector<short>(countOf(n), 0);
}

} // namespace

double VB_V_Min(double* x, int n, short* mask)
{
    return V_Min(copied(x, n, 1), n, mask);
}

double VB_V_Max(double* x, int n, short* mask)
{
    return V_Max(copied(x, n, 1), n, mask);
}

void VB_V_MinMax(double* x, int n, double* min, double* max, short* mask)
{
    V_MinMax(copied(x, n, 1), n, min, max, mask);
}

void VB_V_MinMaxLng(int* x, int n, double* min, double* max, short* mask)
{
    V_MinMax(copied(x, n, 1), n, min, max, mask);
}

double VB_V_MinAndMinPos(double* x, int n, int* pos)
{
    return V_MinAndMinPos(copied(x, n, 1), n, pos);
}

double VB_V_MaxAndMaxPos(double* x, int n, int* pos)
{
    return V_MaxAndMaxPos(copied(x, n, 1), n, pos);
}

double VB_V_Min2(double* x, int n)
{
    return V_Min(copied(x, n, 1), n, zeroMask(n).data());
}

double VB_V_Max2(double* x, int n)
{
    return V_Max(copied(x, n, 1), n, zeroMask(n).data());
}

int VB_V_Min2Lng(int* x, int n)
{
    return truncated(V_Min(copied(x, n, 1), n, zeroMask(n).data()));
}

int VB_V_Max2Lng(int* x, int n)
{
    return truncated(V_Max(copied(x, n, 1), n, zeroMask(n).data()));
}

int VB_V_MaxInt(int* x, int n, short* mask)
{
    return truncated(V_Max(copied(x, n, 1), n, mask));
}
