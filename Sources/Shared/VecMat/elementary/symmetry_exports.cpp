#include "symmetry.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

short VB_M_IsSymmetric(double* a, int n)
{
    return M_IsSymmetric(viewed(a, n, n), n);
}

short VB_M_IsSymmetricSPV(SAFEARRAY** a, int n)
{
    return M_IsSymmetricSPV(columns(a, n, n), n);
}

void VB_M_Symmetrize(double* a, int n, int mode)
{
    M_Symmetrize(viewed(a, n, n).reference(), n, mode);
}

void VB_M_SymmetrizeSPV(SAFEARRAY** a, int n, int mode)
{
    M_SymmetrizeSPV(columns(a, n, n), n, mode);
}

int VB_M_IsTriangular(double* a, int n, short fill)
{
    return M_IsTriangular(viewed(a, n, n).reference(), n, fill);
}

int VB_M_IsTriangularSPV(SAFEARRAY** a, int n, short fill)
{
    return M_IsTriangularSPV(columns(a, n, n), n, fill);
}

int VB_M_CheckIfSimOrDissim(double* a, int n, int kind)
{
    return M_CheckIfSimOrDissim(viewed(a, n, n), n, kind);
}

int VB_M_CheckIfSimOrDissimSPV(SAFEARRAY** a, int rows, int cols, int kind)
{
    return M_CheckIfSimOrDissimSPV(columns(a, cols, rows), rows, cols, kind);
}

void VB_M_TransformSimToDissim(double* a, int n)
{
    M_TransformSimToDissim(viewed(a, n, n).reference(), n);
}
