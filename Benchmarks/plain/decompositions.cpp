// The iterations are those of the tests.
#include "plain.h"
#include "table.h"

#include "decompositions/eigen_reference.h"
#include "decompositions/nearest_correlation_reference.h"
#include "decompositions/svd_reference.h"

#include <algorithm>
#include <cstddef>

namespace vecmat::bench::plain {

namespace {

Cells square(const double* a, int n)
{
    return Cells(a, a + std::ptrdiff_t{n} * n);
}

test::ReferenceSvd decomposed(const double* x, int n, int p)
{
    constexpr int shortest = 21; // as many columns of u as of v
    const Cells cells(x, x + std::ptrdiff_t{n} * p);
    return test::SvdBySteps(cells, n, p, shortest, test::CheckedCells(n, std::min(n, p), 0.0),
                            test::CheckedCells(p, p, 0.0), {})
        .run();
}

} // namespace

void eigen(const double* a, double* values, double* vectors, int n)
{
    const test::ReferenceEigen found = test::sortedBySteps(square(a, n), n);
    std::copy(found.values.begin(), found.values.end(), values);
    std::copy(found.vectors.begin(), found.vectors.end(), vectors);
}

void singularValues(const double* x, int n, int p, double* s, double* u, double* v)
{
    const test::ReferenceSvd found = decomposed(x, n, p);
    std::copy(found.s.begin(), found.s.end(), s);
    std::copy(found.u.begin(), found.u.end(), u);
    std::copy(found.v.begin(), found.v.end(), v);
}

void generalisedInverse(const double* a, int n, double* out, double tol)
{
    test::ReferenceSvd found = decomposed(a, n, n);
    for (double& value : found.s)
        value = value >= tol ? 1.0 / value : 0.0;
    const Table u{found.u.data(), n};
    const Table v{found.v.data(), n};
    const Table result{out, n};
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
            double sum = 0.0;
            for (int k = 0; k < n; ++k)
                sum += v(i, k) * found.s[static_cast<std::size_t>(k)] * u(j, k);
            result(i, j) = sum;
        }
}

void nearestCorrelation(double* a, int n)
{
    const test::ReferenceNearest found = test::NearestBySteps(square(a, n), n).run();
    std::copy(found.cells.begin(), found.cells.end(), a);
}

} // namespace vecmat::bench::plain
