// Tables given as a list of columns, wrapped in the descriptors that the library reads.
#pragma once

#include "string_arrays.h"

#include "frame/super_matrices.h"

#include <memory>
#include <vector>

namespace vecmat::python {

class ColumnArray
{
public:
    ColumnArray(Call& call, const Parameter& parameter, PyObject* given, std::int64_t rows, std::int64_t cols);
    ColumnArray(const ColumnArray&) = delete;
    ColumnArray& operator=(const ColumnArray&) = delete;

    SAFEARRAY** address() { return &pointer_; }
    bool handBack() const;
    // The memory of each column of numbers, for the test of overlaps.
    const std::vector<SAFEARRAY>& columns() const { return columns_; }

private:
    std::vector<SAFEARRAY> columns_;
    std::vector<SAFEARRAYColumn> elements_;
    std::vector<std::unique_ptr<StringArray>> strings_;
    std::vector<Reference> views_;
    SAFEARRAY outer_{};
    SAFEARRAY* pointer_ = &outer_;
};

} // namespace vecmat::python
