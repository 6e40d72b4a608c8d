#include "quantiles.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../elementary/columns_and_rows.h"
#include "../elementary/predicates.h"
#include "../elementary/vector_sums.h"
#include "../sorting/detail/key_order.h"
#include "../sorting/detail/selection.h"
#include "../sorting/detail/stable_order.h"
#include "../sorting/sort.h"

#include <cmath>
#include <vector>

using namespace vecmat;

namespace {

/// A vector local to a call.
class Work
{
public:
    Work(matrix* v, int n) : Work(n, [v](int i) { return linear(v).get(i); }) {}
    /// Cell i is `cellAt(i)`.
    template <class CellAt>
    Work(int n, CellAt cellAt) : table_(n, 1, 0.0)
    {
        for (int i = 0; i < n; ++i)
            table_.X[i] = cellAt(i);
    }
    /// A view: the cells remain with their owner.
    explicit Work(std::vector<double>& cells) : table_(static_cast<int>(cells.size()), 1, cells.data(), true) {}
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    matrix*& reference() { return pointer_; }
    /// 0-based; -1.0 on either side of the cells.
    double at(int position) { return linear(pointer_).get(position); }

private:
    matrix table_;
    matrix* pointer_ = &table_;
};

/// The elements at a place of the sorted vector, from 0, and at the next; -1.0 outside it. The sorted vector is not
/// observable, so the two are selected if possible.
Neighbours neighboursInOrder(matrix* v, int n, int place)
{
    if (linear(v).covers(n) && place >= 0 && place < n)
        if (const auto found = selectNeighbours(v->X, countOf(n), countOf(place)))
            return *found;
    Work sorted(v, n);
    SortQVector(sorted.reference(), n, 1, n, 0);
    return {sorted.at(place), sorted.at(wrappingSum(place, 1))};
}

/// The positions of the kept rows whose value is not missing.
std::vector<int> rowsLeft(matrix* v, int n, const short* mask)
{
    std::vector<int> rows;
    for (int i = 0; i < n; ++i)
        if (Mask(mask).keeps(i) && !isMissing(linear(v).get(i)))
            rows.push_back(i);
    return rows;
}

std::vector<double> packed(matrix* v, const std::vector<int>& rows)
{
    std::vector<double> cells;
    cells.reserve(rows.size());
    for (const int i : rows)
        cells.push_back(linear(v).get(i));
    return cells;
}

bool anyCounts(matrix* v, int n, matrix* w)
{
    for (int i = 0; i < n; ++i)
        if (linear(w).get(i) > 0.0 && !isMissing(linear(v).get(i)))
            return true;
    return false;
}

/// Walks the cumulative weight of the sorted values up to `target`. A read before the first value gives -1.0, and the
/// sum that includes the last weight is never compared.
template <class Sorted>
double stepQuantile(Sorted sortedAt, Work& weights, int n, double target)
{
    double cumulated = 0.0;
    for (int i = 0; i < n; ++i) {
        if (cumulated == target)
            return (sortedAt(i - 1) + sortedAt(i)) * 0.5;
        if (cumulated > target)
            return sortedAt(i - 1);
        cumulated += weights.at(i);
    }
    return sortedAt(n - 1);
}

/// The second rule, over a sorted vector; positions are counted from 1.
double shiftedQuantile(matrix* sorted, int n, double p)
{
    const auto at = [sorted](double position) { return sorted->vbget(truncated(position), 1); };
    if (p == 0.0)
        return at(1.0);
    if (p == 1.0)
        return at(n);
    const double h = (static_cast<double>(n) - 1.0) * p + (p <= 0.5 ? 0.5 : 1.0);
    if (IsLong(h) == -1)
        return at(h);
    const double below = std::floor(h);
    if (below == 0.0)
        return at(1.0);
    const double a = at(below);
    const double b = at(std::floor(h + 1.0 - negligible)); // the ceiling
    return a == b ? a : a + (h - below) * (b - a);
}

} // namespace

double V_Quantile(matrix* v, int n, double p)
{
    if (n < 1)
        return outOfRangeValue;
    const double h = p == 0.0 ? 0.0 : p == 1.0 ? n - 1 : (static_cast<double>(n) - 1.0) * p;
    const bool isElement = p == 0.0 || p == 1.0 || IsLong(h) != 0;
    const int place = truncated(isElement ? h : std::floor(h));
    const auto [a, b] = neighboursInOrder(v, n, place);
    if (isElement || a == b) // ties stay exact
        return a;
    const double g = h - place;
    return (1.0 - g) * a + g * b;
}

double V_QuantileW(matrix* v, int n, matrix* w, double p)
{
    if (n < 1 || !anyCounts(v, n, w))
        return missingValue;
    if (V_IsConstant(w, n, -1) != 0)
        return V_Quantile(v, n, p);
    const RowOrder rows = ascendingRows(v, n);
    const auto rowAt = [&](int i) { return static_cast<int>(rows[countOf(i)]); };
    const auto sortedAt = [&](int i) { return i < 0 ? outOfRangeValue : linear(v).get(rowAt(i)); };
    if (p == 0.0) // whatever the weight of the smallest value
        return sortedAt(0);
    if (p == 1.0)
        return sortedAt(n - 1);
    Work weights(n, [&](int i) { return linear(w).get(rowAt(i)); });
    return stepQuantile(sortedAt, weights, n, p * V_Sum2(weights.reference(), n));
}

double V_QuantileM(matrix* v, int n, short* mask, double p)
{
    const std::vector<int> rows = rowsLeft(v, n, mask);
    if (rows.empty())
        return missingValue;
    std::vector<double> values = packed(v, rows);
    return V_Quantile(Work(values).reference(), static_cast<int>(rows.size()), p);
}

double V_QuantileMW(matrix* v, int n, short* mask, matrix* w, double p)
{
    const std::vector<int> rows = rowsLeft(v, n, mask);
    if (rows.empty())
        return missingValue;
    std::vector<double> values = packed(v, rows);
    std::vector<double> weights = packed(w, rows);
    return V_QuantileW(Work(values).reference(), static_cast<int>(rows.size()), Work(weights).reference(), p);
}

double M_QuantileMW(matrix* m, int n, int col, short* mask, matrix* w, double p)
{
    std::vector<double> cells(countOf(n));
    Work column(cells);
    CopyMatrixColToMatrixCol(m, n, col, column.reference(), 1, 0);
    return V_QuantileMW(column.reference(), n, mask, w, p);
}

void V_Quantiles13(matrix* v, int n, matrix* out)
{
    SortQMatrixCol(v, n, 1, 1, 1, n, 0);
    int k = 0;
    for (const double p : {0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95})
        linear(out).set(k++, shiftedQuantile(v, n, p));
}
