// What becomes of exhausted memory in the eigenvalues.
#include "decompositions/eigen.h"

#include "support/bits.h"
#include "support/failing_new.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <vector>

namespace vecmat::test {
namespace {

const std::vector<double>& cells()
{
    static const std::vector<double> symmetric = {2, 1, 0, 1, 3, 1, 0, 1, 5};
    return symmetric;
}

/// Fails each allocation in turn until the call makes no more; the status of every run that met a failure.
template <class Call>
std::vector<int> statusesUnderFailure(Call call, Failure failure, int& tried)
{
    std::vector<int> statuses;
    statuses.reserve(1000);
    tried = forEachFailingAllocation(
        [&] {
            const int status = call();
            if (allocationState().threw)
                statuses.push_back(status);
        },
        failure);
    return statuses;
}

TEST(EigenMemory, ThePlainFormReturnsMinusOneForAFailedAllocation)
{
    const Owned<matrix> a = table(3, 3, cells());
    int tried = 0;
    const std::vector<int> statuses = statusesUnderFailure(
        [&] {
            Owned<matrix> values;
            Owned<matrix> vectors;
            return M_Eigen(a, values, vectors, 3, -1);
        },
        Failure::mayBeCaught, tried);
    EXPECT_GT(tried, 0);
    EXPECT_FALSE(statuses.empty());
    for (const int status : statuses)
        EXPECT_EQ(status, -1);
    EXPECT_THAT(cellsOf(a), SameBits(cells()));
}

TEST(EigenMemory, TheColumnFormsDoTheSame)
{
    TableColumns a(3, 3, cells());
    TableColumns vectors(3, 3, cells());
    int tried = 0;
    for (const int status : statusesUnderFailure(
             [&] {
                 Owned<matrix> values;
                 return M_EigenSPV(a, values, vectors, 3, -1);
             },
             Failure::mayBeCaught, tried))
        EXPECT_EQ(status, -1);
    EXPECT_GT(tried, 0);
    for (const int status : statusesUnderFailure(
             [&] {
                 Owned<matrix> values;
                 return M_EigenDestroySPV(vectors, values, 3, -1);
             },
             Failure::mayBeCaught, tried))
        EXPECT_EQ(status, -1);
    EXPECT_GT(tried, 0);
}

TEST(EigenMemory, TheTriangularFormLetsTheExceptionPass)
{
    TableColumns a = triangle(3, cells());
    TableColumns vectors(3, 3, cells());
    int tried = 0;
    const std::vector<int> statuses = statusesUnderFailure(
        [&] {
            Owned<matrix> values;
            return M_EigenSPV_T(a, values, vectors, 3, -1);
        },
        Failure::passesOut, tried);
    EXPECT_GT(tried, 0);
    EXPECT_TRUE(statuses.empty()) << "no call came back";
}

TEST(EigenMemory, TheScratchIsAllocatedBeforeAResultIsPrepared)
{
    constexpr int n = 33; // the scratch of a smaller one takes no call for memory
    const Owned<matrix> a = filled(n, n, 1.0);
    Owned<matrix> values = filled(n, 1, 7.0);
    Owned<matrix> vectors = filled(n, n, 8.0);
    int status = 0;
    EXPECT_EQ(runWithFailure([&] { status = M_Eigen(a, values, vectors, n, -1); }, 1), Ending::ranThrough);
    EXPECT_TRUE(allocationState().threw);
    EXPECT_EQ(status, -1);
    EXPECT_THAT(cellsOf(values), SameBits(std::vector<double>(n, 7.0)));
    EXPECT_THAT(cellsOf(vectors), SameBits(std::vector<double>(n * n, 8.0)));
}

TEST(EigenMemory, ValuesAndVectorsBelongTogetherWhereTheSortFails)
{
    const Owned<matrix> a = table(3, 3, cells());
    Owned<matrix> values = filled(3, 1, 7.0);
    Owned<matrix> vectors = filled(3, 3, 8.0);
    ASSERT_EQ(M_Eigen(a, values, vectors, 3, 0), 0);
    const std::vector<double> foundValues = cellsOf(values);
    const std::vector<double> foundVectors = cellsOf(vectors);
    ASSERT_LT(foundValues[0], foundValues[1]) << "the sort has something to do";
    for (int n = 1;; ++n) {
        int status = 0;
        runWithFailure([&] { status = M_Eigen(a, values, vectors, 3, -1); }, n);
        if (!allocationState().threw)
            break;
        EXPECT_EQ(status, -1);
        EXPECT_THAT(cellsOf(values), SameBits(foundValues)) << n;
        EXPECT_THAT(cellsOf(vectors), SameBits(foundVectors)) << n;
    }
}

TEST(EigenMemory, TheFlatFormLetsTheFailureOfItsOwnTablesPass)
{
    std::vector<double> a = cells();
    std::vector<double> values(3);
    std::vector<double> vectors(9);
    int tried = 0;
    const std::vector<int> statuses = statusesUnderFailure(
        [&] { return VB_M_Eigen(a.data(), values.data(), vectors.data(), 3, -1); }, Failure::mayBeCaught, tried);
    EXPECT_GT(tried, static_cast<int>(statuses.size()));
    for (const int status : statuses)
        EXPECT_EQ(status, -1);
}

TEST(EigenMemory, ThePowerIterationAndTheNormReleaseTheirTables)
{
    const Owned<matrix> a = table(3, 3, cells());
    EXPECT_GT(forEachFailingAllocation([&] {
                  Owned<matrix> v;
                  M_VonMises(a, v, 3);
              }),
              0);
    // The eigenvalues catch the exception, the tables made before them do not.
    EXPECT_GT(forEachFailingAllocation([&] { getNorm2(a); }, Failure::mayBeCaught), 0);
}

} // namespace
} // namespace vecmat::test
