#include "constrained_inverses.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int CleanConstraintsAndInvert(int n, int* constraints, double* a, double* out)
{
    return cCleanConstraintsAndInvert(n, viewed(constraints, n, 1), viewed(a, n, n), viewed(out, n, n).reference());
}

int CleanConstraintsAndInvertTriang(int n, int* constraints, double* a, short lower, double* out)
{
    return cCleanConstraintsAndInvertTriang(n, viewed(constraints, n, 1), viewed(a, n, n), lower,
                                            viewed(out, n, n).reference());
}

double VB_M_DeterminantCleaned(double* a, int n, int* constraints, short* status)
{
    return M_DeterminantCleaned(viewed(a, n, n), n, viewed(constraints, n, 1), status);
}
