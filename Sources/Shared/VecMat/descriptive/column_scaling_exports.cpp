#include "column_scaling.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_M_Center(double* X, int n, int p, double* Z)
{
    TableHandle result = fresh(n, p);
    M_Center(viewed(X, n, p), n, p, result.reference());
    handBack(result, Z);
}

void VB_M_CenterW(double* X, int n, int p, double* w, double* Z)
{
    TableHandle result = fresh(n, p);
    M_CenterW(viewed(X, n, p), n, p, viewed(w, n, 1), result.reference());
    handBack(result, Z);
}

void VB_M_Center2(double* X, int n, int p)
{
    M_Center2(viewed(X, n, p).reference(), n, p);
}

void VB_M_Center2SPV(SAFEARRAY** X, int n, int p)
{
    M_Center2SPV(columns(X, p, n), n, p);
}

void VB_M_CenterW2(double* X, int n, int p, double* w)
{
    M_CenterW2(viewed(X, n, p).reference(), n, p, viewed(w, n, 1));
}

void VB_M_Reduce(double* X, int n, int p, double* Z, short sample, short freqWeights)
{
    TableHandle result = fresh(n, p);
    M_Reduce(viewed(X, n, p), n, p, result.reference(), sample, freqWeights);
    handBack(result, Z);
}

void VB_M_ReduceW(double* X, int n, int p, double* w, double* Z, short sample, short freqWeights)
{
    TableHandle result = fresh(n, p);
    M_ReduceW(viewed(X, n, p), n, p, viewed(w, n, 1), result.reference(), sample, freqWeights);
    handBack(result, Z);
}

void VB_M_Reduce2(double* X, int n, int p, short sample)
{
    M_Reduce2(viewed(X, n, p).reference(), n, p, sample);
}

void VB_M_ReduceW2(double* X, int n, int p, double* w, short sample, short freqWeights)
{
    M_ReduceW2(viewed(X, n, p).reference(), n, p, viewed(w, n, 1), sample, freqWeights);
}

void VB_M_Standardize2(double* X, int n, int p, short sample)
{
    M_Standardize2(viewed(X, n, p).reference(), n, p, sample);
}

void VB_M_Standardize2SPV(SAFEARRAY** X, int n, int p, short sample)
{
    M_Standardize2SPV(columns(X, p, n), n, p, sample);
}

void VB_M_Standardize3(double* X, int n, int p, double* mean, double* stdev, short sample, short freqWeights)
{
    TableHandle means = fresh(p, 1);
    TableHandle deviations = fresh(p, 1);
    M_Standardize3(viewed(X, n, p).reference(), n, p, means.reference(), deviations.reference(), sample, freqWeights);
    handBack(means, mean);
    handBack(deviations, stdev);
}

void VB_M_StandardizeW2(double* X, int n, int p, double* w, short sample, short freqWeights)
{
    M_StandardizeW2(viewed(X, n, p).reference(), n, p, viewed(w, n, 1), sample, freqWeights);
}

void VB_M_StandardizeW3(double* X, int n, int p, double* w, double* mean, double* stdev, short sample,
                        short freqWeights)
{
    TableHandle means = fresh(p, 1);
    TableHandle deviations = fresh(p, 1);
    M_StandardizeW3(viewed(X, n, p).reference(), n, p, viewed(w, n, 1), means.reference(), deviations.reference(),
                    sample, freqWeights);
    handBack(means, mean);
    handBack(deviations, stdev);
}

void Cpp_M_StandardizeApply2(double* X, int n, int p, double* mean, double* stdev)
{
    M_StandardizeApply2(viewed(X, n, p), n, p, viewed(mean, p, 1), viewed(stdev, p, 1));
}

void Cpp_M_StandardizeByGroup(double* X, int n, int p, double* g, int nGroups, short reduce, short sample)
{
    TableHandle table = copied(X, n, p);
    M_StandardizeByGroup(table, n, p, viewed(g, n, 1), nGroups, reduce, sample);
    handBack(table, X);
}
