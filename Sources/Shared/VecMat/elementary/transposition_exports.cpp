#include "transposition.h"

#include "../frame/detail/handles.h"

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
    StringTableHandle table = copied(a, r, c);
    StringTableHandle result = freshStrings(c, r);
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
    StringTableHandle table = copied(a, r, c);
    M_Transpose2(table.reference(), r, c);
    handBack(table, a);
}

void VB_M_TransposeSPV(SAFEARRAY** a, int r, int c, SAFEARRAY** out)
{
    M_TransposeSPV(columns(a, c, r), r, c, columns(out, r, c));
}
