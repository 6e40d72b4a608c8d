// A table of columns of numbers or texts.
#pragma once

#include "csv.h"

#include <optional>
#include <string>
#include <vector>

namespace survey {

enum class Kind {
    numeric, ///< every cell that isn't empty is a number
    text,
    empty, ///< no cell holds anything
};

struct Column
{
    std::string name;
    Kind kind = Kind::empty;
    std::vector<std::string> texts; ///< the cells as they stand in the file, one for each row; "" for one of blanks
    std::vector<double> numbers;    ///< of a numeric column: the same cells, the missing value for an empty one
    int decimals = 0;               ///< of a numeric column: digits behind the point, in the cell that has most
};

struct Table
{
    std::string file;
    int rows = 0;
    std::vector<Column> columns;

    /// The columns of one kind, in the order of the file.
    std::vector<const Column*> ofKind(Kind kind) const;
    const Column* named(const std::string& name) const; ///< null if there is none
};

/// Reads a table from a CSV file whose first record names the columns. `grouping` names a column that is text
/// also where it holds numbers. An InputError tells about a file that can't be read, has no row, no numeric column or no column of the
/// name `grouping`, rows of another length than the heading, or a name twice, and about a column most of whose cells
/// are numbers, but not all. Empty lines at the end are left out where there are several columns.
Table readTable(const std::string& path, const std::optional<std::string>& grouping = std::nullopt);

/// The same from records that were read already; `file` is named in errors.
Table tableOf(const std::vector<CsvRecord>& records, const std::string& file,
              const std::optional<std::string>& grouping = std::nullopt);

} // namespace survey
