#include "forecast_errors.h"

#include "../access/cells.h"
#include "../base/missing_value.h"
#include "means.h"

#include <cmath>

using namespace vecmat;

namespace {

/// A weighted sum of error terms and the sum of their weights.
struct WeightedErrors
{
    double sum = 0.0;
    double weights = 0.0;

    double meanOrMissing(double factor) const { return weights != 0.0 ? sum * factor / weights : missingValue; }
};

bool bothPresent(double y, double f)
{
    return !isMissing(y) && !isMissing(f);
}

/// Rows as numbered by the caller: one before the table reads -1.0 everywhere.
double at(matrix* vector, int row)
{
    return vector->vbget(row, 1);
}

} // namespace

double MAPE(matrix* y, matrix* f, int n, matrix* w, int first)
{
    WeightedErrors errors;
    for (int i = first == 0 ? 1 : first; i <= n; ++i) {
        const double observed = at(y, i);
        const double fitted = at(f, i);
        if (observed == 0.0 || !bothPresent(observed, fitted))
            continue;
        const double weight = w != nullptr ? at(w, i) : 1.0;
        errors.sum += std::fabs(1.0 - fitted / observed) * weight;
        errors.weights += weight;
    }
    return errors.weights != 0.0 ? errors.sum * 100.0 / errors.weights : errors.sum;
}

double MPE(matrix* y, matrix* f, int n, matrix* w, int first)
{
    WeightedErrors errors;
    for (int i = first; i <= n; ++i) {
        const double observed = at(y, i);
        const double fitted = at(f, i);
        if (observed == 0.0 || !bothPresent(observed, fitted))
            continue;
        errors.weights += at(w, i);
        errors.sum += at(w, i) * (observed - fitted) / observed;
    }
    return errors.meanOrMissing(100.0);
}

double MAE(matrix* y, matrix* f, int n, matrix* w, int first)
{
    WeightedErrors errors;
    for (int i = first; i <= n; ++i) {
        const double observed = at(y, i);
        const double fitted = at(f, i);
        if (!bothPresent(observed, fitted))
            continue;
        errors.weights += at(w, i);
        errors.sum += at(w, i) * std::fabs(observed - fitted);
    }
    return errors.weights != 0.0 ? errors.sum / errors.weights : missingValue;
}

double RMSE(matrix* Y, int n, int col, matrix* F, int divisor)
{
    if (col < 1)
        return 0.0;
    double sum = 0.0;
    for (int i = 1; i <= n; ++i) {
        const double observed = Y->vbget(i, col);
        if (isMissingOrBelow(observed))
            continue;
        const double error = observed - F->vbget(i, col);
        sum += error * error;
    }
    return std::sqrt(sum / divisor);
}

double GetSSE(matrix* v, int n, matrix* w, double* mean)
{
    *mean = V_Mean2(v, n);
    if (n < 1)
        return missingValue;
    WeightedErrors errors;
    for (int i = 1; i <= n; ++i) {
        const double x = at(v, i);
        if (isMissing(x))
            continue;
        const double deviation = x - *mean;
        errors.weights += at(w, i);
        errors.sum += at(w, i) * (deviation * deviation);
    }
    return errors.weights != 0.0 ? errors.sum : missingValue;
}
