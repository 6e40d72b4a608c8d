#include "scatter.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"

using namespace vecmat;

namespace {

constexpr int everyGroup = -1;

int centreRow(double group)
{
    return truncated(group);
}

int centreRow(int group)
{
    return group;
}

/// Calls `add(i, row)` for each row i of the group, with the row of its centre.
template <class Groups, class Add>
void forRowsOfGroup(int n, int group, Groups* g, Add add)
{
    for (int i = 0; i < n; ++i) {
        const auto own = linear(g).get(i);
        if (group == everyGroup || own == group)
            add(i, centreRow(own));
    }
}

template <class Groups>
int scatter(matrix* X, int n, int p, matrix* w, int group, Groups* g, matrix* centres, matrix*& T)
{
    matrix::matCheck(T, p, p, 0.0);
    forRowsOfGroup(n, group, g, [&](int i, int row) { T->trans1vecProd(X, i, w, centres, row); });
    return 0;
}

} // namespace

int M_Inertie_W(matrix* X, int n, int p, matrix* w, int group, matrix* g, matrix* centres, matrix*& T)
{
    return scatter(X, n, p, w, group, g, centres, T);
}

int M_Inertie_W(matrix* X, int n, int p, matrix* w, int group, matrixInt* g, matrix* centres, matrix*& T)
{
    return scatter(X, n, p, w, group, g, centres, T);
}

int M_Inertie_WSPV(matrix** X, int n, int p, matrix* w, int group, matrixInt* g, matrix* centres, matrix*& T)
{
    matrix::matCheck(T, p, p, 0.0);
    const auto result = cells(T);
    forRowsOfGroup(n, group, g, [&](int i, int row) {
        const double weight = linear(w).get(i);
        const auto deviation = [=](int j) { return cells(X).get(i, j) - cells(centres).get(row, j); };
        for (int b = 0; b < p; ++b)
            for (int a = 0; a < p; ++a)
                result.set(a, b, result.get(a, b) + deviation(a) * weight * deviation(b));
    });
    return 0;
}
