#include "diagonal_products.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_M_ProductADTrA(double* a, int rows, int cols, double* d, double* out)
{
    M_ProductADTrA(viewed(a, rows, cols), rows, cols, viewed(d, cols, cols), viewed(out, rows, rows).reference());
}

void VB_M_ProductTrADA(double* a, int rows, int cols, double* d, double* out)
{
    M_ProductTrADA(viewed(a, rows, cols), rows, cols, viewed(d, rows, rows), viewed(out, cols, cols).reference());
}

void VB_M_ProductADiag(double* a, int rows, int cols, double* d, double* out)
{
    M_ProductADiag(viewed(a, rows, cols), rows, cols, viewed(d, cols, cols), viewed(out, rows, cols).reference());
}

void VB_M_ProductTrADiag(double* a, int rows, int cols, double* d, double* out)
{
    M_ProductTrADiag(viewed(a, rows, cols), rows, cols, viewed(d, rows, rows), viewed(out, cols, rows).reference());
}

void VB_M_ProductDiagVA(double* v, int rows, double* a, int cols, double* out)
{
    M_ProductDiagVA(viewed(v, rows, 1), rows, viewed(a, rows, cols), cols, viewed(out, rows, cols));
}

void VB_M_ProductDiagV1ADiagV2(double* va, int rows, double* a, int cols, double* vb, double* out)
{
    M_ProductDiagV1ADiagV2(viewed(va, rows, 1), rows, viewed(a, rows, cols), cols, viewed(vb, cols, 1),
                           viewed(out, rows, cols).reference());
}

void VB_M_ProductADiagV(double* a, int rows, int cols, double* v, double* out)
{
    M_ProductADiagV(viewed(a, rows, cols), rows, cols, viewed(v, cols, 1), viewed(out, rows, cols).reference());
}

void VB_M_ProductADiagVTrA(double* a, int rows, int cols, double* v, double* out)
{
    M_ProductADiagVTrA(viewed(a, rows, cols), rows, cols, viewed(v, cols, 1), viewed(out, rows, rows));
}

void VB_M_ProductTrADiagVA(double* a, int rows, int cols, double* v, double* out)
{
    M_ProductTrADiagVA(viewed(a, rows, cols), rows, cols, viewed(v, rows, 1), viewed(out, cols, cols));
}

void VB_M_ProductADiagVTrB(double* a, int rows, int cols, double* v, double* b, int rowsB, double* out)
{
    M_ProductADiagVTrB(viewed(a, rows, cols), rows, cols, viewed(v, cols, 1), viewed(b, rowsB, cols), rowsB,
                       viewed(out, rows, rows));
}

// The shapes of b and out are those of the form above, and callers rely on them.
void VB_M_ProductADiagVB(double* a, int rows, int cols, double* v, double* b, int colsB, double* out)
{
    M_ProductADiagVB(viewed(a, rows, cols), rows, cols, viewed(v, cols, 1), viewed(b, colsB, cols), colsB,
                     viewed(out, rows, rows));
}

void VB_M_ProductTrADiagV(double* a, int rows, int cols, double* v, double* out)
{
    M_ProductTrADiagV(viewed(a, rows, cols), rows, cols, viewed(v, rows, 1), viewed(out, cols, rows));
}
