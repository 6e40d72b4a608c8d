// The border between R's habits and the library's cells: NA and NaN on one side, the missing value on the other.
#include "border.h"

#include "call.h"

#include <cmath>

namespace vecmat::r {

namespace {

bool hasNaN(const double* cells, R_xlen_t count)
{
    // Without a branch for each cell, so that it runs at the speed of memory.
    bool found = false;
    for (R_xlen_t i = 0; i < count; ++i)
        found |= cells[i] != cells[i];
    return found;
}

void replaceNaN(const double* from, R_xlen_t count, double* to)
{
    for (R_xlen_t i = 0; i < count; ++i)
        to[i] = from[i] != from[i] ? missingValue : from[i];
}

void replaceNA(const int* from, R_xlen_t count, double* to)
{
    for (R_xlen_t i = 0; i < count; ++i)
        to[i] = from[i] == NA_INTEGER ? missingValue : from[i];
}

bool hasMissing(const double* cells, R_xlen_t count)
{
    bool found = false;
    for (R_xlen_t i = 0; i < count; ++i)
        found |= cells[i] == missingValue;
    return found;
}

void setMissing(double* cells, R_xlen_t count)
{
    for (R_xlen_t i = 0; i < count; ++i)
        if (cells[i] == missingValue)
            cells[i] = NA_REAL;
}

} // namespace

} // namespace vecmat::r

using namespace vecmat::r;

// cells(x): doubles with the missing value for each NA and NaN, attributes kept; x itself where it is so already.
SEXP vecmat_cells(SEXP x)
{
    const R_xlen_t count = XLENGTH(x);
    if (TYPEOF(x) == REALSXP) {
        if (!hasNaN(REAL(x), count))
            return x;
        SEXP copy = PROTECT(Rf_shallow_duplicate(x));
        replaceNaN(REAL(x), count, REAL(copy));
        UNPROTECT(1);
        return copy;
    }
    if (TYPEOF(x) != INTSXP && TYPEOF(x) != LGLSXP)
        Rf_error("expected numbers, got %s", Rf_type2char(TYPEOF(x)));
    SEXP cells = PROTECT(Rf_allocVector(REALSXP, count));
    replaceNA(TYPEOF(x) == INTSXP ? INTEGER(x) : LOGICAL(x), count, REAL(cells));
    Rf_setAttrib(cells, R_DimSymbol, Rf_getAttrib(x, R_DimSymbol));
    Rf_setAttrib(cells, R_DimNamesSymbol, Rf_getAttrib(x, R_DimNamesSymbol));
    UNPROTECT(1);
    return cells;
}

// column(x, j, buffer): the cells of column j, from 1, of a matrix, in the buffer, which belongs to the package alone. For one column
// after the other there is no more memory than for one.
SEXP vecmat_column(SEXP x, SEXP j, SEXP buffer)
{
    const R_xlen_t count = XLENGTH(buffer);
    const R_xlen_t first = (Rf_asInteger(j) - 1) * count;
    if (first < 0 || first + count > XLENGTH(x))
        Rf_error("there is no such column");
    if (TYPEOF(x) == REALSXP)
        replaceNaN(REAL(x) + first, count, REAL(buffer));
    else
        replaceNA((TYPEOF(x) == INTSXP ? INTEGER(x) : LOGICAL(x)) + first, count, REAL(buffer));
    return buffer;
}

// frame_cells(columns, rows): one table of the columns of a list, each of numbers and of that many rows.
SEXP vecmat_frame_cells(SEXP columns, SEXP rows)
{
    const R_xlen_t n = Rf_asInteger(rows);
    const R_xlen_t p = XLENGTH(columns);
    SEXP cells = PROTECT(Rf_allocMatrix(REALSXP, static_cast<int>(n), static_cast<int>(p)));
    for (R_xlen_t j = 0; j < p; ++j) {
        SEXP column = VECTOR_ELT(columns, j);
        if (XLENGTH(column) != n)
            Rf_error("column %d has %d rows, expected %d", static_cast<int>(j + 1), static_cast<int>(XLENGTH(column)),
                     static_cast<int>(n));
        double* const to = REAL(cells) + j * n;
        if (TYPEOF(column) == REALSXP)
            replaceNaN(REAL(column), n, to);
        else if (TYPEOF(column) == INTSXP || TYPEOF(column) == LGLSXP)
            replaceNA(TYPEOF(column) == INTSXP ? INTEGER(column) : LOGICAL(column), n, to);
        else
            Rf_error("column %d holds no numbers", static_cast<int>(j + 1));
    }
    UNPROTECT(1);
    return cells;
}

// values(x): NA for each missing value; x itself where there is none, or where nobody else has it.
SEXP vecmat_values(SEXP x)
{
    if (TYPEOF(x) != REALSXP || !hasMissing(REAL(x), XLENGTH(x)))
        return x;
    SEXP own = PROTECT(MAYBE_SHARED(x) ? Rf_shallow_duplicate(x) : x);
    setMissing(REAL(own), XLENGTH(own));
    UNPROTECT(1);
    return own;
}
