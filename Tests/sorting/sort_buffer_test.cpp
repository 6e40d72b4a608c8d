// The sort requests its buffer by the form of new that does not throw. Here that form returns null.
//
// This program replaces the operators new and delete, which serves the library too.
#include "sorting/sort.h"

#include "sorting/sort_reference.h"
#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

bool buffersAreRefused = false;
int refusals = 0;

void* allocate(std::size_t bytes)
{
    if (void* const block = std::malloc(bytes == 0 ? 1 : bytes))
        return block;
    throw std::bad_alloc();
}

void* buffer(std::size_t bytes) noexcept
{
    if (!buffersAreRefused)
        return std::malloc(bytes == 0 ? 1 : bytes);
    ++refusals;
    return nullptr;
}

} // namespace

// clang-format off
void* operator new(std::size_t bytes) { return allocate(bytes); }
void* operator new[](std::size_t bytes) { return allocate(bytes); }
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept { return buffer(bytes); }
void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept { return buffer(bytes); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { std::free(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { std::free(block); }
// clang-format on

using namespace vecmat::test;

namespace {

constexpr int n = 3000;
constexpr std::size_t rows = n;

class WithoutBuffer : public WithTiedKeys
{
protected:
    WithoutBuffer() : WithTiedKeys(12, rows) {}

    const std::vector<double> cells = countedCells(rows);

    template <class Sort>
    void sortWithoutBuffer(Sort sort)
    {
        refusals = 0;
        buffersAreRefused = true;
        sort();
        buffersAreRefused = false;
        EXPECT_GT(refusals, 0) << "the sort never requested a buffer";
    }
};

TEST_F(WithoutBuffer, rowsComeInTheSameOrder)
{
    for (const SortCase& sort : sortCases(n)) {
        if (sort.first == sort.last)
            continue;
        auto data = table(n, 1, cells);
        auto key = column(keys);
        auto companion = filled(n, 1, 0.0);
        sortWithoutBuffer([&] {
            SortQ(data.reference(), n, 1, sort.first, sort.last, key.reference(), companion.reference(), 1,
                  sort.descending, -1);
        });
        const auto sources = sortedSources(keys, sort);
        EXPECT_THAT(cellsOf(data), SameBits(withRows(cells, sources)));
        EXPECT_THAT(cellsOf(key), SameBits(withRows(keys, sources)));
    }
}

TEST_F(WithoutBuffer, stringsComeInTheSameOrder)
{
    const std::vector<std::wstring> texts = tiedTexts(random, rows);
    auto data = stringTable(n, 1, texts);
    sortWithoutBuffer([&] { SortQMatrixCol(data.reference(), n, 1, 1, 1, n, -1); });
    EXPECT_EQ(cellsOf(data), withRows(texts, sortedSources(texts, {1, n, -1})));
}

} // namespace
