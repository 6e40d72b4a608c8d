#include "nearest_neighbour.h"

#include "../frame/detail/handles.h"

using vecmat::columns;
using vecmat::copied;
using vecmat::handBack;
using vecmat::viewed;

namespace {

/// An array of no columns is not read.
vecmat::ColumnsHandle<matrix> columnsIfAny(SAFEARRAY** x, int nCols, int n)
{
    return columns(nCols > 0 ? x : nullptr, nCols, n);
}

/// Fills copies of the target's blocks by `estimate`, and writes them back. The primary block is of either kind.
template <class Estimate, class Element>
void predict(Estimate estimate, Element* statX, int nStat, Element* X, int nRows, int nColsX, short* mask,
             double* statY, double* Y, int nColsY, wchar_t** statS, wchar_t** S, int nColsS, double* weights)
{
    auto primary = copied(X, nRows, nColsX);
    auto second = copied(Y, nRows, nColsY);
    auto strings = copied(S, nRows, nColsS);
    estimate(copied(statX, nStat, nColsX), nStat, primary.reference(), nRows, nColsX, mask,
             copied(statY, nStat, nColsY), second.reference(), nColsY, copied(statS, nStat, nColsS),
             strings.reference(), nColsS, viewed(weights, nStat, 1));
    handBack(primary, X);
    handBack(second, Y);
    handBack(strings, S);
}

} // namespace

void VB_EstimateRowsWithMissingNN(double* X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                  int nColsS, double* weights)
{
    auto primary = viewed(X, n, nColsX);
    auto second = viewed(Y, n, nColsY);
    auto strings = copied(S, n, nColsS);
    EstimateRowsWithMissingNN(primary, n, primary.reference(), n, nColsX, mask, second, second.reference(), nColsY,
                              strings, strings.reference(), nColsS, viewed(weights, n, 1));
    handBack(strings, S);
}

void VB_EstimateRowsWithMissingNNStr(wchar_t** P, int n, int nColsP, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights)
{
    auto primary = copied(P, n, nColsP);
    auto second = viewed(Y, n, nColsY);
    auto strings = copied(S, n, nColsS);
    EstimateRowsWithMissingNNStr(primary, n, primary.reference(), n, nColsP, mask, second, second.reference(), nColsY,
                                 strings, strings.reference(), nColsS, viewed(weights, n, 1));
    handBack(primary, P);
    handBack(strings, S);
}

void VB_EstimateRowsWithMissingNNSPV(SAFEARRAY** X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights)
{
    auto second = viewed(Y, n, nColsY);
    auto strings = copied(S, n, nColsS);
    EstimateRowsWithMissingNNSPV(columnsIfAny(X, nColsX, n), n, nColsX, mask, second, second.reference(), nColsY,
                                 strings, strings.reference(), nColsS, viewed(weights, n, 1));
    handBack(strings, S);
}

void VB_EstimateRowsWithMissingNNSPV2(SAFEARRAY** X, int n, int nColsX, short* mask, SAFEARRAY** Y, int nColsY,
                                      wchar_t** S, int nColsS, double* weights)
{
    const auto second = columnsIfAny(Y, nColsY, n);
    auto strings = copied(S, n, nColsS);
    EstimateRowsWithMissingNNSPV2(columnsIfAny(X, nColsX, n), n, nColsX, mask, second, second, nColsY, strings,
                                  strings.reference(), nColsS, viewed(weights, n, 1));
    handBack(strings, S);
}

void VB_EstimateRowsWithMissingNNPred(double* statX, int nStat, double* X, int nRows, int nColsX, short* mask,
                                      double* statY, double* Y, int nColsY, wchar_t** statS, wchar_t** S, int nColsS,
                                      double* weights)
{
    predict(EstimateRowsWithMissingNN, statX, nStat, X, nRows, nColsX, mask, statY, Y, nColsY, statS, S, nColsS,
            weights);
}

void VB_EstimateRowsWithMissingNNStrPred(wchar_t** statX, int nStat, wchar_t** X, int nRows, int nColsX, short* mask,
                                         double* statY, double* Y, int nColsY, wchar_t** statS, wchar_t** S, int nColsS,
                                         double* weights)
{
    predict(EstimateRowsWithMissingNNStr, statX, nStat, X, nRows, nColsX, mask, statY, Y, nColsY, statS, S, nColsS,
            weights);
}
