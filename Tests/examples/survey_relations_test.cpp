// What the survey tells about columns beside each other: categories, means and correlations.
#include "categories.h"
#include "correlations.h"
#include "group_means.h"
#include "read_table.h"

#include "penguins_reference.h"
#include "printed_section.h"

#include "support/bits.h"

#include <gmock/gmock.h>

using namespace survey;
using survey::test::categoryReferences;
using survey::test::expectClose;
using survey::test::penguins;
using survey::test::printed;
using testing::ElementsAre;
using testing::HasSubstr;
using vecmat::test::M;
using vecmat::test::SameBits;

namespace {

Table table(std::string_view text)
{
    return tableOf(text, "f.csv");
}

Column numeric(std::vector<double> numbers)
{
    return {"x", Kind::numeric, {}, std::move(numbers), 0};
}

Column text(std::vector<std::string> texts)
{
    return {"t", Kind::text, std::move(texts), {}, 0};
}

} // namespace

TEST(Categories, OfThePenguinsAreCountedAsByR)
{
    std::vector<std::string> expected;
    for (const auto& reference : categoryReferences)
        expected.push_back(reference.column + ' ' + reference.category + ' ' + std::to_string(reference.count));
    std::vector<std::string> actual;
    for (const Column* column : penguins().ofKind(Kind::text)) {
        const Categories categories = categoriesOf(*column);
        for (std::size_t i = 0; i < categories.names.size(); ++i)
            actual.push_back(column->name + ' ' + categories.names[i] + ' ' + std::to_string(categories.counts[i]));
        if (categories.missing > 0)
            actual.push_back(column->name + "  " + std::to_string(categories.missing));
    }
    EXPECT_EQ(actual, expected);
}

TEST(Categories, HaveCodesInTheOrderOfAppearance)
{
    const Categories categories = categoriesOf(text({"b", "", "a", "b"}));
    EXPECT_THAT(categories.names, ElementsAre("b", "a"));
    EXPECT_THAT(categories.counts, ElementsAre(2, 1));
    EXPECT_EQ(categories.missing, 1);
    EXPECT_THAT(categories.codes, SameBits({1.0, M, 2.0, 1.0}));
}

TEST(Categories, OfAColumnWithoutTextsAreNone)
{
    const Categories categories = categoriesOf(text({"", ""}));
    EXPECT_THAT(categories.names, testing::IsEmpty());
    EXPECT_EQ(categories.missing, 2);
    EXPECT_THAT(categories.codes, SameBits({M, M}));
}

TEST(Categories, KeepAnyText)
{
    const std::vector<std::string> texts = {
        "\xC3\xA9t\xC3\xA9", "\xF0\x9F\x90\xA7", "\xE9t\xE9",          "a\xC3",
        "\xED\xA0\x80",      "\xC0\x80",         std::string(1, '\0'), "\xEF\xBF\xBD"};
    EXPECT_EQ(categoriesOf(text(texts)).names, texts);
}

TEST(Categories, ArePrintedWithTheirShare)
{
    EXPECT_EQ(printed(addCategories, table("t,x\nb,1\n,2\na,3\nb,4\n")),
              "Categories\n"
              "==========\n"
              "\n"
              "The texts of each text column, in the order in which they first appear.\n"
              "\n"
              "column  category  rows   share\n"
              "------------------------------\n"
              "t       b            2  50.0 %\n"
              "        a            1  25.0 %\n"
              "        (none)       1  25.0 %\n"
              "\n");
}

TEST(Categories, ThatAreTooManyAreCountedOnly)
{
    std::string csv = "t,x\n";
    for (int i = 0; i < 51; ++i)
        csv += "n" + std::to_string(i) + ",1\n";
    EXPECT_THAT(printed(addCategories, table(csv)), HasSubstr("t       51 categories    51  100.0 %\n"));
}

TEST(Categories, OfATableWithoutTextColumnsAreNotPrinted)
{
    EXPECT_EQ(printed(addCategories, table("x\n1\n")), "");
}

