#include "generalised_inverses.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_InvGeneralized(double* a, int n, double* out, double tol, int* rank)
{
    return M_InvGeneralized(viewed(a, n, n), n, viewed(out, n, n), tol, rank);
}

int VB_M_InvGeneralizedSym(double* a, int n, double* out, double tol, int* rank)
{
    return M_InvGeneralizedSym(viewed(a, n, n), n, viewed(out, n, n), tol, rank);
}
