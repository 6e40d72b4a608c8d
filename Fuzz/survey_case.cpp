#include "survey_case.h"

#include "csv.h"
#include "file_text.h"
#include "input_error.h"
#include "read_table.h"

#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>

namespace survey::fuzz {

namespace {

const std::string file = "fuzz.csv";

/// Names that the seeds of the corpus use.
ReadOptions optionsOf(unsigned one, unsigned other)
{
    constexpr char delimiters[] = {',', ';', '\t', '|', ' ', 'a', '\n', '\0'};
    ReadOptions options;
    if ((one & 1) != 0)
        options.grouping.emplace("g");
    if ((one & 2) != 0)
        options.weights.emplace("w");
    if ((one & 4) != 0)
        options.missing = {"", "-9", "n/a", "NA"};
    if ((one & 8) != 0)
        options.columns = {"b,a", "x"};
    if ((one & 16) != 0)
        options.delimiter = delimiters[other & 7];
    if ((one & 32) != 0)
        options.decimal = (other & 8) != 0 ? ',' : '.';
    if ((one & 64) != 0) {
        constexpr const char* encodings[] = {"UTF-8",     "ISO-8859-1", "UTF-16", "UTF-16LE",
                                             "SHIFT_JIS", "no such",    "",       "UTF-7"};
        options.encoding = encodings[(other >> 4) & 7];
    }
    return options;
}

void expect(bool isTrue, const char* what)
{
    if (!isTrue)
        throw std::logic_error(what);
}

void expectATable(const Table& table)
{
    const auto rows = static_cast<std::size_t>(table.rows);
    expect(rows > 0, "no rows");
    for (const Column& column : table.columns) {
        const auto fits = [&](Kind kind, std::size_t size) {
            return size == (column.kind == kind ? rows : 0) || (column.kind == Kind::empty && size == rows);
        };
        expect(fits(Kind::text, column.texts.size()), "texts of another length");
        expect(fits(Kind::numeric, column.numbers.size()), "numbers of another length");
        for (const double number : column.numbers)
            expect(std::isfinite(number), "a number that is not finite");
    }
    expect(!table.isWeighted() || table.weights.size() == rows, "weights of another length");
    for (const double weight : table.weights)
        expect(weight > 0.0, "a weight that is not above 0");
}

/// The fields of all records, whose lines go on.
void readFields(const std::string& text, char delimiter)
{
    int line = 1;
    for (CsvReader reader(text, file, delimiter); !reader.atEnd();)
        for (const CsvField& field : reader.record()) {
            expect(field.line >= line, "a line before the one before");
            line = field.line;
            expect(field.text.size() <= text.size(), "a field longer than the text");
        }
}

} // namespace

void readCase(std::span<const unsigned char> bytes)
{
    if (bytes.size() < 2)
        return;
    const ReadOptions options = optionsOf(bytes[0], bytes[1]);
    const std::string content(bytes.begin() + 2, bytes.end());
    try {
        const FileText read = textOf(content, file, options.encoding);
        expect(firstInvalid(read.text) == read.text.size(), "no UTF-8");
        readFields(read.text, options.delimiter.value_or(','));
    } catch (const InputError&) { // what is wrong with the quotes is told again by the table, if it is reached
    }
    try {
        const FileText read = textOf(content, file, options.encoding);
        expectATable(tableOf(read.text, file, options));
    } catch (const InputError& error) {
        expect(std::string(error.what()).find(file) == 0, "an error without its file");
    }
}

} // namespace survey::fuzz
