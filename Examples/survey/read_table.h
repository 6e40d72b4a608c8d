// A table from a file.
#pragma once

#include "progress.h"
#include "table.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace survey {

struct ReadOptions
{
    std::optional<std::string> grouping{}; ///< names a column that is text also where it holds numbers
    std::optional<std::string> weights{};  ///< names a column of weights, which is then none of the table's
    std::vector<std::string> columns{}; ///< the columns wanted, in this order: names, or lists of them; empty for all
    std::vector<std::string> missing = {"NA"};
    std::optional<char> delimiter{}; ///< found from the text where it isn't told
    std::optional<char> decimal{};   ///< likewise
    std::optional<std::string> encoding{};
};

/// Reads a table from a file whose first record names the columns; "-" is standard input. A column of which more than
/// half of the cells are numbers is numeric, and an InputError names the first one that isn't. Others tell about a file
/// that can't be read, has no row, no numeric column or no column of a name that is asked for, rows of another length
/// than the heading, or a name twice; a cell that holds no finite number, or the number that stands for a missing cell;
/// a weight that is missing or below 0. Empty lines at the end are left out where there are several columns, rows of
/// weight 0 anywhere.
Table readTable(const std::string& path, const ReadOptions& options = {}, Progress progress = {});

/// The same from a text in UTF-8; `file` is named in errors.
Table tableOf(std::string_view text, const std::string& file, const ReadOptions& options = {}, Progress progress = {});

} // namespace survey
