#include "vector_updates.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_V_Norm(double* x, int n)
{
    TableHandle table = copied(x, n, 1);
    V_Norm(table.reference(), n);
    handBack(table, x);
}

void VB_V_NormToVal(double* x, int n, double val)
{
    TableHandle table = copied(x, n, 1);
    V_NormToVal(table.reference(), n, val);
    handBack(table, x);
}

void VB_V_NormW(double* x, int n, double* w)
{
    TableHandle table = copied(x, n, 1);
    V_NormW(table.reference(), n, copied(w, n, 1));
    handBack(table, x);
}

void VB_V_NormToValW(double* x, int n, double val, double* w)
{
    TableHandle table = copied(x, n, 1);
    V_NormToValW(table.reference(), n, val, copied(w, n, 1));
    handBack(table, x);
}

void VB_V_PlusVal(double* x, int n, double val, short* mask)
{
    const TableHandle table = copied(x, n, 1);
    V_PlusVal(table, n, val, mask);
    handBack(table, x);
}

void VB_V_PlusVal2(double* x, int n, double val)
{
    const TableHandle table = copied(x, n, 1);
    V_PlusVal2(table, n, val);
    handBack(table, x);
}

void VB_V_ReplaceVal(double* x, int n, double from, double to, double* out)
{
    const TableHandle result = fresh(n, 1);
    V_ReplaceVal(copied(x, n, 1), n, from, to, result);
    handBack(result, out);
}

void VB_V_ReplaceVal2(double* x, int n, double from, double to)
{
    VB_V_ReplaceVal(x, n, from, to, x);
}

void VB_V_RemoveVal(double* x, int n, int pos, double* out)
{
    for (int i = 1; i < n; ++i)
        out[i - 1] = x[i < pos ? i - 1 : i];
}
