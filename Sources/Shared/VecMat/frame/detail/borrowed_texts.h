// A table of a caller's texts that stay the caller's: for calls that select and move texts without reading them. Internal
// to the library.
//
// A cell is a BSTR of the caller's, or null, which is the empty text. Moving one moves a pointer. Only when a result is
// handed back is each of its cells made into a new text, by the companion, as from a table of strings.
#pragma once

#include "../../base/detail/checked_cells.h"
#include "../../base/detail/numbers.h"
#include "../../base/detail/outgoing_texts.h"
#include "../super_matrices.h"

#include <algorithm>
#include <memory>

namespace vecmat {

class BorrowedTexts
{
public:
    unsigned nElems;
    int nRows;
    int nCols;
    wchar_t** X; ///< as in the other tables

    /// All cells empty.
    BorrowedTexts(int rows, int cols) : BorrowedTexts(rows, cols, nullptr)
    {
        own_ = std::make_unique<wchar_t*[]>(nElems);
        X = own_.get();
    }
    /// The caller's array itself, to be read only.
    BorrowedTexts(int rows, int cols, wchar_t** array)
        : nElems(elementCount(rows, cols)), nRows(rows), nCols(cols), X(array)
    {
    }

    /// Keeps a table of exactly this shape, with its texts. Any other becomes an empty one.
    static void matCheck(BorrowedTexts*& ref, int rows, int cols)
    {
        if (ref->nRows != rows || ref->nCols != cols)
            *ref = BorrowedTexts(rows, cols);
    }

    void copyMatTo(wchar_t** out) const
    {
        OutgoingTexts texts;
        texts.add(X, nElems, out);
        texts.store();
    }

private:
    std::unique_ptr<wchar_t*[]> own_;
};

template <>
struct CellOf<BorrowedTexts>
{
    using Value = wchar_t*;
    using Read = wchar_t*;
    static wchar_t* outside() { return nullptr; }
};

/// Copies of the pointers in the string columns of a caller's array of arrays; null where a column is.
BorrowedTexts** loadBorrowedColumns(SAFEARRAY** sa, int nCols, int nRows);
void deleteColumns(BorrowedTexts** tables, int nCols);

} // namespace vecmat
