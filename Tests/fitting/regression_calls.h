// The least squares fits, called on a problem.
#pragma once

#include "fitting/least_squares.h"
#include "fitting/least_squares_blocks.h"
#include "fitting/regression_reference.h"
#include "support/bits.h"
#include "support/tables.h"

#include <gtest/gtest.h>

#include <vector>

namespace vecmat::test {

/// How many columns the model of the problem has.
inline int modelSize(const Problem& problem)
{
    return static_cast<int>(modelColumns(problem).size());
}

inline Solution fitted(const Problem& problem)
{
    const int m = modelSize(problem);
    const Owned<matrix> X = table(problem.n, problem.p, problem.X), y = column(problem.y), w = column(problem.w);
    Owned<matrix> beta, se, values;
    const Owned<matrix> swept = filled(m + 1, m + 1, 77.0), mean = filled(m + 1, 1, 77.0), sd = filled(m + 1, 1, 77.0);
    OLSBasic3(problem.n, problem.p, X, y, w, problem.degree, problem.interactions, problem.noIntercept, problem.tol,
              beta, se, values, swept, mean, sd);
    // The data survive.
    EXPECT_THAT(cellsOf(X), SameBits(problem.X));
    EXPECT_THAT(cellsOf(y), SameBits(problem.y));
    EXPECT_THAT(cellsOf(w), SameBits(problem.w));
    return {cellsOf(beta), cellsOf(se), cellsOf(values), cellsOf(swept), cellsOf(mean), cellsOf(sd)};
}

/// The fit from five tables; there are five widths.
inline Solution fittedByBlocks(const Problem& problem, const std::vector<int>& widths)
{
    std::vector<Owned<matrix>> blocks;
    std::vector<std::vector<double>> before;
    auto next = problem.X.begin();
    for (const int width : widths) {
        before.emplace_back(next, next + problem.n * width);
        blocks.push_back(table(problem.n, width, before.back()));
        next += problem.n * width;
    }
    Owned<matrix> beta, se, values;
    OLSBasic2Lg(problem.n, widths[0], blocks[0].get(), widths[1], blocks[1].get(), widths[2], blocks[2].get(),
                widths[3], blocks[3].get(), widths[4], blocks[4].get(), column(problem.y), column(problem.w),
                problem.degree, problem.noIntercept, problem.tol, beta, se, values);
    for (std::size_t b = 0; b < blocks.size(); ++b)
        EXPECT_THAT(cellsOf(blocks[b]), SameBits(before[b])); // not standardised
    return {cellsOf(beta), cellsOf(se), cellsOf(values), {}, {}, {}};
}

inline void expectSameFit(const Solution& actual, const Solution& expected)
{
    EXPECT_THAT(actual.beta, SameBits(expected.beta));
    EXPECT_THAT(actual.se, SameBits(expected.se));
    EXPECT_THAT(actual.fitted, SameBits(expected.fitted));
}

} // namespace vecmat::test
