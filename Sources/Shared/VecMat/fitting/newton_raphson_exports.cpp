#include "newton_raphson.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int NewtonRaphson(double* x, int n, int* constraints, double* g, double* H, double tol, double* se, double* Hinv,
                  short limitStep, double maxStep)
{
    TableHandle parameters = copied(x, n, 1);
    TableHandle errors = fresh(n, 1);
    TableHandle inverse = fresh(n, n);
    const int status =
        cNewtonRaphson(parameters.reference(), n, viewed(constraints, n, 1), viewed(g, n, 1), viewed(H, n, n), tol,
                       errors.reference(), inverse.reference(), limitStep, maxStep);
    handBack(errors, se);
    handBack(parameters, x);
    handBack(inverse, Hinv);
    return status;
}
