// Work on the caller's arrays themselves where no two of them share memory, else on copies: what is written to one array
// is then never read in another before its time.
#pragma once

#include "../../base/detail/memory_ranges.h"
#include "../../base/detail/numbers.h"
#include "handles.h"

namespace vecmat {

/// An array of numbers as the caller hands it in.
template <class Number>
struct CallerArray
{
    Number* x;
    int rows;
    int cols;

    MemoryRange memory() const { return memoryOf(x, elementCount(rows, cols)); }
};

template <class Number>
CallerArray(Number*, int, int) -> CallerArray<Number>;

template <class... Numbers>
bool areApart(const CallerArray<Numbers>&... arrays)
{
    MemoryRanges ranges;
    (ranges.add(arrays.memory()), ...);
    return ranges.areApart();
}

/// What becomes of the copies when `compute` has returned.
enum class Copies { handedBack, dropped };

/// Calls compute(table, ...) on views of the arrays where `inPlace`, else on copies of them. These are handed back in the
/// order of the arguments.
template <Copies copies, class Compute, class... Numbers>
auto onViewsOrCopies(bool inPlace, Compute compute, CallerArray<Numbers>... arrays)
{
    if (inPlace)
        return compute(View(arrays.x, arrays.rows, arrays.cols).reference()...);
    return [&](auto... tables) {
        if constexpr (copies == Copies::dropped)
            return compute(tables.reference()...);
        else {
            const auto status = compute(tables.reference()...);
            (handBack(tables, arrays.x), ...);
            return status;
        }
    }(copied(arrays.x, arrays.rows, arrays.cols)...);
}

} // namespace vecmat
