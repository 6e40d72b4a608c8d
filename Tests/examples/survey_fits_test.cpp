// The survey's regression, letter groups and sample.
#include "completion.h"
#include "letter_groups.h"
#include "regression.h"

#include "penguins_reference.h"
#include "printed_section.h"

#include "support/bits.h"

#include <gmock/gmock.h>

using namespace survey;
using survey::test::expectClose;
using survey::test::penguins;
using survey::test::printed;
using testing::ElementsAre;
using testing::HasSubstr;
using vecmat::test::M;
using vecmat::test::SameBits;

namespace {

constexpr double tolerance = 1e-9;

Table table(std::string_view text, const std::optional<std::string>& grouping = std::nullopt)
{
    return tableOf(parsedCsv(text, "f.csv"), "f.csv", grouping);
}

std::vector<std::string> lettersOf(const std::vector<std::vector<double>>& groups)
{
    std::vector<std::string> letters;
    for (const LetterGroup& group : letterGroupsOf(groups))
        letters.push_back(group.letters);
    return letters;
}

std::string printedLetters(const Table& table, const char* grouping)
{
    return printed(addLetterGroups, subjectOf(table, grouping == nullptr ? nullptr : table.named(grouping)));
}

bool shareALetter(const std::string& a, const std::string& b)
{
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != ' ' && a[i] == b[i])
            return true;
    return false;
}

} // namespace

TEST(Regression, OfThePenguinsAgreesWithLm)
{
    const Table complete = completed(penguins(), missingCellsOf(penguins())).table;
    const auto regression = regressionOf(complete);
    ASSERT_TRUE(regression);
    EXPECT_EQ(regression->response->name, "body_mass_g");
    ASSERT_EQ(regression->coefficients.size(), 4U);
    for (std::size_t k = 0; k < 4; ++k) {
        const auto& [value, standardError] = regression->coefficients[(k + 3) % 4];
        expectClose(std::array{value, standardError}, survey::test::regressionReferences[k],
                    "coefficient " + std::to_string(k), tolerance);
    }
    const std::array<double, 3> quality = {regression->determination, regression->residualDeviation,
                                           static_cast<double>(regression->freedom)};
    expectClose(quality, survey::test::regressionQuality, "quality", tolerance);
}

TEST(Regression, LeavesOutWhatOtherColumnsDetermine)
{
    // By lm(y ~ x): the column twice and the constant change nothing, not even the errors.
    const Table t = table("x,twice,c,y\n1,2,7,1\n2,4,7,3\n3,6,7,2\n4,8,7,5\n");
    const auto regression = regressionOf(t);
    ASSERT_TRUE(regression);
    ASSERT_EQ(regression->terms.size(), 1U);
    EXPECT_EQ(regression->terms[0]->name, "x");
    ASSERT_EQ(regression->leftOut.size(), 1U);
    EXPECT_EQ(regression->leftOut[0]->name, "twice");
    EXPECT_EQ(regression->freedom, 2);
    expectClose(std::array{regression->coefficients[0].value, regression->coefficients[1].value}, std::array{1.1, 0.0},
                "coefficients", tolerance);
    EXPECT_NEAR(regression->coefficients[0].standardError, 0.51961524227066314, tolerance);
    EXPECT_NEAR(regression->coefficients[1].standardError, 1.4230249470757708, tolerance);
}

TEST(Regression, TakesAResponseThatVariesAndAnotherColumn)
{
    EXPECT_FALSE(regressionOf(table("x\n1\n2\n3\n")));
    EXPECT_FALSE(regressionOf(table("x,c\n1,7\n2,7\n3,7\n")));
    EXPECT_FALSE(regressionOf(table("c,x\n7,1\n7,2\n7,3\n")));
}

TEST(Regression, TakesMoreRowsThanCoefficients)
{
    EXPECT_FALSE(regressionOf(table("x,y\n1,1\n2,4\n")));
    EXPECT_FALSE(regressionOf(table("a,b,c,y\n1,5,2,1\n2,1,4,2\n3,2,3,9\n")));
    EXPECT_TRUE(regressionOf(table("x,y\n1,1\n2,4\n3,5\n")));
}

TEST(Regression, OfNumbersTooLargeToBeSquaredIsNone)
{
    EXPECT_FALSE(regressionOf(table("x,y\n1e300,5\n-1e300,7\n3e300,1\n4,4\n")));
}

