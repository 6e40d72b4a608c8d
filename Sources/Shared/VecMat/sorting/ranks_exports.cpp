#include "ranks.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

// The computing functions read all they need before they write a result, and sort private copies: views are safe
// throughout.

void VB_V_GetRanksDbl(double* x, int n, double* ranks)
{
    View result(ranks, n, 1);
    V_GetRanks(View(x, n, 1), n, result.reference());
}

void VB_V_GetRanksLng(double* x, int n, int* ranks)
{
    View result(ranks, n, 1);
    V_GetRanks(View(x, n, 1), n, result.reference());
}

void VB_V_GetRanksTiesDbl(double* x, int n, double* weights, double* ranks, int* nTies, double* tieSizes)
{
    View result(ranks, n, 1);
    View sizes(tieSizes, n, 1);
    V_GetRanksTies(View(x, n, 1), n, View(weights, n, 1), result.reference(), nTies, sizes.reference());
}

void VB_V_GetRanksTiesIntDbl(double* x, int n, double* weights, double* ranks, int* nTies, double* tieSizes)
{
    View result(ranks, n, 1);
    V_GetRanksTiesInt(View(x, n, 1), n, View(weights, n, 1), result.reference(), nTies, View(tieSizes, n, 1));
}

short VB_V_IsSorted(double* x, int n, short strict)
{
    return V_IsSorted(View(x, n, 1), n, strict);
}

double VB_V_TimeIntervalSize(double* t, int n, short sorted)
{
    return V_TimeIntervalSize(View(t, n, 1), n, sorted);
}
