// What the survey tells, ahead of how it is laid out.
#pragma once

#include "text_table.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace survey {

/// More groups, categories or columns than these are not listed one by one: where a list is cut, it has the first few.
inline constexpr std::size_t mostListed = 50;
inline constexpr std::size_t listedOfMany = 10;

/// Fields as they are, for those who compute on. The first record names the columns.
struct DataTable
{
    std::string name;
    std::vector<std::vector<std::string>> records;
};

/// `whole` has all the rows of a table that is cut where people read it.
struct NamedTable
{
    std::string name;
    TextTable table;
    std::optional<DataTable> whole{};
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
    std::vector<Picture> pictures;
    std::string note; ///< how it was computed; may be empty

    /// A table of the section's own name.
    void addTable(TextTable table) { addTable(name, std::move(table)); }
    void addTable(std::string tableName, TextTable table)
    {
        tables.push_back({std::move(tableName), std::move(table)});
    }
    /// The first rows of a table of which all are in a file.
    void addTable(std::string tableName, TextTable table, std::vector<std::vector<std::string>> allRecords)
    {
        tables.push_back({tableName, std::move(table), DataTable{tableName, std::move(allRecords)}});
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
    std::vector<std::string> remarks; ///< on how the file was read
    std::vector<Section> sections;

    /// The new section is valid until the next one is added.
    Section& add(std::string name, std::string title, std::string lead);
};

/// A picture shows no more rows than this: of many, each second, third and so on, as `thinning` tells.
inline constexpr int mostDrawn = 5000;
inline int thinning(int rows)
{
    return rows <= mostDrawn ? 1 : (rows + mostDrawn - 1) / mostDrawn;
}

/// "1 row", "2 rows".
std::string counted(std::size_t count, const std::string& thing);

/// A name as it stands in a list.
std::string listed(const std::string& name);

} // namespace survey
