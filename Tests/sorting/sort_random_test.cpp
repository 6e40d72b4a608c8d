// Every sort of rows against std::stable_sort: random keys with ties, missing values and both zeros, in both
// directions, over whole tables and inner ranges.
#include "sorting/sort.h"

#include "sorting/sort_reference.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vecmat::test;

namespace {

constexpr int dataCols = 3;
constexpr int companionCols = 2;

class SortQRandom : public testing::TestWithParam<int>
{
protected:
    const int n = GetParam();
    const std::size_t rows = static_cast<std::size_t>(n);
    RandomData random{static_cast<std::uint64_t>(1000 + n)};
    testing::ScopedTrace trace{__FILE__, __LINE__, random.seed()};
    const std::vector<double> keys = tiedKeys(random, rows);
    const std::vector<int> intKeys = random.integers(rows, -3, 3);
    const std::vector<double> cells = countedCells(rows * dataCols);
    const std::vector<int> intCells = countedCells<int>(rows * dataCols);
    const std::vector<std::wstring> texts = countedTexts(rows * dataCols);
    const std::vector<double> companionCells = countedCells(rows * companionCols);
    const std::vector<int> intCompanionCells = countedCells<int>(rows * companionCols);
};

/// The kind of table for cells of one kind.
Owned<matrix> tableFor(int rows, int cols, const std::vector<double>& cells)
{
    return table(rows, cols, cells);
}
Owned<matrixInt> tableFor(int rows, int cols, const std::vector<int>& cells)
{
    return intTable(rows, cols, cells);
}
Owned<Smatrix> tableFor(int rows, int cols, const std::vector<std::wstring>& cells)
{
    return stringTable(rows, cols, cells);
}

void expectSame(const std::vector<double>& actual, const std::vector<double>& expected)
{
    EXPECT_THAT(actual, SameBits(expected));
}
template <class Value>
void expectSame(const std::vector<Value>& actual, const std::vector<Value>& expected)
{
    EXPECT_EQ(actual, expected);
}

template <class Cells, class Keys, class CompanionCells>
void checkRows(int n, const Cells& cells, const Keys& keys, const CompanionCells& companionCells)
{
    for (const SortCase& sort : sortCases(n))
        for (const short writeKeys : {short{0}, short{-1}}) {
            auto data = tableFor(n, dataCols, cells);
            auto key = tableFor(n, 1, keys);
            auto companion = tableFor(n, companionCols, companionCells);
            EXPECT_EQ(SortQ(data.reference(), n, dataCols, sort.first, sort.last, key.reference(),
                            companion.reference(), companionCols, sort.descending, writeKeys),
                      0);
            const auto sources = sortedSources(keys, sort);
            expectSame(cellsOf(data), withRows(cells, sources));
            expectSame(cellsOf(companion), withRows(companionCells, sources));
            expectSame(cellsOf(key), writeKeys == -1 ? withRows(keys, sources) : keys);
        }
}

/// A vector in a table and in an array.
template <class Value>
void checkVectors(int n, const std::vector<Value>& keys)
{
    for (const SortCase& sort : sortCases(n)) {
        const auto expected = withRows(keys, sortedSources(keys, sort));
        auto vector = tableFor(n, 1, keys);
        EXPECT_EQ(SortQVector(vector.reference(), n, sort.first, sort.last, sort.descending), 0);
        expectSame(cellsOf(vector), expected);

        std::vector<Value> flat = keys;
        Value* start = flat.data();
        EXPECT_EQ(SortQVector(start, n, sort.first, sort.last, sort.descending), 0);
        expectSame(flat, expected);
    }
}

template <class Table, class Cells>
void checkColumns(int n, const Cells& cells, const std::vector<double>& keys, const std::vector<double>& companionCells)
{
    for (const SortCase& sort : sortCases(n)) {
        Columns<Table> data(n, dataCols, cells);
        auto plain = tableFor(n, dataCols, cells);
        auto key = column(keys);
        auto plainKey = column(keys);
        auto companion = table(n, companionCols, companionCells);
        auto plainCompanion = table(n, companionCols, companionCells);
        EXPECT_EQ(SortQ(data.get(), n, dataCols, sort.first, sort.last, key.reference(), companion.reference(),
                        companionCols, sort.descending, -1),
                  0);
        SortQ(plain.reference(), n, dataCols, sort.first, sort.last, plainKey.reference(), plainCompanion.reference(),
              companionCols, sort.descending, -1);
        expectSame(data.cells(), cellsOf(plain));
        expectSame(data.cells(), withRows(cells, sortedSources(keys, sort)));
        expectSame(cellsOf(key), cellsOf(plainKey));
        expectSame(cellsOf(companion), cellsOf(plainCompanion));
    }
}

TEST_P(SortQRandom, doublesByDoubles)
{
    checkRows(n, cells, keys, companionCells);
}

TEST_P(SortQRandom, intsByInts)
{
    checkRows(n, intCells, intKeys, intCompanionCells);
}

TEST_P(SortQRandom, doublesByInts)
{
    checkRows(n, cells, intKeys, companionCells);
}

TEST_P(SortQRandom, intsByDoubles)
{
    checkRows(n, intCells, keys, companionCells);
}

TEST_P(SortQRandom, stringsByDoubles)
{
    checkRows(n, texts, keys, companionCells);
}

TEST_P(SortQRandom, columnsOfDoublesAsTheTable)
{
    checkColumns<matrix>(n, cells, keys, companionCells);
}

TEST_P(SortQRandom, columnsOfStringsAsTheTable)
{
    checkColumns<Smatrix>(n, texts, keys, companionCells);
}

TEST_P(SortQRandom, columnsOfATable)
{
    // The transposed table has one column for each key.
    const int height = dataCols;
    for (const SortCase& sort : sortCases(n))
        for (const short writeKeys : {short{0}, short{-1}}) {
            auto data = table(height, n, cells);
            auto key = column(keys);
            auto companion = table(companionCols, n, companionCells);
            EXPECT_EQ(SortQByCol(data, height, n, sort.first, sort.last, key, companion, companionCols, sort.descending,
                                 writeKeys),
                      0);
            const auto sources = sortedSources(keys, sort);
            std::vector<double> expected;
            std::vector<double> expectedCompanion;
            for (const std::size_t source : sources) {
                for (std::size_t i = 0; i < dataCols; ++i)
                    expected.push_back(cells[source * dataCols + i]);
                for (std::size_t i = 0; i < companionCols; ++i)
                    expectedCompanion.push_back(companionCells[source * companionCols + i]);
            }
            expectSame(cellsOf(data), expected);
            expectSame(cellsOf(companion), expectedCompanion);
            expectSame(cellsOf(key), writeKeys == -1 ? withRows(keys, sources) : keys);
        }
}

/// A table whose column `col` holds the keys.
template <class Value>
void checkOwnColumn(int n, std::vector<Value> cells, const std::vector<Value>& keys)
{
    for (int col = 1; col <= dataCols; ++col) {
        std::copy(keys.begin(), keys.end(), cells.begin() + static_cast<std::ptrdiff_t>(n) * (col - 1));
        for (const SortCase& sort : sortCases(n)) {
            auto table = tableFor(n, dataCols, cells);
            EXPECT_EQ(SortQMatrixCol(table.reference(), n, dataCols, col, sort.first, sort.last, sort.descending), 0);
            expectSame(cellsOf(table), withRows(cells, sortedSources(keys, sort)));
        }
    }
}

TEST_P(SortQRandom, byOwnColumnOfDoubles)
{
    checkOwnColumn(n, cells, keys);
}

TEST_P(SortQRandom, byOwnColumnOfInts)
{
    checkOwnColumn(n, intCells, intKeys);
}

TEST_P(SortQRandom, byOwnColumnOfStrings)
{
    checkOwnColumn(n, texts, tiedTexts(random, rows));
}

TEST_P(SortQRandom, vectorsOfDoubles)
{
    checkVectors(n, keys);
}

TEST_P(SortQRandom, vectorsOfInts)
{
    checkVectors(n, intKeys);
}

TEST_P(SortQRandom, vectorsOfStrings)
{
    const std::vector<std::wstring> strings = tiedTexts(random, rows);
    for (const SortCase& sort : sortCases(n)) {
        if (sort.first != 1)
            continue;
        auto vector = stringColumn(strings);
        EXPECT_EQ(SortQVector(vector.get(), sort.first, sort.last, sort.descending), 0);
        EXPECT_EQ(cellsOf(vector), withRows(strings, sortedSources(strings, sort)));
    }
}

TEST_P(SortQRandom, dataByAnIndicator)
{
    std::vector<double> indicator(rows);
    for (double& flag : indicator)
        flag = random.chance(0.5) ? 1.0 : random.chance(0.5) ? 0.0 : -0.0;
    const auto sources = sortedSources(indicator, {1, n, 0});

    auto numbers = table(n, dataCols, cells);
    auto key = column(indicator);
    EXPECT_EQ(SortDataBy01(numbers.reference(), n, dataCols, key.reference()), 0);
    expectSame(cellsOf(numbers), withRows(cells, sources));
    expectSame(cellsOf(key), withRows(indicator, sources));

    Columns<matrix> columns(n, dataCols, cells);
    auto keyOfColumns = column(indicator);
    EXPECT_EQ(SortDataBy01(columns.get(), n, dataCols, keyOfColumns.reference()), 0);
    expectSame(columns.cells(), withRows(cells, sources));
    expectSame(cellsOf(keyOfColumns), withRows(indicator, sources));

    auto strings = stringTable(n, dataCols, texts);
    auto keyOfStrings = column(indicator);
    EXPECT_EQ(SortDataBy01(strings.reference(), n, dataCols, keyOfStrings.reference()), 0);
    expectSame(cellsOf(strings), withRows(texts, sources));
    expectSame(cellsOf(keyOfStrings), withRows(indicator, sources));
}

/// Lexicographic order of rows by the given columns, major key first.
template <class Value>
std::vector<std::size_t> lexicographicSources(const std::vector<Value>& cells, std::size_t n,
                                              const std::vector<std::size_t>& majorFirst)
{
    std::vector<std::size_t> order(n);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        for (const std::size_t j : majorFirst) {
            const Value left = cells[j * n + a];
            const Value right = cells[j * n + b];
            if (left < right || right < left)
                return left < right;
        }
        return false;
    });
    return order;
}

