#include "standardisation.h"

#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/detail/masks.h"
#include "../base/detail/numbers.h"
#include "../base/detail/running_moments.h"
#include "../base/missing_value.h"
#include "../frame/detail/handles.h"

#include <cmath>
#include <cstddef>
#include <memory>

using namespace vecmat;

namespace {

/// A column without spread is divided by 1.0.
double divisorOf(double deviation)
{
    return deviation == 0.0 ? 1.0 : deviation;
}

/// Divides the first `rows` cells of each column of a companion table.
void divideColumns(matrix* table, int rows, int cols, matrix* divisors)
{
    if (rows < 1)
        return;
    const auto x = cells(table);
    for (int j = 0; j < cols; ++j) {
        const double divisor = linear(divisors).get(j);
        for (int i = 0; i < rows; ++i)
            x.set(i, j, x.get(i, j) / divisor);
    }
}

/// A mask with 1 for each row that has a missing cell.
std::unique_ptr<short[]> incompleteRows(matrix* X, int n, int p)
{
    auto mask = std::make_unique<short[]>(countOf(n));
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < p; ++j)
            if (isMissing(cells(X).get(i, j)))
                mask[static_cast<std::size_t>(i)] = 1;
    return mask;
}

} // namespace

void M_Standardize(matrix* X, int n, int p, matrix*& Z, matrix*& mean, matrix*& stdev, matrix*& var, short* mask,
                   matrix* w, short sample, short freqWeights)
{
    matrix::matCheck(Z, n, p, 0.0);
    matrix::matCheck(mean, p, 1, 0.0);
    matrix::matCheck(var, p, 1, 0.0);
    matrix::matCheck(stdev, p, 1, 0.0);
    const auto standardiseColumn = [&](auto x, auto z, auto weight, int j) {
        const auto enters = [&](int i) { return Mask(mask).keeps(i) && isPresent(x.get(i, j)); };
        RunningVariance<update::Weighted, ZeroWeight::counted> moments;
        for (int i = 0; i < n; ++i)
            if (enters(i))
                moments.add(x.get(i, j), weight.get(i));
        const double divisor = varianceDivisor(moments.weights, moments.rows, sample, freqWeights);
        if (divisor == 0.0) {
            for (matrix* statistic : {mean, var, stdev})
                linear(statistic).set(j, missingValue);
            return false;
        }
        const double variance = moments.squares / divisor;
        const double deviation = std::sqrt(variance);
        for (int i = 0; i < n; ++i)
            z.set(i, j, enters(i) ? (x.get(i, j) - moments.mean) / divisorOf(deviation) : missingValue);
        linear(mean).set(j, moments.mean);
        linear(var).set(j, variance);
        linear(stdev).set(j, deviation);
        return true;
    };
    onBlocks(
        [&](auto x, auto z, auto weight) {
            // The first column that cannot be divided ends the whole loop.
            for (int j = 0; j < p; ++j)
                if (!standardiseColumn(x, z, weight, j))
                    return;
        },
        block(cells(X), n, p), block(cells(Z), n, p), block(linear(w), n));
}

void M_StandardizeW(matrix* X, int n, int p, matrix* w, short sample, short freqWeights, matrix* Z)
{
    onBlocks(
        [&](auto x, auto z, auto weight) {
            for (int j = 0; j < p; ++j) {
                RunningVariance<update::Conditional, ZeroWeight::counted> moments;
                for (int i = 0; i < n; ++i)
                    moments.add(x.get(i, j), weight.get(i));
                double W = moments.weights;
                if (sample == -1)
                    W -= freqWeights == -1 ? 1.0 : (n < 1 ? 0.0 : W / n);
                const double divisor = divisorOf(squareRoot(moments.squares / W));
                for (int i = 0; i < n; ++i)
                    z.set(i, j, (x.get(i, j) - moments.mean) / divisor);
            }
        },
        block(cells(X), n, p), block(cells(Z), n, p), block(linear(w), n));
}

void M_StandardizeKnownMeansStDev(matrix*& X, int n, int p, matrix* mean, matrix*& Z, matrix* stdev, matrix* var,
                                  short* mask)
{
    const std::unique_ptr<short[]> built = mask == nullptr ? incompleteRows(X, n, p) : nullptr;
    const Mask kept(mask == nullptr ? built.get() : mask);
    matrix::matCheck(Z, n, p, 0.0);
    const auto x = cells(X);
    const auto z = cells(Z);
    for (int j = 0; j < p; ++j) {
        const double m = linear(mean).get(j);
        const double divisor = divisorOf(stdev != nullptr ? linear(stdev).get(j) : squareRoot(linear(var).get(j)));
        for (int i = 0; i < n; ++i)
            z.set(i, j, kept.keeps(i) ? (x.get(i, j) - m) / divisor : missingValue);
    }
}

void M_StandardizeMatrix(matrix*& X, int n, int p, matrix*& Y, int nY, matrix*& V, int nV)
{
    TableHandle standardised;
    TableHandle mean;
    TableHandle stdev;
    TableHandle var;
    matrix unitWeights(n, 1, 1.0);
    M_Standardize(X, n, p, standardised.reference(), mean.reference(), stdev.reference(), var.reference(), nullptr,
                  &unitWeights, 0, 0);
    for (int j = 0; j < p; ++j)
        for (int i = 0; i < n; ++i)
            cells(X).set(i, j, cells<matrix>(standardised).get(i, j));
    divideColumns(Y, nY, p, stdev);
    divideColumns(V, nV, p, stdev);
}

void M_SubstractFirstCol2(matrix* X, int n, int p)
{
    const auto x = cells(X);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < p; ++j)
            x.set(i, j, x.get(i, j) - x.get(i, 0));
}
