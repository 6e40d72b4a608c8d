#include "newton_raphson.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../decompositions/constrained_inverses.h"
#include "../elementary/matrix_products.h"
#include "../frame/detail/handles.h"

#include <algorithm>
#include <cmath>

using namespace vecmat;

namespace {

/// Shortens the step so that its largest change is `maxStep`.
void shorten(matrix* step, int n, double maxStep)
{
    double largest = 0.0;
    for (int i = 1; i <= n; ++i)
        largest = std::max(largest, std::fabs(step->vbget(i, 1)));
    const double ratio = largest / maxStep;
    if (ratio > 1.0)
        for (int i = 1; i <= n; ++i)
            step->vbset(i, 1, step->vbget(i, 1) / ratio);
}

template <class Constraints>
int newtonStep(matrix* x, int n, Constraints* constraints, matrix* g, matrix* H, double tol, matrix* se, matrix*& Hinv,
               short limitStep, double maxStep)
{
    if (cCleanConstraintsAndInvert(n, constraints, H, Hinv) < 0)
        return -1;
    TableHandle step = fresh(n, 1);
    M_ProductBV(Hinv, n, n, g, step.reference());
    if (limitStep == -1)
        shorten(step, n, maxStep);

    bool converged = true;
    for (int i = 1; i <= n; ++i) {
        if (constraints->vbget(i, 1) != 0)
            continue;
        const double next = x->vbget(i, 1) - step->vbget(i, 1);
        if (std::fabs(x->vbget(i, 1) - next) > tol)
            converged = false;
        x->vbset(i, 1, next);
        // A Hessian that isn't positive definite may leave a negative diagonal.
        se->vbset(i, 1, squareRoot(std::fabs(Hinv->vbget(i, i))));
    }
    return converged ? 1 : 0;
}

} // namespace

int cNewtonRaphson(matrix*& x, int n, matrixInt* constraints, matrix* g, matrix* H, double tol, matrix*& se,
                   matrix*& Hinv, short limitStep, double maxStep)
{
    return newtonStep(x, n, constraints, g, H, tol, se, Hinv, limitStep, maxStep);
}

int cNewtonRaphson(matrix*& x, int n, matrix* constraints, matrix* g, matrix* H, double tol, matrix*& se, matrix*& Hinv,
                   short limitStep, double maxStep)
{
    return newtonStep(x, n, constraints, g, H, tol, se, Hinv, limitStep, maxStep);
}
