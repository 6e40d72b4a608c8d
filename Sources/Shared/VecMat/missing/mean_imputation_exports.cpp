#include "mean_imputation.h"

#include "../frame/detail/handles.h"

#include <algorithm>

using vecmat::viewed;

// The means are computed before any cell is filled, so that one view of the caller's array is both input and output.

void VB_EstimateRowsWithMissingMean(double* X, int n, int nCols, short* mask, double* weights)
{
    VB_EstimateRowsWithMissingMeanPred(X, n, X, n, nCols, mask, weights);
}

void VB_EstimateRowsWithMissingMeanPred(double* statX, int nStat, double* X, int nRows, int nCols, short* mask,
                                        double* weights)
{
    const int opened = std::max(nCols, 1);
    EstimateRowsWithMissingMean(viewed(statX, nStat, opened), nStat, viewed(X, nRows, opened).reference(), nRows, nCols,
                                mask, viewed(weights, nStat, 1));
}

void VB_EstimateRowsWithMissingMeanSPV(SAFEARRAY** X, int n, int nCols, short* mask, double* weights)
{
    EstimateRowsWithMissingMeanSPV(vecmat::columns(X, nCols, n), n, nCols, mask, viewed(weights, n, 1));
}
