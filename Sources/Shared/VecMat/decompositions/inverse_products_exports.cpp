#include "inverse_products.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

void VB_M_ProductTrAinvBA(double* a, int rows, int cols, double* b, double* out)
{
    auto result = viewed(out, cols, cols);
    M_ProductTrAinvBA(viewed(a, rows, cols), rows, cols, viewed(b, rows, rows), result.reference());
}

double VB_M_ProductTrVinvBV(double* v, int n, double* b)
{
    return M_ProductTrVinvBV(viewed(v, n, 1), n, viewed(b, n, n));
}

void VB_M_ProductAinvBTrA(double* a, int rows, int cols, double* b, double* out)
{
    auto result = viewed(out, rows, rows);
    M_ProductAinvBTrA(viewed(a, rows, cols), rows, cols, viewed(b, cols, cols), result.reference());
}