template <class Value>
void checkColumnsInTurn(int n, const std::vector<Value>& cells)
{
    const auto rows = static_cast<std::size_t>(n);
    auto down = tableFor(n, dataCols, cells);
    EXPECT_EQ(SortMatrixSeqQ(down.reference(), n, dataCols, -1), 0);
    expectSame(cellsOf(down), withRows(cells, lexicographicSources(cells, rows, {0, 1, 2})));
    auto up = tableFor(n, dataCols, cells);
    EXPECT_EQ(SortMatrixSeqQ(up.reference(), n, dataCols, 0), 0);
    expectSame(cellsOf(up), withRows(cells, lexicographicSources(cells, rows, {2, 1, 0})));
    auto some = tableFor(n, dataCols, cells);
    EXPECT_EQ(SortMatrixSeqQP1toP2(some.get(), n, dataCols, 2, 3, -1), 0);
    expectSame(cellsOf(some), withRows(cells, lexicographicSources(cells, rows, {1, 2})));
    auto someUp = tableFor(n, dataCols, cells);
    EXPECT_EQ(SortMatrixSeqQP1toP2(someUp.get(), n, dataCols, 1, 2, 1), 0);
    expectSame(cellsOf(someUp), withRows(cells, lexicographicSources(cells, rows, {1, 0})));
}

TEST_P(SortQRandom, columnsInTurn)
{
    checkColumnsInTurn(n, tiedKeys(random, rows * dataCols));
    checkColumnsInTurn(n, random.integers(rows * dataCols, -2, 2));
}

/// Around the number of rows from which the orders come from counting passes, and far beyond.
TEST(SortMatrixSeqQ, manyRows)
{
    for (const int n : {299, 300, 301, 6000}) {
        RandomData random(static_cast<std::uint64_t>(n));
        SCOPED_TRACE(random);
        const std::size_t count = static_cast<std::size_t>(n) * dataCols;
        checkColumnsInTurn(n, random.wholes(count, -3, 3));
        checkColumnsInTurn(n, random.wholes(count, -100000, 100000));
        checkColumnsInTurn(n, random.integers(count, -2, 2));
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, SortQRandom, testing::Values(2, 7, 15, 40, 300));

} // namespace
