#include "tolerance_check.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_CheckTolerance(double* corr, int p, int groupCount, int* selected, int, int* group, double tol, short pairCheck,
                       short keepGoing, short fromLast, short otherGroupsOnly, int* status, double* tolerance,
                       double* vif)
{
    const TableHandle correlations = copied(corr, p, p);
    const IntTableHandle states = freshInt(p, 1);
    const TableHandle tolerances = fresh(p, 1);
    const TableHandle inflations = fresh(p, 1);
    CheckTolerance(correlations, p, groupCount, viewed(selected, groupCount, 1), viewed(group, p, 1), tol, pairCheck,
                   keepGoing, fromLast, otherGroupsOnly, states, tolerances, inflations);
    handBack(states, status);
    handBack(tolerances, tolerance);
    handBack(inflations, vif);
    handBack(correlations, corr);
}
