// Memory runs short: a failed allocation leaves the caller's data as it was, and no memory behind.
#include "sorting/sort.h"

#include "sorting/sort_reference.h"
#include "support/bits.h"
#include "support/failing_new.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

using namespace vecmat::test;

namespace {

constexpr int n = 50;
constexpr std::size_t rows = n;

class ShortMemory : public WithTiedKeys
{
protected:
    ShortMemory() : WithTiedKeys(11, rows) {}

    const std::vector<double> sorted = withRows(keys, sortedSources(keys, {1, n, 0}));
    std::vector<double> data = keys;

    /// Runs a sort of the data with every allocation failing in turn. A sort that did not run through left the data as
    /// it was, unless it works in the caller's array.
    template <class Sort>
    void expectAllOrNothing(Sort sort)
    {
        bool untouched = true;
        const int failures = forEachFailingAllocation([&] {
            std::copy(keys.begin(), keys.end(), data.begin());
            try {
                sort();
            } catch (const std::bad_alloc&) {
                untouched = untouched && std::equal(keys.begin(), keys.end(), data.begin(), sameBits);
                throw;
            }
        });
        EXPECT_GT(failures, 0);
        EXPECT_TRUE(untouched);
        EXPECT_THAT(data, SameBits(sorted));
    }
};

TEST_F(ShortMemory, vector)
{
    expectAllOrNothing([&] { VB_SortQVectorDbl(data.data(), n, 1, n, 0); });
    double* start = data.data();
    expectAllOrNothing([&] { SortQVector(start, n, 1, n, 0); });
}

TEST_F(ShortMemory, rowsByAKey)
{
    std::vector<double> key = keys;
    std::vector<double> companion = keys;
    expectAllOrNothing([&] { VB_SortQDbl(data.data(), n, 1, 1, n, key.data(), companion.data(), 1, 0, 0); });
}

TEST_F(ShortMemory, byAnIndicator)
{
    expectAllOrNothing([&] { VB_SortDataBy01(data.data(), n, 1, const_cast<double*>(keys.data())); });
}

TEST_F(ShortMemory, byAColumn)
{
    expectAllOrNothing([&] { VB_SortQMatrixCol(data.data(), n, 1, 1, 1, n, 0); });
    expectAllOrNothing([&] { VB_SortMatrixSeqQDbl(data.data(), n, 1, -1); });
}

} // namespace
