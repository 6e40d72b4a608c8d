// How a flat function is described, and what is held while one is called. The descriptions are generated.
#pragma once

#include "numpy_api.h"

#include "whole.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

struct SAFEARRAY;

namespace vecmat::python {

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
    Expression mayBeNull = nullptr; // none: never
    bool falling = false;           // column k of a triangle has k cells less than the first
    bool atLeast = false;           // more cells may stand behind those that a position tells
    bool addresses = false;         // the cells are positions or sizes: nothing may change them during the call
    Domain domain = {};

    bool isValue() const { return kind <= Kind::flag; }
    bool isWritten() const { return role >= Role::out; }
};

struct Function
{
    const char* name;
    const Parameter* parameters;
    int count;
    const std::uint8_t* order; // in which the arrays are read: those that tell sizes come first
    void (*invoke)(const Value* arguments, Value& result);
    Result result;
    bool keepsLock; // the interpreter's lock is kept: shared state of a companion, or cells that are addresses
};

constexpr int mostParameters = 32;

// Owns a reference to a Python object.
class Reference
{
public:
    Reference() = default;
    explicit Reference(PyObject* object) : object_(object) {}
    Reference(Reference&& other) noexcept : object_(other.object_) { other.object_ = nullptr; }
    Reference& operator=(Reference&& other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Reference() { Py_XDECREF(object_); }
    PyObject* get() const { return object_; }
    PyObject* release()
    {
        PyObject* object = object_;
        object_ = nullptr;
        return object;
    }
    explicit operator bool() const { return object_ != nullptr; }

private:
    PyObject* object_ = nullptr;
};

// An array without cells still has an address: to the library a null pointer is no array.
alignas(16) inline char noCells[16] = {};

// Thrown where Python's error is set already.
struct PythonError
{
};

class StringArray;
class ColumnArray;

// A run of the caller's memory.
struct Extent
{
    const char* begin;
    std::size_t bytes;

    bool overlaps(const Extent& other) const
    {
        return bytes > 0 && other.bytes > 0 && begin < other.begin + other.bytes && other.begin < begin + bytes;
    }
};

// One call: the arguments as Python gave them, what was made of them, and what has to live until it is done.
class Call
{
public:
    Call(const Function& function, PyObject* const* given);
    ~Call();
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    PyObject* run();

    const Function& function() const { return function_; }
    const Value* values() const { return values_; }
    std::int64_t cells() const { return cells_; }

    // arrays.cpp: the cells of one array, without a copy where its memory fits.
    void* arrayCells(const Parameter& parameter, PyObject* given, Kind kind, std::int64_t rows, std::int64_t cols,
                     const char* which);
    void countCells(std::int64_t cells) { cells_ += cells; }

    [[noreturn]] void fail(PyObject* type, const Parameter& parameter, const char* format, ...) const;

private:
    void readNumber(int place);
    void readArray(int place);
    void readNull(int place);
    void checkOverlaps() const;
    std::vector<Extent> extents(int place) const;
    void invoke(Value& result);
    PyObject* converted(const Value& result) const;

    const Function& function_;
    PyObject* const* given_;
    Value values_[mostParameters];
    std::vector<Reference> kept_;
    std::vector<std::unique_ptr<StringArray>> strings_;
    std::vector<std::unique_ptr<ColumnArray>> columns_;
    std::vector<std::unique_ptr<wchar_t, void (*)(void*)>> texts_;
    std::vector<std::vector<char>> singleStrings_;
    std::int64_t cells_ = 0;
};

// domains.cpp
void checkNumber(const Call& call, const Parameter& parameter, std::int64_t value);
void checkCells(const Call& call, const Parameter& parameter, const void* cells, std::int64_t count);

// arguments.cpp: sorts positional and named arguments into places; false with Python's error set.
bool placeArguments(const Function& function, PyObject* const* arguments, Py_ssize_t count, PyObject* names,
                    PyObject** places);

PyObject* callFunction(const Function& function, PyObject* const* arguments, Py_ssize_t count,
                       PyObject* names) noexcept;

// What Python's programmers see.
template <const Function& function>
PyObject* entry(PyObject*, PyObject* const* arguments, Py_ssize_t count, PyObject* names) noexcept
{
    return callFunction(function, arguments, count, names);
}

} // namespace vecmat::python
