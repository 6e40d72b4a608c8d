// What the survey makes of a file: records, columns, groups, and the place that an error names.
#include "csv.h"
#include "file_text.h"
#include "groups.h"
#include "input_error.h"
#include "read_table.h"

#include "support/bits.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using namespace survey;
using testing::ElementsAre;
using vecmat::test::M;

namespace {

using Texts = std::vector<std::vector<std::string>>;

Texts fields(std::string_view text, char delimiter = ',')
{
    Texts all;
    const std::string file = "f.csv";
    for (CsvReader reader(text, file, delimiter); !reader.atEnd();) {
        all.emplace_back();
        for (const CsvField& field : reader.record())
            all.back().emplace_back(field.text);
    }
    return all;
}

Table table(std::string_view text, const std::optional<std::string>& grouping = std::nullopt)
{
    return tableOf(text, "f.csv", {.grouping = grouping});
}

std::string errorOf(std::string_view text, const std::optional<std::string>& grouping = std::nullopt)
{
    try {
        table(text, grouping);
    } catch (const InputError& error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(Csv, LinesEndWithLfCrLfOrCr)
{
    const Texts expected = {{"a", "b"}, {"1", "2"}};
    EXPECT_EQ(fields("a,b\n1,2\n"), expected);
    EXPECT_EQ(fields("a,b\r\n1,2\r\n"), expected);
    EXPECT_EQ(fields("a,b\r1,2\r"), expected);
}

TEST(Csv, LastLineNeedsNoEnd)
{
    EXPECT_EQ(fields("a,b\n1,2"), (Texts{{"a", "b"}, {"1", "2"}}));
    EXPECT_EQ(fields("a,b\n1,"), (Texts{{"a", "b"}, {"1", ""}}));
    EXPECT_EQ(fields("a\n\"1\""), (Texts{{"a"}, {"1"}}));
}

TEST(Csv, EmptyTextHasNoRecords)
{
    EXPECT_EQ(fields(""), Texts());
    EXPECT_EQ(fields("\n\n"), (Texts{{""}, {""}}));
}

TEST(Csv, OtherDelimitersLeaveCommasInTheirFields)
{
    EXPECT_EQ(fields("a;1,5\n\"x;y\";2", ';'), (Texts{{"a", "1,5"}, {"x;y", "2"}}));
    EXPECT_EQ(fields("a\tb", '\t'), (Texts{{"a", "b"}}));
}

TEST(Csv, QuotedFieldsHoldCommasQuotesAndLineBreaks)
{
    EXPECT_EQ(fields("\"a,b\",\"say \"\"yes\"\"\",\"\"\n"), (Texts{{"a,b", "say \"yes\"", ""}}));
    EXPECT_EQ(fields("\"\"\"\",\"\"\"x\""), (Texts{{"\"", "\"x"}}));
    EXPECT_EQ(fields("\"one\r\ntwo\nthree\",4"), (Texts{{"one\r\ntwo\nthree", "4"}}));
}

TEST(Csv, QuoteInsideAnotherFieldIsOrdinary)
{
    EXPECT_EQ(fields("6'2\",b\"c\""), (Texts{{"6'2\"", "b\"c\""}}));
}

TEST(Csv, FieldsKnowTheirLines)
{
    const std::string file = "f.csv";
    CsvReader reader("a,b\n\"1\n\n2\",3\r\n4,5", file, ',');
    reader.record();
    const CsvRecord second = reader.record();
    EXPECT_EQ(second[0].line, 2);
    EXPECT_EQ(second[1].line, 4);
    EXPECT_EQ(reader.record()[0].line, 5);
}

TEST(Csv, QuoteThatIsNeverClosedIsAnErrorWhereItOpens)
{
    EXPECT_EQ(errorOf("a,b\n1,2\n3,\"4\n5,6\n"), "f.csv, line 3, column 2: the quote that opens here is never closed");
    EXPECT_EQ(errorOf("a,\""), "f.csv, line 1, column 2: the quote that opens here is never closed");
}

TEST(Csv, TextBehindAClosingQuoteIsAnError)
{
    EXPECT_EQ(errorOf("a,b\n\"1\"x,2\n"), "f.csv, line 2, column 1: more text follows the closing quote of '1'");
}

TEST(SurveyTable, ColumnsAreNumericTextOrEmpty)
{
    const Table t = table("n,t,e,mixed\n1,x,,3\n,y,,b\n-2.5e1,,\" \",\n");
    EXPECT_EQ(t.rows, 3);
    EXPECT_EQ(t.named("n")->kind, Kind::numeric);
    EXPECT_EQ(t.named("t")->kind, Kind::text);
    EXPECT_EQ(t.named("e")->kind, Kind::empty);
    EXPECT_EQ(t.named("mixed")->kind, Kind::text); // half of the cells are no numbers
    EXPECT_THAT(t.named("n")->numbers, vecmat::test::SameBits({1.0, M, -25.0}));
    EXPECT_THAT(t.named("t")->texts, ElementsAre("x", "y", ""));
    EXPECT_EQ(t.named("nothing"), nullptr);
}

TEST(SurveyTable, NumbersMayHaveBlanksAndSigns)
{
    const Table t = table("n\n 1 \n+2\n-.5\n\t3.\n1E3\n");
    EXPECT_THAT(t.named("n")->numbers, vecmat::test::SameBits({1.0, 2.0, -0.5, 3.0, 1000.0}));
}

TEST(SurveyTable, OtherSpellingsAreNoNumbers)
{
    for (const char* cell : {"0x10", "1 2", "1,5", "--1", "+-1", "+", "n/a", "1e", "."})
        EXPECT_THAT(errorOf(std::string("n,t\n1,\n2,\n\"") + cell + "\",\n"),
                    testing::StartsWith(std::string("f.csv, line 4, column 1 (n): '") + cell + "' is not a number"));
}

TEST(SurveyTable, ColumnsOfNoFiniteNumbersAreNoTexts)
{
    for (const char* cell : {"nan", "-inf", "1e999"})
        EXPECT_EQ(errorOf(std::string("n,x\n") + cell + ",1\n" + cell + ",2\n"),
                  std::string("f.csv, line 2, column 1 (n): '") + cell +
                      "' is no finite number (a missing cell is left empty, or --missing tells its text)");
}

TEST(SurveyTable, DecimalsAreThoseOfTheCellWithMost)
{
    EXPECT_EQ(table("n\n1\n2.50\n3.1\n").named("n")->decimals, 2);
    EXPECT_EQ(table("n\n1.5e-3\n2\n").named("n")->decimals, 4);
    EXPECT_EQ(table("n\n1.25e+1\n").named("n")->decimals, 1);
    EXPECT_EQ(table("n\n1.5e3\n").named("n")->decimals, 0);
}

TEST(SurveyTable, ColumnsWithoutNameAreNumbered)
{
    const Table t = table("\"\",x\n1,2\n");
    EXPECT_NE(t.named("column 1"), nullptr);
}

TEST(SurveyTable, EmptyLinesAtTheEndAreLeftOut)
{
    EXPECT_EQ(table("a,b\n1,2\n\n\r\n").rows, 1);
    EXPECT_THAT(table("a\n1\n\n").named("a")->numbers, vecmat::test::SameBits({1.0, M})); // the cells of one column
}

TEST(SurveyTable, EmptyFileIsAnError)
{
    EXPECT_EQ(errorOf(""), "f.csv, line 1, column 1: the file is empty");
    EXPECT_EQ(errorOf("\r\n\r\n"), "f.csv, line 1, column 1: the file is empty");
}

TEST(SurveyTable, HeadingAloneIsAnError)
{
    EXPECT_EQ(errorOf("a,b\n"), "f.csv, line 2, column 1 (a): no row of data follows the heading");
    EXPECT_EQ(errorOf("a,b\n\n\n"), "f.csv, line 2, column 1 (a): no row of data follows the heading");
    EXPECT_EQ(errorOf("a"), "f.csv, line 2, column 1 (a): no row of data follows the heading");
}

TEST(SurveyTable, RowOfAnotherLengthIsAnErrorWhereItEndsOrGoesOn)
{
    EXPECT_EQ(errorOf("a,b,c\n1,2,3\n4,5\n"), "f.csv, line 3, column 3 (c): the row has 2 fields, the heading has 3");
    EXPECT_EQ(errorOf("a,b\n1,2\n3,4,5,6\n"), "f.csv, line 3, column 3: the row has 4 fields, the heading has 2");
    EXPECT_EQ(errorOf("a,b\n1,2\n\n3,4\n"), "f.csv, line 3, column 2 (b): the row has 1 field, the heading has 2");
}

TEST(SurveyTable, TextAmongNumbersIsAnErrorAtTheCell)
{
    EXPECT_EQ(
        errorOf("a,b\n1,2\n1,\"x\ny\"\n1,4\n1,z\n1,5\n"),
        "f.csv, line 3, column 2 (b): 'x y' is not a number, as most of the column are (a missing cell is left empty)");
    EXPECT_THAT(errorOf("a\n1\n2\n" + std::string(100, 'x')),
                testing::HasSubstr("(a): '" + std::string(37, 'x') + "...' is"));
}

TEST(SurveyTable, NoNumericColumnIsAnError)
{
    EXPECT_EQ(errorOf("a,b\nx,\ny,\n"), "f.csv, line 1, columns 1 to 2: none is numeric");
    EXPECT_EQ(errorOf("a\n1\n", "a"), "f.csv, line 1, column 1: none is numeric beside the grouping column");
}

TEST(SurveyTable, NameThatStandsTwiceIsAnError)
{
    EXPECT_EQ(errorOf("a,b,a\n1,2,3\n"), "f.csv, line 1, column 3 (a): column 1 has the same name");
}

TEST(SurveyTable, UnknownGroupingColumnIsAnErrorThatTellsTheNames)
{
    EXPECT_EQ(errorOf("a,b\n1,2\n", "c"), "f.csv, line 1, columns 1 to 2: none is named 'c'; the names are a, b");
}

TEST(SurveyTable, EmptyGroupingColumnStaysEmpty)
{
    EXPECT_EQ(table("g,x\n,1\n ,2\n", "g").named("g")->kind, Kind::empty);
}

TEST(SurveyTable, CellOfBlanksHasNoText)
{
    EXPECT_THAT(table("t,x\na b,1\n \t,2\n b ,3\n").named("t")->texts, ElementsAre("a b", "", " b "));
}

TEST(SurveyTable, GroupingColumnIsTextEvenIfItHoldsNumbers)
{
    EXPECT_EQ(table("year,n\n2007,1\n2008,2\nlater,3\n", "year").named("year")->kind, Kind::text);
    EXPECT_EQ(table("year,n\n2007,1\n2008,2\n").named("year")->kind, Kind::numeric);
}

TEST(SurveyTable, DelimitersAreFoundFromTheText)
{
    EXPECT_EQ(table("a;b\n1;2\n").columns.size(), 2U);
    EXPECT_EQ(table("a\tb\tc\n1\t2\t3\n").columns.size(), 3U);
    EXPECT_EQ(table("a|b\n1|2\n").columns.size(), 2U);
    EXPECT_EQ(table("a, b; c\n1,2\n").columns.size(), 2U); // a semicolon would be in the heading alone
    EXPECT_EQ(table("a\n1\n").columns.size(), 1U);
    EXPECT_EQ(table("\"a;b\",c\n1,2\n").columns.size(), 2U);
    EXPECT_EQ(tableOf("a;b,c\n1;2,3\n", "f.csv", {.delimiter = ',', .decimal = '.'}).columns.size(), 2U);
}

TEST(SurveyTable, DecimalCommasAreFoundWhereTheCommaSeparatesNoFields)
{
    const Table t = table("a;b\n1,25;x\n-3;y\n");
    EXPECT_THAT(t.named("a")->numbers, vecmat::test::SameBits({1.25, -3.0}));
    EXPECT_EQ(t.named("a")->decimals, 2);
    EXPECT_THAT(t.remarks,
                ElementsAre("Fields are taken to be separated by ';'.", "Decimals are taken to stand behind a comma."));
    EXPECT_THAT(table("a;b\n1.25;x\n-3;y\n").named("a")->numbers, vecmat::test::SameBits({1.25, -3.0}));
    EXPECT_THAT(tableOf("a\n\"1,5\"\n", "f.csv", {.delimiter = ';', .decimal = ','}).named("a")->numbers,
                vecmat::test::SameBits({1.5}));
}

TEST(SurveyTable, MissingCellsAreThoseThatAreToldBesideEmptyOnes)
{
    const ReadOptions told = {.missing = {"-999", ".", "N/A"}};
    EXPECT_THAT(tableOf("a,t\n-999.0,x\n.,N/A\n 3 ,NA\n", "f.csv", told).named("a")->numbers,
                vecmat::test::SameBits({M, M, 3.0}));
    EXPECT_THAT(tableOf("a,t\n-999.0,x\n.,N/A\n3,NA\n", "f.csv", told).named("t")->texts, ElementsAre("x", "", "NA"));
    EXPECT_THAT(table("a\nNA\n1\n").named("a")->numbers, vecmat::test::SameBits({M, 1.0}));
}

TEST(SurveyTable, TextColumnsWithNumbersAreTold)
{
    EXPECT_THAT(table("t,x\na,1\n2,1\nb,1\n").remarks,
                ElementsAre("Column 't' is text, though 1 of its cells is a number."));
    EXPECT_THAT(table("t,x\na,1\n2,1\nb,1\n", "t").remarks, testing::IsEmpty());
}

TEST(FileText, EncodingsAreKnownAndTold)
{
    const std::string expected = "n\xC3\xA9,x\n1,2\n";
    using namespace std::string_literals;
    const auto text = [](std::string content, const std::optional<std::string>& encoding = {}) {
        return textOf(std::move(content), "f.csv", encoding).text;
    };
    EXPECT_EQ(text(expected), expected);
    EXPECT_EQ(text("\xEF\xBB\xBF" + expected), expected);
    EXPECT_EQ(text("\xFF\xFEn\0\xE9\0,\0x\0\n\0001\0,\0002\0\n\0"s), expected);
    EXPECT_EQ(text("\xFE\xFF\0n\0\xE9\0,\0x\0\n\0001\0,\0002\0\n"s), expected);
    EXPECT_EQ(text("n\0\xE9\0,\0x\0\n\0001\0,\0002\0\n\0"s), expected); // no byte order mark
    EXPECT_EQ(text("n\xE9,x\n1,2\n"), expected);
    EXPECT_EQ(text("n\x82,x\n1,2\n", "CP850"), expected);
    EXPECT_EQ(textOf("x\n1\nn\xE9\n", "f.csv", {}).remark,
              "The file is not in UTF-8 (line 3) and was read as Windows-1252; --encoding names another one.");
    EXPECT_EQ(textOf(expected, "f.csv", {}).remark, "");
}

TEST(FileText, WhatIsNotUtf8IsFoundWhereItStands)
{
    EXPECT_EQ(firstInvalid("0123456789 \xC3\xA9\xE2\x82\xAC\xF0\x9F\x90\xA7"), 20U);
    EXPECT_EQ(firstInvalid("0123456789\xE9 0123456789"), 10U);
    for (const char* text : {"\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\x80", "\xF0\x8F\xBF\xBF"})
        EXPECT_EQ(firstInvalid(text), 0U) << text;
}

TEST(SurveyGroups, FollowTheOrderOfTheFileAndRowsWithoutOneComeLast)
{
    const Table t = table("g,n\nb,1\n,2\na,3\nb,\n");
    const std::vector<Group> groups = groupsBy(*t.named("g"));
    ASSERT_EQ(groups.size(), 3U);
    EXPECT_EQ(groups[0].name, "b");
    EXPECT_THAT(groups[0].rows, ElementsAre(0, 3));
    EXPECT_EQ(groups[1].name, "a");
    EXPECT_THAT(groups[1].rows, ElementsAre(2));
    EXPECT_EQ(groups[2].name, "(none)");
    EXPECT_THAT(groups[2].rows, ElementsAre(1));
    EXPECT_THAT(cellsOf(*t.named("n"), groups[0]), vecmat::test::SameBits({1.0, M}));
    EXPECT_THAT(cellsOf(*t.named("n"), allRows(t)), vecmat::test::SameBits({1.0, 2.0, 3.0, M}));
}
