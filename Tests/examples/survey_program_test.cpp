// The program as a user runs it: output, messages and exit statuses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <utility>

using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::string content(const std::filesystem::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

/// Runs the program in a directory of its own.
class SurveyProgram : public testing::Test
{
protected:
    SurveyProgram()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "survey-test-XXXXXX").string();
        directory_ = mkdtemp(pattern.data());
    }
    ~SurveyProgram() override { std::filesystem::remove_all(directory_); }

    void write(const std::string& name, const std::string& text) const
    {
        std::ofstream(directory_ / name, std::ios::binary) << text;
    }

    /// `arguments` are words of the shell.
    void run(const std::string& arguments, const std::string& outputFile = "output")
    {
        const std::string command =
            "cd '" + directory_.string() + "' && '" SURVEY_PROGRAM "' " + arguments + " >" + outputFile + " 2>errors";
        const int result = std::system(command.c_str());
        status = WIFEXITED(result) ? WEXITSTATUS(result) : -1;
        output = content(directory_ / "output");
        errors = content(directory_ / "errors");
    }

    void expectRefused(const std::string& arguments, const std::string& message)
    {
        run(arguments);
        EXPECT_EQ(status, 1);
        EXPECT_EQ(output, "");
        EXPECT_EQ(errors, "survey: " + message + "\n");
    }

    std::string file(const std::string& name) const { return content(directory_ / name); }

    int status = 0;
    std::string output;
    std::string errors;

private:
    std::filesystem::path directory_;
};

} // namespace

TEST_F(SurveyProgram, PrintsThePenguinsBySpecies)
{
    run("'" SURVEY_DATA "/penguins.csv' species");
    EXPECT_EQ(status, 0);
    EXPECT_EQ(errors, "");
    EXPECT_THAT(output, StartsWith("penguins.csv: 344 rows, 7 columns\n"));
    EXPECT_THAT(output, HasSubstr("  grouped by  species: Adelie (152), Chinstrap (68), Gentoo (124)\n"));
    EXPECT_THAT(
        output,
        HasSubstr(
            "bill_length_mm     Adelie       151        1     32.1     46.0    38.79     2.66     0.162    -0.157\n"
            "                   Chinstrap     68        0     40.9     58.0    48.83     3.34    -0.091     0.036\n"
            "                   Gentoo       123        1     40.9     59.6    47.50     3.08     0.651     1.297\n"
            "                   all          342        2     32.1     59.6    43.92     5.46     0.053    -0.876\n"));
    EXPECT_THAT(output, HasSubstr("body_mass_g        Adelie            3350.0   3700.0          4000.0\n"));
    EXPECT_THAT(output, HasSubstr("                   95 %    43.00      53.25    52.19    51.99\n"));
    EXPECT_THAT(output, HasSubstr("               5     2  4, 340\n"));
    EXPECT_THAT(output, HasSubstr("         Chinstrap    68  19.8 %\n"));
    EXPECT_THAT(output,
                HasSubstr("species  Adelie              38.79          18.35              190.0       3700.7\n"));
    EXPECT_THAT(output, HasSubstr("bill_depth_mm              -0.235          1.000            342          342\n"));
    EXPECT_THAT(output, HasSubstr("340  bill_length_mm     46.1\n"));
    EXPECT_THAT(output, HasSubstr("        1     2.753  68.8 %      68.8 %\n"));
    EXPECT_THAT(output, HasSubstr("row farthest out  254                      2.288        2.106\n"));
    EXPECT_THAT(output,
                HasSubstr("flipper_length_mm       50.329           2.476     45.460     55.199   20.33  <0.0001\n"));
    EXPECT_THAT(output, HasSubstr("bill_length_mm     Adelie       38.79  A\n"
                                  "                   Chinstrap    48.83    C\n"
                                  "                   Gentoo       47.50   B\n"));
    EXPECT_THAT(output, HasSubstr("\nStratified sample\n"));
}

TEST_F(SurveyProgram, WithoutGroupingColumnTakesAllRows)
{
    write("a.csv", "x\n1\n2\n\n");
    run("a.csv");
    EXPECT_EQ(status, 0);
    EXPECT_EQ(output.find("grouped by"), std::string::npos);
    EXPECT_THAT(output, StartsWith("a.csv: 3 rows, 1 column\n"));
    EXPECT_THAT(output,
                HasSubstr("x       all       2        1        1        2   1.5      0.7         -         -\n"));
}

