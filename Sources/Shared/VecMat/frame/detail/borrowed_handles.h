// The call frame over borrowed texts, for flat forms that only select and move the caller's texts:
//
//     borrowed        the caller's array itself, only read
//     borrowedCopy    a copy of its pointers, to be moved
//     freshBorrowed   a new table for a result
//
// A result is handed back as new texts.
#pragma once

#include "../../base/detail/numbers.h"
#include "../../base/detail/outgoing_texts.h"
#include "../super_matrices.h"
#include "borrowed_texts.h"
#include "handles.h"
#include "outgoing_columns.h"

#include <algorithm>

namespace vecmat {

using BorrowedHandle = TextHandle<BorrowedTexts>;

inline BorrowedHandle borrowed(wchar_t** x, int rows, int cols)
{
    return BorrowedHandle(x != nullptr ? new BorrowedTexts(rows, cols, x) : nullptr);
}

inline BorrowedHandle freshBorrowed(int rows, int cols)
{
    return BorrowedHandle(new BorrowedTexts(rows, cols));
}

/// Opened at its final size, as `copied`.
inline BorrowedHandle borrowedCopy(wchar_t** x, int rows, int cols, int srcRows = 0, int srcCols = 0)
{
    if (x == nullptr)
        return {};
    BorrowedHandle table = freshBorrowed(rows, cols);
    const unsigned given = elementCount(srcRows != 0 ? srcRows : rows, srcCols != 0 ? srcCols : cols);
    std::copy_n(x, std::min(given, table->nElems), table->X);
    return table;
}

/// Columns of copied pointers.
inline ColumnsHandle<BorrowedTexts> borrowedColumns(SAFEARRAY** x, int nCols, int nRows)
{
    return {x != nullptr ? loadBorrowedColumns(x, nCols, nRows) : nullptr, nCols};
}

/// Stores a new text for each cell in the caller's string columns, where they are.
inline void handBack(const ColumnsHandle<BorrowedTexts>& tables, int nCols, SAFEARRAY** out)
{
    OutgoingTexts texts;
    addTexts(texts, tables, nCols, out);
    texts.store();
}

} // namespace vecmat
