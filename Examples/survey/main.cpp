// survey FILE.csv [GROUPING_COLUMN]
#include "input_error.h"
#include "report.h"
#include "table.h"

#include <iostream>
#include <optional>
#include <string>

int main(int argc, char** argv)
{
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: survey FILE.csv [GROUPING_COLUMN]\n";
        return 2;
    }
    const std::string path = argv[1];
    const auto grouping = argc > 2 ? std::optional<std::string>(argv[2]) : std::nullopt;
    try {
        const survey::Table table = survey::readTable(path, grouping);
        survey::printSurvey(std::cout, survey::subjectOf(table, grouping ? table.named(*grouping) : nullptr));
    } catch (const survey::InputError& error) {
        std::cerr << "survey: " << error.what() << '\n';
        return 1;
    }
    if (!std::cout.flush()) {
        std::cerr << "survey: the output can't be written\n";
        return 1;
    }
    return 0;
}
