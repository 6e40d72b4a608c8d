// How a flat function is described, and what is held while one is called. The descriptions are generated.
#pragma once

#include "whole.h"

#include <cpp11/R.hpp>
#include <cpp11/protect.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

struct SAFEARRAY;

namespace vecmat::r {

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
    bool addresses = false;         // the cells are positions or sizes
    Domain domain = {};

    bool isValue() const { return kind <= Kind::flag; }
    bool isWritten() const { return role >= Role::out; }
    bool isHandedBack() const { return role == Role::out || role == Role::inout; }
};

struct Function
{
    const char* name;
    const Parameter* parameters;
    int count;
    const std::uint8_t* order; // in which the arrays are read: those that tell sizes come first
    void (*invoke)(const Value* arguments, Value& result);
    Result result;
};

constexpr int mostParameters = 32;
constexpr double missingValue = -0x1.fffffffffffe2p+1023;

// An array without cells still has an address: to the library a null pointer is no array.
alignas(16) inline char noCells[16] = {};

class StringArray;
class ColumnArray;

// What an array argument is to be: its sizes, and which part of the argument it is ("", or "column 2: ").
struct Wanted
{
    const Parameter& parameter;
    std::int64_t rows;
    std::int64_t cols;
    std::string which;

    std::int64_t cells() const { return (Whole(rows) * cols).value(); }
};

// An array ready for the library, and the R object that holds it: R_NilValue where no object does.
struct Cells
{
    void* data;
    SEXP object;
    std::int64_t count;
};

// One call: the arguments as R gave them, what was made of them, and what has to live until it is done.
class Call
{
public:
    Call(const Function& function, const SEXP* given);
    ~Call();
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    SEXP run();

    const Function& function() const { return function_; }
    const Value* values() const { return values_; }

    // arrays.cpp: the cells of one array. What is only read is the caller's own memory where its type fits; what is
    // written is a copy, which is handed back.
    Cells arrayCells(const Wanted& wanted, SEXP given, Kind kind);

    // Protects an object until the call is done.
    SEXP keep(SEXP object);
    // Memory that is not R's, until the call is done.
    void* hold(std::size_t bytes);

    [[noreturn, gnu::format(printf, 3, 4)]] void fail(const Parameter& parameter, const char* format, ...) const;

private:
    void readNumber(int place);
    void readArray(int place);
    bool readNull(int place);
    void readStrings(int place, const Wanted& wanted);
    SEXP answer(const Value& result);
    void handBackFlags() const;

    const Function& function_;
    const SEXP* given_;
    Value values_[mostParameters];
    SEXP written_[mostParameters]; // the objects that are handed back, by place
    std::vector<std::unique_ptr<char[]>> held_;
    std::vector<std::unique_ptr<StringArray>> strings_;
    std::vector<std::unique_ptr<ColumnArray>> columns_;
    std::vector<std::vector<char>> singleStrings_;
    std::vector<std::pair<const short*, SEXP>> flags_;
    int kept_ = 0;
};

// domains.cpp
void checkNumber(const Call& call, const Parameter& parameter, std::int64_t value);
void checkCells(const Call& call, const Parameter& parameter, const void* cells, std::int64_t count);

// What a thing that does not fit is called in a message: "a character vector of length 3".
std::string described(SEXP given);

bool isFactor(SEXP given);

// Calls R where R may leave by a long jump: C++ unwinds first, and R goes on where it wanted to.
template <class Body>
SEXP guarded(Body body)
{
    return cpp11::unwind_protect([&]() -> SEXP { return body(); });
}

// What R calls: errors of C++ become errors of R, after everything that was held is released.
SEXP callFunction(const Function& function, const SEXP* given);

} // namespace vecmat::r
