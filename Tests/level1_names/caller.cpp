// A library that is linked with VecMat alone and refers to the five names, as an analysis built over VecMat would.
#include "home.h"

#include "VecMat.h"

#include <cmath>

namespace {

bool near(double a, double b)
{
    return std::fabs(a - b) < 1e-12;
}

// The level-1 routines by their exported names.
bool calls_by_name()
{
    matrix x(2, 1, 3.0);
    matrix y(2, 1, 4.0);
    bool right = ddot(2, &x, 1, &y, 1, 1, 1, 1, 1) == 24.0;
    daxpy(2, 2.0, &x, 1, &y, 1, 1, 1, 1, 1);
    right = right && y.vbget(1, 1) == 10.0;
    dscal(2, 0.5, &y, 1, 1, 1);
    right = right && y.vbget(2, 1) == 5.0;
    drot(2, &x, 1, &y, 1, 0.0, 1.0, 1, 1);
    right = right && x.vbget(1, 1) == 5.0 && y.vbget(1, 1) == -3.0;
    double a = 3.0;
    double b = 4.0;
    double c = 0.0;
    double s = 0.0;
    drotg(&a, &b, &c, &s);
    return right && near(std::fabs(a), 5.0) && near(std::fabs(c), 0.6) && near(std::fabs(s), 0.8);
}

// A decomposition, which consists of such steps.
bool decomposes()
{
    double x[] = {3.0, 4.0, 0.0, 5.0};
    double values[2] = {};
    double u[4] = {};
    double v[4] = {};
    int info = -1;
    VB_M_SVDecomp(x, 2, 2, values, u, 2, v, 2, 11, &info);
    return info == 0 && near(values[0], std::sqrt(45.0)) && near(values[1], std::sqrt(5.0));
}

} // namespace

// How many references of this caller to the five names reach VecMat.
extern "C" int caller_reaches_vecmat()
{
    return lies_in("libVecMat", reinterpret_cast<void*>(ddot)) + lies_in("libVecMat", reinterpret_cast<void*>(daxpy)) +
           lies_in("libVecMat", reinterpret_cast<void*>(dscal)) + lies_in("libVecMat", reinterpret_cast<void*>(drot)) +
           lies_in("libVecMat", reinterpret_cast<void*>(drotg));
}

// Are VecMat's results right? By name it is only asked where the names reach it.
extern "C" int caller_gets_right_results()
{
    return decomposes() && (caller_reaches_vecmat() != 5 || calls_by_name());
}
