// Sums of the members of `matrix`, against plain loops over random numbers.
#include "matrix.h"

#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

using namespace vecmat::test;

namespace {

constexpr int turns = 50;
constexpr int n = 12;
using Cells = std::vector<double>;

// A product is stored before it is added, so that no compiler fuses the two.

TEST(VSProd, AddsRoundedProductsInTheOrderOfTheRows)
{
    RandomData data(20621);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells x = data.ofManySizes(n), y = data.ofManySizes(n);
        Cells w = data.weights(n, 0.1);
        double sum = 0.0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const double product = x[i] * y[i] * w[i];
            if (w[i] > 0.0)
                sum += product;
        }
        auto table = column(x);
        table->weighting(w.data());
        EXPECT_THAT(table->VSProd(0, column(y), 0), SameBits(sum));
    }
}

TEST(PredictLine, AddsComponentByComponentAndInEachInTheOrderOfTheColumns)
{
    RandomData data(20622);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        constexpr std::size_t columns = 5, components = 3;
        const Cells x = data.ofManySizes(columns), t = data.ofManySizes(components),
                    p = data.ofManySizes(columns * components);
        double sum = 0.0;
        for (std::size_t k = 0; k < components; ++k)
            for (std::size_t j = 0; j < columns; ++j) {
                const double product = t[k] * p[j + columns * k] * x[j];
                sum += product;
            }
        EXPECT_THAT(
            table(1, columns, x)->predictLine(table(1, components, t), table(columns, components, p), 0, components, 0),
            SameBits(sum));
    }
}

TEST(CalcMu, AddsInTheOrderOfTheRows)
{
    RandomData data(20623);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells x = data.ofManySizes(n);
        double sum = 0.0;
        for (const double cell : x)
            sum += cell;
        EXPECT_THAT(column(x)->calcMu(0), SameBits(sum / n));
    }
}

/// The sum of the products of the cells at the places of a row of factors, each product rounded first.
double sumOf(const std::vector<Cells>& factors)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < factors[0].size(); ++i) {
        double product = factors[0][i];
        for (std::size_t k = 1; k < factors.size(); ++k)
            product *= factors[k][i];
        sum += product;
    }
    return sum;
}

TEST(InnerProducts, AddRoundedProductsInOrder)
{
    RandomData data(20624);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells x = data.ofManySizes(n), y = data.ofManySizes(n);
        Cells w = data.weights(n), differences;
        for (std::size_t i = 0; i < x.size(); ++i)
            differences.push_back(x[i] - y[i]);
        EXPECT_THAT(column(x)->VInnerProd(0), SameBits(sumOf({x, x})));
        EXPECT_THAT(column(x)->VInnerProd(0, false, 0, column(y)), SameBits(sumOf({x, x})));
        EXPECT_THAT(column(x)->VDiff(column(y), 0, 0), SameBits(sumOf({differences, differences})));
        EXPECT_THAT(table(1, n, x)->lineSqrSum(0), SameBits(sumOf({x, x})));
        EXPECT_THAT(table(1, n, x)->transVSProd(0, table(1, n, y), 0), SameBits(sumOf({x, y})));
        auto weighted = column(x);
        weighted->weighting(w.data());
        EXPECT_THAT(weighted->VInnerProdWeighted(0, false, 0, column(y)), SameBits(sumOf({x, x, w})));
    }
}

TEST(MatrixProducts, AddRoundedProductsInOrder)
{
    RandomData data(20625);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells x = data.ofManySizes(n), y = data.ofManySizes(n);
        const auto square = filled(n, n, 0.0); // as many columns as the factors' sum has terms
        square->matVecProd(table(n, n,
                                 [&] {
                                     Cells rows(n * n, 0.0);
                                     for (std::size_t k = 0; k < x.size(); ++k)
                                         rows[n * k] = x[k];
                                     return rows;
                                 }()),
                           column(y), 0, 0);
        EXPECT_THAT(square->X[0], SameBits(sumOf({x, y})));
        const auto one = filled(1, 1, 0.0);
        one->transMatProd(column(x), column(y));
        EXPECT_THAT(one->X[0], SameBits(sumOf({x, y})));
        one->matProd(table(1, n, x), column(y));
        EXPECT_THAT(one->X[0], SameBits(sumOf({x, y})));
    }
}

TEST(Projections, AddRoundedProductsInOrder)
{
    RandomData data(20626);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < turns; ++turn) {
        const Cells x = data.ofManySizes(n), y = data.ofManySizes(n);
        Cells w = data.weights(n);
        const Cells rowWeight(n, w[0]);
        const auto out = filled(1, 1, 0.0);
        table(1, n, x)->GaussProd(column(y), 0, out);
        EXPECT_THAT(out->X[0], SameBits(sumOf({x, y}) / sumOf({y, y})));
        column(x)->transGaussProd(column(y), 0, out);
        EXPECT_THAT(out->X[0], SameBits(sumOf({x, y}) / sumOf({y, y})));
        auto row = table(1, n, x);
        row->weighting(w.data());
        row->GaussProdWeighted(column(y), 0, out);
        EXPECT_THAT(out->X[0], SameBits(sumOf({x, y, rowWeight}) / sumOf({y, y})));
        auto weighted = column(x), factor = column(y);
        weighted->weighting(w.data());
        factor->weighting(w.data());
        weighted->transGaussProdWeighted(factor, 0, out);
        EXPECT_THAT(out->X[0], SameBits(sumOf({x, w, y}) / sumOf({y, y, w})));
    }
}

TEST(SubtractResidual, SubtractsTheRoundedProduct)
{
    RandomData data(20627);
    SCOPED_TRACE(data);
    const Cells x = data.ofManySizes(n), scores = data.ofManySizes(n);
    const double loading = data.normal();
    Cells expected;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double product = scores[i] * loading;
        expected.push_back(x[i] - product);
    }
    auto t = column(x);
    t->subtractResidual(column(scores), 0, column({loading}));
    EXPECT_THAT(cellsOf(t), SameBits(expected));
}

} // namespace
