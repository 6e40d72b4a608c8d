#include "axis_selection.h"

#include "../access/cells.h"
#include "../elementary/vector_sums.h"

#include <algorithm>

using namespace vecmat;

namespace {

/// Drops small eigenvalues from the end of the list, or clears them. Returns the number left.
template <class Vector>
int scanTail(Vector eig, int n, bool drop, double floor)
{
    int left = n;
    while (left > 1 && eig.get(left - 1) < floor) {
        if (drop) {
            --left;
            continue;
        }
        eig.set(left - 1, 0.0);
        // With a floor above 0 the cleared entry would be found again for ever.
        break;
    }
    return left;
}

/// The first count whose running percentage reaches `cumPercent`, or `otherwise`.
template <class Vector>
int countByPercent(Vector percent, int kept, double cumPercent, int otherwise)
{
    double running = 0.0;
    for (int k = 0; k < kept; ++k) {
        running += percent.get(k);
        if (running >= cumPercent)
            return k + 1;
    }
    return otherwise;
}

} // namespace

int FilterEigen(matrix*& eig, int n, short drop, double floor, double cumPercent, int maxCount, double minValue,
                int& kept, int& selected, matrix*& percent)
{
    const VectorCells<matrix> values = linear(eig);
    int left = scanTail(values, n, drop != 0, floor);
    kept = left;

    const double total = V_Sum2(eig, left) / 100;
    matrix::matCheck(percent, n, 1, 0.0);
    const VectorCells<matrix> shares = linear(percent);
    if (total != 0.0)
        for (int k = 0; k < kept; ++k)
            shares.set(k, values.get(k) / total);

    const int byPercent = cumPercent > 0.0 ? countByPercent(shares, kept, cumPercent, left) : left;
    const int byCount = maxCount >= 1 ? maxCount : left;
    if (minValue > 0.0)
        // Over all kept entries, not only the tail: an earlier missing one counts too.
        for (int k = kept; k > 0; --k)
            if (values.get(k - 1) < minValue + zeroTolerance)
                --left;
    selected = std::min({left, byPercent, byCount, kept});
    return 0;
}

void FilterOnSumOfSquares(matrix* m, int n, int colA, int colB, double threshold, double* flags)
{
    for (int r = 1; r <= n; ++r) {
        // Outside the table the checked read gives -1.0, which is not above 0 either.
        const double x = m->vbget(r, colA);
        flags[r - 1] = x > 0.0 && x + m->vbget(r, colB) > threshold ? 1.0 : 0.0;
    }
}
