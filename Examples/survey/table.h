// A table of columns of numbers or texts.
#pragma once

#include <string>
#include <vector>

namespace survey {

enum class Kind {
    numeric, ///< every cell that isn't missing is a number
    text,
    empty, ///< no cell holds anything
};

struct Column
{
    std::string name;
    Kind kind = Kind::empty;
    std::vector<std::string> texts; ///< of a text column: the cells as they stand in the file, "" for a missing one
    std::vector<double> numbers;    ///< of a numeric column: the missing value for a missing cell
    int decimals = 0;               ///< of a numeric column: digits behind the point, in the cell that has most
};

struct Table
{
    std::string file;
    int rows = 0;
    std::vector<Column> columns;
    std::vector<double> weights{};      ///< of the rows, all above 0 and 1 on average; empty where all rows count alike
    std::vector<std::string> remarks{}; ///< what a reader of the survey should know of how the file was read

    bool isWeighted() const { return !weights.empty(); }
    /// The columns of one kind, in their order.
    std::vector<const Column*> ofKind(Kind kind) const;
    const Column* named(const std::string& name) const; ///< null if there is none
};

} // namespace survey
