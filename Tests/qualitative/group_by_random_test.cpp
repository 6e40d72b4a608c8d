// Both functions and both flat forms against a plain walk over random tables, by bits.
#include "qualitative/group_by.h"

#include "qualitative/group_reference.h"
#include "support/bits.h"
#include "support/guarded.h"
#include "support/random_data.h"
#include "support/tables.h"

#include <array>

namespace vecmat::test {
namespace {

std::size_t count(int rows, int cols)
{
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
}

struct Case
{
    int rows; // of the table of data
    int cols;
    int nRows; // as passed
    int nCols;
    int keyCol;
    int aggregate;
    Doubles data;
    Ints colTypes;
    Doubles weights;

    explicit Case(RandomData& random)
        : rows(random.chance(0.03) ? random.integer(100, 900) : random.integer(0, 14)), cols(random.integer(1, 4)),
          nRows(random.chance(0.7) ? rows : random.integer(0, rows + 2)),
          nCols(random.chance(0.7) ? cols : random.integer(1, cols)), keyCol(random.integer(1, nCols)),
          aggregate(random.integer(-1, 9)),
          colTypes(random.integers(static_cast<std::size_t>(random.integer(0, 5)), -1, 1)),
          weights(random.withMissing(random.weights(static_cast<std::size_t>(nRows), random.uniform(0.0, 0.5)),
                                     random.chance(0.5) ? 0.0 : 0.1))
    {
        if (random.chance(0.3)) // then the flat form may write straight to the caller's array
            colTypes.assign(static_cast<std::size_t>(cols), 0);
        if (random.chance(0.2)) // equal weights, among which the median interpolates
            std::fill(weights.begin(), weights.end(), 2.0);
        for (int j = 1; j <= cols; ++j) {
            Doubles cells = random.chance(0.5) ? random.normals(count(rows, 1)) : random.wholes(count(rows, 1), -1, 4);
            if (j == keyCol)
                cells = random.wholes(count(rows, 1), 0, random.integer(0, 5));
            cells = random.withMissing(cells, random.chance(0.3) ? 0.7 : 0.15);
            for (double& cell : cells)
                if (cell == 0.0 && random.chance(0.5))
                    cell = -0.0;
            data.insert(data.end(), cells.begin(), cells.end());
        }
    }
};

/// Counts the kinds of cases, so that none is absent.
struct Seen
{
    std::array<int, 11> aggregates{};
    int severalGroups = 0;
    int largerGroups = 0;
};

void check(const Case& c, PlainTable expected, bool weighted, Seen& seen)
{
    PlainTable leftovers = expected;
    Doubles expectedWeights = c.weights;
    const int groups = plainGroups({c.rows, c.data}, c.nRows, c.nCols, c.colTypes, c.keyCol, c.aggregate, expected,
                                   weighted ? &expectedWeights : nullptr);
    const auto data = table(c.rows, c.cols, c.data);
    const auto types = intColumn(c.colTypes);
    const auto weights = column(c.weights);
    auto out = table(leftovers.rows, static_cast<int>(leftovers.cells.size()) / std::max(leftovers.rows, 1),
                     leftovers.rows == 0 ? Doubles() : leftovers.cells);
    matrix* const before = out;
    int nGroups = -7;
    if (weighted)
        M_GroupByW(data, c.nRows, c.nCols, types, c.keyCol, c.aggregate, &nGroups, out, weights);
    else
        M_GroupBy(data, c.nRows, c.nCols, types, c.keyCol, c.aggregate, &nGroups, out);
    EXPECT_EQ(nGroups, groups);
    EXPECT_EQ(out.get(), before) << "the table of the caller stays";
    EXPECT_THAT(cellsOf(out), SameBits(expected.cells));
    EXPECT_THAT(cellsOf(data), SameBits(c.data));
    EXPECT_THAT(cellsOf(weights), SameBits(weighted ? expectedWeights : c.weights));
    ++seen.aggregates.at(static_cast<std::size_t>(c.aggregate + 1));
    seen.severalGroups += groups > 1 ? 1 : 0;
    seen.largerGroups += groups > 0 && groups < c.nRows ? 1 : 0;
}

void checkFlat(const Case& c, bool weighted)
{
    Ints allTypes = c.colTypes;
    allTypes.resize(static_cast<std::size_t>(c.cols), 1);
    PlainTable expected{c.rows, Doubles(count(c.rows, c.cols), 5.5)};
    Doubles expectedWeights = c.weights;
    expectedWeights.resize(static_cast<std::size_t>(c.rows), 1.5);
    Guarded<double> data(c.data);
    Guarded<int> types(allTypes);
    Guarded<double> weights(expectedWeights);
    Guarded<double> out(expected.cells);
    const int groups = plainGroups({c.rows, c.data}, c.rows, c.cols, allTypes, c.keyCol, c.aggregate, expected,
                                   weighted ? &expectedWeights : nullptr);
    int nGroups = -7;
    if (weighted)
        VB_M_GroupByW(data, c.rows, c.cols, types, c.keyCol, c.aggregate, &nGroups, out, weights);
    else
        VB_M_GroupBy(data, c.rows, c.cols, types, c.keyCol, c.aggregate, &nGroups, out);
    EXPECT_EQ(nGroups, groups);
    EXPECT_THAT(out.values(), SameBits(expected.cells));
    EXPECT_THAT(weights.values(), SameBits(expectedWeights));
    EXPECT_TRUE(data.untouched());
    EXPECT_TRUE(types.untouched());
}

TEST(GroupByRandom, ArraysThatOverlapGiveTheSame)
{
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        RandomData random(seed);
        SCOPED_TRACE(random);
        const Case c(random);
        const std::size_t cells = count(c.rows, c.cols);
        Ints types(static_cast<std::size_t>(c.cols), 0);
        Doubles apart(cells);
        Doubles data = c.data;
        int expected = -7;
        VB_M_GroupBy(data.data(), c.rows, c.cols, types.data(), c.keyCol, c.aggregate, &expected, apart.data());

        const auto shift = static_cast<std::size_t>(random.integer(0, static_cast<int>(cells)));
        Doubles both = c.data;
        both.resize(cells + shift);
        int groups = -7;
        VB_M_GroupBy(both.data(), c.rows, c.cols, types.data(), c.keyCol, c.aggregate, &groups, both.data() + shift);
        ASSERT_EQ(groups, expected);
        ASSERT_THAT(Doubles(both.begin() + static_cast<std::ptrdiff_t>(shift), both.end()), SameBits(apart));
    }
}

TEST(GroupByRandom, IsThePlainWalk)
{
    Seen seen;
    for (std::uint64_t seed = 1; seed <= 3000; ++seed) {
        RandomData random(seed);
        SCOPED_TRACE(random);
        const Case c(random);
        // The result may be larger than the rows and columns required, and is not empty.
        const int outRows = c.nRows + (random.chance(0.3) ? random.integer(1, 2) : 0);
        const int outCols = c.nCols + (random.chance(0.3) ? 1 : 0);
        const PlainTable out{outRows, random.leftovers(count(outRows, outCols))};
        for (const bool weighted : {false, true}) {
            SCOPED_TRACE(weighted ? "weighted" : "plain");
            check(c, out, weighted, seen);
            checkFlat(c, weighted);
        }
        if (HasFailure())
            return;
    }
    for (const int cases : seen.aggregates)
        EXPECT_GT(cases, 300);
    EXPECT_GT(seen.severalGroups, 2000);
    EXPECT_GT(seen.largerGroups, 2000);
}

} // namespace
} // namespace vecmat::test
