#include "constrained_inverses.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int CleanConstraintsAndInvert(int n, int* constraints, double* a, double* out)
{
    auto result = viewed(out, n, n);
    return cCleanConstraintsAndInvert(n, viewed(constraints, n, 1), viewed(a, n, n), result.reference());
}

int CleanConstraintsAndInvertTriang(int n, int* constraints, double* a, short lower, double* out)
{
    auto result = viewed(out, n, n);
    return cCleanConstraintsAndInvertTriang(n, viewed(constraints, n, 1), viewed(a, n, n), lower, result.reference());
}

double VB_M_DeterminantCleaned(double* a, int n, int* constraints, short* status)
{
    return M_DeterminantCleaned(viewed(a, n, n), n, viewed(constraints, n, 1), status);
}
