// The survey's stratified sample.
#include "sample.h"

#include "penguins_reference.h"
#include "printed_section.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>
using namespace survey;
using survey::test::penguins;
using survey::test::printed;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

Table table(std::string_view text, const std::optional<std::string>& grouping = std::nullopt)
{
    return tableOf(text, "f.csv", {.grouping = grouping});
}

std::vector<int> sampleOfPenguins(int count, int seed)
{
    const Subject subject = subjectOf(penguins(), penguins().named("species"));
    return stratifiedSample(subject.groupsOfColumn(), count, seed);
}

/// The place of a row's species.
std::size_t groupOf(int row)
{
    static const std::vector<Group> groups = groupsBy(*penguins().named("species"));
    for (std::size_t k = 0; k < groups.size(); ++k)
        if (std::binary_search(groups[k].rows.begin(), groups[k].rows.end(), row))
            return k;
    ADD_FAILURE() << "row " << row << " has no group";
    return 0;
}

std::string printedSample(const Table& table, const char* grouping)
{
    return printed(addSample, subjectOf(table, grouping == nullptr ? nullptr : table.named(grouping)), 1);
}

} // namespace

TEST(Shares, AreInProportionAndMakeUpTheTotal)
{
    EXPECT_THAT(shares(12, {152, 68, 124}), ElementsAre(5, 3, 4)); // due are 5.3, 2.4 and 4.3
    EXPECT_THAT(shares(10, {10, 20, 20}), ElementsAre(2, 4, 4));
    EXPECT_THAT(shares(1, {1, 1, 1}), ElementsAre(1, 0, 0));
    EXPECT_THAT(shares(3, {1, 2}), ElementsAre(1, 2));
    EXPECT_THAT(shares(0, {4, 5}), ElementsAre(0, 0));
    EXPECT_THAT(shares(0, {0, 0}), ElementsAre(0, 0));
    EXPECT_THAT(shares(2000000000, {1500000000, 500000000}), ElementsAre(1500000000, 500000000));
}

TEST(Sample, TakesFromEachGroupItsShare)
{
    std::map<std::size_t, int> taken;
    for (const int row : sampleOfPenguins(12, 1))
        ++taken[groupOf(row)];
    EXPECT_THAT(taken, ElementsAre(testing::Pair(0U, 5), testing::Pair(1U, 3), testing::Pair(2U, 4)));
}

TEST(Sample, TakesEachRowOnce)
{
    const std::vector<int> sample = sampleOfPenguins(100, 7);
    ASSERT_EQ(sample.size(), 100U);
    std::set<int> rows;
    for (const int row : sample)
        EXPECT_TRUE(rows.insert(row).second) << "row " << row << " again";
}

TEST(Sample, GoesGroupByGroupInTheOrderOfTheRows)
{
    const std::vector<int> sample = sampleOfPenguins(100, 7);
    for (std::size_t i = 1; i < sample.size(); ++i)
        EXPECT_LT(std::pair(groupOf(sample[i - 1]), sample[i - 1]), std::pair(groupOf(sample[i]), sample[i]));
}

TEST(Sample, IsDecidedByTheSeed)
{
    EXPECT_EQ(sampleOfPenguins(12, 1), sampleOfPenguins(12, 1));
    EXPECT_NE(sampleOfPenguins(12, 1), sampleOfPenguins(12, 2));
}

TEST(Sample, OfEverythingIsEveryRow)
{
    const Table t = table("g,x\nb,1\na,2\nb,3\n,4\n");
    const Subject subject = subjectOf(t, t.named("g"));
    EXPECT_THAT(stratifiedSample(subject.groupsOfColumn(), 4, 1), ElementsAre(0, 2, 1, 3));
}

TEST(Sample, PrintsADashForAMissingCell)
{
    std::string csv = "g,x,e\n";
    for (int i = 0; i < 13; ++i)
        csv += "a,1,\n";
    EXPECT_THAT(printedSample(table(csv), "g"), testing::ContainsRegex("\n\nrow  g  x  e\n-+\n +[0-9]+  a  1  -\n"));
    EXPECT_THAT(printedSample(table(csv), "g"),
                testing::StartsWith("Stratified sample\n"
                                    "=================\n"
                                    "\n"
                                    "12 rows drawn at random, from each group of g in proportion to its size.\n"));
}

TEST(Sample, PrintsTheNumbersOfAColumnWithAsManyDecimals)
{
    std::string csv = "g,x\na,1.25\n";
    for (int i = 0; i < 12; ++i)
        csv += "a,7\n";
    EXPECT_THAT(printedSample(table(csv), "g"), HasSubstr("  a  7.00\n"));
}

TEST(Sample, NeedsAGroupingColumnAndMoreRowsThanItTakes)
{
    EXPECT_EQ(printedSample(penguins(), nullptr), "");
    EXPECT_EQ(printedSample(table("g,x\na,1\nb,2\n"), "g"), "");
}
