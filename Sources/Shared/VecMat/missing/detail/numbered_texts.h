// A caller's texts as numbers, equal for equal texts: for calls that compare the same cells many times, and copy cells to
// others. Internal to the library.
#pragma once

#include "../../base/detail/checked_cells.h"
#include "../../base/detail/numbers.h"
#include "../../base/detail/outgoing_texts.h"
#include "../../frame/detail/caller_text.h"
#include "../../frame/detail/text_table.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace vecmat {

/// The distinct texts of a call, each with its number.
class TextNumbers
{
public:
    static constexpr int empty = 0;

    TextNumbers() { texts_.add(CallerText(), {}); }

    int of(const wchar_t* bstr) { return texts_.add(Bstr(bstr), {}).first; }
    /// Those of n cells of a caller's.
    void store(wchar_t* const* cells, unsigned n, int* numbers)
    {
        constexpr unsigned most = 1U << 30; // at once, as an int
        while (n > 0) {
            const unsigned count = std::min(n, most);
            forEachText(
                0, static_cast<int>(count), texts_, [cells](int k) { return Bstr(cells[k]); },
                [&](int k, const CallerText& text) { numbers[k] = texts_.add(text, {}).first; });
            cells += count;
            numbers += count;
            n -= count;
        }
    }
    /// A text of this number, or null.
    const wchar_t* text(int number) const { return texts_.text(number).bstr().cell(); }

private:
    struct Nothing
    {
    };
    TextTable<Nothing, CallerText> texts_;
};

/// A table of such numbers.
class NumberedTexts
{
public:
    unsigned nElems;
    int nRows;
    int nCols;
    int* X; ///< as in the other tables

    NumberedTexts(TextNumbers& numbers, int rows, int cols, wchar_t** array)
        : nElems(elementCount(rows, cols)), nRows(rows), nCols(cols), own_(std::make_unique<int[]>(nElems))
    {
        X = own_.get();
        numbers.store(array, nElems, X);
    }

    /// A new text for each cell, on its way to `out`.
    void addTo(OutgoingTexts& outgoing, const TextNumbers& numbers, wchar_t** out) const
    {
        std::vector<const wchar_t*> texts(nElems);
        std::transform(X, X + nElems, texts.begin(), [&numbers](int number) { return numbers.text(number); });
        outgoing.add(texts.data(), texts.size(), out);
    }

private:
    std::unique_ptr<int[]> own_;
};

template <>
struct CellOf<NumberedTexts>
{
    using Value = int;
    using Read = int;
    static int outside() { return TextNumbers::empty; }
};

} // namespace vecmat
