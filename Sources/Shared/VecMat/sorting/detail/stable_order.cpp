#include "stable_order.h"

#include "../../base/detail/scratch.h"
#include "digit_passes.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace vecmat {

namespace {

/// Returns false, having done nothing, if a merge is needed.
bool sortByBits(std::vector<pairToSort>& records)
{
    const std::size_t n = records.size();
    if (n < fewestForDigits)
        return false;
    const Scratch keys(n);
    const std::unique_ptr<pairToSort[]> sorted(new (std::nothrow) pairToSort[n]);
    const Scratch spare(n);
    if (!keys || !sorted)
        return false;
    std::transform(records.begin(), records.end(), keys.data(), [](const pairToSort& record) { return record.key; });
    const RowOrder order = stableOrder(keys.data(), n, Direction::ascending, spare.data());
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
        mergeStably(records);
}

RowOrder ascendingRows(matrix* x, int n)
{
    const std::size_t count = countOf(n);
    const auto elements = linear(x);
    if (elements.covers(n)) {
        const auto spare = count < fewestForDigits ? std::nullopt : std::optional<Scratch>(count);
        if (auto rows =
                stableOrder(elements.plain().data(), count, Direction::ascending, spare ? spare->data() : nullptr))
            return rows;
    }
    std::unique_ptr<std::uint64_t[]> rows(new std::uint64_t[count]); // written below
    placeInStableOrder(
        {1, n}, Direction::ascending,
        [&](int number) {
            return pairToSort{number, elements.get(zeroBased(number))};
        },
        [&](int number, const pairToSort& record) {
            rows[countOf(zeroBased(number))] = countOf(zeroBased(record.position));
        });
    return RowOrder(std::move(rows));
}

} // namespace vecmat
