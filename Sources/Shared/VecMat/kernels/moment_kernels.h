// Running moments of columns side by side: the kernel under means, variances and covariances.
//
// All functions take the rows in order, and do for each column what the plain update does: each operation is rounded,
// in the order given here, from left to right.
#pragma once

#include "instruction_set.h"

#include <cstddef>

namespace vecmat {

struct MomentKernels
{
    static constexpr int mostColumns = 16;

    /// The state of up to this many columns. `rows` counts exactly, although it is a double.
    struct Moments
    {
        double weights[mostColumns];
        double rows[mostColumns];
        double mean[mostColumns];
        double squares[mostColumns];
    };

    /// For each of `count` rows, in each of `columns` columns whose cell x is not the missing value:
    ///     rows = rows + 1     W = W + w     and unless w is 0
    ///     d = x - mean     squares = squares + d d (w - w w / W)     mean = mean + d w / W
    /// The cells of column c are contiguous from cells[c].
    void (*addMoments)(int count, int columns, const double* const* cells, const double* w, Moments* moments);
    /// The same without the squares.
    void (*addMeans)(int count, int columns, const double* const* cells, const double* w, Moments* moments);

    /// For rows of non-zero weight, of up to as many columns as a tile has rows: writes the distances from the running
    /// means to a panel of that many columns, those of one row next to each other, and updates the means,
    ///     d = x - mean     mean = mean + d w / W
    /// where `W` holds the sum of the weights up to each row, and `reciprocals` 1 / W. After the last column the panel
    /// repeats it. Returns false, leaving the means unchanged, if a cell is missing.
    bool (*deviations)(int count, int columns, const double* const* cells, const double* w, const double* W,
                       const double* reciprocals, double* mean, double* panel);
    /// Copies as many columns of such a panel as a tile has, each cell times the factor of its row:
    ///     to = factor d
    void (*scale)(int count, const double* panel, const double* factors, double* to);
};

namespace baseline {
extern const MomentKernels momentKernels;
}
namespace avx2 {
extern const MomentKernels momentKernels;
}
namespace avx512 {
extern const MomentKernels momentKernels;
}

inline const MomentKernels& momentKernels()
{
    return forThisMachine<baseline::momentKernels, avx2::momentKernels, avx512::momentKernels>();
}

} // namespace vecmat
