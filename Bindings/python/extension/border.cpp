// The border between Python's habits and the library's cells: NaN on one side, the missing value on the other.
#define VECMAT_IMPORTS_NUMPY
#include "numpy_api.h"

#include <cmath>
#include <cstddef>

namespace {

constexpr double missing = -0x1.fffffffffffe2p+1023;

bool isPlain(PyObject* object)
{
    if (!PyArray_CheckExact(object))
        return false;
    auto* array = reinterpret_cast<PyArrayObject*>(object);
    return PyArray_TYPE(array) == NPY_FLOAT64 && PyArray_ISBEHAVED_RO(array) && PyArray_IS_F_CONTIGUOUS(array);
}

bool hasNaN(const double* cells, npy_intp count)
{
    // Without a branch for each cell, so that it runs at the speed of memory.
    bool found = false;
    for (npy_intp i = 0; i < count; ++i)
        found |= cells[i] != cells[i];
    return found;
}

// cells(x): float64 in column order with the missing value for each NaN; x itself where it is so already.
PyObject* cells(PyObject*, PyObject* given)
{
    const bool plain = isPlain(given);
    if (plain) {
        auto* array = reinterpret_cast<PyArrayObject*>(given);
        if (!hasNaN(static_cast<const double*>(PyArray_DATA(array)), PyArray_SIZE(array))) {
            Py_INCREF(given);
            return given;
        }
    }
    PyObject* copy = PyArray_FromAny(given, PyArray_DescrFromType(NPY_FLOAT64), 0, 0,
                                     NPY_ARRAY_F_CONTIGUOUS | NPY_ARRAY_ALIGNED | NPY_ARRAY_WRITEABLE |
                                         NPY_ARRAY_ENSUREARRAY | NPY_ARRAY_ENSURECOPY,
                                     nullptr);
    if (!copy)
        return nullptr;
    auto* array = reinterpret_cast<PyArrayObject*>(copy);
    auto* values = static_cast<double*>(PyArray_DATA(array));
    for (npy_intp i = 0; i < PyArray_SIZE(array); ++i)
        values[i] = std::isnan(values[i]) ? missing : values[i];
    return copy;
}

// values(a): NaN for each missing value, in place; gives the array, or the number, back.
PyObject* values(PyObject*, PyObject* given)
{
    if (PyFloat_Check(given)) {
        if (PyFloat_AS_DOUBLE(given) == missing)
            return PyFloat_FromDouble(NAN);
        Py_INCREF(given);
        return given;
    }
    if (!isPlain(given) || !PyArray_ISWRITEABLE(reinterpret_cast<PyArrayObject*>(given))) {
        PyErr_SetString(PyExc_TypeError, "values() takes a float, or an array of float64 in column order");
        return nullptr;
    }
    auto* array = reinterpret_cast<PyArrayObject*>(given);
    auto* cells = static_cast<double*>(PyArray_DATA(array));
    for (npy_intp i = 0; i < PyArray_SIZE(array); ++i)
        cells[i] = cells[i] == missing ? NAN : cells[i];
    Py_INCREF(given);
    return given;
}

// vector(x): whether x is an array of one dimension that goes in as it is, NaN or not.
PyObject* isVector(PyObject*, PyObject* given)
{
    return PyBool_FromLong(isPlain(given) && PyArray_NDIM(reinterpret_cast<PyArrayObject*>(given)) == 1);
}

PyMethodDef methods[] = {
    {"cells", cells, METH_O, nullptr},
    {"values", values, METH_O, nullptr},
    {"is_vector", isVector, METH_O, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

PyModuleDef module = {
    PyModuleDef_HEAD_INIT, "vecmat._border", nullptr, -1, methods, nullptr, nullptr, nullptr, nullptr};

} // namespace

PyMODINIT_FUNC PyInit__border()
{
    import_array();
    return PyModule_Create(&module);
}
