// Tables given as a list of columns, wrapped in the descriptors that the library reads.
#pragma once

#include "string_arrays.h"

#include <frame/super_matrices.h>

namespace vecmat::r {

class ColumnArray
{
public:
    ColumnArray(Call& call, const Wanted& wanted, SEXP given);
    ColumnArray(const ColumnArray&) = delete;
    ColumnArray& operator=(const ColumnArray&) = delete;

    SAFEARRAY** address() { return &pointer_; }
    // The list that is handed back; R_NilValue where the call only reads.
    SEXP object() const { return object_; }
    void handBack() const;

private:
    void takeIn(Call& call, const Wanted& column, SEXP given, std::size_t k);

    SEXP object_ = R_NilValue;
    std::vector<SAFEARRAY> columns_;
    std::vector<SAFEARRAYColumn> elements_;
    std::vector<std::unique_ptr<StringArray>> strings_;
    SAFEARRAY outer_{};
    SAFEARRAY* pointer_ = &outer_;
};

} // namespace vecmat::r
