// How a flat function is described to a binding that checks the arguments of its calls. The descriptions are generated.
#pragma once

#include "whole.h"

#include <cstdint>

struct SAFEARRAY;

namespace vecmat::binding {

enum class Kind : std::uint8_t {
    number,
    integer,
    flag,
    doubles,
    ints,
    flags,
    strings,
    columns,
    stringColumns,
    text,
    bstr
};
enum class Role : std::uint8_t { value, in, out, inout, scratch };
enum class DomainKind : std::uint8_t { any, options, range };
enum class Result : std::uint8_t { nothing, number, integer, flag, bstr };

union Value {
    double number;
    int integer;
    short flag;
    void* array;
    double* doubles;
    int* ints;
    short* flags;
    wchar_t** strings;
    SAFEARRAY** columns;
    const wchar_t* text;
    const void* bstr;
    wchar_t* resultString;
};

// A number that depends on the other arguments of the call.
using Expression = std::int64_t (*)(const Value*);

struct Domain
{
    DomainKind kind = DomainKind::any;
    const int* options = nullptr;
    int optionCount = 0;
    Expression low = nullptr;
    Expression high = nullptr;
    const char* told = "";
};

struct Parameter
{
    const char* name;
    Kind kind;
    Role role;
    Expression rows = nullptr; // of a table; of the columns of an array of columns
    Expression cols = nullptr;
    const char* shape = "";
    bool isTable = false;           // rows and columns, not a vector
    Expression mayBeNull = nullptr; // none: never
    bool falling = false;           // column k of a triangle has k cells less than the first
    bool atLeast = false;           // more cells may stand behind those that a position tells
    bool addresses = false;         // the cells are positions or sizes: nothing may change them during the call
    Domain domain = {};

    bool isValue() const { return kind <= Kind::flag; }
    bool isWritten() const { return role >= Role::out; }
    bool isHandedBack() const { return role == Role::out || role == Role::inout; } // by a binding that hands out copies
};

struct Function
{
    const char* name;
    const Parameter* parameters;
    int count;
    const std::uint8_t* order; // in which the arrays are read: those that tell sizes come first
    void (*invoke)(const Value* arguments, Value& result);
    Result result;
    bool runsAlone; // shared state of a companion, or cells that are addresses: no other thread may run meanwhile
};

constexpr int mostParameters = 32;

} // namespace vecmat::binding
