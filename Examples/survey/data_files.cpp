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

/// A field as RFC 4180 has it.
void writeCsvField(std::ostream& out, const std::string& field)
{
    if (field.find_first_of(",\"\r\n") == std::string::npos) {
        out << field;
        return;
    }
    out << '"';
    for (const char c : field)
        out << (c == '"' ? "\"\"" : std::string(1, c));
    out << '"';
}

void writeCsv(std::ostream& out, const std::vector<Record>& records)
{
    for (const Record& record : records) {
        for (std::size_t j = 0; j < record.size(); ++j) {
            if (j > 0)
                out << ',';
            writeCsvField(out, record[j]);
        }
        out << '\n';
    }
}

void writeRecords(std::ostream& out, const std::vector<Record>& records)
{
    for (const Record& record : records)
        writeRecord(out, record);
}

OutputError notWritten(const std::filesystem::path& path)
{
    return OutputError(path.string() + ": the file can't be written");
}

} // namespace

DataFiles::DataFiles(const std::filesystem::path& directory)
    : data_(directory / "data"), textPath_(directory / "survey.txt")
{
    std::error_code error;
    std::filesystem::create_directories(data_, error);
    if (error)
        throw OutputError(data_.string() + ": " + error.message());
    text_.open(textPath_, std::ios::binary);
    if (!text_)
        throw notWritten(textPath_);
}

void DataFiles::add(const Document& part)
{
    print(text_, part);
    if (!part.title.empty())
        addContents({"title", part.title, part.summary});
    for (const LabelledList& list : part.lists) {
        Record record = {"list", list.label};
        record.insert(record.end(), list.items.begin(), list.items.end());
        addContents(std::move(record));
    }
    for (const std::string& remark : part.remarks)
        addContents({"remark", remark});
    for (const Section& section : part.sections)
        addSection(section);
}

void DataFiles::addSection(const Section& section)
{
    addContents({"section", section.name, section.title, section.lead, section.note});
    for (const NamedTable& named : section.tables) {
        writeFile(data_ / (named.name + ".tsv"), [&](std::ostream& out) { writeTable(out, named.table); });
        addContents(described(named));
        if (!named.whole)
            continue;
        writeFile(data_ / (named.name + ".csv"), [&](std::ostream& out) { writeCsv(out, named.whole->records); });
        addContents({"whole", named.name, std::to_string(named.whole->records.size() - 1)});
    }
    for (const Picture& picture : section.pictures) {
        for (const DataTable& table : picture.data)
            writeFile(data_ / (table.name + ".tsv"), [&](std::ostream& out) { writeRecords(out, table.records); });
        addContents({"picture", picture.name});
    }
}

void DataFiles::finish()
{
    text_.close();
    if (!text_)
        throw notWritten(textPath_);
    writeFile(data_ / "contents.tsv", [&](std::ostream& out) { writeRecords(out, contents_); });
}

} // namespace survey
