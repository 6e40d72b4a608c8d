#include "group_by.h"

#include "../frame/detail/handles.h"
#include "../frame/detail/in_place.h"
#include "detail/groups_in_place.h"

using vecmat::areApart;
using vecmat::CallerArray;
using vecmat::copied;
using vecmat::groupInPlace;
using vecmat::handBack;
using vecmat::viewed;

void VB_M_GroupBy(double* data, int nRows, int nCols, int* colTypes, int keyCol, int aggregate, int* nGroups,
                  double* out)
{
    const CallerArray table{data, nRows, nCols};
    const CallerArray types{colTypes, nCols, 1};
    if (areApart(table, types, CallerArray{nGroups, 1, 1}, CallerArray{out, nRows, nCols}) &&
        groupInPlace(viewed(data, nRows, nCols), nRows, nCols, viewed(colTypes, nCols, 1), keyCol, aggregate, nGroups,
                     viewed(out, nRows, nCols)))
        return;
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
