// What R's side of the package calls besides the flat functions.
#pragma once

#include <cpp11/R.hpp>

extern "C" {

SEXP vecmat_cells(SEXP x);
SEXP vecmat_column(SEXP x, SEXP j, SEXP buffer);
SEXP vecmat_frame_cells(SEXP columns, SEXP rows);
SEXP vecmat_values(SEXP x);
}
