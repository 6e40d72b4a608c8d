#include "least_squares_blocks.h"

#include "../frame/detail/handles.h"
#include "detail/model_columns.h"

#include <algorithm>

using namespace vecmat;

namespace {

/// The caller's block. One of width 0 need not have an array, and is not read.
View<matrix> viewedBlock(double* x, int n, int width)
{
    return viewed(width > 0 ? x : nullptr, n, width);
}

} // namespace

int RunOLSBasic2Lg(int n, int p1, double* X1, int p2, double* X2, int p3, double* X3, int p4, double* X4, int p5,
                   double* X5, double* y, double* w, int degree, short interactions, short noIntercept, double tol,
                   double* beta, double* se, double* fitted)
{
    int p = 0;
    for (const int width : {p1, p2, p3, p4, p5})
        p += std::max(width, 0);
    const int reserved = ModelShape{p, degree, interactions}.reserved();
    TableHandle coefficients = fresh(reserved, 1);
    TableHandle errors = fresh(reserved, 1);
    TableHandle values = fresh(n, 1);
    OLSBasic2Lg(n, p1, viewedBlock(X1, n, p1), p2, viewedBlock(X2, n, p2), p3, viewedBlock(X3, n, p3), p4,
                viewedBlock(X4, n, p4), p5, viewedBlock(X5, n, p5), viewed(y, n, 1), viewed(w, n, 1), degree,
                noIntercept, tol, coefficients.reference(), errors.reference(), values.reference());
    handBack(coefficients, beta);
    handBack(errors, se);
    handBack(values, fitted);
    return 0;
}
