#include "conditional_moments.h"

#include "../access/cells.h"
#include "../base/detail/running_moments.h"
#include "../base/missing_value.h"

using namespace vecmat;

namespace {

/// Passes the position and the cell of every selected row to `visit`, in row order.
template <class Visit>
void forSelected(matrix* v, int n, matrix* g, double value, Visit visit)
{
    for (int i = 0; i < n; ++i) {
        const double x = linear(v).get(i);
        const double group = linear(g).get(i);
        if (group == value && !isMissing(group) && !isMissing(x))
            visit(i, x);
    }
}

template <class Moments>
double conditionalVariance(const Moments& moments, short sample)
{
    const double divisor = sample == -1 ? moments.weights - 1.0 : moments.weights;
    return divisor > 0.0 ? moments.squares / divisor : missingValue;
}

} // namespace

double V_MeanIf(matrix* v, int n, matrix* g, double value)
{
    double sum = 0.0;
    int rows = 0;
    forSelected(v, n, g, value, [&](int, double x) {
        sum += x;
        ++rows;
    });
    return rows > 0 ? sum / rows : missingValue;
}

double V_MeanIfW(matrix* v, int n, matrix* g, matrix* w, double value)
{
    double sum = 0.0;
    double weights = 0.0;
    forSelected(v, n, g, value, [&](int i, double x) {
        const double weight = linear(w).get(i);
        if (weight > 0.0) {
            sum += weight * x;
            weights += weight;
        }
    });
    return weights > 0.0 ? sum / weights : missingValue;
}

double V_VarIf(matrix* v, int n, matrix* g, double value, short sample)
{
    RunningVariance<update::Counted, ZeroWeight::updated> moments;
    forSelected(v, n, g, value, [&](int, double x) { moments.add(x, 1.0); });
    return conditionalVariance(moments, sample);
}

double V_VarIfW(matrix* v, int n, matrix* g, matrix* w, double value, short sample)
{
    RunningVariance<update::Conditional, ZeroWeight::updated> moments;
    forSelected(v, n, g, value, [&](int i, double x) {
        if (const double weight = linear(w).get(i); weight >= 0.0)
            moments.add(x, weight);
    });
    return conditionalVariance(moments, sample);
}
