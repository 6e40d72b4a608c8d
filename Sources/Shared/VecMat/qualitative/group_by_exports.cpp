#include "group_by.h"

#include "../frame/detail/handles.h"

using vecmat::copied;
using vecmat::handBack;
using vecmat::viewed;

void VB_M_GroupBy(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate, int* nGroups,
                  double* out)
{
    auto groups = copied(out, nRows, nCols);
    M_GroupBy(viewed(data, nRows, nCols), nRows, nCols, viewed(colTypes, nCols, 1), keyCol, aggregate, nGroups,
              groups.reference());
    handBack(groups, out);
}

void VB_M_GroupByW(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate, int* nGroups,
                   double* out, double* weights)
{
    auto groups = copied(out, nRows, nCols);
    auto sortedWeights = copied(weights, nRows, 1);
    M_GroupByW(viewed(data, nRows, nCols), nRows, nCols, viewed(colTypes, nCols, 1), keyCol, aggregate, nGroups,
               groups.reference(), sortedWeights);
    handBack(groups, out);
    handBack(sortedWeights, weights);
}
