#include "inversion.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_Inverse1(double* a, int n, double* out, double tol)
{
    short status = 0;
    viewed(a, n, n)->inverse1(viewed(out, n, n), status, tol);
    return status;
}

int VB_M_InverseTriang(double* a, int n, short lower, double* out, double tol)
{
    TableHandle result = fresh(n, n);
    const int status = M_InverseTriang(viewed(a, n, n), n, lower, result.reference(), tol);
    handBack(result, out);
    return status;
}
