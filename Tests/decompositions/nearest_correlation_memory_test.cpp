// What becomes of exhausted memory in the nearest correlation matrix.
#include "decompositions/nearest_correlation.h"

#include "support/failing_new.h"
#include "support/safearrays.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <vector>

namespace vecmat::test {
namespace {

const std::vector<double>& cells()
{
    static const std::vector<double> pairwise = {1, 1, 0, 1, 1, 1, 0, 1, 1};
    return pairwise;
}

TEST(NearestCorrelationMemory, NothingIsLeftBehindWhicheverAllocationFails)
{
    // The eigenvalues catch the exception, and the iteration continues; the tables around them do not catch it.
    const Owned<matrix> a = table(3, 3, cells());
    EXPECT_GT(forEachFailingAllocation([&] { M_CorrMatFromSymMat(a, 3); }, Failure::mayBeCaught), 0);
    TableColumns columns(3, 3, cells());
    EXPECT_GT(forEachFailingAllocation([&] { M_CorrMatFromSymMatSPV(columns, 3); }, Failure::mayBeCaught), 0);
    TableColumns lower = triangle(3, cells());
    EXPECT_GT(forEachFailingAllocation([&] { M_CorrMatFromSymMatSPV_T(lower, 3); }, Failure::mayBeCaught), 0);
}

TEST(NearestCorrelationMemory, ARatioThatIsNotANumberEndsTheIteration)
{
    // Without cells both norms are 0. As many passes as the limit allows would make far more allocations.
    const Owned<matrix> a = table(3, 3, cells());
    int status = 7;
    EXPECT_EQ(runWithFailure([&] { status = M_CorrMatFromSymMat(a, 0); }, 200), Ending::ranThrough);
    EXPECT_FALSE(allocationState().threw);
    EXPECT_EQ(status, 0);
    // A table on which the iteration does not settle makes that many.
    const Owned<matrix> swinging = byRows({{1, 1e11}, {1e11, 1}});
    runWithFailure([&] { M_CorrMatFromSymMat(swinging, 2); }, 200);
    EXPECT_TRUE(allocationState().threw);
}

TEST(NearestCorrelationMemory, TheFlatFormsReleaseTheirTables)
{
    std::vector<double> flat = cells();
    EXPECT_GT(forEachFailingAllocation([&] { Cpp_M_CorrMatFromSymMat(flat.data(), 3); }, Failure::mayBeCaught), 0);
    ArrayOfColumns columns = numberColumns(3, 3, cells());
    EXPECT_GT(forEachFailingAllocation([&] { Cpp_M_CorrMatFromSymMatSPV(columns, 3); }, Failure::mayBeCaught), 0);
    ArrayOfColumns lower = numberTriangle(3, cells());
    EXPECT_GT(forEachFailingAllocation([&] { Cpp_M_CorrMatFromSymMatSPV_T(lower, 3); }, Failure::mayBeCaught), 0);
    EXPECT_EQ(forEachFailingAllocation([&] { Cpp_M_RowSumNorm(flat.data(), 3, 3); }), 0) << "a view needs no memory";
}

TEST(NearestCorrelationMemory, TheProjectionsReleaseTheirTables)
{
    const Owned<matrix> a = table(3, 3, cells());
    const Owned<matrix> w = byRows({{2, 0, 0}, {0, 2, 0}, {0, 0, 2}});
    const Owned<matrix> out = filled(3, 3, 0.0);
    EXPECT_GT(forEachFailingAllocation([&] { M_SProject(a, 3, w, out); }, Failure::mayBeCaught), 0);
}

} // namespace
} // namespace vecmat::test
