// The program as a user runs it: output, messages and exit statuses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>

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
        const std::string command = "cd '" + directory_.string() + "' && '" SURVEY_PROGRAM "' " + arguments + " >" +
                                    outputFile + " 2>errors </dev/null";
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
    EXPECT_THAT(output, HasSubstr("                   95 %    43.00      53.26    52.19    51.99\n"));
    EXPECT_THAT(output, HasSubstr("               5     2  4, 340\n"));
    EXPECT_THAT(output, HasSubstr("         Chinstrap    68  19.8 %\n"));
    EXPECT_THAT(output,
                HasSubstr("species  Adelie              38.79          18.35              190.0       3700.7\n"));
    EXPECT_THAT(output, HasSubstr("bill_depth_mm              -0.235          1.000            342          342\n"));
    EXPECT_THAT(output, HasSubstr("340  bill_length_mm     46.1\n"));
    EXPECT_THAT(output, HasSubstr("        1     2.753  68.8 %      68.8 %\n"));
    EXPECT_THAT(output, HasSubstr("row farthest out  254                      2.288        2.106\n"));
    EXPECT_THAT(output, HasSubstr("flipper_length_mm       50.329           2.476   20.33\n"));
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
    for (const char* arguments :
         {"", "a.csv b c", "--report", "--report directory", "--report directory --report a.csv"}) {
        run(arguments);
        EXPECT_EQ(status, 2);
        EXPECT_EQ(output, "");
        EXPECT_EQ(errors, "usage: survey [--report DIRECTORY] FILE.csv [GROUPING_COLUMN]\n");
    }
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

TEST_F(SurveyProgram, OutputThatCannotBeWrittenIsAFailure)
{
    write("a.csv", "x\n1\n");
    run("a.csv", "/dev/full");
    EXPECT_EQ(status, 1);
    EXPECT_EQ(errors, "survey: the output can't be written\n");
}
