#include "column_arrays.h"

#include "calls/column_descriptor.h"

namespace vecmat::python {

namespace {

// The columns as a list: of a table, views of its columns.
Reference listed(const Call& call, const Parameter& parameter, PyObject* given)
{
    if (PyArray_Check(given) && PyArray_NDIM(reinterpret_cast<PyArrayObject*>(given)) == 2 && !parameter.falling) {
        const Reference turned(PyArray_Transpose(reinterpret_cast<PyArrayObject*>(given), nullptr));
        if (!turned)
            throw PythonError{};
        Reference list(PySequence_List(turned.get()));
        if (!list)
            throw PythonError{};
        return list;
    }
    if (!PyList_Check(given) && !PyTuple_Check(given))
        call.fail(PyExc_TypeError, parameter, "expected a list of columns, got %s", Py_TYPE(given)->tp_name);
    // A list of its own: the caller's may change while the columns are read.
    return Reference(PySequence_List(given));
}

} // namespace

ColumnArray::ColumnArray(Call& call, const Parameter& parameter, PyObject* given, std::int64_t rows, std::int64_t cols)
{
    Reference list = listed(call, parameter, given);
    if (!list)
        throw PythonError{};
    const Py_ssize_t count = PyList_GET_SIZE(list.get());
    if (parameter.atLeast ? count < cols : count != cols)
        call.fail(PyExc_ValueError, parameter, "expected %s%lld columns (%s), got %zd",
                  parameter.atLeast ? "at least " : "", static_cast<long long>(cols), parameter.shape, count);
    columns_.resize(static_cast<std::size_t>(count));
    elements_.resize(columns_.size());
    for (std::size_t k = 0; k < columns_.size(); ++k) {
        PyObject* column = PyList_GET_ITEM(list.get(), static_cast<Py_ssize_t>(k));
        char which[40];
        PyOS_snprintf(which, sizeof which, "column %zu: ", k);
        const std::int64_t cells =
            std::max<std::int64_t>(rows - (parameter.falling ? static_cast<std::int64_t>(k) : 0), 0);
        if (parameter.kind == Kind::stringColumns) {
            strings_.push_back(std::make_unique<StringArray>(call, parameter, column, cells, which));
            call.countCells(cells);
            columns_[k] = columnDescriptor(strings_.back()->pointers(), static_cast<std::size_t>(cells), sizeof(void*));
            elements_[k].strings = &columns_[k];
        } else {
            void* data = call.arrayCells(parameter, column, Kind::doubles, cells, 1, which);
            columns_[k] = columnDescriptor(data, static_cast<std::size_t>(cells), sizeof(double));
            elements_[k].numbers = &columns_[k];
        }
    }
    outer_ = columnDescriptor(elements_.empty() ? noCells : static_cast<void*>(elements_.data()), elements_.size(),
                              sizeof(SAFEARRAYColumn));
    views_.push_back(std::move(list));
}

bool ColumnArray::handBack() const
{
    for (const auto& strings : strings_)
        if (!strings->handBack())
            return false;
    return true;
}

} // namespace vecmat::python
