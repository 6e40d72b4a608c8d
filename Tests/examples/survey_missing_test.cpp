// The survey's missing cells: how many there are, and what they are filled with.
#include "completion.h"
#include "missing_cells.h"

#include "penguins_reference.h"
#include "printed_section.h"

#include "support/bits.h"

#include <gmock/gmock.h>

using namespace survey;
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

Completion completed(const Table& table)
{
    return survey::completed(subjectOf(table, nullptr), missingCellsOf(table));
}

std::string printedCounts(const Table& table)
{
    return printed(addMissingCells, table, missingCellsOf(table));
}

std::string printedCompletion(const Table& table)
{
    return printed(addCompletion, table, completed(table));
}

} // namespace

TEST(MissingCells, OfThePenguinsAreThoseThatRCounts)
{
    const MissingCells missing = missingCellsOf(penguins());
    EXPECT_EQ(missing.byColumn, survey::test::missingByColumn);
    std::map<int, int> incomplete;
    for (std::size_t i = 0; i < missing.byRow.size(); ++i)
        if (missing.byRow[i] > 0)
            incomplete[static_cast<int>(i) + 1] = missing.byRow[i];
    EXPECT_EQ(incomplete, survey::test::missingByRow);
}

TEST(MissingCells, CountByColumnInTheOrderOfTheFile)
{
    const MissingCells missing = missingCellsOf(table("t,x,e,y\n,1,,\nb, ,,\n  ,3,,4\n"));
    EXPECT_THAT(missing.byColumn, ElementsAre(2, 1, 3, 2));
}

TEST(MissingCells, OfAnEmptyColumnDoNotCountInTheRows)
{
    EXPECT_THAT(missingCellsOf(table("t,x,e,y\n,1,,\nb, ,,\n  ,3,,4\n")).byRow, ElementsAre(2, 2, 1));
}

TEST(MissingCells, OfATableWithoutTextColumns)
{
    const MissingCells missing = missingCellsOf(table("x,y\n1,\n2,3\n"));
    EXPECT_THAT(missing.byColumn, ElementsAre(0, 1));
    EXPECT_THAT(missing.byRow, ElementsAre(1, 0));
}

TEST(MissingCells, ArePrintedByColumnAndByRow)
{
    EXPECT_EQ(printedCounts(table("t,x,e\n,1,\nb,,\nc,3,\n")),
              "Missing cells\n"
              "=============\n"
              "\n"
              "2 of 6 cells are missing (33.3 %), in 2 of 3 rows.\n"
              "\n"
              "column  kind     missing    share\n"
              "---------------------------------\n"
              "t       text           1   33.3 %\n"
              "x       numeric        1   33.3 %\n"
              "e       empty          3  100.0 %\n"
              "\n"
              "missing in a row  rows  row numbers\n"
              "-----------------------------------\n"
              "               0     1\n"
              "               1     2  1, 2\n"
              "\n"
              "Rows are numbered from 1, below the heading. The empty columns don't count in the rows.\n"
              "\n");
}

TEST(MissingCells, NoneAreToldInASentence)
{
    EXPECT_EQ(printedCounts(table("x\n1\n")), "Missing cells\n=============\n\nNo cell is missing.\n\n");
}

TEST(MissingCells, OfEmptyColumnsAloneMakeNoRowIncomplete)
{
    EXPECT_EQ(printedCounts(table("x,e\n1,\n")), "Missing cells\n"
                                                 "=============\n"
                                                 "\n"
                                                 "But for the empty columns, no cell is missing.\n"
                                                 "\n"
                                                 "column  kind     missing    share\n"
                                                 "---------------------------------\n"
                                                 "x       numeric        0    0.0 %\n"
                                                 "e       empty          1  100.0 %\n"
                                                 "\n");
}

TEST(MissingCells, OfManyRowsTheFirstAreNumbered)
{
    std::string text = "x,y\n";
    for (int i = 0; i < 20; ++i)
        text += "1,\n";
    EXPECT_THAT(printedCounts(table(text + "1,2\n")), HasSubstr("10, 11, 12 and 8 more\n"));
}

TEST(Completion, FillsThePenguinsAsAPlainSearchByRDoes)
{
    const Completion completion = completed(penguins());
    ASSERT_EQ(completion.filled.size(), std::size(survey::test::filledReferences));
    for (std::size_t k = 0; k < completion.filled.size(); ++k) {
        const auto& [row, columnNumber, content] = survey::test::filledReferences[k];
        const CellPlace place = completion.filled[k];
        ASSERT_EQ(place.row, row - 1);
        ASSERT_EQ(place.column, columnNumber - 1);
        const Column& column = completion.table.columns[static_cast<std::size_t>(columnNumber) - 1];
        if (column.kind == Kind::numeric)
            EXPECT_EQ(column.numbers[static_cast<std::size_t>(row) - 1], std::stod(content)) << "row " << row;
        else
            EXPECT_EQ(column.texts[static_cast<std::size_t>(row) - 1], content) << "row " << row;
    }
}

