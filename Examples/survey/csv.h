// Reading comma-separated values (RFC 4180).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace survey {

struct CsvField
{
    std::string text;
    int line; ///< where it begins, from 1
};

using CsvRecord = std::vector<CsvField>;

/// The content of a file; an InputError if it can't be read.
std::string fileContent(const std::string& path);

/// The records of a text. A field that begins with a double quote ends with the next one that isn't doubled, and may
/// hold commas and line breaks; a quote inside any other field is an ordinary character. A record ends with LF, CR LF
/// or CR, the last one also with the text. A byte order mark of UTF-8 ahead of the text is skipped. An empty text has
/// no records, an empty line is a record of one empty field. `file` is named in an InputError about a quote that is
/// never closed, or is followed by more of its field.
std::vector<CsvRecord> parsedCsv(std::string_view text, const std::string& file);

} // namespace survey
