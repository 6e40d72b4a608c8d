// Every series that is opened is closed, also where an allocation fails within it.
#include "support/failing_new.h"

#include "base/api.h"
#include "base/detail/companions.h"
#include "matrix.h"
#include "randomisation/detail/random_series.h"
#include "randomisation/interval_sampling.h"
#include "randomisation/permutations.h"
#include "randomisation/sampling_with_repeats.h"
#include "randomisation/stratified_sampling.h"
#include "support/safearrays.h"
#include "support/strings.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

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

TEST(SeedFrame, ClosesWhereAnExceptionPasses)
{
    int seed = 1;
    int next = 0;
    const int before = opened;
    const auto failInside = [&] {
        const vecmat::SeedFrame series(&seed, -1, &next);
        throw std::bad_alloc();
    };
    EXPECT_THROW(failInside(), std::bad_alloc);
    EXPECT_EQ(opened, before + 1);
    EXPECT_EQ(closed, opened);
}

TEST(SeedFrame, ClosesWhicheverAllocationFails)
{
    const auto out = std::make_unique<matrix>(600, 1, 0.0);
    matrix* marks = out.get();
    int seed = 1;
    int next = 0;
    int unbalanced = 0;
    const int failures = vecmat::test::forEachFailingAllocation(
        [&] {
            try {
                GenerateRandomIndicator(marks, 600, 2, &seed, -1, &next);
            } catch (const std::bad_alloc&) {
                unbalanced += opened != closed ? 1 : 0;
                throw;
            }
            unbalanced += opened != closed ? 1 : 0;
        },
        vecmat::test::Failure::mayBeCaught); // the sort does without memory
    EXPECT_GT(failures, 0);
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
    EXPECT_GT(failures, 0);
    EXPECT_EQ(opened, closed);
}

// Texts too long for a string's own storage, so that each copy allocates.
const std::vector<std::wstring> longTexts = {L"a first text of some length", L"a second text of some length",
                                             L"a third text of some length", L"a fourth text of some length"};

TEST(SeedFrame, EverySampleReleasesWhatItMade)
{
    using namespace vecmat::test;
    BstrArray population(longTexts);
    BstrArray sample(4);
    ArrayOfColumns populationColumns(std::vector<std::vector<std::wstring>>{longTexts});
    ArrayOfColumns sampleColumns(std::vector<std::vector<std::wstring>>{longTexts});
    double counts[] = {2, 0, 1, 1};
    double rowIds[] = {4, 3, 2, 1};
    double ids[] = {0, 0, 0, 0};
    double strata[] = {2, 1, 2, 1};
    double quota[] = {1, 3};
    double sizes[] = {2, 2};
    int seed = 1;
    int next = 0;
    // Strings that have reached the caller are the caller's, also where the next one then fails.
    struct Release
    {
        BstrArray& strings;
        BstrArray& column;
        ~Release()
        {
            allocationState().countdown = 0;
            strings.takeTexts();
            column.takeTexts();
        }
    };
    const auto each = [&](const std::function<void()>& call) {
        const int failures = forEachFailingAllocation([&] {
            const Release release{sample, sampleColumns.stringArray(0)};
            call();
        });
        EXPECT_GT(failures, 0);
        EXPECT_EQ(opened, closed);
    };
    each([&] { VB_M_SamplingWithReplacement(population, 4, 1, 4, sample, ids, &seed, -1, &next); });
    each([&] { VB_M_SamplingWithReplacementSPV(populationColumns, 4, 1, 4, sampleColumns, ids, &seed, -1, &next); });
    each([&] { VB_M_SampleUserDefined(population, 4, 1, sample, counts, ids); });
    each([&] { VB_M_SampleUserDefinedSPV(populationColumns, 4, 1, sampleColumns, counts, ids); });
    each([&] { VB_M_SamplingSystematicRdStart(population, 4, 1, 3, sample, ids, &seed, -1, &next); });
    each([&] { VB_M_SamplingSystematicRdStartSPV(populationColumns, 4, 1, 3, sampleColumns, ids, &seed, -1, &next); });
    each([&] { VB_M_SamplingSystematicCentered(population, 4, 1, 3, sample, ids); });
    each([&] { VB_M_SamplingSystematicCenteredSPV(populationColumns, 4, 1, 3, sampleColumns, ids); });
    each([&] { VB_M_SamplingRandomStratified(population, 4, 1, 3, sample, ids, &seed, -1, &next); });
    each([&] { VB_M_SamplingRandomStratifiedSPV(populationColumns, 4, 1, 3, sampleColumns, ids, &seed, -1, &next); });
    each([&] {
        Cpp_M_SamplingRandomStratifiedByStr(population, 4, 1, 4, sample, rowIds, ids, strata, quota, sizes, 2, &seed,
                                            -1, &next);
    });
    each([&] {
        VB_M_SamplingRandomStratifiedByStrSPV(populationColumns, 4, 1, 4, sampleColumns, rowIds, ids, strata, quota,
                                              sizes, 2, &seed, -1, &next);
    });
}

} // namespace
