#include "nearest_neighbour.h"

#include "../base/detail/outgoing_texts.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "../frame/detail/kept_cells.h"
#include "detail/neighbour_texts.h"
#include "detail/numbered_texts.h"

#include <optional>

using namespace vecmat;

namespace {

/// An array of no columns is not read.
ColumnsHandle<matrix> columnsIfAny(SAFEARRAY** x, int nCols, int n)
{
    return columns(nCols > 0 ? x : nullptr, nCols, n);
}

/// A caller's block of strings for one call.
class Strings
{
public:
    Strings(TextNumbers& numbers, wchar_t** statistics, int nStat, wchar_t** target, int nRows, int nCols)
        : numbers_(numbers), statistics_(statistics, nStat, nCols), target_(target), cols_(nCols)
    {
        if (target != nullptr)
            table_.emplace(numbers, nRows, nCols, target);
    }
    Strings(TextNumbers& numbers, wchar_t** data, int n, int nCols) : Strings(numbers, data, n, data, n, nCols) {}

    TextBlock block() { return {numbers_, statistics_, table_ ? &*table_ : nullptr, cols_}; }

    void addTo(OutgoingTexts& texts) const
    {
        if (table_)
            table_->addTo(texts, numbers_, target_);
    }
    void handBack() const
    {
        OutgoingTexts texts;
        addTo(texts);
        texts.store();
    }

private:
    TextNumbers& numbers_;
    CallerTexts statistics_;
    wchar_t** target_;
    int cols_;
    std::optional<NumberedTexts> table_;
};

} // namespace

void VB_EstimateRowsWithMissingNN(double* X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                  int nColsS, double* weights)
{
    const auto primary = viewed(X, n, nColsX);
    const auto second = viewed(Y, n, nColsY);
    TextNumbers numbers;
    Strings strings(numbers, S, n, nColsS);
    KeptCells kept;
    if (nColsS > 0) {
        kept.keep(X, n, nColsX);
        kept.keep(Y, n, nColsY);
    }
    EstimateRowsWithMissingNN(primary, n, primary, n, nColsX, mask, second, second, nColsY, strings.block(),
                              viewed(weights, n, 1));
    strings.handBack();
    kept.callHasSucceeded();
}

void VB_EstimateRowsWithMissingNNStr(wchar_t** P, int n, int nColsP, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights)
{
    const auto second = viewed(Y, n, nColsY);
    TextNumbers numbers;
    Strings primary(numbers, P, n, nColsP);
    Strings strings(numbers, S, n, nColsS);
    KeptCells kept;
    kept.keep(Y, n, nColsY);
    EstimateRowsWithMissingNN(primary.block(), n, n, mask, second, second, nColsY, strings.block(),
                              viewed(weights, n, 1));
    OutgoingTexts texts;
    primary.addTo(texts);
    strings.addTo(texts);
    texts.store();
    kept.callHasSucceeded();
}

void VB_EstimateRowsWithMissingNNSPV(SAFEARRAY** X, int n, int nColsX, short* mask, double* Y, int nColsY, wchar_t** S,
                                     int nColsS, double* weights)
{
    const auto primary = columnsIfAny(X, nColsX, n);
    const auto second = viewed(Y, n, nColsY);
    TextNumbers numbers;
    Strings strings(numbers, S, n, nColsS);
    KeptCells kept;
    if (nColsS > 0) {
        kept.keep(primary, nColsX);
        kept.keep(Y, n, nColsY);
    }
    EstimateRowsWithMissingNN(primary, n, nColsX, mask, second, nColsY, strings.block(), viewed(weights, n, 1));
    strings.handBack();
    kept.callHasSucceeded();
}

void VB_EstimateRowsWithMissingNNSPV2(SAFEARRAY** X, int n, int nColsX, short* mask, SAFEARRAY** Y, int nColsY,
                                      wchar_t** S, int nColsS, double* weights)
{
    const auto primary = columnsIfAny(X, nColsX, n);
    const auto second = columnsIfAny(Y, nColsY, n);
    TextNumbers numbers;
    Strings strings(numbers, S, n, nColsS);
    KeptCells kept;
    if (nColsS > 0) {
        kept.keep(primary, nColsX);
        kept.keep(second, nColsY);
    }
    EstimateRowsWithMissingNN(primary, n, nColsX, mask, second, nColsY, strings.block(), viewed(weights, n, 1));
    strings.handBack();
    kept.callHasSucceeded();
}

void VB_EstimateRowsWithMissingNNPred(double* statX, int nStat, double* X, int nRows, int nColsX, short* mask,
                                      double* statY, double* Y, int nColsY, wchar_t** statS, wchar_t** S, int nColsS,
                                      double* weights)
{
    const auto primary = copied(X, nRows, nColsX);
    const auto second = copied(Y, nRows, nColsY);
    TextNumbers numbers;
    Strings strings(numbers, statS, nStat, S, nRows, nColsS);
    EstimateRowsWithMissingNN(copied(statX, nStat, nColsX), nStat, primary, nRows, nColsX, mask,
                              copied(statY, nStat, nColsY), second, nColsY, strings.block(), viewed(weights, nStat, 1));
    OutgoingTexts texts;
    strings.addTo(texts);
    handBack(primary, X);
    handBack(second, Y);
    texts.store();
}

void VB_EstimateRowsWithMissingNNStrPred(wchar_t** statX, int nStat, wchar_t** X, int nRows, int nColsX, short* mask,
                                         double* statY, double* Y, int nColsY, wchar_t** statS, wchar_t** S, int nColsS,
                                         double* weights)
{
    const auto second = copied(Y, nRows, nColsY);
    TextNumbers numbers;
    Strings primary(numbers, statX, nStat, X, nRows, nColsX);
    Strings strings(numbers, statS, nStat, S, nRows, nColsS);
    EstimateRowsWithMissingNN(primary.block(), nStat, nRows, mask, copied(statY, nStat, nColsY), second, nColsY,
                              strings.block(), viewed(weights, nStat, 1));
    OutgoingTexts texts;
    strings.addTo(texts);
    primary.addTo(texts);
    handBack(second, Y);
    texts.store();
}
