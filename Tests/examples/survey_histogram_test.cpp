// The boxes and bars of the survey's pictures.
#include "histogram.h"

#include "support/bits.h"

#include <gmock/gmock.h>

using namespace survey;
using testing::ElementsAre;
using vecmat::test::M;

namespace {

Box boxOf(const std::vector<double>& cells)
{
    return survey::boxOf(cells, quantilesOf(cells));
}

} // namespace

TEST(Box, EndsAtTheLastCellsWithinOneAndAHalfOfItsLength)
{
    const Box box = boxOf({M, -1.5, 1.0, 2.0, 3.0, 4.0, 6.5, 7.5}); // the quartiles are 1.5 and 5.25
    EXPECT_EQ(box.lowerWhisker, -1.5);
    EXPECT_EQ(box.upperWhisker, 7.5);
    EXPECT_THAT(box.outside, testing::IsEmpty());
    // Quartiles 3 and 7: the upper whisker reaches no farther than 13.
    EXPECT_THAT(boxOf({1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 13.0, 13.0}).outside, testing::IsEmpty());
    EXPECT_THAT(boxOf({1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 13.5}).outside, ElementsAre(13.5));
    const Box outer = boxOf({-9.0, 2.0, 2.0, 3.0, 4.0, 4.0, 30.0});
    EXPECT_EQ(outer.lowerWhisker, 2.0);
    EXPECT_EQ(outer.upperWhisker, 4.0);
    EXPECT_THAT(outer.outside, ElementsAre(-9.0, 30.0));
}

TEST(Box, OfManyCellsOutsideHasTheOuterOnes)
{
    std::vector<double> cells(10000, 5.0);
    for (int i = 1; i <= 300; ++i)
        cells.push_back(100.0 + i);
    const Box box = boxOf(cells);
    EXPECT_EQ(box.outside.size(), 100U);
    EXPECT_EQ(box.outside.front(), 301.0);
}

TEST(Bars, HaveARoundWidthAndHoldEveryCell)
{
    const Bars bars = barsOf(32.1, 59.6, 9.275, 342, 1); // asked for 2.65
    EXPECT_EQ(bars.width, 2.0);
    EXPECT_EQ(bars.first, 32.0);
    EXPECT_EQ(bars.count, 14);
    EXPECT_EQ(barsOf(0.0, 1000.0, 0.0, 50, 0).width, 20.0); // no quartile distance: as many as may be
}

TEST(Bars, AreNoNarrowerThanCellsAreToldApart)
{
    const Bars bars = barsOf(1.0, 4.0, 1.0, 100000, 0);
    EXPECT_EQ(bars.width, 1.0);
    EXPECT_EQ(bars.count, 4);
}
