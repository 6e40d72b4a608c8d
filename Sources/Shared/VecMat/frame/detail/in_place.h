// Works on the caller's arrays themselves if no two of them overlap, otherwise on copies: what is written to one array
// is then never read from another too early.
#pragma once

#include "../../base/detail/memory_ranges.h"
#include "../../base/detail/numbers.h"
#include "handles.h"

namespace vecmat {

/// An array of numbers as passed in by the caller.
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
    const MemoryRange ranges[] = {arrays.memory()...};
    return fewAreApart(ranges, sizeof...(arrays));
}

/// What happens to the copies once `compute` has returned.
enum class Copies { handedBack, dropped };

/// Calls compute(table, ...) on views of the arrays if `inPlace`, otherwise on copies of them. These are written back
/// in the order of the arguments.
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
