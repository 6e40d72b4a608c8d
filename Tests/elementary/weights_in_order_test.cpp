// The sums of weights of a design's columns, against the plain loop over random numbers.
#include "elementary/column_products.h"

#include "support/bits.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <vector>

using namespace vecmat::test;

namespace {

TEST(MProductDesignAB2, AddsTheWeightsInTheOrderOfTheRows)
{
    RandomData data(20631);
    SCOPED_TRACE(data);
    for (int turn = 0; turn < 50; ++turn) {
        constexpr int rows = 12;
        const std::vector<double> w = data.weights(rows);
        double sum = 0.0;
        for (const double weight : w)
            sum += weight;
        const std::vector<double> ones(rows, 1.0);
        const auto a = column(ones), b = column(ones);
        Owned<matrix> out = column({0.0});
        int cols = 1;
        M_ProductDesignAB2(a, rows, &cols, b, 1, 1, column(w), out.reference());
        EXPECT_THAT(cellsOf(out), SameBits({sum}));
    }
}

} // namespace
