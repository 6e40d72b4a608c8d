// The companion's functions are replaced by this program's, which writes down what it is asked.
#include "elementary/cell_functions.h"

#include "base/api.h"
#include "base/detail/companions.h"
#include "support/bits.h"
#include "support/tables.h"

#include <vector>

using namespace vecmat::test;

namespace {

std::vector<double> asked;

} // namespace

extern "C" VECMAT_API double Log10(double x)
{
    asked.push_back(x);
    return x + 0.5;
}

extern "C" VECMAT_API double sqr(double x)
{
    asked.push_back(x);
    return x + 0.25;
}

namespace {

TEST(CellFunctions, Log10IsCalledForCellsOutsideToo)
{
    asked.clear();
    auto a = byRows({{4, M, 9}});
    M_Log10Matrix(a.get(), 1, 4);
    EXPECT_THAT(asked, SameBits({4.0, 9.0, -1.0}));
    EXPECT_THAT(cellsOf(a), SameBits({4.5, M, 9.5}));
}

TEST(CellFunctions, RootsAreTheCompanions)
{
    asked.clear();
    auto a = byRows({{4, 9, -1, 16}});
    EXPECT_THAT(M_SquareRootAij2(a.get(), 1, 4), SameBits(-1.0));
    EXPECT_THAT(asked, SameBits({4.0, 9.0}));
    EXPECT_THAT(cellsOf(a), SameBits({4.25, 9.25, -1.0, 16.0}));
}

} // namespace
