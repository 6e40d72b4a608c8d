// Running moments of columns side by side: the kernel under means, variances and covariances.
//
// All functions take the rows in their order, and for each column they do what the plain update does: each operation is
// rounded, in the order stated here, from left to right.
#pragma once

#include "instruction_set.h"

#include <cstddef>

namespace vecmat {

struct MomentKernels
{
    static constexpr int mostColumns = 16;

    /// The state of up to so many columns. `rows` counts as a double does: exactly.
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
    /// The cells of column c stand one behind the other from cells[c].
    void (*addMoments)(int count, int columns, const double* const* cells, const double* w, Moments* moments);
    /// The same without the squares.
    void (*addMeans)(int count, int columns, const double* const* cells, const double* w, Moments* moments);

    /// For rows of weights that are not 0, of up to as many columns as a tile has rows: writes the distances from the
    /// running means into a panel of that many columns, those of one row next to each other, and updates the means,
    ///     d = x - mean     mean = mean + d w / W
    /// where `W` holds the sum of the weights up to each row, and `reciprocals` 1 / W. Behind the last column the panel
    /// repeats it. False where a cell is missing: then the means stay.
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