TEST_F(SurveyProgram, OfASingleCellLeavesOutWhatCannotBeTold)
{
    write("a.csv", "x\n1\n");
    run("a.csv");
    EXPECT_EQ(status, 0);
    EXPECT_EQ(errors, "");
    EXPECT_THAT(output, HasSubstr("\nNo cell is missing.\n"));
    for (const char* title : {"Categories", "Means by category", "Correlations", "Missing cells filled", "Principal",
                              "Biplot", "Regression", "Letter groups", "Stratified sample"})
        EXPECT_EQ(output.find(title), std::string::npos) << title;
}

TEST_F(SurveyProgram, OfAConstantColumnTellsWhatItHas)
{
    write("a.csv", "g,c,x,y\na,7,1,1\nb,7,2,3\na,7,3,\nb,7,4,8\n");
    run("a.csv g");
    EXPECT_EQ(status, 0);
    EXPECT_EQ(errors, "");
    for (const char* title : {"Principal components", "Biplot", "Regression of y", "Letter groups"})
        EXPECT_THAT(output, HasSubstr(title));
    EXPECT_EQ(output.find("nan"), std::string::npos);
    EXPECT_EQ(output.find("inf"), std::string::npos);
}

TEST_F(SurveyProgram, ListsTheColumnsByKindAndTheGroups)
{
    std::string heading = "\"dose, mg\",\xC3\xA9tat,none";
    std::string row = "1,a,";
    for (int i = 1; i <= 20; ++i) {
        heading += ",measure " + std::to_string(i);
        row += "," + std::to_string(i);
    }
    write("a.csv", "\xEF\xBB\xBF" + heading + "\r\n" + row + "\r\n" + row + "\r\n");
    run("a.csv \xC3\xA9tat");
    EXPECT_EQ(status, 0);
    EXPECT_EQ(output.substr(0, output.find("\n\n\n")),
              "a.csv: 2 rows, 23 columns\n\n"
              "  numeric     'dose, mg', measure 1, measure 2, measure 3, measure 4, measure 5, measure 6,\n"
              "              measure 7, measure 8, measure 9, measure 10, measure 11, measure 12, measure 13,\n"
              "              measure 14, measure 15, measure 16, measure 17, measure 18, measure 19, measure 20\n"
              "  text        \xC3\xA9tat\n"
              "  empty       none\n"
              "  grouped by  \xC3\xA9tat: a (2)");
}

TEST_F(SurveyProgram, CallWithoutFileOrWithTooManyArgumentsShowsTheUsage)
{
    const std::pair<const char*, const char*> calls[] = {
        {"", "no file is named"},
        {"a.csv b c", "one file and one grouping column are all that can be named"},
        {"--report", "--report takes a value"},
        {"--report directory", "no file is named"},
        {"--colour a.csv", "there is no option --colour"},
        {"--delimiter :: a.csv", "--delimiter takes one character, or tab"},
        {"--decimal / a.csv", "--decimal takes . or ,"},
        {"--delimiter , --decimal , a.csv", "--delimiter and --decimal are the same character"},
        {"--seed 0 a.csv", "--seed takes a whole number from 1 on"},
        {"--correction sidak a.csv", "--correction takes none, bonferroni, holm or fdr"},
        {"--weights w a.csv w", "the weights can't be the grouping column, too"},
    };
    for (const auto& [arguments, message] : calls) {
        run(arguments);
        EXPECT_EQ(status, 2);
        EXPECT_EQ(output, "");
        EXPECT_EQ(errors, std::string("survey: ") + message +
                              "\nusage: survey [OPTION...] FILE [GROUPING_COLUMN] (--help tells more)\n");
    }
}

