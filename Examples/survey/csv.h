// Reading values between delimiters (RFC 4180).
#pragma once

#include <array>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace survey {

struct CsvField
{
    std::string_view text;
    int line; ///< where it begins, from 1
};

using CsvRecord = std::vector<CsvField>;

/// Walks through a text once, record by record. A field that begins with a double quote ends with the next one that
/// isn't doubled, and may hold delimiters and line breaks; a quote inside any other field is an ordinary character. A
/// record ends with LF, CR LF or CR, the last one also with the text. An empty text has no records, an empty line is a
/// record of one empty field. `file` is named in an InputError about a quote that is never closed, or is followed by
/// more of its field. Text and file name must outlive the reader.
class CsvReader
{
public:
    CsvReader(std::string_view text, const std::string& file, char delimiter);

    bool atEnd() const { return place_ == text_.size(); }
    /// Valid until the next call.
    const CsvRecord& record();
    /// How far it has come in the text.
    std::size_t place() const { return place_; }

private:
    CsvField field();
    CsvField quotedField();
    bool take(char wanted);
    void takeLineEnd();

    std::string_view text_;
    const std::string& file_;
    char delimiter_;
    std::array<bool, 256> ends_{}; // a field without quotes
    std::size_t place_ = 0;
    int line_ = 1;
    CsvRecord record_;
    std::deque<std::string> unescaped_; // fields of the record that hold doubled quotes
};

/// Is this an empty line?
bool isEmptyLine(const CsvRecord& record);

} // namespace survey
