#include "csv.h"

#include "input_error.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

namespace survey {

namespace {

/// Walks through the text once, field by field.
class CsvReader
{
public:
    CsvReader(std::string_view text, const std::string& file) : rest_(text), file_(file) {}

    bool atEnd() const { return rest_.empty(); }

    CsvRecord record()
    {
        CsvRecord fields;
        do
            fields.push_back(field(static_cast<int>(fields.size()) + 1));
        while (take(','));
        takeLineEnd();
        return fields;
    }

private:
    CsvField field(int column)
    {
        const Place place{.file = file_, .line = line_, .column = column};
        CsvField field{"", line_};
        if (!take('"')) {
            field.text = takeUpTo(",\r\n");
            return field;
        }
        do {
            takeQuoted(field.text, place);
        } while (take('"') && (field.text += '"', true)); // a doubled quote stands for one, and the field goes on
        if (!atEnd() && std::string_view(",\r\n").find(rest_.front()) == std::string_view::npos)
            throw InputError(place, "more text follows the closing quote of " + quoted(field.text));
        return field;
    }

    /// Takes a stretch up to and with its closing quote.
    void takeQuoted(std::string& text, const Place& place)
    {
        while (true) {
            text += takeUpTo("\"\r\n");
            if (atEnd())
                throw InputError(place, "the quote that opens here is never closed");
            if (take('"'))
                return;
            text += takeLineEnd();
        }
    }

    bool take(char wanted)
    {
        if (atEnd() || rest_.front() != wanted)
            return false;
        rest_.remove_prefix(1);
        return true;
    }

    std::string_view takeUpTo(const char* stops)
    {
        const std::string_view taken = rest_.substr(0, rest_.find_first_of(stops));
        rest_.remove_prefix(taken.size());
        return taken;
    }

    std::string_view takeLineEnd()
    {
        const std::string_view start = rest_;
        const bool carriageReturn = take('\r');
        const bool lineFeed = take('\n');
        line_ += carriageReturn || lineFeed ? 1 : 0;
        return start.substr(0, start.size() - rest_.size());
    }

    std::string_view rest_;
    const std::string& file_;
    int line_ = 1;
};

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

} // namespace

std::string fileContent(const std::string& path)
{
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
    std::string content;
    char buffer[1 << 16];
    while (file) {
        const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get());
        content.append(buffer, count);
        if (count < sizeof buffer)
            break;
    }
    if (!file || std::ferror(file.get()))
        throw InputError({.file = path}, std::strerror(errno));
    return content;
}

std::vector<CsvRecord> parsedCsv(std::string_view text, const std::string& file)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    std::vector<CsvRecord> records;
    for (CsvReader reader(text, file); !reader.atEnd();)
        records.push_back(reader.record());
    return records;
}

} // namespace survey
