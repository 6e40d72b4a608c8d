#include "inverse_products.h"

#include "../base/missing_value.h"
#include "../elementary/matrix_products.h"
#include "../frame/detail/handles.h"

using namespace vecmat;

namespace {

/// The inverse in a table of order `n`; 0.0 throughout if there is none, which is not checked.
TableHandle inverseOf(matrix* b, int n, double tol)
{
    TableHandle inverse = fresh(n, n);
    short ignored = 0;
    b->inverse1(inverse, ignored, tol);
    return inverse;
}

/// a inv(b)
TableHandle timesInverse(matrix* a, int rows, int cols, matrix* b)
{
    TableHandle product;
    M_ProductAB(a, rows, cols, inverseOf(b, cols, zeroTolerance), cols, product.reference());
    return product;
}

} // namespace

void M_ProductTrAinvBA(matrix* a, int rows, int cols, matrix* b, matrix*& out)
{
    TableHandle product;
    M_ProductTrAB(a, rows, cols, inverseOf(b, rows, negligible), rows, product.reference());
    M_ProductAB(product, cols, rows, a, cols, out);
}

double M_ProductTrVinvBV(matrix* v, int n, matrix* b)
{
    return M_ProductTrVBV(v, n, inverseOf(b, n, negligible));
}

void M_ProductAinvBTrA(matrix* a, int rows, int cols, matrix* b, matrix*& out)
{
    M_ProductATrB(timesInverse(a, rows, cols, b), rows, cols, a, rows, out);
}

void M_ProductAinvBTrASPV(matrix* a, int rows, int cols, matrix* b, matrix** out)
{
    M_ProductATrBSPV(timesInverse(a, rows, cols, b), rows, cols, a, rows, out);
}
