#include "g2_inverse.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void Cpp_M_InverseG2(double* a, int n, double tol, double* out)
{
    M_InverseG2(viewed(a, n, n), n, tol, viewed(out, n, n));
}

void Cpp_M_InverseG2Selective(double* a, int n, int* select, double tol, double* out, short zeroOthers)
{
    M_InverseG2Selective(viewed(a, n, n), n, viewed(select, n, 1), tol, viewed(out, n, n), zeroOthers);
}
