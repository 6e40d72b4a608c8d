// What the examples share: ownership of results, and printing.
#pragma once

#include "VecMat.h"

#include <cstdio>
#include <string>
#include <vector>

/// A table that the library makes: hand `table` to the call that fills it. The caller owns what it finds there.
template <class Table = matrix>
struct Result
{
    Table* table = nullptr;

    Result() = default;
    Result(const Result&) = delete;
    Result& operator=(const Result&) = delete;
    ~Result() { delete table; }
};

using Names = std::vector<std::string>;

inline void printNames(const std::string& corner, const Names& columns)
{
    std::printf("%-18s", corner.c_str());
    for (const std::string& name : columns)
        std::printf(" %11s", name.c_str());
    std::printf("\n");
}

/// One row of a table; a missing cell is shown as a dot.
inline void printRow(const std::string& name, matrix& table, int row, int columns, int decimals)
{
    std::printf("%-18s", name.c_str());
    for (int j = 1; j <= columns; ++j) {
        const double cell = table.vbget(row, j);
        if (vecmat::isMissing(cell))
            std::printf(" %11s", ".");
        else
            std::printf(" %11.*f", decimals, cell);
    }
    std::printf("\n");
}

/// A table below the names of its columns.
inline void printTable(const std::string& title, const Names& rows, const Names& columns, matrix& table, int decimals)
{
    printNames(title, columns);
    for (int i = 0; i < static_cast<int>(rows.size()); ++i)
        printRow(rows[i], table, i + 1, static_cast<int>(columns.size()), decimals);
    std::printf("\n");
}
