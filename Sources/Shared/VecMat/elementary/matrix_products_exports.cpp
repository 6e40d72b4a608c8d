#include "matrix_products.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int VB_M_ProductAB(double* a, int r, int c, double* b, int c2, double* out)
{
    return M_ProductAB(viewed(a, r, c), r, c, viewed(b, c, c2), c2, viewed(out, r, c2).reference());
}

int VB_M_ProductBV(double* b, int rows, int cols, double* v, double* out)
{
    return M_ProductBV(viewed(b, rows, cols), rows, cols, viewed(v, cols, 1), viewed(out, rows, 1).reference());
}

void VB_M_ProductVB(double* v, int rows, double* b, int cols, double* out)
{
    M_ProductVB(viewed(v, rows, 1), rows, viewed(b, rows, cols), cols, viewed(out, cols, 1).reference());
}

void VB_M_ProductTrAB(double* a, int rows, int cols, double* b, int colsB, double* out)
{
    M_ProductTrAB(viewed(a, rows, cols), rows, cols, viewed(b, rows, colsB), colsB,
                  viewed(out, cols, colsB).reference());
}

void VB_M_ProductATrB(double* a, int rows, int cols, double* b, int rowsB, double* out)
{
    M_ProductATrB(viewed(a, rows, cols), rows, cols, viewed(b, rowsB, cols), rowsB,
                  viewed(out, rows, rowsB).reference());
}

void VB_M_ProductTrAA(double* a, int rows, int cols, double* out)
{
    M_ProductTrAA(viewed(a, rows, cols), rows, cols, viewed(out, cols, cols).reference());
}

void Cpp_M_ProductTrAALng(int* a, int rows, int cols, int* out)
{
    M_ProductTrAA(viewed(a, rows, cols), rows, cols, viewed(out, cols, cols).reference());
}

void VB_M_ProductATrA(double* a, int rows, int cols, double* out)
{
    M_ProductATrA(viewed(a, rows, cols), rows, cols, viewed(out, rows, rows).reference());
}

void VB_M_ProductTrBV(double* b, int rows, int cols, double* v, double* out)
{
    M_ProductTrBV(viewed(b, rows, cols), rows, cols, viewed(v, rows, 1), viewed(out, cols, 1));
}

void VB_M_ProductVTrB(double* v, int n, double* b, int m, double* out)
{
    M_ProductVTrB(viewed(v, n, 1), n, viewed(b, m, n), m, viewed(out, m, 1));
}

void VB_M_ProductABTrA(double* a, int rows, int cols, double* b, double* out)
{
    M_ProductABTrA(viewed(a, rows, cols), rows, cols, viewed(b, cols, cols), viewed(out, rows, rows));
}

void VB_M_ProductTrABA(double* a, int rows, int cols, double* b, double* out)
{
    M_ProductTrABA(viewed(a, rows, cols), rows, cols, viewed(b, rows, rows), viewed(out, cols, cols));
}

double VB_M_ProductTrVBV(double* v, int n, double* b)
{
    return M_ProductTrVBV(viewed(v, n, 1), n, viewed(b, n, n));
}

double VB_M_ProductTrV1BV2(double* va, int n, double* b, double* vb)
{
    return M_ProductTrV1BV2(viewed(va, n, 1), n, viewed(b, n, n), viewed(vb, n, 1));
}

void VB_M_ProductTrABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC, double* out)
{
    M_ProductTrABC(viewed(a, rows, cols), rows, cols, viewed(b, rows, colsB), colsB, viewed(c, colsB, colsC), colsC,
                   viewed(out, cols, colsC));
}

void VB_M_ProductATrBC(double* a, int rows, int cols, double* b, int rowsB, double* c, int colsC, double* out)
{
    M_ProductATrBC(viewed(a, rows, cols), rows, cols, viewed(b, rowsB, cols), rowsB, viewed(c, rowsB, colsC), colsC,
                   viewed(out, rows, colsC));
}

void Cpp_M_ProductTrABV(double* a, int rows, int cols, double* b, int colsB, double* v, double* out)
{
    M_ProductTrABV(viewed(a, rows, cols), rows, cols, viewed(b, rows, colsB), colsB, viewed(v, colsB, 1),
                   viewed(out, cols, 1));
}

void VB_M_ProductABC(double* a, int rows, int cols, double* b, int colsB, double* c, int colsC, double* out)
{
    M_ProductABC(viewed(a, rows, cols), rows, cols, viewed(b, cols, colsB), colsB, viewed(c, colsB, colsC), colsC,
                 viewed(out, rows, colsC));
}
