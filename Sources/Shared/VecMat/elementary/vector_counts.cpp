#include "vector_counts.h"

#include "../access/cells.h"
#include "../base/detail/numbers.h"

#include <algorithm>

using vecmat::block;
using vecmat::booleanOf;
using vecmat::linear;
using vecmat::onBlocks;

int V_NbTrue(short* x, int n)
{
    return V_NbTrueFromTo(x, 1, n);
}

int V_NbTrueFromTo(short* x, int from, int to)
{
    int found = 0;
    for (int i = std::max(from, 1) - 1; i < to; ++i)
        if (x[i] == -1)
            ++found;
    return found;
}

short V_FindLng(matrixInt* x, int n, int val)
{
    return onBlocks(
        [=](auto cells) {
            for (int i = 0; i < n; ++i)
                if (cells.get(i) == val)
                    return booleanOf(true);
            return booleanOf(false);
        },
        block(linear(x), n));
}
