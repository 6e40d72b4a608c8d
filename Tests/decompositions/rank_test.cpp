// The numerical rank by singular values.
#include "decompositions/singular_values.h"

#include "decompositions/svd_reference.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vecmat::test {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Step by step: the table of values has as many rows as the smaller dimension, one less than the decomposition
/// addresses where there are more columns than rows.
int rankBySteps(const std::vector<double>& cells, int n, int p, bool whole = false)
{
    SvdVariant variant;
    variant.valueRows = whole ? -1 : std::min(n, p);
    const ReferenceSvd found =
        SvdBySteps(cells, n, p, 0, CheckedCells(0, 0, 0.0), CheckedCells(0, 0, 0.0), variant).run();
    if (found.info < 0)
        return -1;
    int rank = 0;
    for (int k = 1; k <= p; ++k) {
        const CheckedCells s(static_cast<int>(found.s.size()), found.s);
        if (!(s.get(k) > 1e-12))
            break;
        ++rank;
    }
    return rank;
}

TEST(Rank, IsThatOfTheStepsInTheirOrder)
{
    RandomData data(8221);
    SCOPED_TRACE(data);
    int wideThatDiffer = 0;
    for (int round = 0; round < 1000; ++round) {
        const int n = data.integer(1, 6);
        const int p = data.integer(1, 6);
        std::vector<double> cells = data.wholes(static_cast<std::size_t>(n * p), -1, 1);
        if (round % 4 == 0)
            cells = data.withSpecials(cells, 0.05);
        const Owned<matrix> a = table(n, p, cells);
        const int expected = rankBySteps(cells, n, p);
        EXPECT_EQ(M_Rank(a, n, p), expected) << round;
        EXPECT_THAT(cellsOf(a), SameBits(cells));
        wideThatDiffer += p > n && expected != rankBySteps(cells, n, p, true) ? 1 : 0;
    }
    EXPECT_GT(wideThatDiffer, 0) << "with more columns than rows the last value reads -1.0, and it shows";
}

TEST(Rank, OfTablesWithMoreRowsThanColumns)
{
    EXPECT_EQ(M_Rank(byRows({{1, 2}, {2, 4}, {3, 6}}), 3, 2), 1);
    EXPECT_EQ(M_Rank(byRows({{1, 2}, {2, 4}, {3, 7}}), 3, 2), 2);
    EXPECT_EQ(M_Rank(byRows({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}), 3, 3), 3);
    EXPECT_EQ(M_Rank(filled(3, 3, 0.0), 3, 3), 0);
    EXPECT_EQ(M_Rank(filled(4, 3, 2.0), 4, 3), 1);
}

TEST(Rank, CountsValuesAboveAnAbsoluteBound)
{
    // The ratio of the two values does not matter.
    EXPECT_EQ(M_Rank(byRows({{1e-13, 0}, {0, 1e-13}}), 2, 2), 0);
    EXPECT_EQ(M_Rank(byRows({{1e-11, 0}, {0, 1e-13}}), 2, 2), 1);
    EXPECT_EQ(M_Rank(byRows({{1e10, 0}, {0, 1e-11}}), 2, 2), 2);
    EXPECT_EQ(M_Rank(byRows({{1e-12}}), 1, 1), 0) << "the bound itself is not above it";
    EXPECT_EQ(M_Rank(byRows({{std::nextafter(1e-12, 1.0)}}), 1, 1), 1);
}

TEST(Rank, IsMinusOneWhereTheSingularValuesAreNotFound)
{
    EXPECT_EQ(M_Rank(byRows({{1, notANumber}, {2, 3}}), 2, 2), -1);
    EXPECT_EQ(M_Rank(byRows({{1, std::numeric_limits<double>::infinity()}, {2, 3}}), 2, 2), -1);
}

TEST(Rank, TakesAMissingCellAsTheNumberItIs)
{
    const std::vector<double> cells = {M, 0, 0, 1};
    EXPECT_EQ(M_Rank(table(2, 2, cells), 2, 2), rankBySteps(cells, 2, 2));
    EXPECT_NE(rankBySteps(cells, 2, 2), 0);
}

TEST(Rank, OfNoColumnsIsZero)
{
    EXPECT_EQ(M_Rank(filled(3, 0, 0.0), 3, 0), 0);
    EXPECT_EQ(M_Rank(filled(3, 1, 1.0), 3, -1), 0);
    EXPECT_EQ(M_Rank(filled(0, 1, 0.0), 0, 1), rankBySteps({}, 0, 1));
    EXPECT_EQ(M_Rank(filled(0, 0, 0.0), 0, 0), 0);
}

TEST(Rank, OfACornerLooksNoFurther)
{
    EXPECT_EQ(M_Rank(byRows({{1, 1, 5}, {1, 1, 7}, {9, 8, notANumber}}), 2, 2), 1);
}

TEST(Rank, OfAFlatTableLeavesIt)
{
    Guarded<double> a({1, 2, 3, 2, 4, 6});
    EXPECT_EQ(VB_M_Rank(a, 3, 2), 1);
    EXPECT_TRUE(a.untouched());
    EXPECT_EQ(VB_M_Rank(a, 2, 3), rankBySteps(a.values(), 2, 3));
}

} // namespace
} // namespace vecmat::test
