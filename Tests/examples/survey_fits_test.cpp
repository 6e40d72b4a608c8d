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
    return tableOf(text, "f.csv", {.grouping = grouping});
}

std::vector<Moments> momentsOfEach(const std::vector<std::vector<double>>& groups)
{
    std::vector<Moments> moments;
    for (const std::vector<double>& cells : groups)
        moments.push_back(momentsOf(cells));
    return moments;
}

std::vector<std::string> lettersOf(const std::vector<Moments>& groups, Correction correction = Correction::holm)
{
    std::vector<std::string> letters;
    for (const LetterGroup& group : letterGroupsOf(groups, correction))
        letters.push_back(group.letters);
    return letters;
}

std::vector<std::string> lettersOfCells(const std::vector<std::vector<double>>& groups,
                                        Correction correction = Correction::holm)
{
    return lettersOf(momentsOfEach(groups), correction);
}

std::string printedLetters(const Table& table, const char* grouping)
{
    return printed(addLetterGroups, subjectOf(table, grouping == nullptr ? nullptr : table.named(grouping)),
                   Correction::holm);
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
    const Table complete = completed(subjectOf(penguins(), nullptr), missingCellsOf(penguins())).table;
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
                    "term         coefficient  standard error  95 % from      to     t       p\n"
                    "-------------------------------------------------------------------------\n"
                    "x                 1.1000          0.5196    -1.1357  3.3357  2.12  0.1685\n"
                    "(intercept)       0.000           1.423     -6.123   6.123   0.00  1.0000\n"
                    "\n"
                    "R squared  residual std dev  degrees of freedom     F       p\n"
                    "-------------------------------------------------------------\n"
                    "   0.6914               1.2                   2  4.48  0.1685\n"));
    EXPECT_THAT(text, HasSubstr("determine them: twice.\n"));
}

TEST(Regression, WithoutErrorsHasNoT)
{
    const Table t = table("x,y\n1,0\n2,0\n3,0\n4,1\n");
    Regression regression = *regressionOf(t);
    regression.coefficients[0] = {2.0, 0.0};
    EXPECT_THAT(printed(addRegression, regression), testing::ContainsRegex("\nx +2.0000 +0.0000 +- +- +- +-\n"));
}

TEST(Regression, HasTheIntervalsAndPValuesOfConfint)
{
    const Table complete = completed(subjectOf(penguins(), nullptr), missingCellsOf(penguins())).table;
    const auto regression = regressionOf(complete);
    const double reach = intervalReach(regression->freedom);
    for (std::size_t k = 0; k < 4; ++k) {
        const auto& [value, error] = regression->coefficients[(k + 3) % 4];
        const auto& [p, lower, upper] = survey::test::regressionIntervals[k];
        EXPECT_NEAR(twoSidedP(value / error, regression->freedom), p, 1e-9 * p) << "coefficient " << k;
        expectClose(std::array{value - reach * error, value + reach * error}, std::array{lower, upper},
                    "interval " + std::to_string(k), tolerance);
    }
    const double p = upperP(regression->f, 3.0, regression->freedom);
    EXPECT_NEAR(regression->f, survey::test::regressionF[0], 1e-9 * regression->f);
    EXPECT_NEAR(p, survey::test::regressionF[1], 1e-7 * p);
}

TEST(Regression, WithWeightsAgreesWithLm)
{
    Table complete = completed(subjectOf(penguins(), nullptr), missingCellsOf(penguins())).table;
    double sum = 0.0;
    for (int i = 0; i < complete.rows; ++i) {
        complete.weights.push_back(1.0 + (i + 1) % 3);
        sum += complete.weights.back();
    }
    for (double& weight : complete.weights)
        weight *= complete.rows / sum;
    const auto regression = regressionOf(complete);
    ASSERT_TRUE(regression);
    for (std::size_t k = 0; k < 4; ++k) {
        const auto& [value, error] = regression->coefficients[(k + 3) % 4];
        const double reach = intervalReach(regression->freedom) * error;
        const double p = twoSidedP(value / error, regression->freedom);
        const auto& expected = survey::test::weightedRegression[k];
        expectClose(std::array{value, error, value - reach, value + reach},
                    std::array{expected[0], expected[1], expected[3], expected[4]}, "coefficient " + std::to_string(k),
                    tolerance);
        EXPECT_NEAR(p, expected[2], 1e-8 * expected[2]);
    }
    expectClose(std::array{regression->determination, regression->residualDeviation}, survey::test::weightedQuality,
                "quality", tolerance);
}

