// Groups of rows, written straight to a caller's array. Internal to the library.
#pragma once

#include "../../matrix.h"
#include "../../matrixInt.h"

namespace vecmat {

/// `M_GroupBy`, if nothing can fail once `out` is written. Returns false, having done nothing, otherwise.
bool groupInPlace(matrix* data, int nRows, int nCols, matrixInt* colTypes, int keyCol, int aggregate, int* nGroups,
                  matrix* out);

} // namespace vecmat
