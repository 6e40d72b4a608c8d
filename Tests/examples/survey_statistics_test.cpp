// The survey's numbers for the penguins, read by its own reader, against those of R.
#include "groups.h"
#include "report.h"
#include "statistics.h"
#include "table.h"

#include "support/bits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string>
#include <vector>

using namespace survey;
using vecmat::test::M;

namespace {

struct Reference
{
    std::string column;
    std::string group;
    int count;
    int missing;
    std::array<double, 6> moments;
    std::array<double, 3> quartiles;
    std::array<double, 13> quantiles;
};

const Reference references[] = {
#include "penguins_reference.inc"
};

/// Within 1e-12 of R's number, relative to it where it is above 1.
void expectClose(std::span<const double> actual, std::span<const double> expected, const std::string& what)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i)
        EXPECT_NEAR(actual[i], expected[i], 1e-12 * std::max(1.0, std::fabs(expected[i]))) << what << ", number " << i;
}

const Table& penguins()
{
    static const Table table = readTable(SURVEY_DATA "/penguins.csv", "species");
    return table;
}

std::vector<double> cells(const Reference& reference)
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
    const Quartiles q = quartilesOf(x);
    return {q.lower, q.median, q.upper};
}

} // namespace

TEST(SurveyOfPenguins, ReferenceHasEveryNumericColumnAndGroup)
{
    std::vector<std::string> expected;
    for (const Column* column : penguins().ofKind(Kind::numeric))
        for (const Group& group : subjectOf(penguins(), penguins().named("species")).groups)
            expected.push_back(column->name + " " + group.name);
    std::vector<std::string> actual;
    for (const Reference& reference : references)
        actual.push_back(reference.column + " " + reference.group);
    EXPECT_EQ(actual, expected);
    EXPECT_EQ(actual.size(), 16U);
}

TEST(SurveyOfPenguins, CountsAgreeWithR)
{
    for (const Reference& reference : references) {
        const Moments m = momentsOf(cells(reference));
        EXPECT_EQ(m.count, reference.count) << reference.column << ' ' << reference.group;
        EXPECT_EQ(m.missing, reference.missing) << reference.column << ' ' << reference.group;
    }
}

TEST(SurveyOfPenguins, MomentsAgreeWithR)
{
    for (const Reference& reference : references)
        expectClose(moments(cells(reference)), reference.moments, reference.column + ' ' + reference.group);
}

TEST(SurveyOfPenguins, QuartilesAgreeWithR)
{
    for (const Reference& reference : references)
        expectClose(quartiles(cells(reference)), reference.quartiles, reference.column + ' ' + reference.group);
}

TEST(SurveyOfPenguins, ThirteenQuantilesAgreeWithR)
{
    for (const Reference& reference : references)
        expectClose(thirteenQuantilesOf(cells(reference)), reference.quantiles,
                    reference.column + ' ' + reference.group);
}

TEST(SurveyStatistics, WithoutAnyCellEverythingIsMissing)
{
    const std::vector<double> none = {M, M};
    EXPECT_EQ(momentsOf(none).count, 0);
    EXPECT_EQ(momentsOf(none).missing, 2);
    EXPECT_THAT(moments(none), testing::Each(vecmat::test::SameBits(M)));
    EXPECT_THAT(quartiles(none), testing::Each(vecmat::test::SameBits(M)));
    EXPECT_THAT(thirteenQuantilesOf(none), testing::Each(vecmat::test::SameBits(M)));
}

TEST(SurveyStatistics, OneCellHasNoStandardDeviation)
{
    EXPECT_THAT(moments({M, 5.0}), vecmat::test::SameBits({5.0, 5.0, 5.0, M, M, M}));
    EXPECT_THAT(quartiles({M, 5.0}), testing::Each(5.0));
    EXPECT_THAT(thirteenQuantilesOf({M, 5.0}), testing::Each(5.0));
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