TEST(Comparisons, OfTheSpeciesAgreeWithR)
{
    const Subject subject = subjectOf(penguins(), penguins().named("species"));
    const std::vector<const Column*> columns = penguins().ofKind(Kind::numeric);
    const std::array corrections = {Correction::none, Correction::bonferroni, Correction::holm, Correction::fdr};
    for (std::size_t j = 0; j < columns.size(); ++j)
        for (std::size_t c = 0; c < corrections.size(); ++c) {
            const auto comparisons = comparisonsOf(momentsByGroup(subject, *columns[j]), corrections[c]);
            ASSERT_TRUE(comparisons);
            const auto& [f, pOfF] = survey::test::varianceReferences[j];
            EXPECT_NEAR(comparisons->f, f, 1e-9 * f);
            EXPECT_NEAR(comparisons->p, pOfF, 1e-7 * pOfF);
            ASSERT_EQ(comparisons->pairs.size(), 3U);
            const double reach = intervalReach(comparisons->freedom);
            for (std::size_t i = 0; i < 3; ++i) {
                const Comparison& pair = comparisons->pairs[i];
                const auto& expected = survey::test::comparisonReferences[3 * j + i];
                const double half = reach * pair.standardError;
                expectClose(
                    std::array{pair.difference, pair.standardError, pair.difference - half, pair.difference + half},
                    std::span(expected).first<4>(), columns[j]->name, tolerance);
                EXPECT_NEAR(pair.p, expected[4], 1e-7 * expected[4]);
                EXPECT_NEAR(pair.correctedP, expected[4 + c], 1e-7 * expected[4 + c]) << nameOf(corrections[c]);
            }
        }
}

TEST(Comparisons, AreCorrectedAsByPAdjust)
{
    const std::vector<double> p = {0.01, 0.04, 0.03, 0.005, 0.2};
    const std::array corrections = {Correction::bonferroni, Correction::holm, Correction::fdr};
    for (std::size_t c = 0; c < corrections.size(); ++c)
        expectClose(corrected(p, corrections[c]), survey::test::correctedReferences[c], nameOf(corrections[c]));
    EXPECT_EQ(corrected(p, Correction::none), p);
}

TEST(Comparisons, OfWeightedGroupsAreThoseOfTheRegressionOnThem)
{
    // summary(lm(x ~ g, weights = w)) with x = 1 2 4 6 9, g = a a b b b, w = 0.5 1 1 1.5 1.
    const std::vector<Moments> groups = {momentsOf({1.0, 2.0}, {0.5, 1.0}),
                                         momentsOf({4.0, 6.0, 9.0}, {1.0, 1.5, 1.0})};
    const auto comparisons = comparisonsOf(groups, Correction::none);
    ASSERT_TRUE(comparisons);
    expectClose(
        std::array{comparisons->pairs[0].difference, comparisons->pairs[0].standardError, comparisons->pairs[0].p},
        std::array{4.6190476190476186, 2.0352152920412201, 0.10796867006843851}, "difference", 1e-9);
}

TEST(LetterGroups, OfTheSpeciesShareLettersWhereRFindsThemNotApart)
{
    const Subject subject = subjectOf(penguins(), penguins().named("species"));
    const std::vector<const Column*> columns = penguins().ofKind(Kind::numeric);
    for (std::size_t j = 0; j < columns.size(); ++j) {
        const std::vector<std::string> letters = lettersOf(momentsByGroup(subject, *columns[j]));
        ASSERT_EQ(letters.size(), 3U);
        const auto isApart = [&](std::size_t pair) {
            return survey::test::comparisonReferences[3 * j + pair][6] < 0.05; // by Holm
        };
        EXPECT_EQ(shareALetter(letters[0], letters[1]), !isApart(0)) << columns[j]->name;
        EXPECT_EQ(shareALetter(letters[0], letters[2]), !isApart(1)) << columns[j]->name;
        EXPECT_EQ(shareALetter(letters[1], letters[2]), !isApart(2)) << columns[j]->name;
    }
}

TEST(LetterGroups, OverlapWhereOnlyTheOuterMeansLieApart)
{
    // Standard error of each difference 1, with 3 degrees of freedom: p is 0.022, 0.068 and 0.21.
    const double s = 0.70710678118654752;
    const std::vector<std::vector<double>> cells = {{4.4 - s, 4.4 + s}, {0.0 - s, 0.0 + s}, {2.8 - s, 2.8 + s}};
    EXPECT_THAT(lettersOfCells(cells, Correction::none), ElementsAre(" B", "A ", "AB"));
    EXPECT_THAT(lettersOfCells(cells, Correction::bonferroni), ElementsAre("A", "A", "A"));
}

TEST(LetterGroups, OfGroupsWithoutCellsAreEmpty)
{
    const std::vector<LetterGroup> groups =
        letterGroupsOf(momentsOfEach({{5.0, 5.1}, {M, M}, {1.0, M}}), Correction::holm);
    EXPECT_EQ(groups[0].letters, " B");
    EXPECT_EQ(groups[1].letters, "");
    EXPECT_THAT(groups[1].mean, SameBits(M));
    EXPECT_EQ(groups[2].letters, "A ");
    EXPECT_THAT(groups[2].mean, SameBits(1.0));
}

TEST(LetterGroups, WithoutVarianceWithinTellWhateverDiffers)
{
    EXPECT_THAT(lettersOfCells({{2.0, 2.0}, {1.0, 1.0}, {2.0, 2.0}}), ElementsAre(" B", "A ", " B"));
}

TEST(LetterGroups, TakeTwoMeansAndAVariance)
{
    EXPECT_THAT(lettersOfCells({{1.0, 2.0}}), ElementsAre(""));
    EXPECT_THAT(lettersOfCells({{1.0, 2.0}, {M}}), ElementsAre("", ""));
    EXPECT_THAT(lettersOfCells({{1.0}, {2.0}}), ElementsAre("", ""));
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
