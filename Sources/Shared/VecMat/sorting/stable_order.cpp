#include "stable_order.h"

#include "../elementary/kernels/scratch.h"

#include <memory>

namespace vecmat {

namespace {

/// False where the merge has to serve; nothing is done then.
bool sortByBits(std::vector<pairToSort>& records)
{
    const std::size_t n = records.size();
    if (n < static_cast<std::size_t>(fewestKeysToCount))
        return false;
    const Scratch keys(n);
    const std::unique_ptr<pairToSort[]> sorted(new (std::nothrow) pairToSort[n]);
    const Scratch spare(n);
    if (!keys || !sorted)
        return false;
    std::transform(records.begin(), records.end(), keys.data(), [](const pairToSort& record) { return record.key; });
    const RowOrder order = orderByBits(keys.data(), n, Direction::ascending, spare);
    if (!order)
        return false;
    for (std::size_t k = 0; k < n; ++k)
        sorted[k] = records[order[k]];
    std::copy_n(sorted.get(), n, records.begin());
    return true;
}

} // namespace

void sortStably(std::vector<pairToSort>& records)
{
    if (!sortByBits(records))
        std::stable_sort(records.begin(), records.end());
}

} // namespace vecmat
