// The sum of all cells, which has a flat form only.
#pragma once

class matrix;

namespace vecmat {

/// The sums of the first `rows` columns, one after the other; missing where one of these sums is. Columns past the last
/// have the sum 0.0.
double sumOfColumnSums(matrix* a, int rows, int cols);

} // namespace vecmat
