#include "plain.h"
#include "table.h"

namespace vecmat::bench::plain {

void product(const double* a, int rows, int inner, const double* b, int cols, double* out)
{
    const Table left{a, rows};
    const Table right{b, inner};
    const Table result{out, rows};
    for (int i = 0; i < rows; ++i)
        for (int j = 0; j < cols; ++j) {
            double sum = 0.0;
            for (int k = 0; k < inner; ++k)
                sum += left(i, k) * right(k, j);
            result(i, j) = sum;
        }
}

void crossProduct(const double* a, int rows, int cols, double* out)
{
    const Table x{a, rows};
    const Table result{out, cols};
    for (int i = 0; i < cols; ++i)
        for (int j = i; j < cols; ++j) {
            double sum = 0.0;
            for (int k = 0; k < rows; ++k)
                sum += x(k, i) * x(k, j);
            result(i, j) = result(j, i) = sum;
        }
}

} // namespace vecmat::bench::plain
