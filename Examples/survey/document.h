// What the survey tells, ahead of how it is laid out.
#pragma once

#include "text_table.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace survey {

/// More groups, categories or columns than these are counted and not listed one by one.
inline constexpr std::size_t mostListed = 50;

struct NamedTable
{
    std::string name;
    TextTable table;
};

/// Numbers with all their digits, for those who draw them. The first record names the columns.
struct DataTable
{
    std::string name;
    std::vector<std::vector<std::string>> records;
};

struct Picture
{
    std::string name;
    std::vector<DataTable> data;
};

/// Names of sections, tables and pictures consist of lower-case letters and '_'; no two tables share one.
struct Section
{
    std::string name;
    std::string title;
    std::string lead; ///< a sentence or two on what can be seen here
    std::vector<NamedTable> tables;
    std::optional<Picture> picture;
    std::string note; ///< how it was computed; may be empty

    /// A table of the section's own name.
    void addTable(TextTable table) { addTable(name, std::move(table)); }
    void addTable(std::string tableName, TextTable table)
    {
        tables.push_back({std::move(tableName), std::move(table)});
    }
};

struct LabelledList
{
    std::string label;
    std::vector<std::string> items;
};

struct Document
{
    std::string title;
    std::string summary;
    std::vector<LabelledList> lists;
    std::vector<Section> sections;

    /// The new section is valid until the next one is added.
    Section& add(std::string name, std::string title, std::string lead);
};

/// "1 row", "2 rows".
std::string counted(std::size_t count, const std::string& thing);

/// A name as it stands in a list.
std::string listed(const std::string& name);

} // namespace survey
