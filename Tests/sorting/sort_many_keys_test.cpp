// Sorts of few and many numbers against the sort by records, for keys of many kinds.
#include "sorting/sort.h"

#include "sorting/many_keys.h"
#include "support/bits.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <array>
#include <numeric>
#include <utility>

using namespace vecmat::test;

namespace {

constexpr std::array<short, 2> directions{0, -1};

class SortOfManyKeys : public testing::TestWithParam<int>
{
protected:
    const int n = GetParam();
    RandomData random{static_cast<std::uint64_t>(77 + n)};
    testing::ScopedTrace trace{__FILE__, __LINE__, random.seed()};
    const std::vector<Keys> kinds = keysOfManyKinds(random, n);

    /// The whole, and a range inside.
    std::vector<std::pair<int, int>> ranges() const
    {
        if (n < 3)
            return {{1, n}};
        return {{1, n}, {2, n - 1}};
    }

    /// Calls check(keys, first, last, descending, records).
    template <class Check>
    void forEachSort(Check check) const
    {
        for (const Keys& keys : kinds)
            for (const auto& [first, last] : ranges())
                for (const short descending : directions) {
                    SCOPED_TRACE(testing::Message() << keys << ", " << first << " to " << last << ", " << descending);
                    check(keys.cells, first, last, descending,
                          recordsInOrder(keys.cells, first, last, descending == -1));
                }
    }
};

/// Cells that show where they came from, and the same with the rows of a range in the order of its records.
std::vector<double> numbered(std::size_t count)
{
    std::vector<double> cells(count);
    for (std::size_t k = 0; k < count; ++k)
        cells[k] = static_cast<double>(k) + 0.5;
    return cells;
}

template <class Number>
std::vector<Number> moved(const std::vector<Number>& cells, std::size_t n, int first,
                          const std::vector<KeyRecord>& records)
{
    std::vector<Number> result = cells;
    for (std::size_t column = 0; column < cells.size(); column += n)
        for (std::size_t k = 0; k < records.size(); ++k)
            result[column + static_cast<std::size_t>(first) - 1 + k] =
                cells[column + static_cast<std::size_t>(records[k].position) - 1];
    return result;
}

TEST_P(SortOfManyKeys, vector)
{
    forEachSort([&](const std::vector<double>& keys, int first, int last, short descending, const auto& records) {
        std::vector<double> x = keys;
        VB_SortQVectorDbl(x.data(), n, first, last, descending);
        EXPECT_THAT(x, SameBits(moved(keys, keys.size(), first, records)));
    });
}

TEST_P(SortOfManyKeys, rows)
{
    forEachSort([&](const std::vector<double>& keys, int first, int last, short descending, const auto& records) {
        const std::vector<double> cells = numbered(3 * keys.size());
        const std::vector<double> others = numbered(keys.size());
        for (const short writeKeys : directions) {
            std::vector<double> data = cells;
            std::vector<double> key = keys;
            std::vector<double> companion = others;
            VB_SortQDbl(data.data(), n, 3, first, last, key.data(), companion.data(), 1, descending, writeKeys);
            EXPECT_THAT(data, SameBits(moved(cells, keys.size(), first, records)));
            EXPECT_THAT(companion, SameBits(moved(others, keys.size(), first, records)));
            EXPECT_THAT(key, SameBits(writeKeys == -1 ? moved(keys, keys.size(), first, records) : keys));
        }
    });
}

TEST_P(SortOfManyKeys, rowsByOneOfTheirColumns)
{
    forEachSort([&](const std::vector<double>& keys, int first, int last, short descending, const auto& records) {
        std::vector<double> cells = numbered(3 * keys.size());
        std::copy(keys.begin(), keys.end(), cells.begin() + n);
        std::vector<double> sorted = cells;
        VB_SortQMatrixCol(sorted.data(), n, 3, 2, first, last, descending);
        EXPECT_THAT(sorted, SameBits(moved(cells, keys.size(), first, records)));
        // The key column is sorted also where it is not among those that move.
        auto table = tableOf<matrix>(n, 3, cells);
        SortQMatrixCol(table.reference(), n, 1, 2, first, last, descending);
        std::vector<double> expected = moved(cells, keys.size(), first, records);
        std::copy(cells.begin() + 2 * n, cells.end(), expected.begin() + 2 * n);
        EXPECT_THAT(cellsOf(table), SameBits(expected));
    });
}

TEST_P(SortOfManyKeys, rowsBeyondTheTable)
{
    // The last rows read -1.0 as keys and are not written: row by row, by the same records.
    if (n < 2)
        return;
    for (const Keys& keys : kinds)
        for (const short descending : directions) {
            SCOPED_TRACE(testing::Message() << keys << ", " << descending);
            std::vector<double> longer = keys.cells;
            longer.push_back(-1.0);
            auto data = column(numbered(keys.cells.size()));
            auto key = column(keys.cells);
            auto companion = filled(n, 1, 0.5);
            SortQ(data.reference(), n, 1, 1, n + 1, key.reference(), companion.reference(), 1, descending, -1);
            const auto records = recordsInOrder(longer, 1, n + 1, descending == -1);
            std::vector<double> expected = numbered(keys.cells.size());
            expected.push_back(-1.0);
            expected = moved(expected, expected.size(), 1, records);
            expected.pop_back();
            EXPECT_THAT(cellsOf(data), SameBits(expected));
            longer = moved(longer, longer.size(), 1, records);
            longer.pop_back();
            EXPECT_THAT(cellsOf(key), SameBits(longer));
        }
}

TEST_P(SortOfManyKeys, integers)
{
    const auto count = static_cast<std::size_t>(n);
    constexpr int lowest = std::numeric_limits<int>::min();
    std::vector<int> ends = random.integers(count, -3, 3);
    for (int& key : ends)
        if (random.chance(0.3))
            key = random.chance(0.5) ? lowest : std::numeric_limits<int>::max();
    for (const std::vector<int>& keys : {random.integers(count, -1000000, 1000000), random.integers(count, 0, 1), ends})
        for (const auto& [first, last] : ranges())
            for (const short descending : directions) {
                SCOPED_TRACE(testing::Message() << n << ", " << first << " to " << last << ", " << descending);
                const auto records = recordsInOrder({keys.begin(), keys.end()}, first, last, descending == -1);
                const std::vector<int> sorted = moved(keys, count, first, records);
                std::vector<int> x = keys;
                VB_SortQVectorLng(x.data(), n, first, last, descending);
                EXPECT_EQ(x, sorted);

                const std::vector<double> cells = numbered(2 * count);
                std::vector<double> data = cells;
                std::vector<int> key = keys;
                std::vector<double> companion(count, 0.5);
                VB_SortQDbl2(data.data(), n, 2, first, last, key.data(), companion.data(), 1, descending, -1);
                EXPECT_THAT(data, SameBits(moved(cells, count, first, records)));
                EXPECT_EQ(key, sorted);

                std::vector<int> ints(2 * count);
                std::copy(keys.begin(), keys.end(), ints.begin());
                std::iota(ints.begin() + n, ints.end(), 0);
                auto table = tableOf<matrixInt>(n, 2, ints);
                SortQMatrixCol(table.reference(), n, 2, 1, first, last, descending);
                EXPECT_EQ(cellsOf(table), moved(ints, count, first, records));
            }
}

INSTANTIATE_TEST_SUITE_P(Sizes, SortOfManyKeys, testing::ValuesIn(sizesAroundThresholds()));

/// Arrays that share memory, against the sort row by row: copies in, and the copies back one after another.
class SortOfSharedArrays : public testing::TestWithParam<int>
{
protected:
    static constexpr int n = 400;
    static constexpr std::size_t rows = n;
    RandomData random{5};
    testing::ScopedTrace trace{__FILE__, __LINE__, random.seed()};
    const std::vector<double> cells = random.wholes(4 * rows, -50, 50);
    const std::ptrdiff_t offset = GetParam();
};

TEST_P(SortOfSharedArrays, theFlatFormCopiesThem)
{
    // Two columns of data, a companion and the keys, which begin somewhere in the data.
    for (const short writeKeys : directions) {
        std::vector<double> shared = cells;
        double* const companion = shared.data() + 3 * rows;
        VB_SortQDbl(shared.data(), n, 2, 1, n, shared.data() + offset, companion, 1, 0, writeKeys);

        const std::vector<double> keys(cells.begin() + offset, cells.begin() + offset + n);
        const auto records = recordsInOrder(keys, 1, n, false);
        std::vector<double> expected = cells;
        const auto handBack = [&](std::ptrdiff_t from, const std::vector<double>& result) {
            std::copy(result.begin(), result.end(), expected.begin() + from);
        };
        handBack(offset, writeKeys == -1 ? moved(keys, rows, 1, records) : keys);
        handBack(3 * n, moved(std::vector(cells.begin() + 3 * n, cells.end()), rows, 1, records));
        handBack(0, moved(std::vector(cells.begin(), cells.begin() + 2 * n), rows, 1, records));
        EXPECT_THAT(shared, SameBits(expected));
    }
}

TEST_P(SortOfSharedArrays, tablesAreWrittenRowByRow)
{
    // The same by tables over one array: each row takes its key, then its cells.
    for (const short descending : directions) {
        std::vector<double> shared = cells;
        matrix data(n, 2, shared.data(), true);
        matrix key(n, 1, shared.data() + offset, true);
        matrix companion(n, 1, shared.data() + 3 * rows, true);
        matrix* dataPointer = &data;
        matrix* keyPointer = &key;
        matrix* companionPointer = &companion;
        SortQ(dataPointer, n, 2, 1, n, keyPointer, companionPointer, 1, descending, -1);

        const std::vector<double> keys(cells.begin() + offset, cells.begin() + offset + n);
        const auto records = recordsInOrder(keys, 1, n, descending == -1);
        std::vector<double> expected = cells;
        for (std::size_t k = 0; k < rows; ++k) {
            const std::size_t source = static_cast<std::size_t>(records[k].position) - 1;
            expected[static_cast<std::size_t>(offset) + k] = records[k].key;
            for (const std::size_t column : {0, 1, 3})
                expected[column * rows + k] = cells[column * rows + source];
        }
        EXPECT_THAT(shared, SameBits(expected));
    }
}

INSTANTIATE_TEST_SUITE_P(Offsets, SortOfSharedArrays, testing::Values(0, 1, 7, 399, 400, 401, 799, 800));

TEST(SortOfFoldedRows, rowsThatRunOverIntoTheNextColumnAreWrittenOneByOne)
{
    // 500 rows are sorted in a table of 400: what is row 401 of a column is row 1 of the next.
    RandomData random{6};
    constexpr int height = 400;
    constexpr int n = 500;
    const std::vector<double> cells = random.wholes(3 * height, -50, 50);
    const std::vector<double> keys = random.wholes(n, -50, 50);
    auto data = tableOf<matrix>(height, 3, cells);
    auto key = column(keys);
    auto companion = filled(n, 1, 0.5);
    SortQ(data.reference(), n, 2, 1, n, key.reference(), companion.reference(), 1, 0, 0);
    std::vector<double> expected = cells;
    const auto records = recordsInOrder(keys, 1, n, false);
    for (std::size_t k = 0; k < records.size(); ++k)
        for (const std::size_t column : {0, 1})
            expected[column * height + k] = cells[column * height + static_cast<std::size_t>(records[k].position) - 1];
    EXPECT_THAT(cellsOf(data), SameBits(expected));
}

TEST(SortOfSharedColumns, columnsThatAreOneAreWrittenRowByRow)
{
    RandomData random{7};
    constexpr int n = 400;
    const std::vector<double> cells = random.wholes(n + 1, -50, 50);
    const std::vector<double> keys = random.wholes(n, -50, 50);
    std::vector<double> shared = cells;
    matrix left(n, 1, shared.data(), true);
    matrix right(n, 1, shared.data() + 1, true);
    matrix* columns[] = {&left, &right};
    auto key = column(keys);
    auto companion = filled(n, 1, 0.5);
    SortQ(columns, n, 2, 1, n, key.reference(), companion.reference(), 1, 0, 0);
    std::vector<double> expected = cells;
    const auto records = recordsInOrder(keys, 1, n, false);
    for (std::size_t k = 0; k < records.size(); ++k)
        for (const std::size_t start : {0, 1})
            expected[start + k] = cells[start + static_cast<std::size_t>(records[k].position) - 1];
    EXPECT_THAT(shared, SameBits(expected));
}

} // namespace
