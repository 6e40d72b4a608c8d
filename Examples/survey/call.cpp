#include "call.h"

#include <getopt.h>

#include <charconv>
#include <string_view>
#include <system_error>
#include <utility>

namespace survey {

namespace {

/// The parts of a text between commas.
std::vector<std::string> partsOf(std::string_view text)
{
    std::vector<std::string> parts;
    while (true) {
        const std::size_t comma = text.find(',');
        parts.emplace_back(text.substr(0, comma));
        if (comma == std::string_view::npos)
            return parts;
        text.remove_prefix(comma + 1);
    }
}

char delimiterOf(const std::string& text)
{
    if (text == "tab" || text == "\\t")
        return '\t';
    if (text.size() != 1 || text == "\"" || text == "\n" || text == "\r")
        throw CallError("--delimiter takes one character, or tab");
    return text.front();
}

char decimalOf(const std::string& text)
{
    if (text != "." && text != ",")
        throw CallError("--decimal takes . or ,");
    return text.front();
}

int seedOf(const std::string& text)
{
    int seed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    if (error != std::errc() || end != text.data() + text.size() || seed < 1)
        throw CallError("--seed takes a whole number from 1 on");
    return seed;
}

Correction correctionOf(const std::string& text)
{
    for (const Correction correction : {Correction::none, Correction::bonferroni, Correction::holm, Correction::fdr})
        if (text == nameOf(correction))
            return correction;
    throw CallError("--correction takes none, bonferroni, holm or fdr");
}

enum Option {
    help_,
    version_,
    report_,
    columns_,
    weights_,
    missing_,
    delimiter_,
    decimal_,
    encoding_,
    correction_,
    seed_
};

constexpr option options[] = {{"help", no_argument, nullptr, help_},
                              {"version", no_argument, nullptr, version_},
                              {"report", required_argument, nullptr, report_},
                              {"columns", required_argument, nullptr, columns_},
                              {"weights", required_argument, nullptr, weights_},
                              {"missing", required_argument, nullptr, missing_},
                              {"delimiter", required_argument, nullptr, delimiter_},
                              {"decimal", required_argument, nullptr, decimal_},
                              {"encoding", required_argument, nullptr, encoding_},
                              {"correction", required_argument, nullptr, correction_},
                              {"seed", required_argument, nullptr, seed_},
                              {nullptr, 0, nullptr, 0}};

void take(int option, const std::string& value, Call& call)
{
    switch (option) {
    case help_:
        call.wish = Call::Wish::help;
        break;
    case version_:
        call.wish = Call::Wish::version;
        break;
    case report_:
        call.report = value;
        break;
    case columns_:
        call.reading.columns.push_back(value);
        break;
    case weights_:
        call.reading.weights = value;
        break;
    case missing_:
        call.reading.missing = partsOf(value);
        break;
    case delimiter_:
        call.reading.delimiter = delimiterOf(value);
        break;
    case decimal_:
        call.reading.decimal = decimalOf(value);
        break;
    case encoding_:
        call.reading.encoding = value;
        break;
    case correction_:
        call.settings.correction = correctionOf(value);
        break;
    case seed_:
        call.settings.seed = seedOf(value);
        break;
    default:
        break;
    }
}

} // namespace

Call callOf(int argc, char** argv)
{
    Call call;
    optind = 0; // from the start, also in a second call
    opterr = 0;
    for (int found; (found = getopt_long(argc, argv, ":", options, nullptr)) != -1;) {
        if (found == ':')
            throw CallError(std::string(argv[optind - 1]) + " takes a value");
        if (found == '?')
            throw CallError("there is no option " + std::string(argv[optind - 1]));
        take(found, optarg == nullptr ? "" : optarg, call);
        if (call.wish != Call::Wish::survey)
            return call;
    }
    const int names = argc - optind;
    if (names < 1 || names > 2)
        throw CallError(names < 1 ? "no file is named" : "one file and one grouping column are all that can be named");
    call.file = argv[optind];
    if (names == 2)
        call.reading.grouping = argv[optind + 1];
    if (call.reading.weights && call.reading.weights == call.reading.grouping)
        throw CallError("the weights can't be the grouping column, too");
    if (call.reading.delimiter && call.reading.delimiter == call.reading.decimal)
        throw CallError("--delimiter and --decimal are the same character");
    return call;
}

std::string usage()
{
    return "usage: survey [OPTION...] FILE [GROUPING_COLUMN]";
}

std::string help()
{
    return usage() + R"(

Describes the table in a CSV file, by groups of rows with the same text in a column; - is standard input.

  --columns NAMES        the columns to describe, between commas; the last numeric one is regressed on the others
  --weights COLUMN       the column with the weights of the rows: 0 or above, and scaled to a mean of 1
  --missing TEXTS        what stands for a missing cell, between commas, as an empty cell does (NA)
  --delimiter CHARACTER  what separates fields: one character, or tab (found from the file: , ; tab |)
  --decimal CHARACTER    what stands ahead of decimals: . or , (found from the file)
  --encoding NAME        the encoding, as iconv has it (found from the file: UTF-8, UTF-16, Windows-1252)
  --correction NAME      of p values for many comparisons: none, bonferroni, holm, fdr (holm)
  --seed NUMBER          of the random draws (1)
  --report DIRECTORY     leave text and data there, of which report/make_report makes a page with pictures
  --help, --version

Exit status: 0, 1 for a file that can't be read or written, 2 for a call that can't be followed.
)";
}

} // namespace survey
