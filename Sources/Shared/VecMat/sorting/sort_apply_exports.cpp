#include "sort_apply.h"

#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "../frame/detail/in_place.h"
#include "detail/borrowed_rows.h"

using namespace vecmat;

namespace {

/// Into another array, or over the source or the order, which are then copied first.
template <class Number>
void applyToArrays(Number* source, int nRows, int nCols, double* order, Number* out)
{
    const CallerArray cells{source, nRows, nCols};
    const CallerArray numbers{order, nRows, 1};
    onViewsOrCopies<Copies::dropped>(
        areApart(cells, numbers, CallerArray{out, nRows, nCols}),
        [=](auto* from, matrix* rows) { SortApply(from, nRows, nCols, rows, View(out, nRows, nCols).reference()); },
        cells, numbers);
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
    const auto result = freshBorrowed(nRows, nCols);
    SortApplyStr(borrowed(source, nRows, nCols), nRows, nCols, View(order, nRows, 1), result);
    handBack(result, out);
}

void VB_SortApply2Str(wchar_t** table, int nRows, int nCols, double* order)
{
    VB_SortApplyStr(table, nRows, nCols, order, table);
}
