#include "sort_apply.h"

#include "../frame/handles.h"

using namespace vecmat;

// The source is a copy in every form, so that a form in place is the plain one with the table as its own result.

void VB_SortApply(double* source, int nRows, int nCols, double* order, double* out)
{
    auto result = viewed(out, nRows, nCols);
    SortApply(copied(source, nRows, nCols), nRows, nCols, viewed(order, nRows, 1), result.reference());
}

void VB_SortApply2(double* table, int nRows, int nCols, double* order)
{
    VB_SortApply(table, nRows, nCols, order, table);
}

void VB_SortApplyLng(int* source, int nRows, int nCols, double* order, int* out)
{
    auto result = viewed(out, nRows, nCols);
    SortApply(copied(source, nRows, nCols), nRows, nCols, viewed(order, nRows, 1), result.reference());
}

void VB_SortApply2Lng(int* table, int nRows, int nCols, double* order)
{
    VB_SortApplyLng(table, nRows, nCols, order, table);
}

void VB_SortApplyStr(wchar_t** source, int nRows, int nCols, double* order, wchar_t** out)
{
    const auto result = freshStrings(nRows, nCols);
    SortApplyStr(copied(source, nRows, nCols), nRows, nCols, viewed(order, nRows, 1), result);
    handBack(result, out);
}

void VB_SortApply2Str(wchar_t** table, int nRows, int nCols, double* order)
{
    VB_SortApplyStr(table, nRows, nCols, order, table);
}
