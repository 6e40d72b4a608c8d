// Whether a write to one block of cells is visible in another, which decides where a loop may run in another order. A
// block is a plain accessor with its extent: rows and columns, or the length of a vector.
#pragma once

#include "../base/detail/memory_ranges.h"

namespace vecmat {

/// A plain accessor with the part of it that a loop visits.
template <class Visit>
struct Storage
{
    Visit visit;
};

/// The memory of a block: `storageOf(cells, rows, cols)`, `storageOf(vector, n)`.
template <class Cells, class... Extent>
auto storageOf(const Cells& cells, Extent... extent)
{
    const auto visit = [&cells, extent...](auto visitRange) {
        cells.visitStorage(extent..., [&](const void* first, const void* last) {
            visitRange(MemoryRange{first, last});
        });
    };
    return Storage<decltype(visit)>{visit};
}

template <class Visit>
void addTo(MemoryRanges& ranges, const Storage<Visit>& storage)
{
    storage.visit([&](const MemoryRange& range) { ranges.add(range); });
}

/// Does each byte belong to one block only, and within it to one column?
template <class... Visits>
bool areApart(const Storage<Visits>&... storages)
{
    MemoryRanges ranges;
    (addTo(ranges, storages), ...);
    return ranges.areApart();
}

/// Is a write to one visible in the other? Overlaps within either do not count.
template <class Written, class Read>
bool overlap(const Storage<Written>& written, const Storage<Read>& read)
{
    bool found = false;
    written.visit([&](const MemoryRange& range) {
        read.visit([&](const MemoryRange& other) { found = found || range.overlaps(other); });
    });
    return found;
}

} // namespace vecmat