TEST(GroupMeans, OfThePenguinsAgreeWithR)
{
    const FlatTable numbers = numbersOf(penguins().ofKind(Kind::numeric), penguins().rows);
    std::size_t next = 0;
    for (const Column* column : penguins().ofKind(Kind::text)) {
        const FlatTable means = meansByCategory(numbers, categoriesOf(*column));
        for (int i = 0; i < means.rows; ++i) {
            ASSERT_LT(next, std::size(categoryReferences));
            const auto& reference = categoryReferences[next++];
            EXPECT_EQ(reference.column, column->name);
            const std::array<double, 4> actual = {means.at(i, 0), means.at(i, 1), means.at(i, 2), means.at(i, 3)};
            expectClose(actual, reference.means, reference.column + ' ' + reference.category);
        }
    }
    EXPECT_EQ(next, std::size(categoryReferences));
}

TEST(GroupMeans, OfRowsWithoutACategoryComeLastAndMayBeMissing)
{
    EXPECT_EQ(printed(addGroupMeans, table("t,x,y\n,1,10\nb,,20\na,4,\n,2,40\na,5,60\n")),
              "Means by category\n"
              "=================\n"
              "\n"
              "The mean of each numeric column over the rows of each category, of the cells that aren't missing.\n"
              "\n"
              "column  category    x     y\n"
              "---------------------------\n"
              "t       b         -    20.0\n"
              "        a         4.5  60.0\n"
              "        (none)    1.5  25.0\n"
              "\n");
}

TEST(GroupMeans, OfTooManyCategoriesOrOfNoneAreNotPrinted)
{
    std::string csv = "t,x\n";
    for (int i = 0; i < 51; ++i)
        csv += "n" + std::to_string(i) + ",1\n";
    EXPECT_EQ(printed(addGroupMeans, table(csv)), "");
    EXPECT_EQ(printed(addGroupMeans, table("x\n1\n")), "");
}

TEST(Correlations, OfThePenguinsAgreeWithR)
{
    const std::vector<const Column*> columns = penguins().ofKind(Kind::numeric);
    for (std::size_t i = 0; i < 4; ++i)
        for (std::size_t j = 0; j < 4; ++j) {
            const Correlation correlation = correlationOf(*columns[i], *columns[j]);
            expectClose({&correlation.coefficient, 1}, {&survey::test::correlationReferences[i][j], 1},
                        columns[i]->name + ", " + columns[j]->name);
            EXPECT_EQ(correlation.count, 342);
        }
}

TEST(Correlations, TakeTheRowsOfThePairAlone)
{
    // Over rows 1 to 3; with the variances of whole columns it would be another number.
    const Correlation correlation =
        correlationOf(numeric({1.0, 2.0, 3.0, 100.0, M}), numeric({2.0, 4.0, 6.0, M, -50.0}));
    EXPECT_NEAR(correlation.coefficient, 1.0, 1e-15);
    EXPECT_EQ(correlation.count, 3);
}

TEST(Correlations, TakeColumnsThatVary)
{
    EXPECT_THAT(correlationOf(numeric({1.0, 1.0, 1.0}), numeric({1.0, 2.0, 3.0})).coefficient, SameBits(M));
    EXPECT_THAT(correlationOf(numeric({1.0, 1.0, 2.0}), numeric({1.0, 2.0, M})).coefficient, SameBits(M));
    EXPECT_THAT(correlationOf(numeric({1.0, M}), numeric({2.0, 3.0})).coefficient, SameBits(M));
    const Correlation none = correlationOf(numeric({1.0, M}), numeric({M, 3.0}));
    EXPECT_THAT(none.coefficient, SameBits(M));
    EXPECT_EQ(none.count, 0);
}

TEST(Correlations, ArePrintedBelowTheDiagonalAndCountsAbove)
{
    EXPECT_THAT(printed(addCorrelations, table("a,b,c\n1,2,7\n2,4,7\n3,,7\n4,8,7\n")),
                testing::StartsWith(
                    "Correlations\n"
                    "============\n"
                    "\n"
                    "How the numeric columns go together. The strongest correlation, 1.000, is that of a and b.\n"
                    "\n"
                    "column      a      b  c\n"
                    "-----------------------\n"
                    "a       1.000  3      4\n"
                    "b       1.000  1.000  3\n"
                    "c       -      -      -\n"
                    "\n"
                    "Pearson's"));
}

TEST(Correlations, OfOneColumnAreNotPrinted)
{
    EXPECT_EQ(printed(addCorrelations, table("x,t\n1,a\n")), "");
}
