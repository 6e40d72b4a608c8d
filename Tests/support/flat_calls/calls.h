// A description of every flat function that a program can read: its arguments, what memory each of them needs, and how
// it is called. The table is generated from exports.tsv and arguments.tsv; Docs/arguments.md tells what the words mean.
//
//     const Call& call = *findCall("VB_V_Mean");
//     std::array<Slot, 4> slots{};                    // v, n, mask, w
//     slots[1].integer = 10;
//     call.arguments[0].shape.extent(slots.data());   // 10 rows, 1 column
//     slots[0].pointer = ...
//     const Slot result = call.invoke(slots.data());
//
// `arguments.h`, beside this header, fills the slots.
#pragma once

#include <span>
#include <string_view>

namespace vecmat::flat {

/// What a caller passes, or what comes back.
enum class Type {
    nothing,
    number,   // double
    integer,  // int
    flag,     // short
    numbers,  // double*
    integers, // int*
    flags,    // short*
    strings,  // wchar_t**: pointers to BSTRs
    columns,  // SAFEARRAY**
    text,     // const wchar_t*: 32-bit characters up to a 0
    bstr,     // const void*, and wchar_t* as a result
};

enum class Role { value, in, out, inout, scratch };

enum class Layout {
    value,   // no array: a number, or a single string
    table,   // one array; a vector has one column
    columns, // an array of columns of equal length
    falling, // an array of columns, each a cell shorter than the one before
};

/// What the numbers of a scalar, or the cells of an array, stand for.
enum class Domain {
    none,
    count,
    rows,
    columns,
    number,
    missingOrNumber,
    probability,
    tolerance,
    seed,
    seedFlag,
    ignored,
    data,
    weights,
    mask,
    symmetric,
    string,
    strings,
    option,
    flags,
    position,
    within, // a position that must not leave its range
    positions,
    codes,
    counts,
};

/// One argument, or the result, of a call.
union Slot {
    double number;
    int integer;
    short flag;
    void* pointer;
};

/// Cells in `cols` columns of `rows`, neither below 0. Falling columns have rows, rows - 1, ... cells.
struct Extent
{
    long long rows = 0;
    long long cols = 0;
};

struct Shape
{
    Layout layout;
    bool strings;                            // of an array of columns: its strings, and not its numbers
    Extent (*extent)(const Slot* arguments); // null for Layout::value
};

/// A whole number that depends on other arguments.
using Number = long long (*)(const Slot* arguments);

struct Argument
{
    std::string_view name;
    Type type;
    Role role;
    Shape shape;
    bool sizes;                            // shapes of other arguments read its cells: fill it first
    bool (*mayBeNull)(const Slot* values); // null where null may never stand
    std::string_view unwritten;            // what cells of a result keep: "all" where all are written
    Domain domain;
    std::span<const int> options; // of Domain::option and Domain::flags
    Number low;                   // of a range: both ends are included
    Number high;
};

struct Call
{
    std::string_view name;
    std::string_view unit;
    Type returns;
    std::span<const Argument> arguments;
    Slot (*invoke)(const Slot* arguments);
};

/// All flat functions, in the order of exports.tsv.
std::span<const Call> allCalls();

/// Null where there is none of that name.
const Call* findCall(std::string_view name);

} // namespace vecmat::flat
