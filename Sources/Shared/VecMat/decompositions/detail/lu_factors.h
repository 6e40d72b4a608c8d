// The factors of `M_LUDecomp`, for callers that need no index. Internal to the library.
#pragma once

#include "crout.h"

namespace vecmat {

/// Factors P a = L U of order n in place, with the exchanges that make P. Returns the status as `M_LUDecomp` reports
/// it.
short factorInPlace(matrix* a, int n, RowExchanges& exchanges);

} // namespace vecmat
