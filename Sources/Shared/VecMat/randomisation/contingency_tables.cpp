#include "contingency_tables.h"

#include "../access/cells.h"
#include "../base/missing_value.h"
#include "../elementary/sums_and_norms.h"

namespace {

using namespace vecmat;

/// Calls `keep(line, place)` for each line kept, `place` being its number among them, and flags the others. Returns how
/// many are kept.
template <class Keep>
int dropEmptyLines(matrix& sums, int count, matrixInt& flags, Keep keep)
{
    int dropped = 0;
    for (int line = 0; line < count; ++line) {
        if (linear(&sums).get(line) <= zeroTolerance) {
            ++dropped;
            linear(&flags).set(line, 1);
        } else {
            keep(line, line - dropped);
        }
    }
    return count - dropped;
}

} // namespace

void CheckForMarginalSums(matrix& T, int n, int p, matrix& R, int& rowsLeft, int& colsLeft, matrixInt& zeroRows,
                          matrixInt& zeroCols)
{
    matrix columnSums(p, 1, 0.0);
    matrix rowSums(n, 1, 0.0);
    M_SumByCols(&T, n, p, &columnSums);
    M_SumByRows(&T, n, p, &rowSums);

    const auto table = cells(&T);
    const auto result = cells(&R);
    colsLeft = dropEmptyLines(columnSums, p, zeroCols, [&](int column, int place) {
        for (int i = 0; i < n; ++i)
            result.set(i, place, table.get(i, column));
    });
    const int columns = colsLeft;
    rowsLeft = dropEmptyLines(rowSums, n, zeroRows, [&](int row, int place) {
        for (int j = 0; j < columns; ++j)
            result.set(place, j, result.get(row, j));
    });
}
