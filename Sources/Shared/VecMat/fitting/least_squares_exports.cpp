#include "least_squares.h"

#include "../frame/detail/handles.h"
#include "detail/model_columns.h"

using namespace vecmat;

int RunOLSBasic(int n, int p, double* X, double* y, double* w, int degree, short interactions, short noIntercept,
                double tol, double* beta, double* fitted)
{
    TableHandle coefficients = fresh(ModelShape{p, degree, interactions}.reserved(), 1);
    TableHandle values = fresh(n, 1);
    OLSBasic(n, p, viewed(X, n, p), viewed(y, n, 1), viewed(w, n, 1), degree, interactions, noIntercept, tol,
             coefficients.reference(), values.reference());
    handBack(coefficients, beta);
    handBack(values, fitted);
    return 0;
}

int RunOLSBasic2(int n, int p, double* X, double* y, double* w, int degree, short interactions, short noIntercept,
                 double tol, double* beta, double* se, double* fitted)
{
    const int reserved = ModelShape{p, degree, interactions}.reserved();
    TableHandle coefficients = fresh(reserved, 1);
    TableHandle errors = fresh(reserved, 1);
    TableHandle values = fresh(n, 1);
    OLSBasic2(n, p, viewed(X, n, p), viewed(y, n, 1), viewed(w, n, 1), degree, interactions, noIntercept, tol,
              coefficients.reference(), errors.reference(), values.reference());
    handBack(coefficients, beta);
    handBack(errors, se);
    handBack(values, fitted);
    return 0;
}

int RunOLSBasic3(int n, int p, double* X, double* y, double* w, int degree, short interactions, short noIntercept,
                 double tol, double* beta, double* se, double* fitted, double* swept, double* mean, double* sd)
{
    const int reserved = ModelShape{p, degree, interactions}.reserved();
    TableHandle coefficients = fresh(reserved, 1);
    TableHandle errors = fresh(reserved, 1);
    TableHandle values = fresh(n, 1);
    const TableHandle sweptTable = fresh(reserved, reserved);
    const TableHandle means = fresh(reserved, 1);
    const TableHandle deviations = fresh(reserved, 1);
    OLSBasic3(n, p, viewed(X, n, p), viewed(y, n, 1), viewed(w, n, 1), degree, interactions, noIntercept, tol,
              coefficients.reference(), errors.reference(), values.reference(), sweptTable, means, deviations);
    handBack(coefficients, beta);
    handBack(errors, se);
    handBack(values, fitted);
    handBack(sweptTable, swept);
    handBack(means, mean);
    handBack(deviations, sd);
    return 0;
}
