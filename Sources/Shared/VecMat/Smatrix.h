// The table of strings: labels and category names.
//
// @missing an empty string; so is a null pointer
// @empty a table without cells
#pragma once

#include "base/api.h"

#include <string>
#include <utility>

/// Dense table of wide strings with 32-bit characters, column-major. It always owns its strings: they are converted
/// from the caller's BSTRs when the table is built and converted back when it is saved. The empty string is the missing
/// string.
class Smatrix
{
public:
    unsigned nElems = 0; ///< nRows * nCols as a 32-bit product
    int nRows = 0;
    int nCols = 0;
    std::wstring* X = nullptr; ///< the cells: (i, j), from 0, at `X[i + nRows*j]`

    /// All cells empty.
    VECMAT_API Smatrix(int rows, int cols);

    /// Reads the BSTRs of the caller's array; the cell of a null pointer, and every cell from position srcRows*srcCols
    /// on (0: the table's own count), is empty.
    VECMAT_API Smatrix(int rows, int cols, wchar_t** src, int srcRows, int srcCols);

    VECMAT_API Smatrix(Smatrix& src);
    /// @missing freed with the table
    /// @empty nothing special
    VECMAT_API ~Smatrix();

    Smatrix& operator=(const Smatrix&) = delete;

    /// The cell at position k, from 0; empty when out of range.
    std::wstring getElement(unsigned k) { return k < nElems ? X[k] : std::wstring(); }

    /// Checked access, 1-based: a pair of numbers, or a position over the block. Out of range a read gives an empty
    /// string and a write is dropped. Only the linear index is checked.
    std::wstring vbget(int i, int j) { return getElement(position(i, j)); }
    std::wstring vbget(unsigned k) { return getElement(k - 1u); }
    void vbset(int i, int j, std::wstring v)
    {
        const unsigned k = position(i, j);
        if (k < nElems)
            X[k] = std::move(v);
    }

    /// Keeps a table of exactly this shape. Any other is replaced by an empty one and is not deleted: unlike in the
    /// numeric tables, the caller who built it deletes it.
    /// @missing the strings of a table that is kept stay
    /// @empty a table without cells, unless there is one
    VECMAT_API static void matCheck(Smatrix*& ref, int rows, int cols);

    /// Sets the dimensions of `dst`, which must already have that many cells, and assigns every string.
    /// @missing copied unchanged
    /// @empty no cell is copied
    VECMAT_API void copyMatTo(Smatrix* dst);

    /// Stores a new BSTR for each cell, in linear order. The caller owns them; the old ones in `dst` are not released.
    /// @missing an empty string becomes an empty BSTR
    /// @empty no cell is copied
    VECMAT_API void copyMatTo(wchar_t** dst);

private:
    struct Shape
    {
        int rows;
        int cols;
    };
    explicit Smatrix(Shape shape);

    unsigned position(int i, int j) const
    {
        return static_cast<unsigned>(i) - 1u + (static_cast<unsigned>(j) - 1u) * static_cast<unsigned>(nRows);
    }
};
