#include "conditional_aggregates.h"

#include "../access/cells.h"
#include "../base/missing_value.h"

using namespace vecmat;

namespace {

/// Calls visit(i, x[i]) for each selected cell for which neither it nor its key is missing. An int key, widened, never
/// equals the missing value.
template <class Key, class Visit>
void forEachSelected(matrix* x, int n, Key* key, double val, Visit visit)
{
    onBlocks(
        [&](auto cells, auto keys) {
            for (int i = 0; i < n; ++i)
                if (keys.get(i) == val && !isMissing(keys.get(i)) && !isMissing(cells.get(i)))
                    visit(i, cells.get(i));
        },
        block(linear(x), n), block(linear(key), n));
}

/// A sum that distinguishes no terms from terms that add up to 0.0.
class Sum
{
public:
    void add(double term)
    {
        sum_ += term;
        any_ = true;
    }
    double result() const { return any_ ? sum_ : missingValue; }

private:
    double sum_ = 0.0;
    bool any_ = false;
};

template <class Table>
double count(Table* x, int n, double val)
{
    return onBlocks(
        [=](auto cells) {
            double found = 0.0;
            for (int i = 0; i < n; ++i)
                if (cells.get(i) == val)
                    found += 1.0;
            return found;
        },
        block(linear(x), n));
}

template <class Key>
double sumIf(matrix* x, int n, Key* key, double val)
{
    Sum sum;
    forEachSelected(x, n, key, val, [&](int /*i*/, double cell) { sum.add(cell); });
    return sum.result();
}

template <class Key>
double maxIf(matrix* x, int n, Key* key, double val)
{
    double best = missingValue;
    forEachSelected(x, n, key, val, [&](int /*i*/, double cell) {
        if (cell > best)
            best = cell;
    });
    return best;
}

template <class Key>
double minIf(matrix* x, int n, Key* key, double val)
{
    double best = positiveTwin;
    forEachSelected(x, n, key, val, [&](int /*i*/, double cell) {
        if (cell < best)
            best = cell;
    });
    return best == positiveTwin ? missingValue : best;
}

} // namespace

double V_NbIf(matrix* x, int n, double val)
{
    return count(x, n, val);
}

double V_NbIf(matrixInt* x, int n, double val)
{
    return count(x, n, val);
}

double V_NbIfW(matrix* x, int n, matrix* w, double val)
{
    return onBlocks(
        [=](auto cells, auto weights) {
            double sum = 0.0;
            for (int i = 0; i < n; ++i)
                if (cells.get(i) == val && weights.get(i) > 0.0) // the -1.0 of an out-of-range read fails this too
                    sum += weights.get(i);
            return sum;
        },
        block(linear(x), n), block(linear(w), n));
}

double V_SumIf(matrix* x, int n, matrix* key, double val)
{
    return sumIf(x, n, key, val);
}

double V_SumIf(matrix* x, int n, matrixInt* key, double val)
{
    return sumIf(x, n, key, val);
}

double V_SumIfW(matrix* x, int n, matrix* key, matrix* w, double val)
{
    Sum sum;
    forEachSelected(x, n, key, val, [&](int i, double cell) {
        const double weight = linear(w).get(i);
        if (weight > 0.0) // the -1.0 of an out-of-range read fails this too
            sum.add(weight * cell);
    });
    return sum.result();
}

double V_MaxIf(matrix* x, int n, matrix* key, double val)
{
    return maxIf(x, n, key, val);
}

double V_MaxIf(matrix* x, int n, matrixInt* key, double val)
{
    return maxIf(x, n, key, val);
}

double V_MinIf(matrix* x, int n, matrix* key, double val)
{
    return minIf(x, n, key, val);
}

double V_MinIf(matrix* x, int n, matrixInt* key, double val)
{
    return minIf(x, n, key, val);
}
