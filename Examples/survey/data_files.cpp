#include "data_files.h"

#include "terminal.h"

#include <fstream>
#include <string>
#include <system_error>
#include <vector>

namespace survey {

namespace {

using Record = std::vector<std::string>;

/// Fields between tabs, of which the fields themselves have none.
void writeRecord(std::ostream& out, const Record& record)
{
    for (std::size_t j = 0; j < record.size(); ++j)
        out << (j > 0 ? "\t" : "") << onOneLine(record[j]);
    out << '\n';
}

template <class Write>
void writeFile(const std::filesystem::path& path, const Write& write)
{
    std::ofstream file(path, std::ios::binary);
    if (file)
        write(file);
    file.close();
    if (!file)
        throw OutputError(path.string() + ": the file can't be written");
}

std::string nameOf(Align align)
{
    switch (align) {
    case Align::left:
        return "left";
    case Align::right:
        return "right";
    case Align::point:
        break;
    }
    return "point";
}

Record headingsOf(const TextTable& table)
{
    Record headings;
    for (const TextTable::Column& column : table.columns())
        headings.push_back(column.heading);
    return headings;
}

void writeTable(std::ostream& out, const TextTable& table)
{
    writeRecord(out, headingsOf(table));
    for (const Record& row : table.rows())
        if (!row.empty()) // a gap
            writeRecord(out, row);
}

Record described(const NamedTable& named)
{
    Record record = {"table", named.name, std::to_string(named.table.keyColumns())};
    for (const TextTable::Column& column : named.table.columns())
        record.push_back(nameOf(column.align));
    return record;
}

void writeContents(std::ostream& out, const Document& document)
{
    writeRecord(out, {"title", document.title, document.summary});
    for (const LabelledList& list : document.lists) {
        Record record = {"list", list.label};
        record.insert(record.end(), list.items.begin(), list.items.end());
        writeRecord(out, record);
    }
    for (const Section& section : document.sections) {
        writeRecord(out, {"section", section.name, section.title, section.lead, section.note});
        for (const NamedTable& table : section.tables)
            writeRecord(out, described(table));
        if (section.picture)
            writeRecord(out, {"picture", section.picture->name});
    }
}

} // namespace

void writeDataFiles(const Document& document, const std::filesystem::path& directory)
{
    const std::filesystem::path data = directory / "data";
    std::error_code error;
    std::filesystem::create_directories(data, error);
    if (error)
        throw OutputError(data.string() + ": " + error.message());
    writeFile(directory / "survey.txt", [&](std::ostream& out) { print(out, document); });
    for (const Section& section : document.sections) {
        for (const auto& [name, table] : section.tables)
            writeFile(data / (name + ".tsv"), [&table = table](std::ostream& out) { writeTable(out, table); });
        if (!section.picture)
            continue;
        for (const DataTable& table : section.picture->data)
            writeFile(data / (table.name + ".tsv"), [&](std::ostream& out) {
                for (const Record& record : table.records)
                    writeRecord(out, record);
            });
    }
    writeFile(data / "contents.tsv", [&](std::ostream& out) { writeContents(out, document); });
}

} // namespace survey
