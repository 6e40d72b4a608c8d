#include "column_arrays.h"

#include "calls/column_descriptor.h"

#include <algorithm>

namespace vecmat::r {

namespace {

// The list that is handed back: of the caller's form, its columns replaced one by one.
SEXP writable(Call& call, const Wanted& wanted, SEXP given)
{
    if (given != R_NilValue)
        return call.keep(guarded([&] { return Rf_shallow_duplicate(given); }));
    if (wanted.cols > (std::int64_t{1} << 31))
        call.fail(wanted.parameter, "%lld columns are more than fit in memory", static_cast<long long>(wanted.cols));
    return call.keep(guarded([&] { return Rf_allocVector(VECSXP, wanted.cols); }));
}

} // namespace

ColumnArray::ColumnArray(Call& call, const Wanted& wanted, SEXP given)
{
    const Parameter& parameter = wanted.parameter;
    if (given != R_NilValue) {
        if (TYPEOF(given) != VECSXP)
            call.fail(parameter, "expected a list of columns, got %s", described(given).c_str());
        if (parameter.atLeast ? XLENGTH(given) < wanted.cols : XLENGTH(given) != wanted.cols)
            call.fail(parameter, "expected %s%lld columns (%s), got %lld", parameter.atLeast ? "at least " : "",
                      static_cast<long long>(wanted.cols), parameter.shape, static_cast<long long>(XLENGTH(given)));
    }
    if (parameter.isHandedBack())
        object_ = writable(call, wanted, given);
    const auto count = static_cast<std::size_t>(given == R_NilValue ? wanted.cols : XLENGTH(given));
    columns_.resize(count);
    elements_.resize(count);
    for (std::size_t k = 0; k < count; ++k) {
        const std::int64_t lost = parameter.falling ? static_cast<std::int64_t>(k) : 0;
        const Wanted column{parameter, std::max<std::int64_t>(wanted.rows - lost, 0), 1,
                            "column " + std::to_string(k + 1) + ": "};
        SEXP own = given == R_NilValue ? R_NilValue : VECTOR_ELT(given, static_cast<R_xlen_t>(k));
        if (own == R_NilValue && given != R_NilValue)
            call.fail(parameter, "%sNULL may not stand here", column.which.c_str());
        takeIn(call, column, own, k);
    }
    outer_ = columnDescriptor(elements_.empty() ? noCells : static_cast<void*>(elements_.data()), elements_.size(),
                              sizeof(SAFEARRAYColumn));
}

void ColumnArray::takeIn(Call& call, const Wanted& column, SEXP given, std::size_t k)
{
    SEXP written = R_NilValue;
    if (column.parameter.kind == Kind::stringColumns) {
        strings_.push_back(std::make_unique<StringArray>(call, column, given));
        columns_[k] =
            columnDescriptor(strings_.back()->pointers(), static_cast<std::size_t>(column.rows), sizeof(void*));
        elements_[k].strings = &columns_[k];
        written = strings_.back()->object();
    } else {
        const Cells cells = call.arrayCells(column, given, Kind::doubles);
        columns_[k] = columnDescriptor(cells.data, static_cast<std::size_t>(column.rows), sizeof(double));
        elements_[k].numbers = &columns_[k];
        written = cells.object;
    }
    if (object_ != R_NilValue)
        SET_VECTOR_ELT(object_, static_cast<R_xlen_t>(k), written);
}

void ColumnArray::handBack() const
{
    for (const auto& strings : strings_)
        strings->handBack();
}

} // namespace vecmat::r
