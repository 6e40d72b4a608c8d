#include "missing_masks.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../elementary/detail/texts.h"
#include "../frame/detail/handles.h"
#include "detail/text_calls.h"

using vecmat::booleanOf;
using vecmat::CallerTexts;
using vecmat::cells;
using vecmat::columns;
using vecmat::isMissing;
using vecmat::maskOfMissing;
using vecmat::viewed;

namespace {

/// Flags the rows that pass the filter and are missing in every column.
template <class Test>
void flagAllMissingRows(Test missingAt, int rows, int cols, const short* filter, short* out)
{
    for (int i = 0; i < rows; ++i) {
        if (filter[i] != -1)
            continue;
        int j = 0;
        while (j < cols && missingAt(i, j))
            ++j;
        if (j > 0 && j == cols)
            out[i] = -1;
    }
}

} // namespace

void VB_SummarizeMissing(int n, int* total, short* out, short* a, short* b, short* c)
{
    SummarizeMissing(n, total, out, a, b, c);
}

void VB_SummarizeAllMissing(int n, short* a, short* b, int* total, short* out)
{
    *total = 0;
    for (int i = 0; i < n; ++i)
        if (a[i] == -1 && b[i] == -1) {
            out[i] = -1;
            ++*total;
        }
}

void VB_M_AllMissingRows(double* x, int nRows, int nCols, short* filter, short* out)
{
    const auto table = viewed(x, nRows, nCols);
    flagAllMissingRows([x = cells<matrix>(table)](int i, int j) { return isMissing(x.get(i, j)); }, nRows, nCols,
                       filter, out);
}

void VB_M_AllMissingRowsStr(wchar_t** x, int nRows, int nCols, short* filter, short* out)
{
    const CallerTexts texts(x, nRows, nCols);
    flagAllMissingRows([texts](int i, int j) { return texts.at(i, j).empty(); }, nRows, nCols, filter, out);
}

void VB_V_GetMissingDbl(double* x, int n, short* a, short* out)
{
    for (int i = 0; i < n; ++i)
        out[i] = maskOfMissing(a[i], x[i]);
}

void VB_V_GetMissingStr(wchar_t** x, int n, short* a, short* out)
{
    vecmat::getMissingStr(CallerTexts(x, n, 1), n, a, out);
}

void Cpp_M_GetMissingDbl(double* a, int nRows, int nCols, short* filter, short* out)
{
    M_GetMissing(viewed(a, nRows, nCols), nRows, nCols, filter, out);
}

void Cpp_M_GetMissingDblSPV(SAFEARRAY** a, int nRows, int nCols, short* filter, short* out)
{
    M_GetMissingSPV(columns(a, nCols, nRows), nRows, nCols, filter, out);
}

void Cpp_M_IdentifyMissingInMat(double* a, int nRows, int nCols, int* out)
{
    M_IdentifyMissingInMat(viewed(a, nRows, nCols), nRows, nCols, viewed(out, nRows, nCols));
}

void Cpp_M_IdentifyMissingInMatSPV(SAFEARRAY** a, int nRows, int nCols, int* out)
{
    M_IdentifyMissingInMatSPV(columns(a, nCols, nRows), nRows, nCols, viewed(out, nRows, nCols));
}

short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiags(double* a, int n)
{
    return M_IsMissingOutOfDiagonalAndNotOnDiags(viewed(a, n, n), n);
}

short Cpp_M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(SAFEARRAY** a, int n)
{
    return M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(vecmat::triangleColumns(a, n), n);
}
