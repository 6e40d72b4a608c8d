// Arrays of numbers: taken as they are where their memory fits, converted where they are only read, refused elsewhere.
#include "call.h"

#include <limits>

namespace vecmat::python {

namespace {

int typeNumber(Kind kind)
{
    return kind == Kind::ints ? NPY_INT32 : kind == Kind::flags ? NPY_INT16 : NPY_FLOAT64;
}
const char* typeName(Kind kind)
{
    return kind == Kind::ints ? "int32" : kind == Kind::flags ? "int16" : "float64";
}

// How a thing that does not fit is called in a message.
Reference described(PyObject* given)
{
    if (!PyArray_Check(given))
        return Reference(PyUnicode_FromFormat("%s", Py_TYPE(given)->tp_name));
    PyArrayObject* array = reinterpret_cast<PyArrayObject*>(given);
    const Reference shape(PyObject_GetAttrString(given, "shape"));
    return Reference(PyUnicode_FromFormat("an array of %S with the shape %S",
                                          reinterpret_cast<PyObject*>(PyArray_DESCR(array)), shape.get()));
}

[[noreturn]] void wrongType(const Call& call, const Parameter& parameter, PyObject* given, const char* expected,
                            const char* which)
{
    const Reference got = described(given);
    call.fail(PyExc_TypeError, parameter, "%sexpected %s, got %S", which, expected, got.get());
}

class Sizes
{
public:
    Sizes(const Parameter& parameter, std::int64_t rows, std::int64_t cols)
        : parameter_(parameter), rows_(rows), cols_(cols), cells_((Whole(rows) * cols).value())
    {
    }
    bool fit(PyArrayObject* array) const
    {
        const int dimensions = PyArray_NDIM(array);
        const std::int64_t size = PyArray_SIZE(array);
        if (dimensions > 2 || (parameter_.atLeast ? size < cells_ : size != cells_))
            return false;
        return dimensions < 2 || cells_ == 0 || PyArray_DIM(array, 0) == rows_;
    }
    [[noreturn]] void refuse(const Call& call, PyObject* given, const char* which) const
    {
        const Reference got = described(given);
        const char* const least = parameter_.atLeast ? "at least " : "";
        if (cols_ == 1)
            call.fail(PyExc_ValueError, parameter_, "%sexpected %s%lld cells (%s), got %S", which, least,
                      static_cast<long long>(rows_), parameter_.shape, got.get());
        call.fail(PyExc_ValueError, parameter_, "%sexpected %s%lld rows and %lld columns (%s), got %S", which, least,
                  static_cast<long long>(rows_), static_cast<long long>(cols_), parameter_.shape, got.get());
    }

private:
    const Parameter& parameter_;
    std::int64_t rows_;
    std::int64_t cols_;
    std::int64_t cells_;
};

// Ints of other widths, whose values have to fit.
Reference narrowed(const Call& call, const Parameter& parameter, PyObject* whole, Kind kind, const char* which)
{
    const Reference wide(PyArray_FromAny(whole, PyArray_DescrFromType(NPY_INT64), 0, 2,
                                         NPY_ARRAY_F_CONTIGUOUS | NPY_ARRAY_ALIGNED | NPY_ARRAY_FORCECAST, nullptr));
    if (!wide)
        throw PythonError{};
    auto* array = reinterpret_cast<PyArrayObject*>(wide.get());
    const auto* cells = static_cast<const std::int64_t*>(PyArray_DATA(array));
    const std::int64_t most = kind == Kind::ints ? std::numeric_limits<int>::max() : std::numeric_limits<short>::max();
    for (npy_intp i = 0; i < PyArray_SIZE(array); ++i)
        if (cells[i] > most || cells[i] < -most - 1)
            call.fail(PyExc_ValueError, parameter, "%scell %lld is %lld, which does not fit in %s", which,
                      static_cast<long long>(i), static_cast<long long>(cells[i]), typeName(kind));
    Reference narrow(PyArray_FromAny(wide.get(), PyArray_DescrFromType(typeNumber(kind)), 0, 2,
                                     NPY_ARRAY_F_CONTIGUOUS | NPY_ARRAY_ALIGNED | NPY_ARRAY_FORCECAST, nullptr));
    if (!narrow)
        throw PythonError{};
    return narrow;
}

// True is -1 where flags are meant, as it is for the library's other callers.
void negate(PyObject* flags)
{
    auto* array = reinterpret_cast<PyArrayObject*>(flags);
    auto* cells = static_cast<short*>(PyArray_DATA(array));
    for (npy_intp i = 0; i < PyArray_SIZE(array); ++i)
        cells[i] = static_cast<short>(-cells[i]);
}

Reference convertedArray(const Call& call, const Parameter& parameter, PyObject* given, Kind kind, const char* which)
{
    const Reference any(PyArray_FromAny(given, nullptr, 0, 0, 0, nullptr));
    if (!any) {
        if (PyErr_ExceptionMatches(PyExc_MemoryError))
            throw PythonError{};
        PyErr_Clear();
        wrongType(call, parameter, given, "an array of numbers", which);
    }
    auto* array = reinterpret_cast<PyArrayObject*>(any.get());
    const int type = PyArray_TYPE(array);
    const bool isWhole = PyTypeNum_ISINTEGER(type) || PyTypeNum_ISBOOL(type);
    const bool isEmpty = PyArray_SIZE(array) == 0 && !PyArray_Check(given);
    const bool isNumber = isWhole || PyTypeNum_ISFLOAT(type);
    if (!isEmpty && (PyArray_NDIM(array) > 2 || !(kind == Kind::doubles ? isNumber : isWhole)))
        wrongType(call, parameter, any.get(),
                  kind == Kind::doubles ? "an array of float64" : "an array of whole numbers", which);
    if (kind != Kind::doubles && !PyTypeNum_ISBOOL(type))
        return narrowed(call, parameter, any.get(), kind, which);
    Reference result(PyArray_FromAny(
        any.get(), PyArray_DescrFromType(typeNumber(kind)), 0, 2,
        NPY_ARRAY_F_CONTIGUOUS | NPY_ARRAY_ALIGNED | NPY_ARRAY_FORCECAST | NPY_ARRAY_ENSURECOPY, nullptr));
    if (!result)
        throw PythonError{};
    if (kind == Kind::flags)
        negate(result.get());
    return result;
}

bool memoryFits(PyArrayObject* array, Kind kind)
{
    return PyArray_TYPE(array) == typeNumber(kind) && PyArray_ISBEHAVED_RO(array) && PyArray_IS_F_CONTIGUOUS(array);
}

void requireMemory(const Call& call, const Parameter& parameter, PyObject* given, Kind kind, const char* which)
{
    if (!PyArray_Check(given)) {
        const Reference got = described(given);
        call.fail(PyExc_TypeError, parameter, "%sexpected a numpy array of %s, which the call writes to, got %S", which,
                  typeName(kind), got.get());
    }
    auto* array = reinterpret_cast<PyArrayObject*>(given);
    if (PyArray_TYPE(array) != typeNumber(kind) || !PyArray_ISNOTSWAPPED(array)) {
        const Reference got = described(given);
        call.fail(PyExc_TypeError, parameter, "%sexpected an array of %s, which the call writes to, got %S", which,
                  typeName(kind), got.get());
    }
    if (!PyArray_ISWRITEABLE(array))
        call.fail(PyExc_ValueError, parameter, "%sthe call writes to this array, which is read-only", which);
    if (!PyArray_IS_F_CONTIGUOUS(array) || !PyArray_ISALIGNED(array))
        call.fail(PyExc_ValueError, parameter,
                  "%sthe call writes to this array, which is not contiguous column after column (order='F')", which);
}

} // namespace

void* Call::arrayCells(const Parameter& parameter, PyObject* given, Kind kind, std::int64_t rows, std::int64_t cols,
                       const char* which)
{
    const Sizes sizes(parameter, rows, cols);
    if (parameter.isWritten())
        requireMemory(*this, parameter, given, kind, which);
    auto* array = reinterpret_cast<PyArrayObject*>(given);
    if (!PyArray_Check(given) || !memoryFits(array, kind) || (parameter.addresses && !parameter.isWritten())) {
        Reference converted = convertedArray(*this, parameter, given, kind, which);
        array = reinterpret_cast<PyArrayObject*>(converted.get());
        kept_.push_back(std::move(converted));
    }
    if (!sizes.fit(array))
        sizes.refuse(*this, given, which);
    cells_ += PyArray_SIZE(array);
    return PyArray_DATA(array) && PyArray_SIZE(array) > 0 ? PyArray_DATA(array) : noCells;
}

} // namespace vecmat::python
