#include "packed_storage.h"

#include "../base/detail/companions.h"
#include "../base/detail/numbers.h"

#include <algorithm>
#include <cmath>

using vecmat::squareRoot;
using vecmat::truncated;

namespace {

/// Cells of the triangle with diagonal before row `row`; wide, since the product overflows an int before its half does.
long long cellsBefore(int row)
{
    return row * (row - 1LL) / 2;
}

} // namespace

void GetIJForSymMat(int k, int& i, int& j)
{
    // The small amount keeps the last cell of a row, where the sum is whole, out of the next row, unless rounding
    // absorbs it.
    i = truncated(std::floor(squareRoot(2.0 * k + 0.25) + 0.5 - 1e-12));
    j = static_cast<int>(k - cellsBefore(i));
}

void GetKForVectFromIJSymMat(int i, int j, int& k)
{
    k = static_cast<int>(cellsBefore(std::max(i, j)) + std::min(i, j));
}

void V_GetPositionInMatNNm1o2(int k, int n, int* i, int* j)
{
    long long lastOfRow = 0;
    for (int row = 1; row < n; ++row) {
        lastOfRow += n - row;
        if (lastOfRow >= k) {
            *i = row;
            *j = static_cast<int>(n + (k - lastOfRow));
            return;
        }
    }
}
