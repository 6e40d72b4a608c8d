// The table of 32-bit integers: category codes, positions, arrays of Longs.
//
// @missing ints are never missing
// @empty a table without rows or columns has a block and no cells
#pragma once

#include "base/api.h"

namespace vecmat {
template <class Table>
union TableInPlace; // where the call frame makes tables
}

/// The integer twin of `matrix`: column-major, public fields, the same checked access. It has no missing value of its
/// own and computes nothing in the per-column caches, which it keeps for the sake of the copying constructor.
class VECMAT_API matrixInt
{
public:
    double* norMu = nullptr;
    double* norSigma = nullptr;
    double* descMu = nullptr;
    double* descSigma = nullptr;
    double* weights = nullptr;    ///< per row, or null
    double* weightcorr = nullptr; ///< per column, or null
    int nRows = 0;
    int nCols = 0;
    int normalized = 0;
    int descDone = 0;
    unsigned nElems = 0;       ///< nRows * nCols as a 32-bit product
    int* X = nullptr;          ///< the cells: (i, j), from 0, at `X[i + nRows*j]`
    int* nCol = nullptr;       ///< per column, or null
    unsigned char ownsX = 1;   ///< 1: the destructor frees X
    unsigned char inFrame = 0; ///< 1: it lies in the frame of a call and ends with it; `matCheck` does not delete it
    short descMode = 0;

    /// A new block in which every cell is `value`.
    /// @weights none
    matrixInt(int rows, int cols, int value);

    /// With `view` the caller's array is used in place; without, its first rows*cols ints are copied. Either way `nCol`
    /// is filled with `rows` and `weightcorr` with rows - 1, unlike in the twin.
    /// @weights none
    matrixInt(int rows, int cols, int* src, bool view);

    /// `rows` rows and the columns of `src`, in linear order; cells beyond the source are -1. Counts and the saved
    /// means and divisors of a normalized table are copied too.
    /// @weights copied too
    matrixInt(int rows, matrixInt* src);

    /// @missing freed with the table; the array of a view is not
    /// @weights freed with the table
    /// @empty nothing special
    ~matrixInt();

    matrixInt(const matrixInt&) = delete;
    matrixInt& operator=(const matrixInt&) = delete;

    /// Checked access, 1-based, on the linear index alone: out of range a read gives -1 and a write is dropped.
    /// @empty -1
    VECMAT_API int vbget(int i, int j)
    {
        const unsigned k = position(i, j);
        return k < nElems ? X[k] : -1;
    }
    /// @missing overwritten
    /// @empty a write out of range is dropped
    VECMAT_API void vbset(int i, int j, int v)
    {
        const unsigned k = position(i, j);
        if (k < nElems)
            X[k] = v;
    }

    /// All cells in linear order; the form towards a table sets its dimensions and needs a block that is large enough.
    /// @weights not copied
    /// @empty no cell is copied
    void copyMatTo(int* dst);
    void copyMatTo(matrixInt* dst);

    /// Prepares a result as `matrix::matCheck` does, with `value` truncated first; a pointer is tested for null only.
    /// @missing ints are never missing; `value` overwrites
    /// @weights kept in a table that is kept
    /// @empty without a table that is large enough one of no cells is made
    static void matCheck(matrixInt*& ref, int rows, int cols, double value);

private:
    struct Shape
    {
        int rows;
        int cols;
        unsigned cells;
    };
    // As in `matrix`: what all constructors delegate to.
    VECMAT_LOCAL explicit matrixInt(Shape shape) : nRows(shape.rows), nCols(shape.cols), nElems(shape.cells) {}
    template <class Table>
    friend union vecmat::TableInPlace;

    VECMAT_LOCAL unsigned position(int i, int j) const
    {
        return static_cast<unsigned>(i) - 1u + (static_cast<unsigned>(j) - 1u) * static_cast<unsigned>(nRows);
    }
};
