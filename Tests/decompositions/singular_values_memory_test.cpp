// What becomes of exhausted memory in the singular values.
#include "decompositions/singular_values.h"

#include "support/bits.h"
#include "support/failing_new.h"
#include "support/safearrays.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace vecmat::test {
namespace {

const std::vector<double>& cells()
{
    static const std::vector<double> threeByTwo = {1, 2, 3, 4, 5, 7};
    return threeByTwo;
}

TEST(SingularValuesMemory, AFailedAllocationPassesOutBeforeATableIsTouched)
{
    const Owned<matrix> x = table(3, 2, cells());
    const Owned<matrix> s = filled(2, 1, 7.0);
    const Owned<matrix> u = filled(3, 3, 7.0);
    const Owned<matrix> v = filled(2, 2, 7.0);
    int info = 7;
    int untouched = 0;
    const int tried = forEachFailingAllocation(
        [&] {
            for (const auto& results : {&s, &u, &v})
                std::fill_n((*results)->X, (*results)->nElems, 7.0);
            try {
                M_SVDecomp(x, 3, 2, s, u, v, 11, &info);
            } catch (...) {
                untouched += x->X[0] == 1.0 && s->X[0] == 7.0 && u->X[0] == 7.0 && v->X[0] == 7.0 ? 1 : 0;
                throw;
            }
        },
        Failure::passesOut);
    EXPECT_GT(tried, 0);
    EXPECT_EQ(untouched, tried);
    EXPECT_THAT(cellsOf(x), SameBits(cells()));
    EXPECT_EQ(info, 0);
}

TEST(SingularValuesMemory, TheOtherFormsReleaseTheirTables)
{
    TableColumns x(3, 2, cells());
    TableColumns u(3, 3, std::vector<double>(9));
    TableColumns v(2, 2, std::vector<double>(4));
    const Owned<matrix> s = filled(2, 1, 0.0);
    int info = 7;
    EXPECT_GT(forEachFailingAllocation([&] { M_SVDecompSPV(x, 3, 2, s, u, v, 11, &info); }), 0);
    EXPECT_THAT(x.cells(), SameBits(cells()));

    std::vector<double> flat = cells();
    std::vector<double> flatS(2);
    std::vector<double> flatU(9);
    std::vector<double> flatV(4);
    EXPECT_GT(forEachFailingAllocation(
                  [&] { VB_M_SVDecomp(flat.data(), 3, 2, flatS.data(), flatU.data(), 3, flatV.data(), 2, 11, &info); }),
              0);
    ArrayOfColumns columns = numberColumns(3, 2, cells());
    ArrayOfColumns left = numberColumns(3, 3, std::vector<double>(9));
    ArrayOfColumns right = numberColumns(2, 2, std::vector<double>(4));
    EXPECT_GT(
        forEachFailingAllocation([&] { VB_M_SVDecompSPV(columns, 3, 2, flatS.data(), left, 3, right, 2, 11, &info); }),
        0);
    EXPECT_GT(forEachFailingAllocation([&] { VB_M_Rank(flat.data(), 3, 2); }), 0);
    EXPECT_THAT(flat, SameBits(cells()));
}

} // namespace
} // namespace vecmat::test