TEST(Completion, OfThePenguinsLeavesEveryOtherCellAsItWas)
{
    const Table& before = penguins();
    const Completion completion = completed(before);
    EXPECT_THAT(missingCellsOf(completion.table).byRow, testing::Each(0));
    for (std::size_t j = 0; j < before.columns.size(); ++j) {
        const Column& column = before.columns[j];
        const Column& complete = completion.table.columns[j];
        for (std::size_t i = 0; i < column.numbers.size(); ++i)
            EXPECT_TRUE(column.numbers[i] == M || complete.numbers[i] == column.numbers[i]);
        for (std::size_t i = 0; i < column.texts.size() && column.kind == Kind::text; ++i)
            EXPECT_TRUE(column.texts[i].empty() || complete.texts[i] == column.texts[i]);
    }
}

TEST(Completion, OfTextsLooksAtTheNumbers)
{
    const Completion completion = completed(table("x,t\n0,z\n1,a\n5,b\n9,c\n4,\n"));
    EXPECT_EQ(completion.table.columns[1].texts.back(), "b");
}

TEST(Completion, OfACompleteTableChangesNothing)
{
    const Completion completion = completed(table("x,t\n1,a\n2,b\n"));
    EXPECT_TRUE(completion.filled.empty());
    EXPECT_EQ(completion.table.columns[1].texts, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(printedCompletion(table("x,t\n1,a\n2,b\n")), "");
}

TEST(Completion, WithoutACompleteRowTakesMeansAndTheMostFrequentText)
{
    const Completion completion = completed(table("x,t,y\n1,,3\n4,a,\n,a,5\n,b,\n"));
    EXPECT_THAT(completion.table.columns[0].numbers, SameBits({1.0, 4.0, 2.5, 2.5}));
    EXPECT_EQ(completion.table.columns[1].texts, (std::vector<std::string>{"a", "a", "a", "b"}));
    EXPECT_THAT(completion.table.columns[2].numbers, SameBits({3.0, 4.0, 5.0, 4.0}));
}

TEST(Completion, LeavesEmptyColumnsOut)
{
    const Completion completion = completed(table("x,e,y\n1,,3\n9,,8\n2,,4\n2,,\n"));
    EXPECT_THAT(completion.table.columns[2].numbers, SameBits({3.0, 8.0, 4.0, 4.0}));
    EXPECT_EQ(completion.filled.size(), 1U);
    EXPECT_EQ(completion.table.columns[1].texts.back(), "");
}

TEST(Completion, PrintsALineForEachCellAndMeansWithADigitMore)
{
    const std::string text = printedCompletion(table("x,t,y\n1,,3\n4,a,\n,a,5\n,b,\n"));
    EXPECT_THAT(
        text, testing::StartsWith(
                  "Missing cells filled by nearest neighbours\n"
                  "==========================================\n"
                  "\n"
                  "For what needs complete rows, each missing cell takes the value of the most similar complete row.\n"
                  "\n"
                  "row  column  filled with\n"
                  "------------------------\n"
                  "  1  t       a\n"
                  "  2  y       4.0\n"
                  "  3  x       2.5\n"
                  "  4  x       2.5\n"
                  "     y       4.0\n"
                  "\n"
                  "Rows differ"));
}

TEST(Completion, OfManyCellsTheFirstAreListed)
{
    std::string csv = "x,y\n1,1\n";
    for (int i = 0; i < 53; ++i)
        csv += "2,\n";
    const std::string text = printedCompletion(table(csv));
    EXPECT_THAT(text, HasSubstr("\n 51  y       1\n\n"));
    EXPECT_THAT(text, HasSubstr("Listed are the first 50\ncells; there are 3 more.\n"));
}

TEST(Completion, OfManyRowsTakesTheNearestOfSomeThatAreDrawn)
{
    // In each group y is the group's number: a donor of the same x and group is exactly right.
    std::string csv = "g,x,y\n";
    const int rows = mostRowsSearched + 1;
    for (int i = 0; i < rows; ++i) {
        const std::string group = std::to_string(i % 4);
        csv += "g" + group + "," + group + "," + (i % 100 == 7 ? "" : group) + "\n";
    }
    const Table t = table(csv);
    const Subject subject = subjectOf(t, t.named("g"));
    const Completion completion = completed(subject, missingCellsOf(t));
    EXPECT_EQ(completion.donors, donorsDrawn);
    EXPECT_EQ(completion.filled.size(), 100U);
    for (const CellPlace& cell : completion.filled)
        EXPECT_EQ(completion.table.columns[2].numbers[static_cast<std::size_t>(cell.row)], cell.row % 4);
    const std::string text = printed(addCompletion, t, completion);
    EXPECT_THAT(text, HasSubstr("Of more than 10000 rows"));
    EXPECT_THAT(text, HasSubstr("there are 50 more."));
}

TEST(Completion, OfManyRowsWithoutACompleteOneTakesTheMean)
{
    std::string csv = "x,y\n";
    for (int i = 0; i <= mostRowsSearched; ++i)
        csv += i % 2 == 0 ? "1,\n" : ",3\n";
    const Completion completion = completed(table(csv));
    EXPECT_EQ(completion.donors, 0);
    EXPECT_EQ(completion.table.columns[0].numbers[1], 1.0);
    EXPECT_EQ(completion.table.columns[1].numbers[0], 3.0);
}
