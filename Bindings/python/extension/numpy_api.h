// Python's and NumPy's headers, in the order and with the settings that all sources of the module share.
#pragma once

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#define NPY_NO_DEPRECATED_API NPY_1_19_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL vecmat_numpy_api
#ifndef VECMAT_IMPORTS_NUMPY
#define NO_IMPORT_ARRAY
#endif
#include <numpy/arrayobject.h>
