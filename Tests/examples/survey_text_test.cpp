// How the survey lays out numbers and tables.
#include "number_format.h"
#include "text_table.h"

#include "support/bits.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>

using namespace survey;
using vecmat::test::M;

namespace {

NumberFormat format(int decimals, std::vector<double> numbers)
{
    return NumberFormat(Column{"x", Kind::numeric, {}, std::move(numbers), decimals});
}

std::string printed(const TextTable& table, std::size_t width)
{
    std::ostringstream out;
    table.print(out, width);
    return out.str();
}

} // namespace

TEST(NumberFormat, ShowsTheDecimalsOfTheFileAndOneMoreForAStatistic)
{
    EXPECT_EQ(format(1, {39.1, M}).cell(46.0), "46.0");
    EXPECT_EQ(format(1, {39.1, M}).statistic(38.791), "38.79");
    EXPECT_EQ(format(0, {3750.0}).cell(3750.0), "3750");
    EXPECT_EQ(format(1, {39.1}).cell(M), "-");
}

TEST(NumberFormat, WithDecimalsShowsADashForWhatIsNoNumber)
{
    EXPECT_EQ(withDecimals(1.25, 1), "1.2");
    EXPECT_EQ(withDecimals(M, 1), "-");
    EXPECT_EQ(withDecimals(std::numeric_limits<double>::quiet_NaN(), 1), "-");
    EXPECT_EQ(withDecimals(-std::numeric_limits<double>::infinity(), 1), "-");
}

TEST(NumberFormat, WithDigitsShowsTheDigitsThatCount)
{
    EXPECT_EQ(withDigits(-6476.03, 5), "-6476.0");
    EXPECT_EQ(withDigits(0.0123456, 3), "0.0123");
    EXPECT_EQ(withDigits(123456.7, 3), "123457");
    EXPECT_EQ(withDigits(0.0, 3), "0.00");
    EXPECT_EQ(withDigits(1.5e-9, 3), "1.50e-09");
    EXPECT_EQ(withDigits(2.0e12, 3), "2.00e+12");
    EXPECT_EQ(withDigits(M, 3), "-");
}

TEST(NumberFormat, WithAllDigitsIsReadAsTheSameNumber)
{
    EXPECT_EQ(withAllDigits(0.1), "0.1");
    EXPECT_EQ(withAllDigits(1.0 / 3.0), "0.3333333333333333");
    EXPECT_EQ(withAllDigits(M), "NA");
    EXPECT_EQ(withAllDigits(std::numeric_limits<double>::quiet_NaN()), "NA");
}

TEST(NumberFormat, PercentageHasOneDecimal)
{
    EXPECT_EQ(percentage(1.0, 3.0), "33.3 %");
}

TEST(NumberFormat, DecimalsForANumberAreNeverNegative)
{
    EXPECT_EQ(decimalsFor(5.3, 4), 3);
    EXPECT_EQ(decimalsFor(0.053, 4), 5);
    EXPECT_EQ(decimalsFor(98765.0, 4), 0);
}

TEST(NumberFormat, ShowsAtMostSevenDigitsOfTheLargest)
{
    EXPECT_EQ(format(15, {0.123456789012345}).cell(0.123456789012345), "0.1234568");
    EXPECT_EQ(format(6, {123456.789012}).cell(123456.789012), "123456.8");
    EXPECT_EQ(format(0, {123456789.0}).cell(123456789.0), "123456789");
}

TEST(NumberFormat, HugeAndTinyNumbersHaveAPowerOfTen)
{
    EXPECT_EQ(format(0, {2.5e12}).cell(2.5e12), "2.50000e+12");
    EXPECT_EQ(format(12, {2.5e-11}).cell(2.5e-11), "2.50000e-11");
    EXPECT_EQ(format(0, {0.0}).cell(0.0), "0");
    EXPECT_EQ(withDecimals(1e200, 2), "1.00e+200"); // too long for the line of a table
}

TEST(NumberFormat, NothingIsMinusZero)
{
    EXPECT_EQ(withDecimals(-0.0004, 3), "0.000");
    EXPECT_EQ(withDecimals(-0.0006, 3), "-0.001");
    EXPECT_EQ(withDecimals(-0.0, 0), "0");
}

TEST(TextTable, AlignsTextNumbersAndPoints)
{
    TextTable table({{"name", Align::left}, {"n", Align::right}, {"x", Align::point}}, 1);
    table.addGap(); // none ahead of the first row
    table.addRow({"ada", "5", "1.25"});
    table.addGap();
    table.addRow({"bo", "10", "-"});
    table.addRow({"c\xC3\xA9", "", "300"});
    EXPECT_EQ(printed(table, 80), "name   n       x\n"
                                  "----------------\n"
                                  "ada    5    1.25\n"
                                  "\n"
                                  "bo    10    -\n"
                                  "c\xC3\xA9        300\n"
                                  "\n");
}

TEST(TextTable, WiderThanTheLineGoesOnBelow)
{
    TextTable table({{"k", Align::left}, {"aaaa", Align::right}, {"bbbb", Align::right}, {"cccc", Align::right}}, 1);
    table.addRow({"k", "1", "2", "3"});
    EXPECT_EQ(printed(table, 13), "k  aaaa  bbbb\n-------------\nk     1     2\n\n"
                                  "k  cccc\n-------\nk     3\n\n");
    EXPECT_EQ(printed(table, 12).substr(0, 8), "k  aaaa\n");
    EXPECT_EQ(printed(table, 1).substr(0, 8), "k  aaaa\n"); // at least one column at a time
}

TEST(TextTable, TellsTheFirstOfTwoNamesOnceForARun)
{
    TextTable table({{"k", Align::left}, {"l", Align::left}, {"x", Align::right}}, 2);
    table.addRow({"a", "b", "1"});
    table.addRow({"a", "b", "1"});
    table.addRow({"b", "b", "1"});
    table.addGap();
    table.addRow({"b", "b", "1"});
    EXPECT_EQ(printed(table, 80), "k  l  x\n"
                                  "-------\n"
                                  "a  b  1\n"
                                  "   b  1\n"
                                  "b  b  1\n"
                                  "\n"
                                  "b  b  1\n"
                                  "\n");
    EXPECT_EQ(table.rows()[1][0], "a");
}

TEST(TextTable, LineBreaksInCellsAreBlanks)
{
    EXPECT_EQ(onOneLine("a\r\nb\tc"), "a  b c");
    TextTable table({{"k", Align::left}, {"v\nw", Align::left}}, 1);
    table.addRow({"a\nb", "c"});
    EXPECT_EQ(printed(table, 80), "k    v w\n--------\na b  c\n\n");
}

TEST(Text, IsShortenedByCharacters)
{
    EXPECT_EQ(shortened("abcdef", 6), "abcdef");
    EXPECT_EQ(shortened("abcdefg", 6), "abc...");
    EXPECT_EQ(shortened("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9", 4), "\xC3\xA9...");
    EXPECT_EQ(widthOf("\xC3\xA9x"), 2U);
}

TEST(Text, IsWrappedBehindItsIndent)
{
    EXPECT_EQ(words("  one two\nthree "), (std::vector<std::string>{"one", "two", "three"}));
    EXPECT_EQ(wrapped({"one", "two", "three"}, 7, 0), "one two\nthree");
    EXPECT_EQ(wrapped({"one", "two", "three"}, 9, 3), "one\n   two\n   three");
    EXPECT_EQ(wrapped({"not broken", "two"}, 4, 0), "not broken\ntwo");
    EXPECT_EQ(wrapped({}, 10, 2), "");
}
