#include "sort_apply.h"

#include "../frame/handles.h"
#include "../frame/numbers.h"
#include "memory_stretches.h"

using namespace vecmat;

namespace {

/// The source of a result: the caller's array, or a copy where the result lies over it.
template <class Number>
auto unmixed(Number* x, int nRows, int nCols, const Number* out)
{
    Stretches arrays;
    arrays.add(x, elementCount(nRows, nCols));
    arrays.add(out, elementCount(nRows, nCols));
    return arrays.areApart() ? View(x, nRows, nCols) : copied(x, nRows, nCols);
}

} // namespace

void VB_SortApply(double* source, int nRows, int nCols, double* order, double* out)
{
    View result(out, nRows, nCols);
    SortApply(unmixed(source, nRows, nCols, out), nRows, nCols, View(order, nRows, 1), result.reference());
}

void VB_SortApply2(double* table, int nRows, int nCols, double* order)
{
    SortApply2(View(table, nRows, nCols), nRows, nCols, View(order, nRows, 1));
}

void VB_SortApplyLng(int* source, int nRows, int nCols, double* order, int* out)
{
    View result(out, nRows, nCols);
    SortApply(unmixed(source, nRows, nCols, out), nRows, nCols, View(order, nRows, 1), result.reference());
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
