#include "call.h"

#include "calls/domains.h"
#include "column_arrays.h"
#include "string_arrays.h"

#include <cstdarg>
#include <exception>
#include <limits>
#include <new>
#include <stdexcept>

namespace vecmat::python {

namespace {

// Below this many cells a call is done before another thread could have taken the interpreter's lock.
constexpr std::int64_t fewCells = 64;

long wholeNumber(const Call& call, const Parameter& parameter, PyObject* given, long low, long high)
{
    if (!PyLong_Check(given) && !PyIndex_Check(given))
        call.fail(PyExc_TypeError, parameter, "expected a whole number, got %s", Py_TYPE(given)->tp_name);
    int overflow = 0;
    long number = 0;
    if (PyLong_CheckExact(given)) {
        number = PyLong_AsLongAndOverflow(given, &overflow);
    } else {
        const Reference index(PyNumber_Index(given));
        if (!index) {
            PyErr_Clear();
            call.fail(PyExc_TypeError, parameter, "expected a whole number, got %s", Py_TYPE(given)->tp_name);
        }
        number = PyLong_AsLongAndOverflow(index.get(), &overflow);
    }
    if (overflow != 0 || number < low || number > high)
        call.fail(PyExc_ValueError, parameter, "%R does not lie from %ld to %ld", given, low, high);
    return number;
}

double realNumber(const Call& call, const Parameter& parameter, PyObject* given)
{
    if (PyFloat_CheckExact(given))
        return PyFloat_AS_DOUBLE(given);
    const double number = PyFloat_AsDouble(given);
    if (number == -1.0 && PyErr_Occurred()) {
        const bool tooLarge = PyErr_ExceptionMatches(PyExc_OverflowError) != 0;
        PyErr_Clear();
        if (tooLarge)
            call.fail(PyExc_ValueError, parameter, "%R does not fit in a float", given);
        call.fail(PyExc_TypeError, parameter, "expected a number, got %s", Py_TYPE(given)->tp_name);
    }
    return number;
}

} // namespace

Call::Call(const Function& function, PyObject* const* given) : function_(function), given_(given) {}
Call::~Call() = default;

void Call::fail(PyObject* type, const Parameter& parameter, const char* format, ...) const
{
    std::va_list arguments;
    va_start(arguments, format);
    const Reference text(PyUnicode_FromFormatV(format, arguments));
    va_end(arguments);
    if (text)
        PyErr_Format(type, "%s(), argument '%s': %U", function_.name, parameter.name, text.get());
    throw PythonError{};
}

void Call::readNumber(int place)
{
    const Parameter& parameter = function_.parameters[place];
    PyObject* given = given_[place];
    if (parameter.kind == Kind::number) {
        values_[place].number = realNumber(*this, parameter, given);
        return;
    }
    const bool isFlag = parameter.kind == Kind::flag;
    long number =
        isFlag
            ? wholeNumber(*this, parameter, given, std::numeric_limits<short>::min(), std::numeric_limits<short>::max())
            : wholeNumber(*this, parameter, given, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    if (given == Py_True)
        number = numberOfTrue(parameter.domain);
    if (isFlag)
        values_[place].flag = static_cast<short>(number);
    else
        values_[place].integer = static_cast<int>(number);
}

void Call::readNull(int place)
{
    const Parameter& parameter = function_.parameters[place];
    if (!parameter.mayBeNull || parameter.mayBeNull(values_) == 0)
        fail(PyExc_TypeError, parameter, "None may not stand here");
    values_[place].array = nullptr;
}

void Call::readArray(int place)
{
    const Parameter& parameter = function_.parameters[place];
    PyObject* given = given_[place];
    if (given == Py_None)
        return readNull(place);
    if (parameter.kind == Kind::text || parameter.kind == Kind::bstr) {
        if (!PyUnicode_Check(given))
            fail(PyExc_TypeError, parameter, "expected a string, got %s", Py_TYPE(given)->tp_name);
        if (parameter.kind == Kind::text) {
            wchar_t* text = PyUnicode_AsWideCharString(given, nullptr);
            if (!text)
                throw PythonError{};
            texts_.emplace_back(text, PyMem_Free);
            values_[place].text = text;
        } else {
            singleStrings_.push_back(lengthPrefixed(*this, parameter, given));
            values_[place].bstr = textOf(singleStrings_.back());
        }
        return;
    }
    const std::int64_t rows = std::max<std::int64_t>(parameter.rows(values_), 0);
    const std::int64_t cols = std::max<std::int64_t>(parameter.cols(values_), 0);
    if (parameter.kind == Kind::strings) {
        const std::int64_t cells = (Whole(rows) * cols).value();
        strings_.push_back(std::make_unique<StringArray>(*this, parameter, given, cells, ""));
        cells_ += cells;
        values_[place].strings = strings_.back()->pointers();
    } else if (parameter.kind == Kind::columns || parameter.kind == Kind::stringColumns) {
        columns_.push_back(std::make_unique<ColumnArray>(*this, parameter, given, rows, cols));
        values_[place].columns = columns_.back()->address();
    } else {
        values_[place].array = arrayCells(parameter, given, parameter.kind, rows, cols, "");
        if (parameter.domain.kind == DomainKind::range)
            checkCells(*this, parameter, values_[place].array, (Whole(rows) * cols).value());
    }
}

// Cells that address memory were checked; what the call writes must not lie over them.
void Call::checkOverlaps() const
{
    for (int i = 0; i < function_.count; ++i) {
        const Parameter& held = function_.parameters[i];
        if (!held.addresses || !held.isWritten() || !values_[i].array)
            continue;
        for (int j = 0; j < function_.count; ++j) {
            const Parameter& other = function_.parameters[j];
            if (j == i || !other.isWritten() || other.isValue())
                continue;
            for (const Extent& extent : extents(j))
                if (extents(i).front().overlaps(extent))
                    fail(PyExc_ValueError, held, "shares its memory with the argument '%s', to which the call writes",
                         other.name);
        }
    }
}

// The caller's memory behind an argument: none for strings, which are copied.
std::vector<Extent> Call::extents(int place) const
{
    std::vector<Extent> found;
    if (function_.parameters[place].kind == Kind::columns) {
        for (const auto& columns : columns_)
            if (columns->address() == values_[place].columns)
                for (const SAFEARRAY& column : columns->columns())
                    found.push_back({static_cast<const char*>(column.pvData),
                                     std::size_t{column.rgsabound[0].cElements} * sizeof(double)});
    } else if (PyArray_Check(given_[place])) {
        auto* array = reinterpret_cast<PyArrayObject*>(given_[place]);
        found.push_back(
            {static_cast<const char*>(PyArray_DATA(array)), static_cast<std::size_t>(PyArray_NBYTES(array))});
    }
    return found;
}

void Call::invoke(Value& result)
{
    if (function_.runsAlone || cells_ < fewCells) {
        function_.invoke(values_, result);
        return;
    }
    std::exception_ptr thrown;
    Py_BEGIN_ALLOW_THREADS
    try {
        function_.invoke(values_, result);
    } catch (...) {
        thrown = std::current_exception();
    }
    Py_END_ALLOW_THREADS if (thrown) std::rethrow_exception(thrown);
}

PyObject* Call::converted(const Value& result) const
{
    switch (function_.result) {
    case Result::number:
        return PyFloat_FromDouble(result.number);
    case Result::integer:
        return PyLong_FromLong(result.integer);
    case Result::flag:
        return PyLong_FromLong(result.flag);
    case Result::bstr:
        return takenText(result.resultString);
    case Result::nothing:
        break;
    }
    Py_RETURN_NONE;
}

PyObject* Call::run()
{
    for (int i = 0; i < function_.count; ++i)
        if (function_.parameters[i].isValue())
            readNumber(i);
    for (int i = 0; i < function_.count; ++i) {
        const Parameter& parameter = function_.parameters[i];
        if (parameter.isValue() && parameter.domain.kind != DomainKind::any)
            checkNumber(*this, parameter, parameter.kind == Kind::flag ? values_[i].flag : values_[i].integer);
    }
    for (int i = 0; i < function_.count; ++i)
        if (!function_.parameters[function_.order[i]].isValue())
            readArray(function_.order[i]);
    if (function_.runsAlone)
        checkOverlaps();
    Value result{};
    invoke(result);
    Reference answer(converted(result));
    if (!answer)
        return nullptr;
    for (const auto& strings : strings_)
        if (!strings->handBack())
            return nullptr;
    for (const auto& columns : columns_)
        if (!columns->handBack())
            return nullptr;
    return answer.release();
}

PyObject* callFunction(const Function& function, PyObject* const* arguments, Py_ssize_t count, PyObject* names) noexcept
{
    PyObject* places[mostParameters];
    if (!placeArguments(function, arguments, count, names, places))
        return nullptr;
    try {
        Call call(function, places);
        return call.run();
    } catch (const PythonError&) {
        return nullptr;
    } catch (const std::bad_alloc&) {
        return PyErr_NoMemory();
    } catch (const std::length_error&) {
        return PyErr_NoMemory();
    } catch (const std::exception& error) {
        PyErr_Format(PyExc_RuntimeError, "%s(): %s", function.name, error.what());
        return nullptr;
    }
}

} // namespace vecmat::python
