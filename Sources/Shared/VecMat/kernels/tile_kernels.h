// Sums of products for a small tile of results: the kernel under all products.
#pragma once

#include "instruction_set.h"

namespace vecmat {

/// A tile has `rows` by `cols` results, column by column without gaps. The operands are packed: the left one has `rows`
/// numbers for each k, the right one `cols` numbers for each k. For k from 0 to inner - 1, and for each result on its
/// own,
///     add            tile(i, j) = tile(i, j) + left(i, k) * right(k, j)
///     subtract       tile(i, j) = tile(i, j) - left(i, k) * right(k, j)
///     addWeighted    tile(i, j) = tile(i, j) + left(i, k) * right(k, j) * weights(k)
/// each product and each sum rounded.
///
/// `substitute` solves a triangular system whose left side, of `count` rows and columns, at most `rows`, has an
/// implicit diagonal of ones. For k from 0 to count - 1 row k of the tile is finished and copied to row k of `right`,
/// and for each result in a row i below it
///     tile(i, j) = tile(i, j) - left(i, k) * right(k, j)
/// down to the last row of the tile.
struct TileKernels
{
    static constexpr int mostRows = 24;
    static constexpr int mostCols = 8;

    int rows;
    int cols;
    void (*add)(int inner, const double* left, const double* right, double* tile);
    void (*subtract)(int inner, const double* left, const double* right, double* tile);
    void (*addWeighted)(int inner, const double* left, const double* right, const double* weights, double* tile);
    void (*substitute)(int count, const double* left, double* right, double* tile);
};

namespace baseline {
extern const TileKernels tileKernels;
}
namespace avx2 {
extern const TileKernels tileKernels;
}
namespace avx512 {
extern const TileKernels tileKernels;
}

inline const TileKernels& tileKernels()
{
    return forThisMachine<baseline::tileKernels, avx2::tileKernels, avx512::tileKernels>();
}

} // namespace vecmat
