// survey [--report DIRECTORY] FILE.csv [GROUPING_COLUMN]
#include "data_files.h"
#include "input_error.h"
#include "survey.h"
#include "table.h"
#include "terminal.h"

#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

struct Call
{
    std::string file;
    std::optional<std::string> grouping;
    std::optional<std::string> report;
};

std::optional<Call> parsedCall(std::vector<std::string> arguments)
{
    Call call;
    if (arguments.size() >= 2 && arguments[0] == "--report") {
        call.report = arguments[1];
        arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    if (arguments.empty() || arguments.size() > 2 || arguments[0] == "--report")
        return std::nullopt;
    call.file = arguments[0];
    if (arguments.size() > 1)
        call.grouping = arguments[1];
    return call;
}

} // namespace

int main(int argc, char** argv)
{
    const auto call = parsedCall({argv + 1, argv + argc});
    if (!call) {
        std::cerr << "usage: survey [--report DIRECTORY] FILE.csv [GROUPING_COLUMN]\n";
        return 2;
    }
    try {
        const survey::Table table = survey::readTable(call->file, call->grouping);
        const survey::Document document =
            survey::surveyOf(survey::subjectOf(table, call->grouping ? table.named(*call->grouping) : nullptr));
        survey::print(std::cout, document);
        if (!std::cout.flush())
            throw survey::OutputError("the output can't be written");
        if (call->report)
            survey::writeDataFiles(document, *call->report);
    } catch (const std::runtime_error& error) { // InputError, OutputError
        std::cerr << "survey: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
