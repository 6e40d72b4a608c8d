// Running cross products of one column with the columns of strips: the kernel under covariances with missing cells.
//
// A strip holds the cells of `PairKernels::lanes` columns row by row, the cells of one row next to each other. All
// functions take the rows in order, and each lane does for its column what the plain update does: it rounds after each
// operation, in the order given here, from left to right.
#pragma once

#include "instruction_set.h"

#include <cstddef>

namespace vecmat {

struct PairKernels
{
    static constexpr int lanes = 8;
    /// The most strips that a function takes at a time.
    static constexpr int mostStrips = 2;

    /// The state of the pairs of one column x with the columns y of a strip. `rows` counts exactly, although it is a
    /// double.
    struct Pairs
    {
        double weights[lanes];
        double rows[lanes];
        double meanX[lanes];
        double meanY[lanes];
        double products[lanes];
        double squaresX[lanes];
        double squaresY[lanes];
    };

    /// For each row where neither x nor the lane's y is the missing value:
    ///     rows = rows + 1     W = W + w     and unless w is 0
    ///     dx = x - meanX     dy = y - meanY     f = w - w w / W
    ///     products = products + f dx dy
    ///     meanX = meanX + dx w / W     meanY = meanY + dy w / W
    /// `y` points to the first of the strips, which start `strip` doubles apart; there are Pairs for each.
    void (*addCovariances)(int count, const double* x, const double* y, std::ptrdiff_t strip, int strips,
                           const double* w, Pairs* pairs);
    /// The same with |f|.
    void (*addCovariancesOfMagnitude)(int count, const double* x, const double* y, std::ptrdiff_t strip, int strips,
                                      const double* w, Pairs* pairs);
    /// The same, with the products formed first:
    ///     squaresX = squaresX + dx dx f     squaresY = squaresY + dy dy f     products = products + dx dy f
    void (*addCorrelations)(int count, const double* x, const double* y, std::ptrdiff_t strip, int strips,
                            const double* w, Pairs* pairs);
};

namespace baseline {
extern const PairKernels pairKernels;
}
namespace avx2 {
extern const PairKernels pairKernels;
}
namespace avx512 {
extern const PairKernels pairKernels;
}

inline const PairKernels& pairKernels()
{
    return forThisMachine<baseline::pairKernels, avx2::pairKernels, avx512::pairKernels>();
}

} // namespace vecmat
