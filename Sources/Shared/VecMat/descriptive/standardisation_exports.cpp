#include "standardisation.h"

#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"
#include "detail/masked_columns.h"

#include <algorithm>
#include <cstddef>
#include <vector>

using namespace vecmat;

void VB_M_Standardize(double* X, int n, int p, double* Z, double* mean, double* stdev, double* var, short* mask,
                      double* w, short sample, short freqWeights)
{
    TableHandle result = fresh(n, p);
    TableHandle means = fresh(p, 1);
    TableHandle deviations = fresh(p, 1);
    TableHandle variances = fresh(p, 1);
    M_Standardize(viewed(X, n, p), n, p, result.reference(), means.reference(), deviations.reference(),
                  variances.reference(), mask, viewed(w, n, 1), sample, freqWeights);
    handBack(result, Z);
    handBack(means, mean);
    handBack(deviations, stdev);
    handBack(variances, var);
}

void VB_M_StandardizeW(double* X, int n, int p, double* w, short sample, short freqWeights, double* Z)
{
    TableHandle result = fresh(n, p);
    M_StandardizeW(viewed(X, n, p), n, p, viewed(w, n, 1), sample, freqWeights, result);
    handBack(result, Z);
}

void VB_M_StandardizeKnownMeansStDev(double* X, int n, int p, double* mean, double* Z, double* stdev, double* var,
                                     short* mask)
{
    TableHandle result;
    M_StandardizeKnownMeansStDev(viewed(X, n, p).reference(), n, p, viewed(mean, p, 1), result.reference(),
                                 viewed(stdev, p, 1), viewed(var, p, 1), mask);
    handBack(result, Z);
}

void VB_M_StandardizeMatrix(double* X, int n, int p, double* Y, int nY, double* V, int nV)
{
    M_StandardizeMatrix(viewed(X, n, p).reference(), n, p, viewed(Y, nY, p).reference(), nY,
                        viewed(V, nV, p).reference(), nV);
}

void Cpp_M_SubstractFirstCol2(double* X, int n, int p)
{
    M_SubstractFirstCol2(viewed(X, n, p), n, p);
}

void VB_V_Standardize(double* x, int n, short* mask, double* w, short sample, double* z)
{
    double mean = 0.0;
    double stdev = 0.0;
    double var = 0.0;
    VB_M_Standardize(x, n, 1, z, &mean, &stdev, &var, mask, w, sample, 0);
}

void VB_V_Standardize2(double* x, int n, short* mask, double* w, short sample)
{
    // The result is written back only once it is complete, so that the same array can be both input and output.
    VB_V_Standardize(x, n, mask, w, sample, x);
}

void VB_M_StandardizeByVect(double* X, int n, int p, short* a, double* w, short sample, double* Z)
{
    std::vector<double> result(countOf(n) * std::size_t{countOf(p)}); // each column takes memory
    transformMaskedColumns(X, n, p, a, result.data(),
                           [=](double* column, short* mask) { VB_V_Standardize2(column, n, mask, w, sample); });
    std::copy(result.begin(), result.end(), Z);
}

void VB_M_StandardizeByVect2(double* X, int n, int p, short* a, double* w, short sample)
{
    VB_M_StandardizeByVect(X, n, p, a, w, sample, X);
}
