// What the command line asks for.
#pragma once

#include "read_table.h"
#include "survey.h"

#include <optional>
#include <stdexcept>
#include <string>

namespace survey {

/// A call that can't be followed: what is wrong with it.
struct CallError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

struct Call
{
    enum class Wish { survey, help, version };
    Wish wish = Wish::survey;
    std::string file;
    ReadOptions reading;
    SurveySettings settings;
    std::optional<std::string> report;
};

/// A CallError where the arguments don't make a call. A list of columns, between commas, is told apart when the names are
/// known.
Call callOf(int argc, char** argv);

/// One line, and all options.
std::string usage();
std::string help();

} // namespace survey