TEST(Regression, IsPrintedWithWhatWasLeftOut)
{
    const Table t = table("x,twice,y\n1,2,1\n2,4,3\n3,6,2\n4,8,5\n");
    const std::string text = printed(addRegression, *regressionOf(t));
    EXPECT_THAT(text,
                testing::StartsWith(
                    "Regression of y\n"
                    "===============\n"
                    "\n"
                    "By least squares on the other numeric columns, their gaps filled: these explain 69.1 % of its\n"
                    "variance.\n"
                    "\n"
                    "term         coefficient  standard error     t\n"
                    "----------------------------------------------\n"
                    "x                 1.1000          0.5196  2.12\n"
                    "(intercept)       0.000           1.423   0.00\n"
                    "\n"
                    "R squared  residual std dev  degrees of freedom\n"
                    "-----------------------------------------------\n"
                    "   0.6914               1.2                   2\n"));
    EXPECT_THAT(text, HasSubstr("determine them: twice.\n"));
}

TEST(Regression, WithoutErrorsHasNoT)
{
    const Table t = table("x,y\n1,0\n2,0\n3,0\n4,1\n");
    Regression regression = *regressionOf(t);
    regression.coefficients[0] = {2.0, 0.0};
    EXPECT_THAT(printed(addRegression, regression), testing::ContainsRegex("\nx +2.0000 +0.0000 +-\n"));
}

TEST(LetterGroups, OfTheSpeciesShareLettersWhereRFindsThemNotApart)
{
    const Subject subject = subjectOf(penguins(), penguins().named("species"));
    const std::vector<const Column*> columns = penguins().ofKind(Kind::numeric);
    for (std::size_t j = 0; j < columns.size(); ++j) {
        std::vector<std::vector<double>> cells;
        for (const Group& group : subject.groupsOfColumn())
            cells.push_back(cellsOf(*columns[j], group));
        const std::vector<std::string> letters = lettersOf(cells);
        ASSERT_EQ(letters.size(), 3U);
        EXPECT_EQ(shareALetter(letters[0], letters[1]), !survey::test::apartReferences[j][0]) << columns[j]->name;
        EXPECT_EQ(shareALetter(letters[0], letters[2]), !survey::test::apartReferences[j][1]) << columns[j]->name;
        EXPECT_EQ(shareALetter(letters[1], letters[2]), !survey::test::apartReferences[j][2]) << columns[j]->name;
    }
}

TEST(LetterGroups, OverlapWhereOnlyTheOuterMeansLieApart)
{
    // Standard error of each difference 1: the variance within is 1, of two cells each.
    const double s = 0.70710678118654752;
    EXPECT_THAT(lettersOf({{3.0 - s, 3.0 + s}, {0.0 - s, 0.0 + s}, {1.5 - s, 1.5 + s}}), ElementsAre(" B", "A ", "AB"));
}

TEST(LetterGroups, OfGroupsWithoutCellsAreEmpty)
{
    const std::vector<LetterGroup> groups = letterGroupsOf({{5.0, 5.1}, {M, M}, {1.0, M}});
    EXPECT_EQ(groups[0].letters, " B");
    EXPECT_EQ(groups[1].letters, "");
    EXPECT_THAT(groups[1].mean, SameBits(M));
    EXPECT_EQ(groups[2].letters, "A ");
    EXPECT_THAT(groups[2].mean, SameBits(1.0));
}

TEST(LetterGroups, WithoutVarianceWithinTellWhateverDiffers)
{
    EXPECT_THAT(lettersOf({{2.0, 2.0}, {1.0, 1.0}, {2.0, 2.0}}), ElementsAre(" B", "A ", " B"));
}

TEST(LetterGroups, TakeTwoMeansAndAVariance)
{
    EXPECT_THAT(lettersOf({{1.0, 2.0}}), ElementsAre(""));
    EXPECT_THAT(lettersOf({{1.0, 2.0}, {M}}), ElementsAre("", ""));
    EXPECT_THAT(lettersOf({{1.0}, {2.0}}), ElementsAre("", ""));
}

TEST(LetterGroups, ArePrintedForEachColumn)
{
    EXPECT_THAT(printedLetters(table("g,x,y\na,1,1\nb,9,\na,2,2\nb,8,\n"), "g"),
                testing::StartsWith("Letter groups of the means\n"
                                    "==========================\n"
                                    "\n"
                                    "Means of a column that share a letter don't lie apart; A is the lowest.\n"
                                    "\n"
                                    "column  g  mean  letters\n"
                                    "------------------------\n"
                                    "x       a   1.5  A\n"
                                    "        b   8.5   B\n"
                                    "\n"
                                    "y       a   1.5  -\n"
                                    "        b   -    -\n"));
}

TEST(LetterGroups, OfOneGroupOrManyAreNotPrinted)
{
    std::string many = "g,x\n";
    for (int i = 0; i < 51; ++i)
        many += "n" + std::to_string(i) + ",1\n";
    EXPECT_EQ(printedLetters(table(many), "g"), "");
    EXPECT_EQ(printedLetters(table("g,x\na,1\na,2\n"), "g"), "");
    EXPECT_EQ(printedLetters(table("g,x\na,1\nb,2\n"), nullptr), "");
}
