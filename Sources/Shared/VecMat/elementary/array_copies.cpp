#include "array_copies.h"

#include "../access/cells.h"

#include <cstddef>

void V_Reverse(matrix* x, int n, matrix* out)
{
    const auto reverse = [n](auto from, auto to) {
        for (int k = 0; k < n; ++k)
            to.set(k, from.get(n - 1 - k));
    };
    vecmat::onBlocks(reverse, vecmat::block(vecmat::linear(x), n), vecmat::block(vecmat::linear(out), n));
}

void V_ReverseBool(short* x, int n, short* out)
{
    for (std::ptrdiff_t k = 0; k < n; ++k)
        out[k] = x[n + 1 - k];
}
