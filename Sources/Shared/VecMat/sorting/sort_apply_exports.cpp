#include "sort_apply.h"

#include "../base/detail/memory_ranges.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/handles.h"

using namespace vecmat;

namespace {

/// Into another array, or over the source or the order, which are copied then.
template <class Number>
void applyToArrays(Number* source, int nRows, int nCols, double* order, Number* out)
{
    Stretches arrays;
    arrays.add(source, elementCount(nRows, nCols));
    arrays.add(order, elementCount(nRows, 1));
    arrays.add(out, elementCount(nRows, nCols));
    View result(out, nRows, nCols);
    if (arrays.areApart())
        SortApply(View(source, nRows, nCols), nRows, nCols, View(order, nRows, 1), result.reference());
    else
        SortApply(copied(source, nRows, nCols), nRows, nCols, copied(order, nRows, 1), result.reference());
}

} // namespace

void VB_SortApply(double* source, int nRows, int nCols, double* order, double* out)
{
    applyToArrays(source, nRows, nCols, order, out);
}

void VB_SortApply2(double* table, int nRows, int nCols, double* order)
{
    SortApply2(View(table, nRows, nCols), nRows, nCols, View(order, nRows, 1));
}

void VB_SortApplyLng(int* source, int nRows, int nCols, double* order, int* out)
{
    applyToArrays(source, nRows, nCols, order, out);
}

void VB_SortApply2Lng(int* table, int nRows, int nCols, double* order)
{
    SortApply2(View(table, nRows, nCols), nRows, nCols, View(order, nRows, 1));
}

void VB_SortApplyStr(wchar_t** source, int nRows, int nCols, double* order, wchar_t** out)
{
    const auto result = freshStrings(nRows, nCols);
    SortApplyStr(copied(source, nRows, nCols), nRows, nCols, View(order, nRows, 1), result);
    handBack(result, out);
}

void VB_SortApply2Str(wchar_t** table, int nRows, int nCols, double* order)
{
    VB_SortApplyStr(table, nRows, nCols, order, table);
}
