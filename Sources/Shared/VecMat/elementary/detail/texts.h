// The texts of a table of strings, or those of a caller where they lie. Internal to the library.
//
// A table of strings takes an allocation and a conversion for each cell. Where a call only compares its texts, that
// costs more than the rest of it, so the flat forms read the caller's array itself. Texts are equal if their 16-bit
// characters are; only one that a result holds is converted, by the companion, as for a table.
//
// What is computed is written once, over an accessor: `TableTexts` or `CallerTexts`. Its at(i, j), by the rules of the
// tables, is a text without its hash: what `forEachText` takes. Its `Text` is one with its hash: what `TextTable` finds.
// Numbers are 0-based; accessors own nothing and are passed by value.
#pragma once

#include "../../Smatrix.h"
#include "../../base/detail/checked_cells.h"
#include "../../base/detail/numbers.h"
#include "../../frame/detail/caller_text.h"
#include "../../frame/detail/text_table.h"

#include <string_view>

namespace vecmat {

/// The cells of a table of strings. The table may be null if no cell is visited.
class TableTexts
{
public:
    using Text = HashedText;

    explicit TableTexts(const Smatrix* table) : table_(table) {}

    std::wstring_view at(int i, int j) const { return readAt(*table_, linearIndex(i, j, table_->nRows)); }
    bool isInside(int i, int j) const { return linearIndex(i, j, table_->nRows) < table_->nElems; }
    int columns() const { return table_->nCols; }

private:
    const Smatrix* table_;
};

/// The cells of a caller's array of BSTRs. An array that is not there has none.
class CallerTexts
{
public:
    using Text = CallerText;

    CallerTexts(wchar_t** bstrs, int rows, int cols)
        : bstrs_(bstrs), rows_(rows), cols_(cols), count_(bstrs != nullptr ? elementCount(rows, cols) : 0)
    {
    }

    Bstr at(int i, int j) const { return atIndex(linearIndex(i, j, rows_)); }
    bool isInside(int i, int j) const { return linearIndex(i, j, rows_) < count_; }
    int columns() const { return cols_; }

    /// As other accessors have it, by row and column or in linear order: valid up to the next one.
    std::wstring_view get(int i, int j) const { return wideText(at(i, j)); }
    std::wstring_view get(int i) const { return wideText(atIndex(static_cast<unsigned>(i))); }

    /// For `block`: a read is checked always.
    bool covers(int /*n*/) const { return true; }
    CallerTexts plain() const { return *this; }

private:
    Bstr atIndex(unsigned k) const { return Bstr(k < count_ ? bstrs_[k] : nullptr); }

    wchar_t** bstrs_;
    int rows_;
    int cols_;
    unsigned count_;
};

/// For algorithms that are written over a table.
inline CallerTexts cells(const CallerTexts& texts)
{
    return texts;
}

/// A column, for `forEachText`.
template <class Texts>
auto columnOf(Texts texts, int j)
{
    return [texts, j](int i) { return texts.at(i, j); };
}

} // namespace vecmat
