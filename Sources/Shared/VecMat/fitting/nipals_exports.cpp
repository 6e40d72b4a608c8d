#include "nipals.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int Cpp_NIPALS(int n, int p, double* X, double* w, double tol, int components, double maxColumnShare,
               double maxTotalShare)
{
    TableHandle table = copied(X, n, p);
    const int outcome = NIPALS(n, p, table, viewed(w, n, 1), tol, components, maxColumnShare, maxTotalShare);
    handBack(table, X);
    return outcome;
}
