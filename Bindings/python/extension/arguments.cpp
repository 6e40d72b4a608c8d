#include "call.h"

#include <algorithm>
#include <cstring>

namespace vecmat::python {

namespace {

int placeOf(const Function& function, PyObject* name)
{
    for (int i = 0; i < function.count; ++i)
        if (PyUnicode_CompareWithASCIIString(name, function.parameters[i].name) == 0)
            return i;
    return -1;
}

bool placeNamed(const Function& function, PyObject* const* values, PyObject* names, PyObject** places)
{
    for (Py_ssize_t k = 0; k < PyTuple_GET_SIZE(names); ++k) {
        PyObject* name = PyTuple_GET_ITEM(names, k);
        const int place = placeOf(function, name);
        if (place < 0) {
            PyErr_Format(PyExc_TypeError, "%s() has no argument %R", function.name, name);
            return false;
        }
        if (places[place]) {
            PyErr_Format(PyExc_TypeError, "%s() got two values for the argument %R", function.name, name);
            return false;
        }
        places[place] = values[k];
    }
    return true;
}

} // namespace

bool placeArguments(const Function& function, PyObject* const* arguments, Py_ssize_t count, PyObject* names,
                    PyObject** places)
{
    if (count > function.count) {
        PyErr_Format(PyExc_TypeError, "%s() takes %d arguments, got %zd", function.name, function.count, count);
        return false;
    }
    std::copy_n(arguments, count, places);
    std::fill(places + count, places + function.count, nullptr);
    if (names && !placeNamed(function, arguments + count, names, places))
        return false;
    for (int i = 0; i < function.count; ++i)
        if (!places[i]) {
            PyErr_Format(PyExc_TypeError, "%s() lacks the argument '%s'", function.name, function.parameters[i].name);
            return false;
        }
    return true;
}

} // namespace vecmat::python
