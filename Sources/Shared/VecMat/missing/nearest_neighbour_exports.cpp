#include "nearest_neighbour.h"

#include "../base/detail/outgoing_texts.h"
#include "../frame/detail/handles.h"
#include "../frame/detail/kept_cells.h"
#include "../frame/detail/outgoing_columns.h"

#include <type_traits>

using namespace vecmat;

namespace {

/// An array of no columns is not read.
ColumnsHandle<matrix> columnsIfAny(SAFEARRAY** x, int nCols, int n)
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
    OutgoingTexts texts;
    addTexts(texts, strings, S);
    if constexpr (std::is_same_v<Element, wchar_t*>)
        addTexts(texts, primary, X);
    else
        handBack(primary, X);
    handBack(second, Y);
    texts.store();
}

} // namespace

void VB_EstimateRowsWithMissingNN(double* X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                  int nColsS, double* weights)
{
    auto primary = viewed(X, n, nColsX);
    auto second = viewed(Y, n, nColsY);
    auto strings = copied(S, n, nColsS);
    KeptCells kept;
    if (nColsS > 0) {
        kept.keep(X, n, nColsX);
        kept.keep(Y, n, nColsY);
    }
    EstimateRowsWithMissingNN(primary, n, primary.reference(), n, nColsX, mask, second, second.reference(), nColsY,
                              strings, strings.reference(), nColsS, viewed(weights, n, 1));
    handBack(strings, S);
    kept.callHasSucceeded();
}

void VB_EstimateRowsWithMissingNNStr(wchar_t** P, int n, int nColsP, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights)
{
    auto primary = copied(P, n, nColsP);
    auto second = viewed(Y, n, nColsY);
    auto strings = copied(S, n, nColsS);
    KeptCells kept;
    kept.keep(Y, n, nColsY);
    EstimateRowsWithMissingNNStr(primary, n, primary.reference(), n, nColsP, mask, second, second.reference(), nColsY,
                                 strings, strings.reference(), nColsS, viewed(weights, n, 1));
    OutgoingTexts texts;
    addTexts(texts, primary, P);
    addTexts(texts, strings, S);
    texts.store();
    kept.callHasSucceeded();
}

void VB_EstimateRowsWithMissingNNSPV(SAFEARRAY** X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights)
{
    const auto primary = columnsIfAny(X, nColsX, n);
    auto second = viewed(Y, n, nColsY);
    auto strings = copied(S, n, nColsS);
    KeptCells kept;
    if (nColsS > 0) {
        kept.keep(primary, nColsX);
        kept.keep(Y, n, nColsY);
    }
    EstimateRowsWithMissingNNSPV(primary, n, nColsX, mask, second, second.reference(), nColsY, strings,
                                 strings.reference(), nColsS, viewed(weights, n, 1));
    handBack(strings, S);
    kept.callHasSucceeded();
}

void VB_EstimateRowsWithMissingNNSPV2(SAFEARRAY** X, int n, int nColsX, short* mask, SAFEARRAY** Y, int nColsY,
                                      wchar_t** S, int nColsS, double* weights)
{
    const auto primary = columnsIfAny(X, nColsX, n);
    const auto second = columnsIfAny(Y, nColsY, n);
    auto strings = copied(S, n, nColsS);
    KeptCells kept;
    if (nColsS > 0) {
        kept.keep(primary, nColsX);
        kept.keep(second, nColsY);
    }
    EstimateRowsWithMissingNNSPV2(primary, n, nColsX, mask, second, second, nColsY, strings, strings.reference(),
                                  nColsS, viewed(weights, n, 1));
    handBack(strings, S);
    kept.callHasSucceeded();
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
