// Every series that is opened is closed, also where an allocation fails within it.
#include "support/failing_new.h"

#include "frame/api.h"
#include "frame/companions.h"
#include "matrix.h"
#include "randomisation/permutations.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

int opened = 0;
int closed = 0;
int drawn = 0;

} // namespace

extern "C" VECMAT_API void GetSeed(int* /*seed*/, int /*seedFlag*/)
{
    ++opened;
}

extern "C" VECMAT_API double Random01(void)
{
    return ++drawn % 2 == 0 ? 0.25 : 0.75;
}

extern "C" VECMAT_API void GetSeedUpdate(int* seedOut)
{
    ++closed;
    *seedOut = opened;
}

namespace {

TEST(SeedFrame, ClosesWhereTheSortFindsNoMemory)
{
    const auto out = std::make_unique<matrix>(6, 1, 0.0);
    matrix* marks = out.get();
    int seed = 1;
    int next = 0;
    int unbalanced = 0;
    int failedWithin = 0;
    const int failures = vecmat::test::forEachFailingAllocation([&] {
        const int before = opened;
        try {
            GenerateRandomIndicator(marks, 6, 2, &seed, -1, &next);
        } catch (const std::bad_alloc&) {
            failedWithin += opened != before ? 1 : 0;
            unbalanced += opened != closed ? 1 : 0;
            throw;
        }
        unbalanced += opened != closed ? 1 : 0;
    });
    EXPECT_GT(failures, 3);
    EXPECT_GT(failedWithin, 0); // while the series was open
    EXPECT_EQ(unbalanced, 0);
}

TEST(SeedFrame, EveryPermutationReleasesWhatItMade)
{
    double x[] = {1, 2, 3, 4, 5, 6};
    double z[] = {0, 0, 0, 0, 0, 0};
    int seed = 1;
    int next = 0;
    const int failures = vecmat::test::forEachFailingAllocation([&] {
        Cpp_M_ShuffleDbl(x, 3, 2, z, &seed, -1, &next);
        Cpp_Random1toNDbl(6, z, &seed, -1, &next);
        Cpp_V_Shuffle(z, 6, &seed, -1, &next);
        VB_GenerateRandomIndicator(z, 6, 3, &seed, -1, &next);
    });
    EXPECT_GT(failures, 20);
    EXPECT_EQ(opened, closed);
}

} // namespace
