// The survey's numbers for the penguins, read by its own reader, against those of R.
#include "groups.h"
#include "read_table.h"
#include "statistics.h"
#include "subject.h"

#include "penguins_reference.h"

#include "support/bits.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

using namespace survey;
using survey::test::expectClose;
using survey::test::groupReferences;
using survey::test::penguins;
using vecmat::test::M;

namespace {

std::vector<double> cells(const test::GroupReference& reference)
{
    const Subject subject = subjectOf(penguins(), penguins().named("species"));
    for (const Group& group : subject.groups)
        if (group.name == reference.group)
            return cellsOf(*penguins().named(reference.column), group);
    ADD_FAILURE() << "there is no group " << reference.group;
    return {};
}

std::array<double, 6> moments(const std::vector<double>& x)
{
    const Moments m = momentsOf(x);
    return {m.minimum, m.maximum, m.mean, m.standardDeviation, m.skewness, m.kurtosis};
}

std::array<double, 3> quartiles(const std::vector<double>& x)
{
    const Quantiles q = quantilesOf(x);
    return {q.lowerQuartile(), q.median(), q.upperQuartile()};
}

} // namespace

TEST(SurveyOfPenguins, ReferenceHasEveryNumericColumnAndGroup)
{
    std::vector<std::string> expected;
    for (const Column* column : penguins().ofKind(Kind::numeric))
        for (const Group& group : subjectOf(penguins(), penguins().named("species")).groups)
            expected.push_back(column->name + " " + group.name);
    std::vector<std::string> actual;
    for (const test::GroupReference& reference : groupReferences)
        actual.push_back(reference.column + " " + reference.group);
    EXPECT_EQ(actual, expected);
    EXPECT_EQ(actual.size(), 16U);
}

TEST(SurveyOfPenguins, CountsAgreeWithR)
{
    for (const test::GroupReference& reference : groupReferences) {
        const Moments m = momentsOf(cells(reference));
        EXPECT_EQ(m.count, reference.count) << reference.column << ' ' << reference.group;
        EXPECT_EQ(m.missing, reference.missing) << reference.column << ' ' << reference.group;
    }
}

TEST(SurveyOfPenguins, MomentsAgreeWithR)
{
    for (const test::GroupReference& reference : groupReferences)
        expectClose(moments(cells(reference)), reference.moments, reference.column + ' ' + reference.group);
}

TEST(SurveyOfPenguins, QuartilesAgreeWithR)
{
    for (const test::GroupReference& reference : groupReferences)
        expectClose(quartiles(cells(reference)), reference.quartiles, reference.column + ' ' + reference.group);
}

TEST(SurveyOfPenguins, ThirteenQuantilesAgreeWithR)
{
    for (const test::GroupReference& reference : groupReferences)
        expectClose(quantilesOf(cells(reference)).thirteen, reference.quantiles,
                    reference.column + ' ' + reference.group);
}

TEST(SurveyStatistics, WithoutAnyCellEverythingIsMissing)
{
    const std::vector<double> none = {M, M};
    EXPECT_EQ(momentsOf(none).count, 0);
    EXPECT_EQ(momentsOf(none).missing, 2);
    EXPECT_THAT(moments(none), testing::Each(vecmat::test::SameBits(M)));
    EXPECT_THAT(quartiles(none), testing::Each(vecmat::test::SameBits(M)));
    EXPECT_THAT(quantilesOf(none).thirteen, testing::Each(vecmat::test::SameBits(M)));
}

TEST(SurveyStatistics, OneCellHasNoStandardDeviation)
{
    EXPECT_THAT(moments({M, 5.0}), vecmat::test::SameBits({5.0, 5.0, 5.0, M, M, M}));
    EXPECT_THAT(quartiles({M, 5.0}), testing::Each(5.0));
    EXPECT_THAT(quantilesOf({M, 5.0}).thirteen, testing::Each(5.0));
}

TEST(SurveyStatistics, SkewnessTakesThreeCellsAndKurtosisFour)
{
    EXPECT_THAT(moments({1.0, 2.0})[4], vecmat::test::SameBits(M));
    EXPECT_GT(moments({1.0, 2.0, 4.0})[4], 0.0);
    EXPECT_THAT(moments({1.0, 2.0, 4.0})[5], vecmat::test::SameBits(M));
    EXPECT_NE(moments({1.0, 2.0, 4.0, 5.0})[5], M);
}

TEST(SurveyStatistics, EqualCellsHaveNoSkewnessOrKurtosis)
{
    EXPECT_THAT(moments({7.5, 7.5, 7.5, 7.5, 7.5}), vecmat::test::SameBits({7.5, 7.5, 7.5, 0.0, M, M}));
}

TEST(SurveyStatistics, WeightsSayHowMuchACellCounts)
{
    const Moments m = momentsOf({1.0, M, 2.0, 4.0}, {1.0, 7.0, 1.0, 2.0});
    EXPECT_EQ(m.count, 3);
    EXPECT_EQ(m.weight, 4.0);
    EXPECT_NEAR(m.mean, 2.75, 1e-15);
    // By R: sum(w (x - 2.75)^2) = 6.75, over W - W/n = 4 - 4/3.
    EXPECT_NEAR(m.standardDeviation, 1.5909902576697319, 1e-15);
    const Quantiles q = quantilesOf({4.0, 2.0, M, 1.0}, {2.0, 1.0, 7.0, 1.0});
    EXPECT_EQ(q.lowerQuartile(), 1.5); // a quarter of the weight lies below 2
    EXPECT_EQ(q.median(), 3.0);
    EXPECT_EQ(q.upperQuartile(), 4.0);
    EXPECT_EQ(quantilesOf({4.0, 1.0}, {3.0, 3.0}).median(), 2.5); // equal weights are none
}
