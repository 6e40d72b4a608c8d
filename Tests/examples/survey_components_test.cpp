// The survey's principal components and biplot.
#include "biplot.h"
#include "completion.h"
#include "components.h"

#include "penguins_reference.h"
#include "printed_section.h"

#include "support/bits.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numeric>
using namespace survey;
using survey::test::expectClose;
using survey::test::penguins;
using survey::test::printed;
using testing::HasSubstr;

namespace {

constexpr double tolerance = 1e-9;

Table table(std::string_view text)
{
    return tableOf(text, "f.csv");
}

const Table& completePenguins()
{
    static const Table complete = completed(subjectOf(penguins(), nullptr), missingCellsOf(penguins())).table;
    return complete;
}

std::vector<double> row(const FlatTable& table, int i)
{
    std::vector<double> cells;
    for (int j = 0; j < table.columns; ++j)
        cells.push_back(table.at(i, j));
    return cells;
}

template <std::size_t columns>
void expectRows(const FlatTable& actual, std::span<const double[columns]> expected, const std::string& what)
{
    ASSERT_EQ(actual.rows, static_cast<int>(expected.size())) << what;
    for (int i = 0; i < actual.rows; ++i)
        expectClose(row(actual, i), expected[static_cast<std::size_t>(i)], what + " " + std::to_string(i), tolerance);
}

} // namespace

TEST(Components, OfThePenguinsAgreeWithPrcomp)
{
    const auto components = componentsOf(completePenguins());
    ASSERT_TRUE(components);
    expectClose(components->variances, survey::test::componentVariances, "variances", tolerance);
    expectRows<4>(components->vectors, survey::test::rotationReferences, "vectors");
    for (std::size_t k = 0; k < 4; ++k)
        EXPECT_NEAR(components->percent[k], survey::test::componentVariances[k] / 4.0 * 100.0, 1e-9);
    EXPECT_EQ(components->telling, 2);
}

TEST(Components, HaveScoresOfTheirVariances)
{
    const auto components = componentsOf(completePenguins());
    ASSERT_TRUE(components);
    for (int k = 0; k < 4; ++k) {
        double sum = 0.0, squares = 0.0;
        for (int i = 0; i < 344; ++i) {
            sum += components->scores.at(i, k);
            squares += components->scores.at(i, k) * components->scores.at(i, k);
        }
        EXPECT_NEAR(sum, 0.0, 1e-9);
        EXPECT_NEAR(squares / 343, components->variances[static_cast<std::size_t>(k)], 1e-9);
    }
}

TEST(Components, LeaveOutWhatHasNoVariance)
{
    const auto components = componentsOf(table("x,y,c,z\n1,2,7,5\n2,4,7,1\n3,6,7,9\n4,8,7,2\n"));
    ASSERT_TRUE(components);
    ASSERT_EQ(components->columns.size(), 3U); // not c
    EXPECT_EQ(components->count(), 2);         // x and y are one
    EXPECT_EQ(components->vectors.columns, 2);
    EXPECT_EQ(components->scores.columns, 2);
    EXPECT_NEAR(components->variances[0] + components->variances[1], 3.0, 1e-12);
}

TEST(Components, ThatTellAreFiveAtMost)
{
    // A unit table with a row of zeros: seven components of one variance, of which six would make 80 %.
    std::string csv = "a,b,c,d,e,f,g,h\n";
    for (int i = 0; i < 9; ++i)
        for (int j = 0; j < 8; ++j) {
            csv += i == j ? '1' : '0';
            csv += j < 7 ? ',' : '\n';
        }
    const auto components = componentsOf(table(csv));
    ASSERT_TRUE(components);
    EXPECT_NEAR(components->percent[4], 1.125 / 8 * 100, 1e-9);
    EXPECT_EQ(components->telling, 5);
}

