// What is held while a flat function is called.
#pragma once

#include "calls/description.h"

#include <cpp11/R.hpp>
#include <cpp11/protect.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vecmat::r {

using namespace binding;

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
    SEXP kept_ = R_NilValue; // a list
    PROTECT_INDEX keptPlace_ = 0;
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
