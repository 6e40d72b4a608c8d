// The survey as files, for those who make a page of it or compute on.
#pragma once

#include "document.h"

#include <filesystem>
#include <stdexcept>

namespace survey {

/// A file or directory that can't be written.
struct OutputError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// Writes below a directory, which is made where there is none:
/// - survey.txt: what the terminal shows;
/// - data/<table>.tsv: each table and the data of each picture, as fields between tabs, the names of the columns first.
///   Of the tables the cells are those of the terminal, so that a dash is a missing number. The data of pictures have all
///   digits, and NA for a missing number;
/// - data/contents.tsv: what there is, in order. The first field of each line tells what follows: `title` and the
///   summary; `list`, the label and the items; `section` with name, title, lead and note; then, of this section, `table`
///   with name, number of columns that name the rows, and how each column is aligned; `picture` with its name.
/// Files of these names are replaced, others are left. An OutputError tells which can't be written.
void writeDataFiles(const Document& document, const std::filesystem::path& directory);

} // namespace survey
