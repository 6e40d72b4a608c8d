#include "extremes.h"

#include "../access/cells.h"
#include "../base/detail/masks.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"

#include <functional>

using namespace vecmat;

namespace {

using Smaller = std::less<>;
using Larger = std::greater<>;

/// An int, widened, never equals the missing value.
template <class Cells>
bool qualifies(Cells cells, int i, Mask mask)
{
    return mask.keeps(i) && !isMissing(cells.get(i));
}

/// The best of the qualifying cells, or the missing value.
template <class Better, class Cells>
double bestOf(Cells cells, int n, Mask mask)
{
    int i = 0;
    while (i < n && !qualifies(cells, i, mask))
        ++i;
    if (i >= n)
        return missingValue;
    auto best = cells.get(i);
    for (++i; i < n; ++i)
        if (qualifies(cells, i, mask) && Better()(cells.get(i), best))
            best = cells.get(i);
    return best;
}

template <class Better, class Table>
double search(Table* x, int n, Mask mask)
{
    if (n < 1)
        return outOfRangeValue;
    return onBlocks([&](auto cells) { return bestOf<Better>(cells, n, mask); }, block(linear(x), n));
}

constexpr Mask noMask(nullptr);

template <class Table>
void searchBoth(Table* x, int n, double* min, double* max, short* mask)
{
    // With nothing to visit there is no candidate here, whereas the single searches return -1.0.
    *min = n < 1 ? missingValue : search<Smaller>(x, n, Mask(mask));
    *max = n < 1 ? missingValue : search<Larger>(x, n, Mask(mask));
}

/// The best of all cells, missing or not, with its position.
template <class Better, class Table>
double searchWithPosition(Table* x, int n, int* pos)
{
    *pos = 1;
    if (n < 1)
        return outOfRangeValue;
    return onBlocks(
        [=](auto cells) -> double {
            auto best = cells.get(0);
            for (int i = 1; i < n; ++i)
                if (Better()(cells.get(i), best)) {
                    best = cells.get(i);
                    *pos = i + 1;
                }
            return best;
        },
        block(linear(x), n));
}

} // namespace

double V_Min(matrix* x, int n, short* mask)
{
    return search<Smaller>(x, n, Mask(mask));
}

double V_Min(matrixInt* x, int n, short* mask)
{
    return search<Smaller>(x, n, Mask(mask));
}

double V_Max(matrix* x, int n, short* mask)
{
    return search<Larger>(x, n, Mask(mask));
}

double V_Max(matrixInt* x, int n, short* mask)
{
    return search<Larger>(x, n, Mask(mask));
}

void V_MinMax(matrix* x, int n, double* min, double* max, short* mask)
{
    searchBoth(x, n, min, max, mask);
}

void V_MinMax(matrixInt* x, int n, double* min, double* max, short* mask)
{
    searchBoth(x, n, min, max, mask);
}

double V_Min2(matrix* x, int n)
{
    return search<Smaller>(x, n, noMask);
}

double V_Min2(matrixInt* x, int n)
{
    return search<Smaller>(x, n, noMask);
}

double V_Max2(matrix* x, int n)
{
    return search<Larger>(x, n, noMask);
}

int V_Max2(matrixInt* x, int n)
{
    return truncated(search<Larger>(x, n, noMask));
}

double V_MinAndMinPos(matrix* x, int n, int* pos)
{
    return searchWithPosition<Smaller>(x, n, pos);
}

double V_MaxAndMaxPos(matrix* x, int n, int* pos)
{
    return searchWithPosition<Larger>(x, n, pos);
}

double V_MaxAndMaxPos(matrixInt* x, int n, int* pos)
{
    return searchWithPosition<Larger>(x, n, pos);
}
