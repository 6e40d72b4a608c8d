#include "transposition.h"

#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "detail/borrowed_moves.h"

using namespace vecmat;

void VB_M_Transpose(double* a, int r, int c, double* out)
{
    TableHandle result = fresh(c, r);
    M_Transpose(viewed(a, r, c).reference(), r, c, result.reference());
    handBack(result, out);
}

void VB_M_TransposeLng(int* a, int r, int c, int* out)
{
    IntTableHandle result = freshInt(c, r);
    M_Transpose(viewed(a, r, c).reference(), r, c, result.reference());
    handBack(result, out);
}

void VB_M_TransposeStr(wchar_t** a, int r, int c, wchar_t** out)
{
    BorrowedHandle table = borrowed(a, r, c);
    BorrowedHandle result = freshBorrowed(c, r);
    M_Transpose(table.reference(), r, c, result.reference());
    handBack(result, out);
}

void VB_M_Transpose2(double* a, int r, int c)
{
    M_Transpose2(viewed(a, r, c).reference(), r, c);
}

void VB_M_Transpose2Lng(int* a, int r, int c)
{
    VB_M_TransposeLng(a, r, c, a);
}

void VB_M_Transpose2Str(wchar_t** a, int r, int c)
{
    BorrowedHandle table = borrowedCopy(a, r, c);
    M_Transpose2(table.reference(), r, c);
    handBack(table, a);
}

void VB_M_TransposeSPV(SAFEARRAY** a, int r, int c, SAFEARRAY** out)
{
    M_TransposeSPV(columns(a, c, r), r, c, columns(out, r, c));
}
