#include "cholesky.h"

#include "../frame/detail/handles.h"
#include "../frame/detail/in_place.h"

using namespace vecmat;

int VB_M_CholDecomp(double* a, int n, double* l)
{
    const CallerArray table{a, n, n};
    return onViewsOrCopies<Copies::dropped>(
        areApart(table, CallerArray{l, n, n}),
        [=](matrix* from) { return M_CholDecomp(from, n, viewed(l, n, n).reference()); }, table);
}

int VB_M_CholDecompPrinc(double* a, int n, double* l, int* perm, short keep)
{
    return M_CholDecompPrinc(viewed(a, n, n), n, viewed(l, n, n), viewed(perm, n, 1), keep);
}

int VB_M_CholDecompCleaned(double* a, int n, int* mask, double* l)
{
    return M_CholDecompCleaned(viewed(a, n, n), n, viewed(mask, n, 1), viewed(l, n, n));
}
