#include "moments.h"

#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

#include <vector>

using vecmat::countOf;
using vecmat::TableHandle;
using vecmat::viewed;

// The observations and the weights are only read, so views of the caller's arrays will do; results are written through
// views as well. A null result array gives a null table, which the callee skips or allocates itself.

double VB_V_Var(double* v, int n, short* mask, double* w, short sample, short freqWeights)
{
    return V_Var(viewed(v, n, 1), n, mask, viewed(w, n, 1), sample, freqWeights);
}

double Cpp_V_Var2(double* v, int n, short sample, short freqWeights)
{
    std::vector<double> units(countOf(n), 1.0);
    std::vector<short> mask(countOf(n), 0);
    matrix weights(n, 1, units.data(), true);
    return V_Var(viewed(v, n, 1), n, mask.data(), &weights, sample, freqWeights);
}

double VB_V_Stdev(double* v, int n, short* mask, double* w, short sample, short freqWeights)
{
    return V_Stdev(viewed(v, n, 1), n, mask, viewed(w, n, 1), sample, freqWeights);
}

void VB_V_MeanVar(double* v, int n, double* mean, double* var, short* mask, double* w, short sample, short freqWeights)
{
    V_MeanVar(viewed(v, n, 1), n, mean, var, mask, viewed(w, n, 1), sample, freqWeights);
}

void VB_V_MeanStdev(double* v, int n, double* mean, double* stdev, short* mask, double* w, short sample,
                    short freqWeights)
{
    V_MeanStdev(viewed(v, n, 1), n, mean, stdev, mask, viewed(w, n, 1), sample, freqWeights);
}

int VB_M_MeanStDev(double* X, int n, int p, double* mean, double* stdev, short* mask, double* w, short sample,
                   short freqWeights, short ignoreMask)
{
    return M_MeanStDev(viewed(X, n, p), n, p, viewed(mean, p, 1).reference(), viewed(stdev, p, 1).reference(), mask,
                       viewed(w, n, 1), sample, freqWeights, ignoreMask);
}

int VB_M_MeanStDevVar(double* X, int n, int p, double* mean, double* stdev, double* var, short* mask, double* w,
                      short sample, short freqWeights)
{
    return M_MeanStDevVar(viewed(X, n, p), n, p, viewed(mean, p, 1).reference(), viewed(stdev, p, 1).reference(),
                          viewed(var, p, 1).reference(), mask, viewed(w, n, 1), sample, freqWeights);
}

int VB_M_MeanStDevByRow(double* X, int n, int p, double* mean, double* stdev, double* w, short sample,
                        short freqWeights)
{
    // Both results have one cell per row. If the callee needs more, it replaces the view with a table of its own, and
    // the caller's array is unchanged.
    return M_MeanStDevByRow(viewed(X, n, p), n, p, viewed(mean, n, 1).reference(), viewed(stdev, n, 1).reference(),
                            viewed(w, p, 1), sample, freqWeights);
}
