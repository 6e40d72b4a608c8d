#include "lu.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_LUDecomp(double* a, int n, int* index, double* d, short* status)
{
    IntTableHandle exchanges = freshInt(n, 1);
    double parity = 0.0;
    short outcome = 0;
    M_LUDecomp(viewed(a, n, n).reference(), n, exchanges.reference(), &parity, &outcome);
    handBack(exchanges, index);
    *d = parity;
    *status = outcome;
    return 0;
}
