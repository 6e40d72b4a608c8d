// Sorts, ranks and selections of many numbers where memory runs short: the result is the same, or the exception comes
// before anything is written.
#include "descriptive/quantiles.h"
#include "sorting/ranks.h"
#include "sorting/sort.h"
#include "sorting/sort_apply.h"

#include "sorting/many_keys.h"
#include "support/bits.h"
#include "support/failing_new.h"

#include <gtest/gtest.h>

using namespace vecmat::test;

namespace {

constexpr int n = 500;
constexpr std::size_t rows = n;

bool same(const std::vector<double>& left, const std::vector<double>& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), sameBits);
}

/// Where a merge with NaN puts them depends on the memory that it gets.
std::vector<Keys> withoutNan(std::vector<Keys> kinds)
{
    std::erase_if(kinds, [](const Keys& keys) {
        return std::any_of(keys.cells.begin(), keys.cells.end(), [](double key) { return std::isnan(key); });
    });
    return kinds;
}

class ManyKeysInShortMemory : public testing::Test
{
protected:
    RandomData random{21};
    testing::ScopedTrace trace{__FILE__, __LINE__, random.seed()};
    const std::vector<Keys> kinds = withoutNan(keysOfManyKinds(random, n));

    /// Runs `call` on arrays, copied afresh into `work`, with every allocation failing in turn. Each call that runs
    /// through leaves what the first one did, each that does not leaves the arrays as they were.
    template <class Call>
    static void expectSameOrNothing(const std::vector<double>& arrays, Call call)
    {
        std::vector<double> work = arrays;
        call(work.data());
        const std::vector<double> result = work;
        int different = 0;
        const int failures = forEachFailingAllocation([&] {
            std::copy(arrays.begin(), arrays.end(), work.begin());
            try {
                call(work.data());
            } catch (const std::bad_alloc&) {
                different += same(work, arrays) ? 0 : 1;
                throw;
            }
            different += same(work, result) ? 0 : 1;
        });
        EXPECT_GT(failures, 0);
        EXPECT_EQ(different, 0);
    }
};

std::vector<double> joined(std::vector<double> left, const std::vector<double>& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

TEST_F(ManyKeysInShortMemory, vector)
{
    for (const Keys& keys : kinds) {
        SCOPED_TRACE(testing::Message() << keys);
        for (const short descending : {short{0}, short{-1}})
            expectSameOrNothing(keys.cells, [&](double* x) { VB_SortQVectorDbl(x, n, 1, n, descending); });
    }
}

TEST_F(ManyKeysInShortMemory, rows)
{
    for (const Keys& keys : kinds) {
        SCOPED_TRACE(testing::Message() << keys);
        expectSameOrNothing(joined(keys.cells, random.normals(3 * rows)),
                            [&](double* x) { VB_SortQDbl(x + rows, n, 2, 1, n, x, x + 3 * rows, 1, 0, -1); });
        expectSameOrNothing(joined(keys.cells, random.normals(rows)),
                            [&](double* x) { VB_SortQMatrixCol(x, n, 2, 1, 1, n, -1); });
    }
}

TEST_F(ManyKeysInShortMemory, rowsByAnOrder)
{
    std::vector<double> arrays = random.wholes(rows, 1, n);
    arrays = joined(arrays, random.normals(4 * rows));
    expectSameOrNothing(arrays, [&](double* x) { VB_SortApply(x + rows, n, 2, x, x + 3 * rows); });
    expectSameOrNothing(arrays, [&](double* x) { VB_SortApply2(x + rows, n, 2, x); });
}

TEST_F(ManyKeysInShortMemory, ranks)
{
    for (const Keys& keys : kinds) {
        SCOPED_TRACE(testing::Message() << keys);
        int ties = 0;
        expectSameOrNothing(joined(keys.cells, random.normals(3 * rows)), [&](double* x) {
            VB_V_GetRanksTiesDbl(x, n, x + rows, x + 2 * rows, &ties, x + 3 * rows);
        });
    }
}

TEST_F(ManyKeysInShortMemory, quantiles)
{
    for (const Keys& keys : kinds)
        for (const double p : {0.0, 0.3, 0.5, 1.0}) {
            SCOPED_TRACE(testing::Message() << keys << " at " << p);
            expectSameOrNothing(joined(keys.cells, {0.5}), [&](double* x) { x[n] = VB_V_Quantile(x, n, p); });
            if (keys.name == "all missing")
                continue; // nothing counts, and nothing is sorted
            expectSameOrNothing(joined(keys.cells, joined(random.weights(rows), {0.5})),
                                [&](double* x) { x[2 * n] = VB_V_QuantileW(x, n, x + n, p); });
        }
}

} // namespace
