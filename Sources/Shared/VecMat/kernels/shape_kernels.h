// The terms of the sums behind skewness and kurtosis, many rows side by side.
#pragma once

#include "instruction_set.h"

namespace vecmat {

struct ShapeKernels
{
    static constexpr int mostRows = 128;

    /// Rows by their distance d from the running mean, their weight w, and their share f of the weights so far.
    struct Rows
    {
        double d[mostRows];
        double w[mostRows];
        double f[mostRows];
    };

    /// What a row brings to the sums, which are then added up in order: with t = third m2
    ///     m4 = m4 + (fourth (t - (m3 + m3)) + ofFourth)     m3 = (m3 - t) + ofThird     m2 = m2 + ofSecond
    struct Terms
    {
        double third[mostRows];
        double fourth[mostRows];
        double ofSecond[mostRows];
        double ofThird[mostRows];
        double ofFourth[mostRows];
    };

    /// For each of `count` rows, whose third and fourth powers of d are given, each operation rounded:
    ///     third = f 3 d     fourth = (f + f) d     ofSecond = (1 - f) d d w
    ///     ofThird = (f f + f f + (1 - f 3)) d^3 w     ofFourth = (((f 6 - 4) - f f 3) f + 1) d^4 w
    void (*terms)(int count, const Rows& rows, const double* cube, const double* fourth, Terms& terms);
};

namespace baseline {
extern const ShapeKernels shapeKernels;
}
namespace avx2 {
extern const ShapeKernels shapeKernels;
}
namespace avx512 {
extern const ShapeKernels shapeKernels;
}

inline const ShapeKernels& shapeKernels()
{
    return forThisMachine<baseline::shapeKernels, avx2::shapeKernels, avx512::shapeKernels>();
}

} // namespace vecmat
