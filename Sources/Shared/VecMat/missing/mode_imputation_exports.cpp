#include "mode_imputation.h"

#include "../elementary/detail/texts.h"
#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "detail/borrowed_rows.h"

using vecmat::borrowedCopy;
using vecmat::CallerTexts;
using vecmat::handBack;
using vecmat::viewed;

void VB_EstimateRowsWithMissingMode(wchar_t** S, int n, int nCols, short* mask, double* weights)
{
    VB_EstimateRowsWithMissingModePred(S, n, S, n, nCols, mask, weights);
}

void VB_EstimateRowsWithMissingModePred(wchar_t** statS, int nStat, wchar_t** S, int nRows, int nCols, short* /*mask*/,
                                        double* weights)
{
    const auto table = borrowedCopy(S, nRows, nCols);
    vecmat::EstimateRowsWithMissingMode(CallerTexts(statS, nStat, nCols), nStat, table, nRows, nCols,
                                        viewed(weights, nStat, 1));
    handBack(table, S);
}
