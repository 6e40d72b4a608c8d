// What is held while a flat function is called.
#pragma once

#include "numpy_api.h"

#include "calls/description.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vecmat::python {

using namespace binding;

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
