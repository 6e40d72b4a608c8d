// survey [OPTION...] FILE [GROUPING_COLUMN]
#include "call.h"
#include "data_files.h"
#include "input_error.h"
#include "progress.h"
#include "read_table.h"
#include "survey.h"
#include "terminal.h"

#include <unistd.h>

#include <iostream>
#include <optional>
#include <string>

namespace {

void run(const survey::Call& call)
{
    survey::ProgressDisplay display(std::cerr, isatty(STDERR_FILENO) != 0);
    const survey::Progress progress = [&](const std::string& what, double share) { display.show(what, share); };
    const survey::Table table = survey::readTable(call.file, call.reading, progress);
    const auto& grouping = call.reading.grouping;
    const survey::Subject subject = survey::subjectOf(table, grouping ? table.named(*grouping) : nullptr);
    std::optional<survey::DataFiles> files;
    if (call.report)
        files.emplace(*call.report);
    const auto take = [&](const survey::Document& part) {
        display.clear();
        survey::print(std::cout, part);
        if (!std::cout.flush())
            throw survey::OutputError("the output can't be written");
        if (files)
            files->add(part);
    };
    survey::survey(subject, call.settings, take, progress);
    display.clear();
    if (files)
        files->finish();
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const survey::Call call = survey::callOf(argc, argv);
        if (call.wish == survey::Call::Wish::help)
            std::cout << survey::help();
        else if (call.wish == survey::Call::Wish::version)
            std::cout << "survey of VecMat " SURVEY_VECMAT_VERSION "\n";
        else
            run(call);
    } catch (const survey::CallError& error) {
        std::cerr << "survey: " << error.what() << '\n' << survey::usage() << " (--help tells more)\n";
        return 2;
    } catch (const std::runtime_error& error) { // InputError, OutputError
        std::cerr << "survey: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
