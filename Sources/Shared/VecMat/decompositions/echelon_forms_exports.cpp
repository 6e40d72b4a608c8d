#include "echelon_forms.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void Cpp_M_ForwardDoolittle(double* a, int n, double* out)
{
    M_ForwardDoolittle(viewed(a, n, n), n, viewed(out, n, n));
}

void Cpp_M_HermiteCanonical(double* a, int n, double* h)
{
    M_HermiteCanonical(viewed(a, n, n), n, viewed(h, n, n));
}
