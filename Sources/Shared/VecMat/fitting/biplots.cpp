#include "biplots.h"

#include "../access/cells.h"
#include "../access/prepared_result.h"
#include "../base/detail/companions.h"
#include "../base/detail/mathematics/mathematics.h"
#include "../base/detail/numbers.h"
#include "../base/missing_value.h"
#include "../elementary/scalar_arithmetic.h"
#include "../elementary/sums_and_norms.h"
#include "../frame/detail/handles.h"

#include <algorithm>
#include <cstddef>
#include <vector>

using namespace vecmat;

namespace {

using Factors = std::vector<double>;

Factors observationFactors(matrix* eigen, int k, double alpha)
{
    Factors factors(countOf(k));
    for (int j = 0; j < k; ++j)
        factors[static_cast<std::size_t>(j)] = vecmat::pow(linear(eigen).get(j), alpha * 0.5 - 0.5);
    return factors;
}

Factors variableFactors(matrix* eigen, int k, double alpha)
{
    Factors factors(countOf(k));
    // The cells stay unchanged, without multiplying by the vanished factor of an eigenvalue of 0.
    if (alpha == 0.0) {
        std::fill(factors.begin(), factors.end(), 1.0);
        return factors;
    }
    for (int j = 0; j < k; ++j) {
        const double value = linear(eigen).get(j);
        factors[static_cast<std::size_t>(j)] = value == 0.0 ? 0.0 : vecmat::pow(value, alpha * -0.5);
    }
    return factors;
}

/// Multiplies each of the `count` columns by its factor, into the rows of `out` from `firstRow`; missing cells stay
/// missing.
template <class From>
void scaleAxes(From from, int rows, const Factors& factors, matrix* out, int firstRow)
{
    const int count = static_cast<int>(factors.size());
    onBlocks(
        [&](auto x, auto y) {
            for (int i = 0; i < rows; ++i)
                for (int j = 0; j < count; ++j) {
                    const double cell = x.get(i, j);
                    y.set(firstRow + i, j, isMissing(cell) ? cell : cell * factors[static_cast<std::size_t>(j)]);
                }
        },
        block(from, rows, count), block(cells(out), firstRow + rows, count));
}

/// Storage is `matrix*` or `matrix**`.
template <class Storage>
void biplot(Storage rows, matrix* sup, Storage cols, int nA, int nB, int m, int k, matrix* eigen, double factor,
            double alpha, matrix*& obs, matrix*& var)
{
    const int active = std::max(nA, 0);
    const int supplementary = std::max(nB, 0);
    const auto replacedObs = prepare(obs, active + supplementary, k);
    const auto replacedVar = prepare(var, m, k);

    const Factors forObservations = observationFactors(eigen, k, alpha);
    scaleAxes(cells(rows), active, forObservations, obs, 0);
    if (supplementary > 0)
        scaleAxes(cells(sup), supplementary, forObservations, obs, active);

    scaleAxes(cells(cols), m, variableFactors(eigen, k, alpha), var, 0);
    if (factor != 1.0)
        M_ScalarsA2(var, m, k, squareRoot(factor));
}

/// `squares` holds the sum of squares of each row. By rows: in a result with fewer than n rows a point runs over into
/// the next column, and the last one written remains.
template <class From>
void cosines(From a, matrix* squares, int n, int k, matrix* out)
{
    onBlocks(
        [&](auto x, auto y) {
            for (int i = 0; i < n; ++i) {
                const double square = linear(squares).get(i);
                for (int j = 0; j < k; ++j) {
                    const double cell = x.get(i, j);
                    if (isMissing(square))
                        y.set(i, j, missingValue);
                    else if (square > zeroTolerance)
                        y.set(i, j, cell * cell / square);
                }
            }
        },
        block(a, n, k), block(cells(out), n, k));
}

} // namespace

void BiplotTransData(matrix* rows, matrix* sup, matrix* cols, int nA, int nB, int m, int k, matrix* eigen,
                     double factor, double alpha, matrix*& obs, matrix*& var)
{
    biplot(rows, sup, cols, nA, nB, m, k, eigen, factor, alpha, obs, var);
}

void BiplotTransData(matrix** rows, matrix* sup, matrix** cols, int nA, int nB, int m, int k, matrix* eigen,
                     double factor, double alpha, matrix*& obs, matrix*& var)
{
    biplot(rows, sup, cols, nA, nB, m, k, eigen, factor, alpha, obs, var);
}

void cComputeCosines(matrix* a, int n, int k, matrix*& out)
{
    TableHandle squares = fresh(n, 1);
    M_SquaredRows(a, n, k, squares.reference());
    cosines(cells(a), squares, n, k, out);
}

void cComputeCosinesSPV(matrix** a, int n, int k, matrix*& out)
{
    TableHandle squares = fresh(n, 1);
    M_SquaredRowsSPV(a, n, k, squares.reference());
    cosines(cells(a), squares, n, k, out);
}

void M_BoldCosines(matrixInt* best, int n, matrixInt* flags)
{
    for (int i = 0; i < n; ++i)
        flags->vbset(i + 1, best->vbget(i + 1, 1), -1);
}

void M_GetMaxDistToOrigin(matrix* a, int n, int k, double* maxDistance, int* row)
{
    *maxDistance = 0.0;
    *row = 0;
    onBlocks(
        [=](auto x) {
            for (int i = 0; i < n; ++i) {
                double sum = 0.0;
                for (int j = 0; j < k; ++j)
                    sum += x.get(i, j) * x.get(i, j);
                const double distance = squareRoot(sum);
                if (distance > *maxDistance) {
                    *maxDistance = distance;
                    *row = i + 1;
                }
            }
        },
        block(cells(a), n, k));
}
