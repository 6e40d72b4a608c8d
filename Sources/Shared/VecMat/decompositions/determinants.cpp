#include "determinants.h"

#include "../base/detail/companions.h"
#include "../base/detail/mathematics/mathematics.h"
#include "../base/missing_value.h"
#include "detail/crout.h"
#include "detail/lu_factors.h"

#include <optional>

using namespace vecmat;

namespace {

constexpr double smallestLogarithm = -708.0;
constexpr double largestLogarithm = 709.0;

/// The factors of a private copy.
struct Factored
{
    matrix factors;
    double parity;
    short status;

    Factored(matrix* a, int n) : factors(*a)
    {
        RowExchanges exchanges;
        status = factorInPlace(&factors, n, exchanges);
        parity = exchanges.parity;
    }
};

/// The product of the diagonal, as log magnitude and number of negative cells.
struct DiagonalProduct
{
    double logarithm = 0.0;
    int negatives = 0;

    bool isOdd() const { return negatives % 2 != 0; }
};

/// None if a cell is exactly 0.
std::optional<DiagonalProduct> diagonalProduct(matrix* a, int n)
{
    DiagonalProduct product;
    for (int i = 1; i <= n; ++i) {
        double x = a->vbget(i, i);
        if (x == 0.0)
            return std::nullopt;
        if (x < 0.0) {
            x = -x;
            ++product.negatives;
        }
        product.logarithm += vecmat::log(x);
    }
    return product;
}

double negatedIf(bool odd, double value)
{
    return odd ? -value : value;
}

} // namespace

double M_Determinant(matrix* a, int n, short* status, short logOnOverflow)
{
    try {
        Factored lu(a, n);
        *status = lu.status;
        if (lu.status != 0)
            return 0.0;
        const std::optional<DiagonalProduct> product = diagonalProduct(&lu.factors, n);
        if (!product || product->logarithm < smallestLogarithm)
            return 0.0;
        if (product->logarithm > largestLogarithm) {
            if (logOnOverflow == -1)
                return negatedIf(product->isOdd(), lu.parity * product->logarithm);
            *status = -1;
            return positiveTwin;
        }
        return negatedIf(product->isOdd(), lu.parity * vecmat::exp(product->logarithm));
    } catch (...) {
        *status = -1;
        return positiveTwin;
    }
}

double M_LogDeterminant(matrix* a, int n)
{
    Factored lu(a, n);
    // Without a pivot in the first column the computation still goes on, on the table as it is.
    if (lu.status == -1)
        return missingValue;
    const std::optional<DiagonalProduct> product = diagonalProduct(&lu.factors, n);
    if (!product)
        return 0.0;
    if (!product->isOdd() && lu.parity > 0.0)
        return product->logarithm + vecmat::log(lu.parity);
    if (product->isOdd() && !(lu.parity > 0.0))
        return product->logarithm + vecmat::log(-lu.parity);
    return missingValue;
}

double M_DeterminantTriang(matrix* a, int n, short* status)
{
    *status = 0;
    const std::optional<DiagonalProduct> product = diagonalProduct(a, n);
    if (!product)
        return 0.0;
    try {
        const bool odd = Mod(product->negatives, 2) != 0;
        return negatedIf(odd, vecmat::exp(product->logarithm));
    } catch (...) {
        *status = -1;
        return positiveTwin;
    }
}
