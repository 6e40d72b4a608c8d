#include "inverse_products.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_M_ProductTrAinvBA(double* a, int rows, int cols, double* b, double* out)
{
    M_ProductTrAinvBA(viewed(a, rows, cols), rows, cols, viewed(b, rows, rows), viewed(out, cols, cols).reference());
}

double VB_M_ProductTrVinvBV(double* v, int n, double* b)
{
    return M_ProductTrVinvBV(viewed(v, n, 1), n, viewed(b, n, n));
}

void VB_M_ProductAinvBTrA(double* a, int rows, int cols, double* b, double* out)
{
    M_ProductAinvBTrA(viewed(a, rows, cols), rows, cols, viewed(b, cols, cols), viewed(out, rows, rows).reference());
}
