#include "rescaling.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/missing_value.h"
#include "../elementary/extremes.h"
#include "../frame/detail/handles.h"

#include <cmath>

using namespace vecmat;

namespace {

/// n / (n - 1), from the given row count, whatever the count of usable rows.
double inflation(int n)
{
    return n / (-1.0 + n);
}

void divideByNorms(matrix* table, int rows, int cols, matrix* norms, double c)
{
    if (rows < 1)
        return;
    const auto x = cells(table);
    for (int j = 0; j < cols; ++j)
        for (int i = 0; i < rows; ++i)
            x.set(i, j, std::sqrt(c) * (x.get(i, j) / linear(norms).get(j)));
}

} // namespace

void M_Normalize(matrix*& X, int n, int p, matrix*& norms, short* mask, matrix* w)
{
    const TableHandle units = w == nullptr ? fresh(n, 1, 1.0) : TableHandle();
    matrix* weights = w != nullptr ? w : static_cast<matrix*>(units);
    matrix::matCheck(norms, p, 1, 0.0);
    const double c = inflation(n);
    onBlocks(
        [&](auto x, auto weight) {
            for (int j = 0; j < p; ++j) {
                const auto enters = [&](int i) { return Mask(mask).keeps(i) && !isMissing(x.get(i, j)); };
                double sum = 0.0;
                for (int i = 0; i < n; ++i)
                    if (enters(i))
                        sum += x.get(i, j) * x.get(i, j) * weight.get(i);
                const double length = n < 1 ? 0.0 : std::sqrt(sum);
                for (int i = 0; i < n; ++i)
                    if (enters(i))
                        x.set(i, j, x.get(i, j) / length * squareRoot(c));
                linear(norms).set(j, length);
            }
        },
        block(cells(X), n, p), block(linear(weights), n));
}

void M_NormalizeMatrix(matrix*& X, int n, int p, matrix*& Y, int nY, matrix*& V, int nV)
{
    TableHandle norms;
    M_Normalize(X, n, p, norms.reference(), nullptr, nullptr);
    divideByNorms(Y, nY, p, norms, inflation(n));
    divideByNorms(V, nV, p, norms, inflation(n));
}

void V_Rescale(matrix* v, int n, double low, double high, short* mask, matrix* out)
{
    const double least = V_Min(v, n, mask);
    const double range = V_Max(v, n, mask) - least;
    const bool flat = range < negligible;
    const auto x = linear(v);
    const auto z = linear(out);
    for (int i = 0; i < n; ++i)
        if (!Mask(mask).keeps(i))
            z.set(i, missingValue);
        else if (flat)
            z.set(i, (low + high) * 0.5);
        else
            z.set(i, (x.get(i) - least) * (high - low) / range + low);
}
