// The survey as files, for those who make a page of it or compute on.
#pragma once

#include "document.h"

#include <filesystem>
#include <fstream>
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
/// - data/<table>.csv: the whole of a table that is cut, as CSV;
/// - data/contents.tsv: what there is, in order. The first field of each line tells what follows: `title` and the
///   summary; `list`, the label and the items; `remark`; `section` with name, title, lead and note; then, of this
///   section, `table` with name, number of columns that name the rows, and how each column is aligned; `whole` with the
///   name of the last table, where it is cut, and the number of rows that it has in all; `picture` with its name.
/// Files of these names are replaced, others are left. An OutputError tells which can't be written.
class DataFiles
{
public:
    explicit DataFiles(const std::filesystem::path& directory);

    void add(const Document& part); ///< in the order of the document
    void finish();                  ///< after the last part

private:
    void addSection(const Section& section);
    void addContents(std::vector<std::string> record) { contents_.push_back(std::move(record)); }

    std::filesystem::path data_;
    std::filesystem::path textPath_;
    std::ofstream text_;
    std::vector<std::vector<std::string>> contents_;
};

} // namespace survey
