#include "dialect.h"

#include "cell.h"
#include "csv.h"
#include "input_error.h"

#include <algorithm>
#include <string>

namespace survey {

namespace {

/// Walks through the first records below the heading, as far as they can be read.
template <class Take>
void forFirstRecords(std::string_view text, char delimiter, int most, const Take& take)
{
    const std::string noFile;
    CsvReader reader(text, noFile, delimiter);
    try {
        for (int i = 0; i < most && !reader.atEnd(); ++i)
            take(reader.record(), i);
    } catch (const InputError&) { // will be told when the file is read
        return;
    }
}

struct Fields
{
    bool alike = true;     ///< in the records that aren't empty
    std::size_t count = 1; ///< of the first record
};

Fields fieldsWith(std::string_view text, char delimiter)
{
    Fields fields;
    forFirstRecords(text, delimiter, 100, [&](const CsvRecord& record, int i) {
        if (i == 0)
            fields.count = record.size();
        fields.alike = fields.alike && (isEmptyLine(record) || record.size() == fields.count);
    });
    return fields;
}

char delimiterOf(std::string_view text)
{
    char best = ',';
    Fields bestFields = fieldsWith(text, best);
    for (const char delimiter : {';', '\t', '|'}) {
        const Fields fields = fieldsWith(text, delimiter);
        const bool isBetter = fields.alike == bestFields.alike || fields.count == 1 || bestFields.count == 1
                                  ? fields.count > bestFields.count
                                  : fields.alike;
        if (isBetter) {
            best = delimiter;
            bestFields = fields;
        }
    }
    return best;
}

char decimalOf(std::string_view text, char delimiter)
{
    if (delimiter == ',')
        return '.';
    int withPoint = 0;
    int withComma = 0;
    const CellRules point = cellRules('.', {});
    const CellRules comma = cellRules(',', {});
    forFirstRecords(text, delimiter, 1000, [&](const CsvRecord& record, int i) {
        for (const CsvField& field : record) {
            if (i == 0)
                continue;
            withPoint += cellOf(field.text, point).content == Content::number ? 1 : 0;
            withComma += cellOf(field.text, comma).content == Content::number ? 1 : 0;
        }
    });
    return withComma > withPoint ? ',' : '.';
}

} // namespace

Dialect dialectOf(std::string_view text, std::optional<char> delimiter, std::optional<char> decimal)
{
    const char between = delimiter ? *delimiter : delimiterOf(text);
    return {between, decimal ? *decimal : decimalOf(text, between)};
}

} // namespace survey
