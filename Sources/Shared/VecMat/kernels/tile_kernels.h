// Sums of products for a small tile of results: the kernel under all products.
#pragma once

#include "instruction_set.h"

#include <bit>
#include <cstddef>
#include <cstdint>

namespace vecmat {

/// What is to be known of factors to tell whether their products are exact.
struct FactorRange
{
    std::uint64_t fractions = 0;                ///< the bits behind the leading one that any of them has
    std::uint64_t largest = 0;                  ///< the greatest magnitude, by its bits
    std::uint64_t smallest = ~std::uint64_t{0}; ///< the least magnitude other than 0, by its bits, less one

    /// The significant bits of the factors, if all are normal.
    int significantBits() const
    {
        constexpr std::uint64_t leadingOne = std::uint64_t{1} << 52;
        return 53 - std::countr_zero(fractions | leadingOne);
    }
    bool isModerate() const
    {
        constexpr std::uint64_t most = __builtin_bit_cast(std::uint64_t, 0x1p400);
        constexpr std::uint64_t least = __builtin_bit_cast(std::uint64_t, 0x1p-400);
        return largest <= most && smallest >= least - 1;
    }
};

/// Is every product of a left and a right factor a double, so that a fused multiply-add rounds as a product and a sum do?
///
/// Factors of a and b significant bits are whole numbers below 2^a and 2^b times powers of two, so their product has at
/// most a + b bits, and as many as the other one where one factor is a power of two. Up to 53 fit. Magnitudes between
/// 2^-400 and 2^400 give products below 2^801 whose last bit is at 2^-904 or above: nothing overflows, and nothing falls
/// below the least double. Zeros keep their signs either way. Infinities, NaNs and the missing value are not moderate.
inline bool productsAreExact(const FactorRange& left, const FactorRange& right)
{
    const int a = left.significantBits();
    const int b = right.significantBits();
    return (a == 1 || b == 1 || a + b <= 53) && left.isModerate() && right.isModerate();
}

/// A tile has `rows` by `cols` results, column by column without gaps. The operands are packed: the left one has `rows`
/// numbers for each k, the right one `cols` numbers for each k. For k from 0 to inner - 1, and for each result on its
/// own,
///     add            tile(i, j) = tile(i, j) + left(i, k) * right(k, j)
///     subtract       tile(i, j) = tile(i, j) - left(i, k) * right(k, j)
///     addWeighted    tile(i, j) = tile(i, j) + left(i, k) * right(k, j) * weights(k)
/// each product and each sum rounded. `addExact` is `add` for factors whose products are exact, by fused multiply-adds; it
/// is null where the machine has none.
///
/// `extend` takes the next factors into account.
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
    void (*addExact)(int inner, const double* left, const double* right, double* tile);
    void (*subtract)(int inner, const double* left, const double* right, double* tile);
    void (*addWeighted)(int inner, const double* left, const double* right, const double* weights, double* tile);
    void (*substitute)(int count, const double* left, double* right, double* tile);
    void (*extend)(FactorRange& range, std::ptrdiff_t count, const double* factors);
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
