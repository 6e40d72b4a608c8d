#include "csv.h"

#include "input_error.h"

namespace survey {

namespace {

std::size_t byteOf(char c)
{
    return static_cast<unsigned char>(c);
}

} // namespace

CsvReader::CsvReader(std::string_view text, const std::string& file, char delimiter)
    : text_(text), file_(file), delimiter_(delimiter)
{
    for (const char end : {delimiter, '\r', '\n'})
        ends_[byteOf(end)] = true;
}

const CsvRecord& CsvReader::record()
{
    record_.clear();
    unescaped_.clear();
    do
        record_.push_back(field());
    while (take(delimiter_));
    takeLineEnd();
    return record_;
}

CsvField CsvReader::field()
{
    if (!atEnd() && text_[place_] == '"')
        return quotedField();
    const std::size_t first = place_;
    while (place_ < text_.size() && !ends_[byteOf(text_[place_])])
        ++place_;
    return {text_.substr(first, place_ - first), line_};
}

CsvField CsvReader::quotedField()
{
    const Place place{.file = file_, .line = line_, .column = static_cast<int>(record_.size()) + 1};
    const int line = line_;
    std::size_t first = ++place_;
    std::string* unescaped = nullptr;
    std::string_view stretch;
    while (true) {
        while (!atEnd() && text_[place_] != '"') {
            if (text_[place_] == '\r' || text_[place_] == '\n')
                takeLineEnd();
            else
                ++place_;
        }
        if (atEnd())
            throw InputError(place, "the quote that opens here is never closed");
        stretch = text_.substr(first, place_++ - first);
        if (!take('"'))
            break;
        if (unescaped == nullptr) // a doubled quote stands for one, and the field goes on
            unescaped = &unescaped_.emplace_back();
        *unescaped += stretch;
        *unescaped += '"';
        first = place_;
    }
    if (unescaped != nullptr)
        stretch = *unescaped += stretch;
    if (!atEnd() && !ends_[byteOf(text_[place_])])
        throw InputError(place, "more text follows the closing quote of " + quoted(std::string(stretch)));
    return {stretch, line};
}

bool CsvReader::take(char wanted)
{
    if (atEnd() || text_[place_] != wanted)
        return false;
    ++place_;
    return true;
}

void CsvReader::takeLineEnd()
{
    const bool carriageReturn = take('\r');
    const bool lineFeed = take('\n');
    line_ += carriageReturn || lineFeed ? 1 : 0;
}

bool isEmptyLine(const CsvRecord& record)
{
    return record.size() == 1 && record.front().text.empty();
}

} // namespace survey
