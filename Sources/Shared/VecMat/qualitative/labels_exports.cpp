#include "labels.h"

#include "../base/detail/companions.h"
#include "../frame/detail/handles.h"

using vecmat::copied;
using vecmat::freshStrings;
using vecmat::handBack;

void VB_V_ReplaceDoubles(wchar_t** x, int n)
{
    const auto labels = copied(x, n, 1);
    V_ReplaceDoubles(labels, n);
    handBack(labels, x);
}

void Cpp_M_MergeStringsByRow(wchar_t** table, int nRows, int nCols, const void* separator, wchar_t** out)
{
    const auto joined = freshStrings(nRows, 1);
    M_MergeStringsByRow(copied(table, nRows, nCols), nRows, nCols, convToWstring(separator), joined);
    handBack(joined, out);
}