TEST(Components, TakeTwoColumnsThatVaryAndThreeRows)
{
    EXPECT_FALSE(componentsOf(table("x,c\n1,7\n2,7\n3,7\n")));
    EXPECT_FALSE(componentsOf(table("x,y\n1,5\n2,7\n")));
    EXPECT_TRUE(componentsOf(table("x,y\n1,5\n2,7\n3,1\n")));
}

TEST(Components, OfNumbersTooLargeToBeSquaredAreNone)
{
    EXPECT_FALSE(componentsOf(table("x,y\n1e300,5\n-1e300,7\n3e300,1\n")));
}

TEST(Components, ArePrintedWithTheirVariances)
{
    const Table t = table("x,y\n1,1\n2,3\n3,2\n4,4\n");
    EXPECT_THAT(printed(addComponents, *componentsOf(t)),
                testing::StartsWith("Principal components\n"
                                    "====================\n"
                                    "\n"
                                    "The first of 2 components has 90.0 % of the variance of the numeric columns.\n"
                                    "\n"
                                    "component  variance   share  cumulative\n"
                                    "---------------------------------------\n"
                                    "        1     1.800  90.0 %      90.0 %\n"
                                    "        2     0.200  10.0 %     100.0 %\n"
                                    "\n"
                                    "column  component 1\n"
                                    "-------------------\n"
                                    "x             0.707\n"
                                    "y             0.707\n"));
}

TEST(Biplot, OfThePenguinsHasTheCoordinatesOfPrcomp)
{
    const auto components = componentsOf(completePenguins());
    const Subject subject = subjectOf(penguins(), penguins().named("species"));
    const Biplot biplot = biplotOf(*components, subject.groupsOfColumn(), subject.table);
    expectRows<2>(biplot.columns, survey::test::biplotColumns, "column");
    expectRows<2>(biplot.groups, survey::test::biplotGroups, "group");
    ASSERT_EQ(biplot.rows.rows, 344);
    for (const auto& [number, first, second] : survey::test::biplotRows)
        expectClose(row(biplot.rows, static_cast<int>(number) - 1), std::array{first, second},
                    "row " + std::to_string(number), tolerance);
}

TEST(Biplot, MultipliesToTheStandardisedCells)
{
    // Two components are all that two columns have.
    const Table t = table("x,y\n1,1\n2,3\n3,2\n4,4\n");
    const Biplot biplot = biplotOf(*componentsOf(t), {}, t);
    const double deviation = std::sqrt(5.0 / 3.0);
    for (int i = 0; i < 4; ++i)
        EXPECT_NEAR(biplot.rows.at(i, 0) * biplot.columns.at(0, 0) + biplot.rows.at(i, 1) * biplot.columns.at(0, 1),
                    (i + 1 - 2.5) / deviation, 1e-12);
    EXPECT_EQ(biplot.groups.rows, 0);
}

TEST(Biplot, HasOneAxisWhereThereIsOneComponent)
{
    const Table t = table("x,y\n1,2\n2,4\n3,6\n");
    const Subject subject = subjectOf(t, nullptr);
    EXPECT_THAT(printed(addBiplot, *componentsOf(t), subject),
                testing::StartsWith("Biplot\n"
                                    "======\n"
                                    "\n"
                                    "The columns and the rows along the only component.\n"
                                    "\n"
                                    "kind    point  component 1\n"
                                    "--------------------------\n"
                                    "column  x            1.000\n"
                                    "        y            1.000\n"
                                    "\n"
                                    "row     1           -1.000\n"
                                    "        2            0.000\n"
                                    "        3            1.000\n"));
}

TEST(Biplot, OfManyRowsPrintsTheOneFarthestOut)
{
    const auto components = componentsOf(completePenguins());
    const std::string text = printed(addBiplot, *components, subjectOf(penguins(), penguins().named("species")));
    EXPECT_THAT(text, HasSubstr("row farthest out  " + std::to_string(survey::test::farthestRow) + " "));
    EXPECT_THAT(text, HasSubstr("mean of species   Adelie                  -0.88"));
}
