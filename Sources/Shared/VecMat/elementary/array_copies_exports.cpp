#include "array_copies.h"

#include "../access/block_copy.h"
#include "../base/detail/numbers.h"
#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/borrowed_texts.h"
#include "../frame/detail/handles.h"

#include <algorithm>

using namespace vecmat;

namespace {

/// The columns of the source and of the result; 0 for the source means a vector on both sides.
struct ResizedColumns
{
    ResizedColumns(int c, int newC) : source(c == 0 ? 1 : c), result(c == 0 ? 1 : newC) {}

    int source;
    int result;
};

} // namespace

void VB_V_DuplicateDbl(double* src, int n, double* dst)
{
    std::copy_n(src, countOf(n), dst);
}

void VB_V_DuplicateLng(int* src, int n, int* dst)
{
    std::copy_n(src, countOf(n), dst);
}

void Cpp_V_DuplicateBool(short* src, int n, short* dst)
{
    std::copy_n(src, countOf(n), dst);
}

void VB_V_DuplicateStr(wchar_t** src, int n, wchar_t** dst)
{
    handBack(borrowed(src, n, 1), dst);
}

void VB_M_DuplicateDbl(double* src, int r, int c, double* dst)
{
    handBack(viewed(src, r, c), dst);
}

void VB_M_DuplicateLng(int* src, int r, int c, int* dst)
{
    handBack(viewed(src, r, c), dst);
}

void VB_M_DuplicateStr(wchar_t** src, int r, int c, wchar_t** dst)
{
    handBack(borrowed(src, r, c), dst);
}

void VB_V_DuplicateDblToLng(double* src, int n, int* dst)
{
    std::transform(src, src + countOf(n), dst, vecmat::truncated);
}

void VB_V_DuplicateLngToDbl(int* src, int n, double* dst)
{
    std::copy_n(src, countOf(n), dst);
}

void VB_M_CopyResize(double* src, int r, int c, double* dst, int newR, int newC)
{
    const ResizedColumns cols(c, newC);
    const TableHandle result = fresh(newR, cols.result);
    copyResized<matrix>(viewed(src, r, cols.source), r, result);
    handBack(result, dst);
}

void VB_M_CopyResizeStr(wchar_t** src, int r, int c, wchar_t** dst, int newR, int newC)
{
    const ResizedColumns cols(c, newC);
    const auto result = freshBorrowed(newR, cols.result);
    copyResized<BorrowedTexts>(borrowed(src, r, cols.source), r, result);
    handBack(result, dst);
}

void VB_V_ReverseDbl(double* x, int n, double* out)
{
    const TableHandle result = fresh(n, 1);
    V_Reverse(viewed(x, n, 1), n, result);
    handBack(result, out);
}

void VB_V_ReverseBool(short* x, int n, short* out)
{
    V_ReverseBool(x, n, out);
}
