#include "mode_imputation.h"

#include "../frame/detail/handles.h"

using vecmat::copied;
using vecmat::handBack;
using vecmat::viewed;

void VB_EstimateRowsWithMissingMode(wchar_t** S, int n, int nCols, short* /*mask*/, double* weights)
{
    auto table = copied(S, n, nCols);
    EstimateRowsWithMissingMode(table, n, table.reference(), n, nCols, viewed(weights, n, 1));
    handBack(table, S);
}

void VB_EstimateRowsWithMissingModePred(wchar_t** statS, int nStat, wchar_t** S, int nRows, int nCols, short* /*mask*/,
                                        double* weights)
{
    auto table = copied(S, nRows, nCols);
    EstimateRowsWithMissingMode(copied(statS, nStat, nCols), nStat, table.reference(), nRows, nCols,
                                viewed(weights, nStat, 1));
    handBack(table, S);
}