TEST_F(SurveyProgram, TellsItsOptionsAndItsVersion)
{
    run("--help");
    EXPECT_EQ(status, 0);
    for (const char* option : {"--columns", "--weights", "--missing", "--delimiter", "--decimal", "--encoding",
                               "--correction", "--seed", "--report", "--version"})
        EXPECT_THAT(output, HasSubstr(option));
    run("--version nowhere.csv");
    EXPECT_EQ(status, 0);
    EXPECT_THAT(output, testing::MatchesRegex("survey of VecMat [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_F(SurveyProgram, FileThatCannotBeReadIsRefused)
{
    expectRefused("nowhere.csv", "nowhere.csv: No such file or directory");
    expectRefused(".", ".: Is a directory");
}

TEST_F(SurveyProgram, EmptyFileIsRefused)
{
    write("a.csv", "");
    expectRefused("a.csv", "a.csv, line 1, column 1: the file is empty");
}

TEST_F(SurveyProgram, FileWithoutRowsIsRefused)
{
    write("a.csv", "x,y\r\n");
    expectRefused("a.csv", "a.csv, line 2, column 1 (x): no row of data follows the heading");
}

TEST_F(SurveyProgram, RaggedFileIsRefused)
{
    write("a.csv", "x,y\n1,2\n3\n");
    expectRefused("a.csv", "a.csv, line 3, column 2 (y): the row has 1 field, the heading has 2");
}

TEST_F(SurveyProgram, OpenQuoteIsRefused)
{
    write("a.csv", "x,y\n1,\"2\n3,4\n");
    expectRefused("a.csv", "a.csv, line 2, column 2: the quote that opens here is never closed");
}

TEST_F(SurveyProgram, TextInANumericColumnIsRefused)
{
    write("a.csv", "x,y\n1,2\n3,oops\n5,6\n");
    expectRefused("a.csv", "a.csv, line 3, column 2 (y): 'oops' is not a number, as most of the column are (a missing "
                           "cell is left empty)");
}

TEST_F(SurveyProgram, TextsAloneAreRefused)
{
    write("a.csv", "x,y\na,b\n");
    expectRefused("a.csv", "a.csv, line 1, columns 1 to 2: none is numeric");
}

TEST_F(SurveyProgram, UnknownGroupingColumnIsRefused)
{
    write("a.csv", "x,y\n1,b\n");
    expectRefused("a.csv z", "a.csv, line 1, columns 1 to 2: none is named 'z'; the names are x, y");
}

TEST_F(SurveyProgram, SpreadsheetsAndCompressedFilesAreRefused)
{
    write("a.csv", "PK\x03\x04...");
    expectRefused("a.csv", "a.csv: this is a spreadsheet or an archive: save the table as CSV first");
    write("a.csv", "\x1F\x8B...");
    expectRefused("a.csv", "a.csv: this is a compressed file: unpack it, or pass it on as in zcat FILE | survey -");
}

TEST_F(SurveyProgram, ZeroBytesAreRefused)
{
    write("a.csv", std::string("x,y\n1,2\n3,\0\n", 12));
    expectRefused("a.csv", "a.csv, line 3: a zero byte stands here: this is no text, or in an encoding to be named by "
                           "--encoding");
}

TEST_F(SurveyProgram, TextNotInTheEncodingNamedIsRefused)
{
    write("a.csv", "x,t\n1,\xC3\xA9\n2,\xE9\n");
    expectRefused("--encoding UTF-8 a.csv", "a.csv, line 3: a character here is not in the encoding 'UTF-8'");
    expectRefused("--encoding klingon a.csv", "a.csv: the encoding 'klingon' is not known (iconv -l lists them)");
}

TEST_F(SurveyProgram, NumbersThatAreNotFiniteAreRefused)
{
    for (const std::string cell : {"nan", "-inf", "1e999", "Infinity", "1e-999"}) {
        write("a.csv", "x\n" + cell + "\n");
        expectRefused("a.csv", "a.csv, line 2, column 1 (x): '" + cell +
                                   "' is no finite number (a missing cell is left empty, or --missing tells its text)");
    }
    write("a.csv", "x,y\nnan,1\n2,2\n");
    run("--missing nan,NA a.csv");
    EXPECT_EQ(status, 0);
}

TEST_F(SurveyProgram, TheMissingNumberItselfIsRefused)
{
    write("a.csv", "x,y\n1,2\n3,-1.79769313486231e+308\n");
    expectRefused("a.csv", "a.csv, line 3, column 2 (y): '-1.79769313486231e+308' is the number that stands for a "
                           "missing cell: leave the cell empty");
}

TEST_F(SurveyProgram, OtherDecimalsAreRefusedWithTheRemedy)
{
    write("a.csv", "x,t\n1.5,a\n\"2,5\",b\n3.5,c\n");
    expectRefused("a.csv", "a.csv, line 3, column 1 (x): '2,5' is not a number, as most of the column are (a missing "
                           "cell is left empty); decimals are taken to stand behind '.': --decimal tells another "
                           "character");
}

TEST_F(SurveyProgram, RaggedFileWithAGuessedDelimiterTellsTheOption)
{
    write("a.csv", "x;y\n1;2\n3\n");
    expectRefused("a.csv", "a.csv, line 3, column 2 (y): the row has 1 field, the heading has 2 (between fields stands "
                           "';': --delimiter tells another character)");
}

TEST_F(SurveyProgram, UnknownColumnsAreRefused)
{
    write("a.csv", "x,y\n1,2\n");
    expectRefused("--columns x,z a.csv", "a.csv, line 1, columns 1 to 2: none is named 'z'; the names are x, y");
    expectRefused("--weights w a.csv", "a.csv, line 1, columns 1 to 2: none is named 'w'; the names are x, y");
}

TEST_F(SurveyProgram, WeightsThatAreNoneAreRefused)
{
    write("a.csv", "x,w,t\n1,2,a\n3,,b\n4,-1,c\n");
    expectRefused("--weights w a.csv", "a.csv, line 3, column 2 (w): the weight is missing");
    expectRefused("--weights t a.csv", "a.csv, line 1, column 3 (t): weights are numbers");
    write("a.csv", "x,w\n1,2\n4,-1\n");
    expectRefused("--weights w a.csv", "a.csv, line 3, column 2 (w): '-1' is no weight: weights are 0 or above");
    write("a.csv", "x,w\n1,0\n4,0\n");
    expectRefused("--weights w a.csv", "a.csv, column 2 (w): no row has a weight above 0");
}

TEST_F(SurveyProgram, ReadsStandardInput)
{
    write("a.csv", "x\n1\n2\n");
    run("- <a.csv");
    EXPECT_EQ(status, 0);
    EXPECT_THAT(output, StartsWith("standard input: 2 rows, 1 column\n"));
    write("a.csv", "x\n1\nz\n2\n");
    expectRefused("- <a.csv", "standard input, line 3, column 1 (x): 'z' is not a number, as most of the column are (a "
                              "missing cell is left empty)");
}

TEST_F(SurveyProgram, ShowsTheColumnsAskedForInTheirOrder)
{
    write("a.csv", "a,b,\"c,d\",e\n1,2,3,9\n2,7,1,9\n5,3,8,9\n");
    run("--columns b --columns c,d --columns a a.csv");
    EXPECT_EQ(status, 0);
    EXPECT_THAT(output, HasSubstr("  numeric  b, 'c,d', a\n"));
}

TEST_F(SurveyProgram, WithEqualWeightsTellsTheSameAsWithout)
{
    const std::string cells = "g,x,y\na,1,5\nb,2,3\na,4,\nb,5,1\na,9,2\nb,7,8\n";
    write("a.csv", cells);
    run("--columns g,x,y a.csv g");
    const std::string without = output;
    std::string weighted;
    for (std::size_t first = 0; first < cells.size();) {
        const std::size_t end = cells.find('\n', first);
        weighted += cells.substr(first, end - first) + (first == 0 ? ",w\n" : ",2.5\n");
        first = end + 1;
    }
    write("a.csv", weighted);
    run("--weights w a.csv g");
    EXPECT_EQ(status, 0);
    EXPECT_THAT(output, HasSubstr("Rows are weighted by w, the weights scaled to a mean of 1.\n"));
    for (const char* part : {"\nMedian and quartiles\n", "\nCorrelations\n", "\nComparisons of the means\n",
                             "\nPrincipal components\n", "\nRegression of y\n"})
    {
        const std::size_t here = output.find(part);
        const std::size_t there = without.find(part);
        ASSERT_NE(here, std::string::npos) << part;
        const auto tableAt = [&](const std::string& text, std::size_t place) {
            const std::size_t line = text.find("\n---", place);
            return text.substr(line, text.find("\n\n", line) - line);
        };
        EXPECT_EQ(tableAt(output, here), tableAt(without, there)) << part;
    }
}

TEST_F(SurveyProgram, LeavesOutRowsOfWeightZero)
{
    write("a.csv", "g,x,y,w\na,1,5,1\nb,2,3,1\na,400,700,0\nb,5,1,1\na,9,2,1\n");
    run("--weights w a.csv g");
    EXPECT_EQ(status, 0);
    EXPECT_THAT(output, StartsWith("a.csv: 4 rows, 3 columns\n"));
    EXPECT_THAT(output, HasSubstr("1 row of weight 0 left out: rows are numbered without.\n"));
    EXPECT_EQ(output.find("400"), std::string::npos);
}

TEST_F(SurveyProgram, OfManyGroupsListsTheFirstAndLeavesAllBeside)
{
    std::string text = "g,x\n";
    for (int i = 0; i < 200; ++i)
        text += "g" + std::to_string(i % 100) + "," + std::to_string(i) + "\n";
    write("a.csv", text);
    run("--report r a.csv g");
    EXPECT_EQ(status, 0);
    EXPECT_THAT(output, HasSubstr("Listed are the first 10 of 100 groups and all rows.\n"));
    EXPECT_GT(output.find("g10 "), output.find("Stratified sample"));
    const std::string whole = file("r/data/moments.csv");
    EXPECT_THAT(whole, StartsWith("column,g,count,missing,"));
    EXPECT_THAT(whole, HasSubstr("\nx,g99,2,0,99,199,149.0,70.7,-,-\n"));
    EXPECT_EQ(std::count(whole.begin(), whole.end(), '\n'), 102);
}

TEST_F(SurveyProgram, OutputThatCannotBeWrittenIsAFailure)
{
    write("a.csv", "x\n1\n");
    run("a.csv", "/dev/full");
    EXPECT_EQ(status, 1);
    EXPECT_EQ(errors, "survey: the output can't be written\n");
}
