#include "forecast_errors.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

double VB_MAPE(double* y, double* f, int n, double* w, int first)
{
    return MAPE(viewed(y, n, 1), viewed(f, n, 1), n, viewed(w, n, 1), first);
}

double VB_MPE(double* y, double* f, int n, double* w, int first)
{
    return MPE(viewed(y, n, 1), viewed(f, n, 1), n, viewed(w, n, 1), first);
}

double VB_MAE(double* y, double* f, int n, double* w, int first)
{
    return MAE(viewed(y, n, 1), viewed(f, n, 1), n, viewed(w, n, 1), first);
}

double VB_RMSE(double* Y, int n, int p, double* F, int divisor)
{
    return RMSE(viewed(Y, n, p), n, p, viewed(F, n, p), divisor);
}
