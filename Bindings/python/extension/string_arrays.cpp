#include "string_arrays.h"

#include "CompanionRuntime/CompanionRuntime.h"

#include <cstring>
#include <functional>

namespace vecmat::python {

namespace {

constexpr std::size_t lengthBytes = 8; // 4 of them the length; the text that follows begins at a multiple of 4

// Appends one text, length first, and says where it begins.
std::size_t append(std::vector<char>& memory, const Call& call, const Parameter& parameter, PyObject* text,
                   const char* which)
{
    const Reference encoded(PyUnicode_AsEncodedString(text, "utf-16-le", "surrogatepass"));
    if (!encoded)
        throw PythonError{};
    const auto bytes = static_cast<std::size_t>(PyBytes_GET_SIZE(encoded.get()));
    if (PyUnicode_FindChar(text, 0, 0, PyUnicode_GetLength(text), 1) >= 0)
        call.fail(PyExc_ValueError, parameter, "%sa string holds a null character: %R", which, text);
    const std::size_t begin = memory.size() + lengthBytes;
    memory.resize((begin + bytes + 2 + 7) / 8 * 8);
    const auto length = static_cast<std::uint32_t>(bytes);
    std::memcpy(memory.data() + begin - 4, &length, 4);
    std::memcpy(memory.data() + begin, PyBytes_AS_STRING(encoded.get()), bytes);
    return begin;
}

PyObject* decoded(const wchar_t* bstr)
{
    if (!bstr)
        return PyUnicode_FromStringAndSize("", 0);
    std::uint32_t bytes = 0;
    std::memcpy(&bytes, reinterpret_cast<const char*>(bstr) - 4, 4);
    int order = -1;
    return PyUnicode_DecodeUTF16(reinterpret_cast<const char*>(bstr), bytes, "surrogatepass", &order);
}

// The strings as a list or tuple; arrays of strings and objects are read column after column.
Reference sequence(const Call& call, const Parameter& parameter, PyObject* given, const char* which)
{
    if (parameter.isWritten()) {
        if (!PyList_Check(given))
            call.fail(PyExc_TypeError, parameter, "%sexpected a list of strings, which the call writes to, got %s",
                      which, Py_TYPE(given)->tp_name);
    } else if (PyArray_Check(given)) {
        const Reference flat(PyArray_Ravel(reinterpret_cast<PyArrayObject*>(given), NPY_FORTRANORDER));
        if (!flat)
            throw PythonError{};
        Reference list(PyArray_ToList(reinterpret_cast<PyArrayObject*>(flat.get())));
        if (!list)
            throw PythonError{};
        return list;
    } else if (!PyList_Check(given) && !PyTuple_Check(given)) {
        call.fail(PyExc_TypeError, parameter, "%sexpected a list of strings, got %s", which, Py_TYPE(given)->tp_name);
    }
    Py_INCREF(given);
    return Reference(given);
}

} // namespace

StringArray::StringArray(const Call& call, const Parameter& parameter, PyObject* given, std::int64_t cells,
                         const char* which)
{
    const Reference items(sequence(call, parameter, given, which));
    const Py_ssize_t count = PySequence_Fast_GET_SIZE(items.get());
    if (parameter.atLeast ? count < cells : count != cells)
        call.fail(PyExc_ValueError, parameter, "%sexpected %s%lld strings (%s), got %zd", which,
                  parameter.atLeast ? "at least " : "", static_cast<long long>(cells), parameter.shape, count);
    constexpr std::size_t none = ~std::size_t{0};
    std::vector<std::size_t> begins(static_cast<std::size_t>(count), none);
    for (Py_ssize_t i = 0; i < count; ++i) {
        PyObject* item = PySequence_Fast_GET_ITEM(items.get(), i);
        if (item == Py_None)
            continue;
        if (!PyUnicode_Check(item))
            call.fail(PyExc_TypeError, parameter, "%selement %zd: expected a string or None, got %s", which, i,
                      Py_TYPE(item)->tp_name);
        begins[static_cast<std::size_t>(i)] = append(memory_, call, parameter, item, which);
    }
    pointers_.resize(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < pointers_.size(); ++i)
        pointers_[i] = begins[i] == none ? nullptr : reinterpret_cast<wchar_t*>(memory_.data() + begins[i]);
    if (parameter.isWritten()) {
        list_ = given;
        Py_INCREF(list_);
    }
}

StringArray::~StringArray()
{
    for (wchar_t* text : pointers_)
        if (text && !isOwn(text))
            SysFreeString2(text);
    Py_XDECREF(list_);
}

bool StringArray::isOwn(const wchar_t* text) const
{
    const auto* address = reinterpret_cast<const char*>(text);
    return !std::less<>{}(address, memory_.data()) && std::less<>{}(address, memory_.data() + memory_.size());
}

bool StringArray::handBack() const
{
    if (!list_)
        return true;
    for (std::size_t i = 0; i < pointers_.size(); ++i) {
        PyObject* text = decoded(pointers_[i]);
        if (!text || PyList_SetItem(list_, static_cast<Py_ssize_t>(i), text) != 0)
            return false;
    }
    return true;
}

std::vector<char> lengthPrefixed(const Call& call, const Parameter& parameter, PyObject* given)
{
    std::vector<char> memory;
    append(memory, call, parameter, given, "");
    return memory;
}

wchar_t* textOf(std::vector<char>& lengthPrefixedString)
{
    return reinterpret_cast<wchar_t*>(lengthPrefixedString.data() + lengthBytes);
}

PyObject* takenText(wchar_t* bstr)
{
    PyObject* text = decoded(bstr);
    SysFreeString2(bstr);
    return text;
}

} // namespace vecmat::python
