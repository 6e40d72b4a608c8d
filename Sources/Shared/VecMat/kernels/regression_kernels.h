// Regressions through the origin with missing cells, many side by side: the kernel under imputation by principal
// components.
//
// Missing is decided by the equality test. A missing score means a row without cells.
#pragma once

#include "instruction_set.h"

#include <cstddef>

namespace vecmat {

struct RegressionKernels
{
    /// A strip holds the cells of this many columns row by row, the cells of one row next to each other.
    static constexpr int stripWidth = 8;
    /// Rows are processed in blocks of this many: `rows` is a multiple of it.
    static constexpr int blockHeight = 32;

    /// The sums of the columns of a strip.
    struct ColumnSums
    {
        double missing[stripWidth]; ///< number of missing cells
        double weights[stripWidth];
        double sums[stripWidth];
        double squares[stripWidth];
    };

    /// From 0.0, in the columns of contiguous strips, for each row in order whose cell x is not missing:
    ///     weights = weights + w     sums = sums + w x     squares = squares + w x x
    void (*sumColumns)(std::ptrdiff_t rows, int strips, const double* first, const double* w, ColumnSums* columnSums);

    /// x = w x - mean in one column, and in the columns of a strip, where x is not missing.
    void (*centreColumn)(std::ptrdiff_t rows, double* column, const double* w, double mean);
    void (*centreStrip)(std::ptrdiff_t rows, double* strip, const double* w, const double* means);

    /// Regresses the columns of contiguous strips on the scores. From 0.0, for each row in order, in each lane where
    /// neither the cell z nor the score t is missing:
    ///     squares = squares + t t     products = products + z t
    void (*onScores)(std::ptrdiff_t rows, int strips, const double* first, const double* scores, double* squares,
                     double* products);

    /// Regresses the rows on the loadings, from columns that start `rows` apart. Each row starts with a missing score
    /// and q = 0.0; for each column in order whose cell z is not missing, with its loading p:
    ///     q = q + p p     score = z p if it is missing, otherwise score + z p
    /// and at the end score = score / q unless it is missing.
    void (*onLoadings)(std::ptrdiff_t rows, const double* columns, std::ptrdiff_t columnCount, const double* loadings,
                       double* scores);

    /// z = z - t p in one column, and in the columns of a strip, where neither z nor t is missing.
    void (*deflateColumn)(std::ptrdiff_t rows, double* column, const double* scores, double loading);
    void (*deflateStrip)(std::ptrdiff_t rows, double* strip, const double* scores, const double* loadings);
};

namespace baseline {
extern const RegressionKernels regressionKernels;
}
namespace avx2 {
extern const RegressionKernels regressionKernels;
}
namespace avx512 {
extern const RegressionKernels regressionKernels;
}

inline const RegressionKernels& regressionKernels()
{
    return forThisMachine<baseline::regressionKernels, avx2::regressionKernels, avx512::regressionKernels>();
}

} // namespace vecmat
